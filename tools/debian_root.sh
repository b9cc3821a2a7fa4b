# Debian roots of their own, made once and kept outside the checkout. Sourced after common.sh.

may_enter_roots() {
  [ "$(id -u)" -eq 0 ] || { say "$1 needs root to make and enter its Debian root ($2)"; return 1; }
  unshare --mount --propagation unchanged true 2>/dev/null || { say "this machine does not allow the mounts that $1 ($2) needs"; return 1; }
}

# make_debian_root ARCHITECTURES FOLDER NAME COST [PACKAGES]: nothing to do when it is there. The first
# of the architectures is the root's own; COST is told to the user; lists have commas.
make_debian_root() {
  local architectures=$1 root=$2 name=$3 cost=$4 packages=${5:-} codename mirror
  [ -f "$root/.complete" ] && return 0
  need_packages mmdebstrap arch-test || return 1
  codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
  mirror_of() { apt-get indextargets --format '$(REPO_URI) $(CODENAME)' | awk -v c="$codename" '$2 == c { print $1; exit }'; }
  mirror=$(mirror_of)
  [ -n "$mirror" ] || { quietly "apt-get update" apt-get update; mirror=$(mirror_of); }
  [ -n "$mirror" ] || { say "No package mirror for $codename is configured for apt."; return 1; }
  say "Making the $name in $root: once, $cost"
  rm -rf "$root.new"
  mkdir -p "$(dirname "$root")"
  mmdebstrap --architectures="$architectures" --variant=minbase ${packages:+--include="$packages"} \
    "$codename" "$root.new" "$mirror" 2>&1 | awk -v name="$name" '
    /^I: (running|downloading|extracting|installing)/ { sub("^I: ", ""); print "  " name ": " $0; fflush() }
    /^[EW]:/' >&2
  [ "${PIPESTATUS[0]}" -eq 0 ] || { say "mmdebstrap failed"; return 1; }
  touch "$root.new/.complete"
  rm -rf "$root"
  mv "$root.new" "$root"
}

# run_in_root ROOT HOME [NAME=VALUE...] COMMAND...: runs a command inside the root, in this project's
# folder. The mounts live in a mount namespace of this call. Inside a changed root it cannot be made
# private, and what is mounted in it may show outside: therefore all is unmounted again.
run_in_root() {
  local root=$1 home=$2 here propagation=private
  shift 2
  here=$(pwd)
  mkdir -p "$home" "$root$here"
  unshare --mount --propagation private true 2>/dev/null || propagation=unchanged
  unshare --mount --propagation "$propagation" bash -c '
    root=$1 here=$2 home=$3
    shift 3
    trap "umount --lazy \"$root$here\" \"$root/tmp\" \"$root/dev\" \"$root/proc\" 2>/dev/null" EXIT
    { mount -t proc proc "$root/proc" 2>/dev/null || mount --bind /proc "$root/proc"; } &&
      mount --bind /dev "$root/dev" &&
      mount -t tmpfs tmpfs "$root/tmp" && mkdir -p "$root$here" && mount --bind "$here" "$root$here" || exit 1
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME="$home" USER=root LANG=C.UTF-8 \
      TERM=dumb CI="${CI:-}" sh -c "cd \"\$0\" && exec env \"\$@\"" "$here" "$@"
  ' debian-root "$root" "$here" "$home" "$@"
}
