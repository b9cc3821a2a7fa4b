#!/usr/bin/env bash
# The committed bitmaps and icons are what the drawings give.
exec /usr/bin/python3 "$(dirname "$0")/../../src/resources/artwork/generate.py" --check
