# Makes and tries the two packages; sourced by ./package, from the project's folder.

version=$(sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
zip_name=stmdata-$version-windows-i686
deb_name=stmdata_${version}_i386
stage=build/package

# All dates in the packages are that of the last commit.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export TZ=UTC LC_ALL=C

# settle FOLDER: nothing about this machine or moment remains in modes and dates.
settle() {
  find "$1" -type d -exec chmod 755 {} +
  find "$1" -type f -exec chmod 644 {} +
  find "$1" -path '*/bin/*' -type f -exec chmod 755 {} +
  find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}

files_of() { (cd "$1" && find . ! -type d -printf '%P\n' | sort); }

# same_layout COLUMN FOLDER: exactly the files that docs/packaging.md lists.
same_layout() {
  diff <(tools/layout.sh "$1") <(files_of "$2") >&2 && return 0
  say "$1: < is only listed in docs/packaging.md, > is only in the package"
  return 1
}

make_zip() {
  local top=$stage/$zip_name
  say "Packing dist/$zip_name.zip"
  rm -rf "$top" && mkdir -p "$top" dist && rm -f "dist/$zip_name.zip"
  quietly "installing" cmake --install build/windows --prefix "$top" --strip || return 1
  (cd "$top" && files_of . | xargs -d '\n' sha256sum >../sums && mv ../sums SHA256SUMS)
  same_layout zip "$top" || return 1
  settle "$top"
  (cd $stage && find "$zip_name" | sort | zip -q -X -9 -@ "$OLDPWD/dist/$zip_name.zip")
}

# The oldest C library that has every symbol version the programs use, and the C++ run-time where one
# needs it. The numbers are read from the files; the build machine's package lists are amd64's.
dependencies() {
  local needed glibc
  glibc=$(objdump -T "$@" 2>/dev/null | grep -oE 'GLIBC_[0-9.]+' | sort -uV | tail -n 1)
  printf 'libc6 (>= %s)' "${glibc#GLIBC_}"
  needed=$(readelf -d "$@" | sed -nE 's/.*NEEDED.*\[(.*)\]/\1/p' | sort -u)
  case $needed in *libgcc_s.so.1*) printf ', libgcc-s1 (>= 4.2)' ;; esac
  case $needed in *libstdc++.so.6*) printf ', libstdc++6 (>= %s)' "$(g++ -dumpversion)" ;; esac
}

make_deb() {
  local top=$stage/$deb_name doc
  say "Packing dist/$deb_name.deb"
  rm -rf "$top" && mkdir -p "$top/DEBIAN" dist && rm -f "dist/$deb_name.deb"
  DESTDIR=$PWD/$top quietly "installing" cmake --install build/debian --strip || return 1
  doc=$top/usr/share/doc/stmdata
  gzip -9n "$top/usr/share/man/man1/stmon.1"
  gzip -9n >"$doc/changelog.gz" <<CHANGELOG
stmdata ($version) stable; urgency=medium

  * Release $version.

 -- stmdata developers <stmdata@invalid>  $(date -R -d "@$SOURCE_DATE_EPOCH")
CHANGELOG
  (cd "$top" && files_of usr | sed 's,^,usr/,' | xargs -d '\n' -I{} sh -c '[ -L "{}" ] || md5sum "{}"' >DEBIAN/md5sums)
  (cd "$top" && find usr ! -type d | sort) | diff <(tools/layout.sh debian) - >&2 ||
    { say "debian: < is only listed in docs/packaging.md, > is only in the package"; return 1; }
  if readelf -d "$top"/usr/bin/* | grep -E '(RPATH|RUNPATH)' >&2; then
    say "debian: a program looks for the library in a place of its own"
    return 1
  fi
  cat >"$top/DEBIAN/control" <<CONTROL
Package: stmdata
Version: $version
Architecture: i386
Maintainer: stmdata developers <stmdata@invalid>
Installed-Size: $(find "$top/usr" -type f -printf '%s\n' | awk '{ kib += int(($1 + 1023) / 1024) } END { print kib }')
Depends: $(dependencies "$top"/usr/bin/* "$top"/usr/lib/i386-linux-gnu/libstmdata.so)
Section: libs
Priority: optional
Description: status data of a colour laser printer
 The library that turns what a colour laser printer says into records, codes,
 texts and pictures, its headers, and the monitor stmon.
CONTROL
  echo "libstmdata ${version%%.*} stmdata" >"$top/DEBIAN/shlibs"
  echo 'activate-noawait ldconfig' >"$top/DEBIAN/triggers"
  settle "$top"
  quietly "dpkg-deb" dpkg-deb --root-owner-group -Zxz --threads-max=1 --build "$top" "dist/$deb_name.deb"
}

write_sums() { (cd dist && sha256sum "$deb_name.deb" "$zip_name.zip" >SHA256SUMS); }
show_result() { (cd dist && ls -l "$deb_name.deb" "$zip_name.zip" SHA256SUMS); }

# ---- Try-outs -------------------------------------------------------------------------------------

# The zip alone in an empty folder, its name with a blank; the programs run there under Wine.
try_zip() {
  local place="$stage/an empty folder" reason
  say "Trying the zip under Wine"
  rm -rf "$place" && mkdir -p "$place"
  quietly "unpacking" unzip -q "dist/$zip_name.zip" -d "$place" || return 1
  (cd "$place/$zip_name" && quietly "the sums" sha256sum -c --strict SHA256SUMS) || return 1
  if ! reason=$(tools/wine.sh available 32 2>&1); then
    say "  not run: $reason"
    return 0
  fi
  quietly "the zip's programs" tools/wine.sh run 32 sh -eu -c '
    cd "$0/$1/bin"
    wine stmon.exe --version >answer
    grep -F "$2" answer
    status=0
    wine stmon.exe --scenario no-paper >answer || status=$?
    cat answer
    [ "$status" -eq 2 ] && [ -s answer ]
  ' "$place" "$zip_name" "$version"
}

# Installed, used and removed in a Debian that has the base system only. What is written there lives
# in memory and is gone afterwards.
try_deb() {
  local root=${STMDATA_DEBIAN_ROOT:-/var/cache/stmdata/debian-i386} reason
  if ! reason=$(may_enter_roots "the clean Debian" "$root" 2>&1); then
    say "The Debian package was not tried: $reason"
    return 0
  fi
  make_debian_root "$root" "clean Debian i386 root" "about a minute, 210 MB" 400 || return 1
  say "Trying the Debian package in a clean Debian"
  quietly "the Debian package" unshare --mount --propagation private bash -euc '
    root=$1 deb=$2 version=$3
    mount -t tmpfs tmpfs /mnt
    mkdir /mnt/upper /mnt/work /mnt/debian
    mount -t overlay overlay -o "lowerdir=$root,upperdir=/mnt/upper,workdir=/mnt/work" /mnt/debian
    mkdir /mnt/debian/try
    cp "$deb" /mnt/debian/try/stmdata.deb
    cp tools/try_deb.sh /mnt/debian/try/
    mount --bind /proc /mnt/debian/proc
    mount --bind /dev /mnt/debian/dev
    exec chroot /mnt/debian env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/try LANG=C.UTF-8 \
      /try/try_deb.sh "$version"
  ' clean-debian "$root" "dist/$deb_name.deb" "$version"
}

# Another folder, another day: the packages are made again from the commit and compared.
compare_with_clone() {
  local clone status=1
  [ -f dist/SHA256SUMS ] || { say "Run ./package first."; return 1; }
  [ -z "$(git status --porcelain)" ] || { say "There are changes that are not committed; a clone lacks them."; return 1; }
  clone=$(mktemp -d)
  say "Making the packages from a fresh clone, a few minutes"
  git clone -q . "$clone/somewhere else" && (cd "$clone/somewhere else" && ./package make) >/dev/null &&
    diff dist/SHA256SUMS "$clone/somewhere else/dist/SHA256SUMS" && status=0
  rm -rf "$clone"
  [ $status -eq 0 ] && say "Equal." || say "The packages differ, or could not be made."
  return $status
}
