#!/usr/bin/env bash
# The examples run without arguments and print what they promise.
cd "$(dirname "$0")/../.." || exit 1
status=0

# check EXAMPLE LINE: the program ends with 0 and prints the line.
check() {
  local out
  if ! out=$(LC_ALL=C "build/linux/example_$1" 2>&1) || ! grep -qxF -- "$2" <<<"$out"; then
    printf '%s does not print "%s" but\n%s\n' "$1" "$2" "$out"
    status=1
  fi
}

check read_reply 'Tray id 3 holds B4 and is in use.'
check every_language 'PL  Brak toneru'
check load_at_run_time 'Status 32: No Paper'
check print_manager 'Tray id 4: A3, 0 %, in use'
exit $status
