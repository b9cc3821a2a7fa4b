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
. tools/debian_root.sh

root=${STMDATA_WINE_ROOT:-/var/cache/stmdata/wine-i386}
packages=wine,wine32,xvfb,xauth,imagemagick,x11-utils,xdotool,fonts-wine,fonts-vlgothic

available() { may_enter_roots "a 32-bit Wine" "$root"; }
make_root() { make_debian_root "$root" "32-bit Wine root" "about two minutes, 1.3 GB" 1030 "$packages"; }

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
