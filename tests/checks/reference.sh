#!/usr/bin/env bash
# Makes the reference of the public headers in build/docs/html. Every function has its words there, and
# doxygen finds nothing to warn about.
set -eu
cd "$(dirname "$0")/../.."
rm -rf build/docs
mkdir -p build/docs
STMDATA_VERSION=$(sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' CMakeLists.txt) doxygen docs/Doxyfile
undocumented=$(for name in $(sed -nE 's/^ *(\w+) = .*@[0-9]+$/\1/p' src/exports/stmdata.def); do
  grep -q "<name>$name</name>" build/docs/stmdata.tag || echo "$name"
done)
[ -z "$undocumented" ] || { echo "Not in the reference: $undocumented"; exit 1; }
