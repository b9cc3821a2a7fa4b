#!/usr/bin/env bash
# Runs Windows programs under a 32-bit Wine that lives in a Debian i386 root of its own, since the
# amd64 package set often cannot take a 32-bit Wine beside it.
#
#   tools/wine.sh available        exit status 0 when the root can be made and entered here, else the reason
#   tools/wine.sh run COMMAND...   a command inside, in this project's folder, with a virtual display
#
# The root is made once (about two minutes, 1.3 GB), kept outside the checkout and found again.
set -u
cd "$(dirname "$0")/.."
. tools/common.sh

root=${STMDATA_WINE_ROOT:-/var/cache/stmdata/wine-i386}
packages=wine,wine32,xvfb,xauth,imagemagick,x11-utils,xdotool

available() {
  [ "$(id -u)" -eq 0 ] || { say "a 32-bit Wine needs root to make and enter its Debian root ($root)"; return 1; }
  unshare --mount true 2>/dev/null || { say "this machine does not allow the mounts that the Wine root ($root) needs"; return 1; }
}

# One line of progress: rewritten on a terminal, a line for each stage elsewhere.
show_progress() {
  awk -v tty="$([ -t 2 ] && echo 1 || echo 0)" '
    /^I: Retrieving/ { stage = "fetching" } /^I: (Extracting|Unpacking)/ { stage = "unpacking" }
    /^I: Configuring/ { stage = "configuring" }
    /^I:/ {
      steps++
      if (tty) printf "\r  Wine root: %s, step %d of about 1030   ", stage, steps > "/dev/stderr"
      else if (stage != last) { print "  Wine root: " stage > "/dev/stderr"; last = stage }
    }
    /^[EW]:/ { print > "/dev/stderr" }
    END { if (tty) print "" > "/dev/stderr" }'
}

make_root() {
  [ -f "$root/.complete" ] && return 0
  need_packages debootstrap || return 1
  local codename mirror
  codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
  mirror_of() { apt-get indextargets --format '$(REPO_URI) $(CODENAME)' | awk -v c="$codename" '$2 == c { print $1; exit }'; }
  mirror=$(mirror_of)
  [ -n "$mirror" ] || { quietly "apt-get update" apt-get update; mirror=$(mirror_of); }
  [ -n "$mirror" ] || { say "No package mirror for $codename is configured for apt."; return 1; }
  say "Making the 32-bit Wine root in $root: once, about two minutes, 1.3 GB"
  rm -rf "$root.new"
  mkdir -p "$(dirname "$root")"
  debootstrap --arch=i386 --variant=minbase --include="$packages" "$codename" "$root.new" "$mirror" |
    show_progress
  [ "${PIPESTATUS[0]}" -eq 0 ] || { say "debootstrap failed; see $root.new/debootstrap/debootstrap.log"; return 1; }
  touch "$root.new/.complete"
  rm -rf "$root"
  mv "$root.new" "$root"
}

# The mounts live in a mount namespace of this call and vanish with it. The prefix lies in the build
# folder: checkouts do not share a Wine server.
run() {
  local here prefix
  here=$(pwd)
  prefix=$here/build/wine
  mkdir -p "$prefix" "$root$here"
  exec unshare --mount --propagation private bash -c '
    root=$1 here=$2 prefix=$3
    shift 3
    mount --bind /proc "$root/proc" && mount --bind /dev "$root/dev" &&
      mount -t tmpfs tmpfs "$root/tmp" && mkdir -p "$root$here" && mount --bind "$here" "$root$here" || exit 1
    exec chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME="$prefix" USER=root \
      WINEPREFIX="$prefix/prefix" WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= LANG=C.UTF-8 TERM=dumb \
      CI="${CI:-}" sh -c "cd \"\$0\" && exec \"\$@\"" "$here" "$@"
  ' wine-root "$root" "$here" "$prefix" "$@"
}

case "${1:-}" in
  available) available ;;
  run)
    shift
    available && make_root && run "$@"
    ;;
  *)
    sed -n '2,9s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
