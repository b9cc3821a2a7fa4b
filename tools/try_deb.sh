#!/bin/bash
# Runs inside a clean Debian: the packages come, work, serve programs of each width, and go without a trace.
#
#   try_deb.sh VERSION PACKAGE:ARCHITECTURE...     with their files and the folder `consumer` beside it
set -eu
cd "$(dirname "$0")"
version=$1
shift
own=$(dpkg --print-architecture)

# What dpkg and the loader write about every package is no trace of this one.
everything() { find / -xdev \( -path /proc -o -path /dev -o -path /var/lib/dpkg -o -path /try \) -prune -o -printf '%p %l\n' | sort; }

# consumer ARCHITECTURE: built by the CMake package, by pkg-config and by hand.
consumer() {
  local flag= triplet=x86_64-linux-gnu program
  [ "$1" = amd64 ] || triplet=i386-linux-gnu
  [ "$1" = "$own" ] || flag=-m32
  mkdir "for-$1"
  cmake -S consumer -B "for-$1" -DCMAKE_C_FLAGS="$flag"
  cmake --build "for-$1"
  gcc $flag consumer/consumer.c $(PKG_CONFIG_LIBDIR=/usr/lib/$triplet/pkgconfig pkg-config --cflags --libs stmdata) -o "for-$1/by-pkg-config"
  gcc $flag consumer/consumer.c -lstmdata -o "for-$1/by-hand"
  for program in consumer by-pkg-config by-hand; do
    ldd "for-$1/$program" | grep -F "/$triplet/libstmdata.so.0 "
    "for-$1/$program"
  done
}

everything >before
dpkg -i ./*.deb
dpkg --verify "$@"
for package; do
  [ "$(dpkg-query -W -f '${Version}' "$package")" = "$version" ]
  case $package in
    libstmdata-dev:*) consumer "${package#*:}" ;;
    stmon:*)
      ldd /usr/bin/stmon | grep -F "/libstmdata.so.0 "
      if ldd /usr/bin/stmon | grep 'not found'; then exit 1; fi
      stmon --version | grep -F "$version"
      status=0
      stmon --scenario no-paper >answer || status=$?
      cat answer
      [ $status -eq 2 ] && [ -s answer ]
      ;;
  esac
done
dpkg -r "$@"
everything >after
diff before after
if dpkg-query -W "$@"; then exit 1; fi
