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

# The prefix lies in the build folder: checkouts do not share a Wine server.
run() {
  local home
  home=$(pwd)/build/wine
  run_in_root "$root" "$home" WINEPREFIX="$home/prefix" WINEDEBUG=-all \
    WINEDLLOVERRIDES=mscoree,mshtml= "$@"
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
