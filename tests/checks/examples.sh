#!/usr/bin/env bash
# The examples run without arguments and print what they promise.
cd "$(dirname "$0")/../.." || exit 1
status=0

# check EXAMPLE LINE: the program ends with 0 and prints the line.
check() {
  local out
  if ! out=$(LC_ALL=C "build/native/example_$1" 2>&1) || ! grep -qxF -- "$2" <<<"$out"; then
    printf '%s does not print "%s" but\n%s\n' "$1" "$2" "$out"
    status=1
  fi
}

check first 'The printer says: No Paper'
check one_poll 'Parts:   1 43 3 24 5'
check both_records '  flat: Toner is empty.  / Add Toner. /  / <BC><B1><DD>  <CC><DE><D7><AF><B8>  '
check every_language 'PL  Brak toneru'
check load_at_run_time 'Status 32: No Paper'
check print_manager 'Tray id 4: A3, 0 %, in use'
exit $status
