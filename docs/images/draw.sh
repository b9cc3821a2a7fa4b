#!/usr/bin/env bash
# Draws the pictures of the README, for any size, and of the guide, as the library draws it, with the
# stmon of build/native.
#
#   docs/images/draw.sh [FOLDER]     here, unless another folder is named
folder=$(realpath "${1:-$(dirname "$0")}")
cd "$(dirname "$0")/../.." || exit 1
for picture in no-paper.svg toner-empty.svg cover-open.svg misfeed.svg no-paper.png; do
  build/native/stmon --scenario "${picture%.*}" --picture "$folder/$picture" >/dev/null
  [ $? -eq 2 ] || exit 1  # none of these printers can print
done
