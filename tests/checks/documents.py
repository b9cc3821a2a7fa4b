#!/usr/bin/env python3
"""The documents tell the truth. In README.md, CHANGELOG.md and docs/*.md every relative link leads to a
file; a block of code is an excerpt of an example, and a block of text one of what an example or stmon
prints; the bytes of the guide's reply are those that the line below each shows. The pictures are what
stmon draws, and its manual page names its options. Whoever names the languages names those of languages.h."""
import filecmp
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build/native"
PAGES = [ROOT / "README.md", ROOT / "CHANGELOG.md", *sorted((ROOT / "docs").glob("*.md"))]
faults = []


def printed(*command, **more):
    """What the program prints, in English; an exit status tells of the printer, not of the program."""
    environment = {**os.environ, "LC_ALL": "C"}
    return subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, env=environment, **more).stdout


def plain(text):
    """Lines without the indentation that they share, nor blanks after them."""
    lines = [line.rstrip() for line in text.strip("\n").split("\n")]
    shared = min((len(line) - len(line.lstrip()) for line in lines if line), default=0)
    return [line[shared:] for line in lines]


def is_excerpt(block, texts):
    wanted = plain(block)
    for text in texts:
        lines = text.split("\n")
        for i in range(len(lines) - len(wanted) + 1):
            if plain("\n".join(lines[i:i + len(wanted)])) == wanted:
                return True
    return False


def character(byte):
    return {0x0A: "LF", 0x0D: "CR"}.get(byte, chr(byte) if 0x20 < byte < 0x7F else f"{byte:02X}")


def reply_bytes(block):
    """The bytes of the lines that begin with two or more; the line below shows them in the same columns."""
    reply, lines = b"", block.split("\n")
    for line, below in zip(lines, lines[1:] + [""]):
        row = re.match(r"(?:[0-9A-F]{2} )+[0-9A-F]{2}\b", line)
        if not row:
            continue
        row = bytes.fromhex(row[0])
        reply += row
        if len(row) > 2 and below != "".join(character(byte).ljust(3) for byte in row).rstrip():
            faults.append(f"the line below is another: {line}")
    return reply


def blocks(page, *languages):
    return re.findall(rf"^```(?:{'|'.join(languages)})\n(.*?)^```$", page.read_text(encoding="utf-8"), re.M | re.S)


for page in PAGES:
    for target in re.findall(r"\]\(([^)#\s]+)", page.read_text(encoding="utf-8")):
        if not re.match(r"\w+:", target) and not (page.parent / target).exists():
            faults.append(f"{page.name}: no file {target}")

sources = [path.read_text(encoding="utf-8") for path in (ROOT / "examples").iterdir()]
outputs = [printed(path).decode("latin-1") for path in BUILD.glob("example_*")]
outputs.append(printed(ROOT / "examples/ask_stmon.py", BUILD / "stmon", "--scenario", "toner-empty").decode())
for reply in blocks(ROOT / "docs/guide.md", "hex"):
    outputs.append(printed(BUILD / "stmon", "--reply", "-", input=reply_bytes(reply)).decode())
for page in PAGES:
    for block in blocks(page, "c", "cpp", "python"):
        if not is_excerpt(block, sources):
            faults.append(f"{page.name}: in no example:\n{block}")
    for block in blocks(page, "text"):
        if not is_excerpt(block, outputs):
            faults.append(f"{page.name}: printed by nothing:\n{block}")

with tempfile.TemporaryDirectory() as folder:
    printed(ROOT / "docs/images/draw.sh", folder)
    for picture in sorted((ROOT / "docs/images").glob("*.[ps][nv]g")):
        if not filecmp.cmp(picture, pathlib.Path(folder) / picture.name, shallow=False):
            faults.append(f"{picture.name}: another picture than stmon's; run docs/images/draw.sh")

manual = (ROOT / "docs/stmon.1").read_text(encoding="utf-8")
helps = printed(BUILD / "stmon", "--help") + printed(BUILD / "stmon", "check", "--help")
faults += [f"wider than 80 columns: {line}" for line in helps.decode().splitlines() if len(line) > 80]
options = set(re.findall(r"^  (?:-\w,)?--([\w-]+)", helps.decode(), re.M))
named = set(re.findall(r"^\.It Fl Fl ([\w-]+)", manual, re.M))
faults += [f"stmon.1: --{name} is not in both" for name in sorted(options ^ named)]

languages = re.findall(r'^    {"(\w+)", +"[\w ]+", +0x\w+, (\d+),', (ROOT / "include/stmdata/languages.h").read_text(), re.M)
codes = " ".join(code for code, page in languages)
for name in ("stmon.1", "stmonw.md"):
    if codes not in " ".join((ROOT / "docs" / name).read_text(encoding="utf-8").split()):
        faults.append(f"{name}: does not name the languages {codes}")
for number in {page for code, page in languages}:
    row = f"| {' '.join(code for code, page in languages if page == number)} | {number} |"
    if row.replace("JP", "JP (not JA)") not in (ROOT / "docs/guide.md").read_text(encoding="utf-8"):
        faults.append(f"guide.md: no row {row}")
count = {15: "fifteen", 16: "sixteen", 17: "seventeen"}.get(len(languages))
for page in (ROOT / "README.md", ROOT / "docs/guide.md"):
    if f" {count} languages" not in page.read_text(encoding="utf-8"):
        faults.append(f"{page.name}: does not tell of {count} languages")

print("\n".join(faults))
sys.exit(bool(faults))
