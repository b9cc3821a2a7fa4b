#!/usr/bin/env bash
# Runs Windows programs under Wine. The 64-bit one is the machine's own. The 32-bit one lives in a Debian
# i386 root of its own, since the amd64 package set often cannot take it beside the other.
#
#   tools/wine.sh available WIDTH        exit status 0 when programs of 32 or 64 bits can run here, else why not
#   tools/wine.sh run WIDTH COMMAND...   a command in this project's folder, where `wine` runs such programs
#
# The root is made once (about two minutes, 1.3 GB), kept outside the checkout and found again.
set -u
cd "$(dirname "$0")/.."
. tools/common.sh
. tools/debian_root.sh

root=${STMDATA_WINE_ROOT:-/var/cache/stmdata/wine-i386}
root_packages=wine,wine32,xvfb,xauth,imagemagick,x11-utils,xdotool,fonts-wine,fonts-vlgothic
host_packages=(wine wine64 xvfb xauth fonts-wine fonts-vlgothic)

available() {
  case $1 in
    32) may_enter_roots "a 32-bit Wine" "$root" ;;
    64) may_have_packages "${host_packages[@]}" ;;
  esac
}

# A prefix for each width, in the build folder: checkouts do not share a Wine server.
run() {
  local home settings
  home=$(pwd)/build/wine$1
  settings=(WINEPREFIX="$home/prefix" WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=)
  case $1 in
    32)
      make_debian_root i386 "$root" "32-bit Wine root" "about two minutes, 1.3 GB" "$root_packages" &&
        run_in_root "$root" "$home" "${settings[@]}" "${@:2}"
      ;;
    64)
      need_packages "${host_packages[@]}" && mkdir -p "$home" &&
        env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME="$home" LANG=C.UTF-8 TERM=dumb CI="${CI:-}" \
          "${settings[@]}" "${@:2}"
      ;;
  esac
}

case "${1:-} ${2:-}" in
  'available 32' | 'available 64') available "$2" ;;
  'run 32' | 'run 64')
    shift
    available "$1" && run "$@"
    ;;
  *)
    sed -n '2,8s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
