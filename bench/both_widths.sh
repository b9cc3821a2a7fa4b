#!/usr/bin/env bash
# The benchmark in both widths, side by side. Each area is measured in one, then in the other, so that a
# machine that gets busy meanwhile is the same to both.
#
#   bench/both_widths.sh [AREA...]      all areas, or these
set -u
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || set -- records manager texts poll picture scale
other=$(mktemp)
trap 'rm -f "$other"' EXIT

# Both print the same lines in the same order. Of a row with numbers the medians, floors and ratios stand
# beside each other; the wider tables of many printers have a line for each.
for area; do
  build/linux/stmdata_bench "$area" >"$other" && build/native/stmdata_bench "$area" | awk -v other="$other" '
    { getline theirs <other; label = substr($0, 1, 46) }
    /floor ns +ratio/ {
      printf "%-46s %28s %28s\n", "", "native", "32 bits"
      printf "%s %10s %8s %8s %10s %8s %8s %8s\n", label, "ns", "floor ns", "ratio", "ns", "floor ns", "ratio", "aim"
      next
    }
    $0 == theirs { print; next }
    substr($0, 47) ~ /^ +[0-9.]+ +[0-9.]+ +[0-9.]+( +[0-9.]+( +missed)?)?$/ {
      split(substr($0, 47), a, " +"); split(substr(theirs, 47), b, " +")
      printf "%s %10s %8s %8s %10s %8s %8s %8s%s%s\n", label, a[2], a[3], a[4], b[2], b[3], b[4], a[5], \
        (a[6] ? "  missed natively" : ""), (b[6] ? "  missed in 32 bits" : "")
      next
    }
    { print $0 "  native"; print theirs "  32 bits" }' || exit
done
