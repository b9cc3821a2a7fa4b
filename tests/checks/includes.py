#!/usr/bin/env python3
"""Includes under src/ go one way only, and only the platform folder knows which system it is on."""
import pathlib
import re
import sys

ORDER = ["platform", "records", "resources", "status", "net", "picture", "pm"]
root = pathlib.Path(__file__).resolve().parents[2]
faults = []
for path in sorted((root / "src").rglob("*")):
    if path.suffix not in (".h", ".cpp"):
        continue
    room = path.relative_to(root / "src").parts[0]
    for number, line in enumerate(path.read_text().splitlines(), 1):
        where = f"{path.relative_to(root)}:{number}"
        include = re.match(r'\s*#\s*include\s+"([a-z_]+)/', line)
        if include and include[1] in ORDER and ORDER.index(include[1]) > ORDER.index(room):
            faults.append(f"{where}: {room}/ includes {include[1]}/, which lies above it")
        if re.match(r"\s*#\s*include\s+<windows\.h>", line) and room != "platform":
            faults.append(f"{where}: include platform/windows_api.h instead")
        if re.search(r"\b(_WIN32|__linux__|__MINGW32__)\b", line) and room != "platform":
            faults.append(f"{where}: asks which system it is on")
print("\n".join(faults))
sys.exit(bool(faults))
