#!/usr/bin/env python3
"""Includes under src/ and monitor/ go one way only, from a room to one before it in these lists. In src/
only the platform folder knows which system it is on; in monitor/ the programs know nothing of each other."""
import pathlib
import re
import sys

SRC = ["platform", "resources", "names", "records", "status", "comparison", "net", "picture", "pm"]
MONITOR = ["system", "words", "wire", "simulator", "picture", "snapshot", "report", "stmon", "stmonw"]
PROGRAMS = ["stmon", "stmonw"]
root = pathlib.Path(__file__).resolve().parents[2]
faults = []


def lines_of(tree, rooms):
    """Every line of the tree's sources: its room, where it stands, the header that it includes, the line."""
    for path in sorted((root / tree).rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        room = path.relative_to(root / tree).parts[0]
        if room not in rooms:
            faults.append(f"{path.relative_to(root)}: lies in no room")
            continue
        for number, line in enumerate(path.read_text().splitlines(), 1):
            where = f"{path.relative_to(root)}:{number}"
            include = re.match(r'\s*#\s*include\s+"([\w./]+)"', line)
            header = include[1] if include else ""
            other = header.split("/")[0]
            if other in rooms and rooms.index(other) > rooms.index(room):
                faults.append(f"{where}: {room}/ includes {other}/, which lies above it")
            if (path.parent / header).is_file():
                faults.append(f"{where}: include {path.parent.relative_to(root / tree)}/{header}")
            yield room, where, other, line


for room, where, other, line in lines_of("src", SRC):
    if re.match(r"\s*#\s*include\s+<windows\.h>", line) and room != "platform":
        faults.append(f"{where}: include platform/windows_api.h instead")
    if re.search(r"\b(_WIN32|__linux__|__MINGW32__)\b", line) and room != "platform":
        faults.append(f"{where}: asks which system it is on")
for room, where, other, line in lines_of("monitor", MONITOR):
    if other in PROGRAMS and other != room:
        faults.append(f"{where}: {room}/ includes {other}/, another program")
print("\n".join(faults))
sys.exit(bool(faults))
