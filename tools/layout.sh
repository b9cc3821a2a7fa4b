#!/usr/bin/env bash
# The files of an installed tree, sorted, from the table in docs/packaging.md: the one written list.
#
#   tools/layout.sh linux|linux-library|windows|debian|zip
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

rows() {
  sed -n '/^| file /,/^$/p' docs/packaging.md |
    awk -F ' *[|] *' -v column="$1" '$2 ~ /^`.*`$/ && $column == "x" { gsub("`", "", $2); print $2 }' |
    sed "s/VERSION/$version/"
}

case "${1:-}" in
  linux) files 3 ;;
  linux-library) files 3 | grep -E '^(include|lib)/' ;;
  windows) files 4 ;;
  debian) files 5 | sed -E 's,^,usr/,; s,^usr/lib/,usr/lib/i386-linux-gnu/,' ;;
  zip) files 6 ;;
  *)
    sed -n '4,6s/^# *//p' "$0" >&2
    exit 2
    ;;
esac | LC_ALL=C sort
