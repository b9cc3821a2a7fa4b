#!/usr/bin/env bash
# The installed trees hold the files that docs/packaging.md lists, may be moved, and serve whoever builds
# against them: by the CMake package, by pkg-config, by a plain compiler call; on Linux, for Windows by
# MinGW and by a linker of Microsoft's format; in both widths. A tree of the other width is refused. The
# Windows programs run where there is a Wine.
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
names >"$work/names"

# install_tree TREE LAYOUT PRESETS [COMPONENT...]: installed, compared with the list, moved.
install_tree() {
  local tree=$1 layout=$2 presets=$3 preset component
  shift 3
  for preset in $presets; do
    for component in "${@:-}"; do
      cmake --install "build/$preset" --prefix "$work/first/$tree" --strip ${component:+--component "$component"} >/dev/null
    done
  done
  mkdir "$work/$tree"
  mv "$work/first/$tree" "$work/$tree/tree"
  (cd "$work/$tree/tree" && find . ! -type d -printf '%P\n' | LC_ALL=C sort) >"$work/$tree/found"
  tools/layout.sh "$layout" >"$work/$tree/listed"
  diff "$work/$tree/listed" "$work/$tree/found" ||
    fail "$tree: < only listed in docs/packaging.md, > only installed"
}

# a_consumer FOLDER: what a stranger's project there consists of.
a_consumer() {
  mkdir -p "$1"
  cp tests/consumer/* "$1"
  sed 's/.*/EXPORT(&)/' "$work/names" >"$1/exports.inc"
}

# quiet_cmake SOURCE FOLDER ARGUMENT...: configures and builds.
quiet_cmake() {
  { cmake -S "$1" -B "$2" "${@:3}" && cmake --build "$2"; } >cmake.log 2>&1 || { cat cmake.log; exit 1; }
}

# ---- Linux ----------------------------------------------------------------------------------------

# try_linux PRESET WIDTH [FLAG]
try_linux() {
  local preset=$1 width=$2 flag=${3:-} program
  local tree=$work/$preset/tree
  a_consumer "$work/$preset"
  sed 's/.*/EXPORT(&)/' src/exports/host_functions.txt >>"$work/$preset/exports.inc"
  cd "$work/$preset"
  export PKG_CONFIG_PATH=$tree/lib/pkgconfig
  export LD_LIBRARY_PATH=$tree/lib
  quiet_cmake . by-cmake -DCMAKE_C_FLAGS="$flag" -DCMAKE_PREFIX_PATH="$tree"
  gcc $flag "${warnings[@]}" consumer.c $(pkg-config --cflags --libs stmdata) -o by-pkg-config
  gcc $flag "${warnings[@]}" -Itree/include consumer.c -Ltree/lib -lstmdata -o by-hand
  for program in by-cmake/consumer ./by-pkg-config ./by-hand; do
    "$program" || fail "$preset $program: exit status $?"
    readelf -d "$program" | grep -q 'NEEDED.*\[libstmdata\.so\.[0-9]*\]' || fail "$preset $program: no versioned name"
  done
  unset LD_LIBRARY_PATH  # the examples find the library by the place that the CMake package tells
  quiet_cmake "$here/examples" examples -DCMAKE_C_FLAGS="$flag" -DCMAKE_CXX_FLAGS="$flag" -DCMAKE_PREFIX_PATH="$tree"
  for program in examples/example_*; do
    "$program" >/dev/null || fail "$preset $program: exit status $?"
  done
  ! cmake -S . -B other-width -DCMAKE_C_FLAGS="-m$((96 - width))" -DCMAKE_PREFIX_PATH="$tree" >/dev/null 2>other-width.log ||
    fail "$preset: the CMake package lets a project of the other width in"
  grep -q "(${width}bit)" other-width.log || { cat other-width.log; fail "$preset: a project of the other width is not told why"; }
  cd "$here"
}

install_tree native linux native
install_tree linux linux-library linux library development
try_linux native 64
try_linux linux 32 -m32

# ---- Windows --------------------------------------------------------------------------------------

# try_windows WIDTH PROCESSOR FOLDER: a consumer of the tree's library in that folder.
try_windows() {
  local width=$1 mingw=$2-w64-mingw32 folder=$work/windows/$3 program reason
  local tree=$work/windows/tree compiler=$mingw-gcc-posix
  a_consumer "$folder"
  cd "$folder"
  export PKG_CONFIG_PATH=$tree/$3/lib/pkgconfig
  quiet_cmake . by-cmake -DCMAKE_TOOLCHAIN_FILE="$here/cmake/mingw-$2.cmake" -DCMAKE_PREFIX_PATH="$tree"
  mv by-cmake/consumer.exe by-cmake.exe
  $compiler "${warnings[@]}" consumer.c $(pkg-config --cflags --libs stmdata) -o by-pkg-config.exe
  $compiler "${warnings[@]}" -I"$tree/include" consumer.c -L"$tree/$3/lib" -lstmdata -o by-hand.exe
  $compiler "${warnings[@]}" -DBARE -I"$tree/include" -c consumer.c
  lld-link /nologo /entry:Start /subsystem:console /nodefaultlib /safeseh:no /out:by-stmdata-lib.exe consumer.o \
    "$tree/$3/lib/stmdata.lib" "$($compiler -print-file-name=libkernel32.a)"
  cp "$tree/$3/bin/stmdata.dll" .
  for program in by-*.exe; do
    $mingw-objdump -p "$program" | awk '/DLL Name:/ { ours = $3 == "stmdata.dll" }
      ours && NF == 3 && $1 ~ /^[0-9a-f]+$/ { print $3 }' | LC_ALL=C sort >imported
    LC_ALL=C sort "$work/names" | diff - imported || fail "$3 $program: > is imported, < should be"
  done
  cd "$here"
  if reason=$(tools/wine.sh available "$width" 2>&1); then
    tools/wine.sh run "$width" sh -c 'cd "$0" && for program in by-*.exe; do
      wine "$program" || { echo "$0 $program: exit status $?"; exit 1; }; done' "build/install-check/windows/$3"
  else
    echo "The programs of $3 were built but not run: $reason"
  fi
}

install_tree windows windows "windows windows64"
try_windows 32 i686 x86
try_windows 64 x86_64 x64
rm -rf "$work"
