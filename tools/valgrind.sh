#!/usr/bin/env bash
# Runs 32-bit programs under Valgrind. It needs the debug symbols of the very C library that the program
# uses, and Debian has none for the 32-bit one of its 64-bit machines: Valgrind and the programs run in
# a Debian i386 root of their own.
#
#   tools/valgrind.sh available        exit status 0 when the root can be made and entered here, else the reason
#   tools/valgrind.sh run ARGUMENT...  valgrind with these arguments, in this project's folder
#
# The root is made once (under a minute, 280 MB), kept outside the checkout and found again.
set -u
cd "$(dirname "$0")/.."
. tools/common.sh
. tools/debian_root.sh

root=${STMDATA_VALGRIND_ROOT:-/var/cache/stmdata/valgrind-i386}

available() { may_enter_roots "Valgrind for 32-bit programs" "$root"; }
make_root() { make_debian_root "$root" "Valgrind root" "under a minute, 280 MB" 430 valgrind,libc6-dbg,libstdc++6; }

case "${1:-}" in
  available) available ;;
  run)
    shift
    available && make_root && run_in_root "$root" /root valgrind "$@"
    ;;
  *)
    sed -n '2,9s/^# \{0,1\}//p' "$0" >&2
    exit 2
    ;;
esac
