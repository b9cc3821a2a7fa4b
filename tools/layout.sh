#!/usr/bin/env bash
# The files of an installed tree or a package, sorted, from the table in docs/packaging.md: the one written
# list.
#
#   tools/layout.sh linux | linux-library | windows | zip
#   tools/layout.sh PACKAGE TRIPLET      of a Debian package, for the architecture of this name
#
# linux-library is what a Linux build without the monitor installs.
set -eu
cd "$(dirname "$0")/.."
version=$(sed -nE 's/^project\(.* VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)

# files COLUMN: the rows that have a mark in this column. `FOLDER/NAME/*.md` stands for such files of the
# source folder NAME, the longest end of the path that the source tree has.
files() {
  rows "$1" | while IFS= read -r row; do
    case $row in
      */\**)
        folder=${row%/*} source=$folder
        while [ ! -d "$source" ] && [ "$source" != "${source#*/}" ]; do source=${source#*/}; done
        find "$source" -maxdepth 1 -type f -name "${row##*/}" -printf "$folder/%P\n"
        ;;
      *) printf '%s\n' "$row" ;;
    esac
  done
}

# What stands for x86/ is in x64/ as well.
rows() {
  sed -n '/^| file /,/^$/p' docs/packaging.md |
    awk -F ' *[|] *' -v column="$1" '$2 ~ /^`.*`$/ && $column == "x" {
      gsub("`", "", $2)
      print $2
      if (sub("^x86/", "x64/", $2)) print $2
    }' |
    sed "s/VERSION/$version/"
}

# debian COLUMN PACKAGE TRIPLET
debian() { files "$1" | sed -E "s,^lib/,lib/$3/,; s,^share/doc/stmdata/,share/doc/$2/,; s,^,usr/,"; }

case "${1:-} ${2:-}" in
  'linux ') files 3 ;;
  'linux-library ') files 3 | grep -E '^(include|lib)/' ;;
  'windows ') files 4 ;;
  'zip ') files 4 && echo SHA256SUMS ;;
  'libstmdata0 '*-*) debian 5 "$@" ;;
  'libstmdata-dev '*-*) debian 6 "$@" ;;
  'stmon '*-*) debian 7 "$@" ;;
  *)
    sed -n '5,8s/^# *//p' "$0" >&2
    exit 2
    ;;
esac | LC_ALL=C sort
