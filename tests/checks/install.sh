#!/usr/bin/env bash
# The installed tree holds the files that docs/packaging.md lists, may be moved, and serves whoever
# builds against it: by the CMake package, by pkg-config, by a plain compiler call; on Linux, for
# Windows by MinGW and by a linker of Microsoft's format. The Windows programs run where there is a Wine.
set -eu
cd "$(dirname "$0")/../.."
here=$PWD
work=$here/build/install-check
rm -rf "$work"
mkdir -p "$work"

fail() {
  echo "$*"
  exit 1
}
names() { sed -nE 's/^ *(\w+) = \w+@[0-9]+ @[0-9]+$/\1/p' src/exports/stmdata.def | grep -v '^DllMain$'; }
warnings=(-std=c99 -Wall -Wextra -Wpedantic -Werror)

# ---- Trees: installed, compared with the list, moved --------------------------------------------

for system in linux windows; do
  cmake --install "build/$system" --prefix "$work/first/$system" --strip >/dev/null
  mkdir -p "$work/$system"
  mv "$work/first/$system" "$work/$system/tree"
  (cd "$work/$system/tree" && find . ! -type d -printf '%P\n' | LC_ALL=C sort) >"$work/$system/found"
  tools/layout.sh "$system" >"$work/$system/listed"
  diff "$work/$system/listed" "$work/$system/found" ||
    fail "$system: < only listed in docs/packaging.md, > only installed"
  cp tests/consumer/* "$work/$system"
done
names >"$work/names"
sed 's/.*/EXPORT(&)/' "$work/names" | tee "$work/windows/exports.inc" >"$work/linux/exports.inc"
sed 's/.*/EXPORT(&)/' src/exports/host_functions.txt >>"$work/linux/exports.inc"

# ---- Linux ----------------------------------------------------------------------------------------

cd "$work/linux"
export PKG_CONFIG_PATH=$work/linux/tree/lib/pkgconfig
export LD_LIBRARY_PATH=$work/linux/tree/lib
cmake -S . -B by-cmake -DCMAKE_C_FLAGS=-m32 -DCMAKE_PREFIX_PATH="$work/linux/tree" >cmake.log
cmake --build by-cmake >>cmake.log || { cat cmake.log; exit 1; }
gcc -m32 "${warnings[@]}" consumer.c $(pkg-config --cflags --libs stmdata) -o by-pkg-config
gcc -m32 "${warnings[@]}" -Itree/include consumer.c -Ltree/lib -lstmdata -o by-hand
for program in by-cmake/consumer ./by-pkg-config ./by-hand; do
  "$program" || fail "linux $program: exit status $?"
  readelf -d "$program" | grep -q 'NEEDED.*\[libstmdata\.so\.[0-9]*\]' || fail "linux $program: no versioned name"
done
unset LD_LIBRARY_PATH  # the examples find the library by the place that the CMake package tells
cmake -S tree/share/doc/stmdata/examples -B examples -DCMAKE_C_FLAGS=-m32 -DCMAKE_CXX_FLAGS=-m32 \
  -DCMAKE_PREFIX_PATH="$work/linux/tree" >cmake.log
cmake --build examples >>cmake.log || { cat cmake.log; exit 1; }
for program in examples/example_*; do
  "$program" >/dev/null || fail "linux $program: exit status $?"
done
! cmake -S . -B for-64-bit -DCMAKE_PREFIX_PATH="$work/linux/tree" >/dev/null 2>for-64-bit.log ||
  fail "linux: the CMake package lets a 64-bit project in"
grep -q '(32bit)' for-64-bit.log || { cat for-64-bit.log; fail "linux: a 64-bit project is not told why"; }

# ---- Windows --------------------------------------------------------------------------------------

cd "$work/windows"
export PKG_CONFIG_PATH=$work/windows/tree/lib/pkgconfig
compiler=i686-w64-mingw32-gcc-posix
cmake -S . -B by-cmake -DCMAKE_TOOLCHAIN_FILE="$here/cmake/mingw-i686.cmake" \
  -DCMAKE_PREFIX_PATH="$work/windows/tree" >cmake.log
cmake --build by-cmake >>cmake.log || { cat cmake.log; exit 1; }
mv by-cmake/consumer.exe by-cmake.exe
$compiler "${warnings[@]}" consumer.c $(pkg-config --cflags --libs stmdata) -o by-pkg-config.exe
$compiler "${warnings[@]}" -Itree/include consumer.c -Ltree/lib -lstmdata -o by-hand.exe
$compiler "${warnings[@]}" -DBARE -Itree/include -c consumer.c
lld-link /nologo /entry:Start /subsystem:console /nodefaultlib /safeseh:no /out:by-stmdata-lib.exe consumer.o \
  tree/lib/stmdata.lib "$($compiler -print-file-name=libkernel32.a)"
cp tree/bin/stmdata.dll .
for program in by-*.exe; do
  i686-w64-mingw32-objdump -p "$program" | awk '/DLL Name:/ { ours = $3 == "stmdata.dll" }
    ours && NF == 3 && $1 ~ /^[0-9a-f]+$/ { print $3 }' | LC_ALL=C sort >imported
  LC_ALL=C sort "$work/names" | diff - imported || fail "windows $program: > is imported, < should be"
done

cd "$here"
if reason=$(tools/wine.sh available 2>&1); then
  tools/wine.sh run sh -c 'cd build/install-check/windows && for program in by-*.exe; do
    wine "$program" || { echo "windows $program: exit status $?"; exit 1; }; done'
else
  echo "The Windows programs were built but not run: $reason"
fi
rm -rf "$work"
