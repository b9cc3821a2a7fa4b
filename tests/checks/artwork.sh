#!/usr/bin/env bash
# The committed drawing is what the model gives, and the bitmaps and icons are what the drawings give.
cd "$(dirname "$0")/../../src/resources/artwork" || exit 1
./model.py --check && ./generate.py --check
