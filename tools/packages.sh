# Makes and tries the packages; sourced by ./package, from the project's folder.

version=$(sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
zip_name=stmdata-$version-windows
stage=$PWD/build/package

# Debian packages by architecture; what each contains is in debian/control.
debs_of() {
  case $1 in
    amd64) echo libstmdata0 libstmdata-dev stmon ;;
    i386) echo libstmdata0 libstmdata-dev ;;
  esac
}

# All dates in the packages are that of the last commit.
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export TZ=UTC LC_ALL=C

# ---- Zip ------------------------------------------------------------------------------------------

# settle FOLDER: nothing about this machine or moment remains in modes and dates.
settle() {
  find "$1" -type d -exec chmod 755 {} +
  find "$1" -type f -exec chmod 644 {} +
  find "$1" -path '*/bin/*' -type f -exec chmod 755 {} +
  find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}

files_of() { (cd "$1" && find . ! -type d -printf '%P\n' | sort); }

# same_layout WHAT... <FILES: exactly those that docs/packaging.md lists for it.
same_layout() {
  diff <(tools/layout.sh "$@") - >&2 && return 0
  say "$*: < is only listed in docs/packaging.md, > is only in the package"
  return 1
}

make_zip() {
  local top=$stage/$zip_name width
  say "Packing dist/$zip_name.zip"
  rm -rf "$top" && mkdir -p "$top" dist
  for width in windows windows64; do
    quietly "installing" cmake --install build/$width --prefix "$top" --strip || return 1
  done
  (cd "$top" && files_of . | xargs -d '\n' sha256sum >../sums && mv ../sums SHA256SUMS)
  files_of "$top" | same_layout zip || return 1
  settle "$top"
  (cd "$stage" && find "$zip_name" | sort | zip -q -X -9 -@ "$OLDPWD/dist/$zip_name.zip")
}

# ---- Debian ---------------------------------------------------------------------------------------

# A copy of what git knows, with the changelog that the version and the last commit make.
debian_source() {
  rm -rf "$1" && mkdir -p "$1"
  git ls-files -z | xargs -0 cp -P --parents -t "$1"
  cat >"$1/debian/changelog" <<CHANGELOG
stmdata ($version) stable; urgency=medium

  * Release $version.

 -- $(sed -n 's/^Maintainer: //p' debian/control)  $(date -R -d "@$SOURCE_DATE_EPOCH")
CHANGELOG
}

# make_debs ARCHITECTURE: amd64 on this machine, i386 in a Debian of that architecture.
make_debs() {
  local architecture=$1 folder=$stage/$1/stmdata-$version name file reason
  if [ "$architecture" = i386 ] && ! reason=$(may_enter_roots "building for i386" "$build_root" 2>&1); then
    say "No Debian packages for i386: $reason"
    return 0
  fi
  say "Building the Debian packages for $architecture"
  rm -rf "${stage:?}/$architecture"
  debian_source "$folder" || return 1
  case $architecture in
    amd64) (cd "$folder" && quietly "dpkg-buildpackage" dpkg-buildpackage -us -uc -b) || return 1 ;;
    i386)
      make_build_root && quietly "dpkg-buildpackage in the i386 root" run_in_root "$build_root" /root \
        SOURCE_DATE_EPOCH="$SOURCE_DATE_EPOCH" TZ=UTC setarch i386 sh -c \
        'cd "$0" && dpkg-buildpackage -us -uc -b' "$folder" || return 1
      ;;
  esac
  for name in $(debs_of "$architecture"); do
    file=${name}_${version}_$architecture.deb
    dpkg-deb --fsys-tarfile "$stage/$architecture/$file" | tar -t | sed -n 's,^\./\(.*[^/]\)$,\1,p' | sort |
      same_layout "$name" "$(dpkg-architecture -a"$architecture" -qDEB_HOST_MULTIARCH 2>/dev/null)" || return 1
    cp "$stage/$architecture/$file" dist/
  done
}

# Errors fail; what else lintian says is shown.
ask_lintian() { say "lintian:" && lintian --fail-on error "$stage"/*/*.changes >&2; }

write_sums() { (cd dist && sha256sum -- *.deb *.zip >SHA256SUMS); }
show_result() { ls -l dist; }

# ---- Roots ----------------------------------------------------------------------------------------

cache=${STMDATA_ROOTS:-/var/cache/stmdata}
build_root=$cache/build-i386
try_root=$cache/debian-amd64

make_build_root() {
  make_debian_root i386 "$build_root" "Debian i386 root" "a minute or two, 590 MB" \
    binutils-mingw-w64-i686,build-essential,cmake,debhelper,ninja-build,pkg-config
}
make_try_root() {
  make_debian_root amd64,i386 "$try_root" "clean Debian root" "a minute or two, 650 MB" \
    cmake,g++-multilib,make,pkg-config,libstdc++6:i386
}

# ---- Try-outs -------------------------------------------------------------------------------------

# The zip alone in an empty folder, its name with a blank; the programs run there under Wine.
try_zip() {
  local place="$stage/an empty folder" reason width folder
  say "Trying the zip under Wine"
  rm -rf "$place" && mkdir -p "$place"
  quietly "unpacking" unzip -q "dist/$zip_name.zip" -d "$place" || return 1
  (cd "$place/$zip_name" && quietly "the sums" sha256sum -c --strict SHA256SUMS) || return 1
  for width in 32 64; do
    [ $width = 32 ] && folder=x86 || folder=x64
    if ! reason=$(tools/wine.sh available $width 2>&1); then
      say "  $folder: not run: $reason"
      continue
    fi
    quietly "the zip's programs in $folder" tools/wine.sh run $width sh -euc '
      cd "$0"
      wine stmon.exe --version >answer
      grep -F "$1" answer
      status=0
      wine stmon.exe --scenario no-paper >answer || status=$?
      cat answer
      rm answer
      [ "$status" -eq 2 ]
    ' "$place/$zip_name/$folder/bin" "$version" || return 1
  done
}

# Installed, used, built against and removed in clean Debians. What is written there lives in memory and
# is gone afterwards.
try_debs() {
  local reason
  if ! reason=$(may_enter_roots "the clean Debian" "$try_root" 2>&1); then
    say "The Debian packages were not tried: $reason"
    return 0
  fi
  make_try_root && make_build_root || return 1
  say "Trying the Debian packages of both architectures beside each other in a clean Debian amd64"
  try_in_root "$try_root" libstmdata0:amd64 libstmdata-dev:amd64 stmon:amd64 libstmdata0:i386 libstmdata-dev:i386 || return 1
  say "Trying those for i386 in a Debian i386"
  try_in_root "$build_root" libstmdata0:i386 libstmdata-dev:i386
}

# try_in_root ROOT PACKAGE:ARCHITECTURE...
try_in_root() {
  local root=$1
  shift
  quietly "the Debian packages" unshare --mount --propagation private bash -euc '
    root=$1 version=$2
    shift 2
    mount -t tmpfs tmpfs /mnt
    mkdir /mnt/upper /mnt/work /mnt/debian
    mount -t overlay overlay -o "lowerdir=$root,upperdir=/mnt/upper,workdir=/mnt/work" /mnt/debian
    mkdir /mnt/debian/try
    for package; do cp "dist/${package%:*}_${version}_${package#*:}.deb" /mnt/debian/try/; done
    cp -r tools/try_deb.sh tests/consumer /mnt/debian/try/
    sed -nE "s/^ *(\w+) = \w+@[0-9]+ @[0-9]+$/\1/p" src/exports/stmdata.def | grep -v "^DllMain$" |
      cat - src/exports/host_functions.txt | sed "s/.*/EXPORT(&)/" >/mnt/debian/try/consumer/exports.inc
    mount --bind /proc /mnt/debian/proc
    mount --bind /dev /mnt/debian/dev
    exec chroot /mnt/debian env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/try LANG=C.UTF-8 \
      /try/try_deb.sh "$version" "$@"
  ' clean-debian "$root" "$version" "$@"
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
