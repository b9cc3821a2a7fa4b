#!/usr/bin/env bash
# Draws the pictures of the README with the stmon of build/linux.
#
#   docs/images/draw.sh [FOLDER]     here, unless another folder is named
folder=$(realpath "${1:-$(dirname "$0")}")
cd "$(dirname "$0")/../.." || exit 1
for scenario in no-paper toner-empty cover-open misfeed; do
  build/linux/stmon --scenario $scenario --picture "$folder/$scenario.png" >/dev/null
  [ $? -eq 2 ] || exit 1  # none of these printers can print
done
