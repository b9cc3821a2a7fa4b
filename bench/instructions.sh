#!/usr/bin/env bash
# Counts the instructions of every row, beside those of its floor: they do not depend on what else
# the machine does. Needs valgrind. Each count is the difference between two runs of the program, so
# that what happens once is in neither.
#
#   bench/instructions.sh [ROW...]      all rows, or those with these names
set -u
cd "$(dirname "$0")/.."
program=build/native/stmdata_bench
few=5 many=105
[ -x "$program" ] || { echo "build it first: cmake --preset native && cmake --build --preset native" >&2; exit 1; }

# count WHAT ROW CALLS: instructions of the whole run.
count() {
  valgrind --tool=callgrind --callgrind-out-file=/dev/null "$program" "--$1" "$2" "$3" 2>&1 |
    sed -n 's/.*Collected : *//p'
}

# a_call WHAT ROW: instructions a call.
a_call() {
  local less more
  less=$(count "$1" "$2" "$few") && more=$(count "$1" "$2" "$many") || exit 1
  echo $(((more - less) / (many - few)))
}

if [ $# -eq 0 ]; then mapfile -t rows < <("$program" --list); else rows=("$@"); fi
printf '%-46s %12s %10s %8s\n' 'instructions a call' work floor ratio
for row in "${rows[@]}"; do
  work=$(a_call work "$row") floor=$(a_call floor "$row")
  printf '%-46s %12d %10d %8s\n' "$row" "$work" "$floor" \
    "$(awk -v w="$work" -v f="$floor" 'BEGIN { if (f > 0) printf "%.2f", w / f; else print "-" }')"
done
