#!/usr/bin/env bash
# Both widths make the same of every input: records, texts, icons and part lists, on Linux and, where
# there is a Wine, on Windows.
set -eu
cd "$(dirname "$0")/../.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

same() {
  [ -s "$work/$1" ] && cmp "$work/$1" "$work/$2" && return 0
  diff "$work/$1" "$work/$2" | head -n 20
  echo "$1 and $2 differ, or say nothing"
  exit 1
}

export LC_ALL=C
for preset in native linux; do
  "build/$preset/stmdata_dump" fuzz/corpus >"$work/$preset"
done
same native linux
grep -aq "flat line 1 . Call Service Center" "$work/native" || { echo "the dump lacks what it should tell"; exit 1; }

if reason=$({ tools/wine.sh available 32 && tools/wine.sh available 64; } 2>&1); then
  tools/wine.sh run 32 wine build/windows/stmdata_dump.exe fuzz/corpus >"$work/windows"
  tools/wine.sh run 64 wine build/windows64/stmdata_dump.exe fuzz/corpus >"$work/windows64"
  same windows windows64
else
  echo "The Windows builds were not compared: $reason"
fi
