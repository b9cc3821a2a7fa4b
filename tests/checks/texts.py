#!/usr/bin/env python3
"""The rows of languages.h are the files of the resource script. Every language has the texts of the English
file, of as many lines and with the same blanks at the end; each can be written in the language's code page;
Japanese has fifteen more. A translation has no blank where nobody sees it, before a line end, or where a
line may break before a colon."""
import pathlib
import re
import sys

JAPANESE_ONLY = {404, 434, 502, 600, 604, 634, 682, 687, 689, 690, 702, 703, 706, 718, 719}
COLOURS, DEVICES = range(930, 934), (925, 926)
LONGEST = 255  # bytes, toner colours included: what the guide's buffer of 256 takes
ROOM = 511  # bytes in which the library makes a text, whatever the code page: UTF-8 takes most
ROOT = pathlib.Path(__file__).resolve().parents[2]
folder = ROOT / "src/resources/strings"
faults = []


def read(path):
    rows = re.findall(r'^  (\d+), "(.*)"$', path.read_text(encoding="utf-8"), re.M)
    return {int(id): text.replace("\\n", "\n") for id, text in rows}


def layout(text):
    """Line ends, the last one apart, and the blanks after the text."""
    return text.count("\n"), text.endswith("\n"), len(text) - len(text.rstrip(" "))


english = read(folder / "en.rc")
rows = re.findall(r'^    {"(\w+)", +"[\w ]+", +(0x\w+), (\d+),',
                  (ROOT / "include/stmdata/languages.h").read_text(), re.M)
named = [code.lower() + ".rc" for code, id, page in rows]
script = (ROOT / "src/resources/stmdata.rc").read_text(encoding="utf-8")
if re.findall(r'#include "strings/(.*)"', script) != named or {path.name for path in folder.iterdir()} != set(named):
    faults.append("stmdata.rc or its folder has other languages than languages.h, or another order")
for code, id, page in rows:
    language = code.lower()
    path = folder / f"{language}.rc"
    texts = read(path)
    if f"\nLANGUAGE {int(id, 16) & 0x3FF}, {int(id, 16) >> 10}\n" not in path.read_text(encoding="utf-8"):
        faults.append(f"{language}: another LANGUAGE than {id}")
    wanted = set(english) | (JAPANESE_ONLY if language == "jp" else set())
    if set(texts) != wanted or list(texts) != sorted(texts):
        faults.append(f"{language}: ids {sorted(set(texts) ^ wanted)} differ, or their order")
    encoded = {}
    for id, text in texts.items():
        try:
            encoded[id] = text.encode("cp" + page)
        except UnicodeEncodeError as error:
            faults.append(f"{language} {id}: {error}")
            continue
        if id in english and layout(text) != layout(english[id]):
            faults.append(f"{language} {id}: line ends or trailing blanks differ from the English text")
        if language != "en" and re.search(" [\n:]", text):
            faults.append(f"{language} {id}: a blank before a line end or a colon")
        if bool(text) != (id != 800):
            faults.append(f"{language} {id}: empty, or not empty")
    suffix = sum(len(encoded.get(id, b"")) for id in COLOURS)
    if suffix > 37:
        faults.append(f"{language}: the colour names do not fit the toner suffix")
    if max(map(len, encoded.values())) + suffix > LONGEST:
        faults.append(f"{language}: a text may be longer than {LONGEST} bytes")
    faults += [f"{language} {id}: longer than {ROOM} bytes in UTF-8" for id, text in texts.items() if len(text.encode()) > ROOM]
    faults += [f"{language} {id}: longer than 30 bytes" for id in DEVICES if len(encoded.get(id, b"")) > 30]
print("\n".join(faults))
sys.exit(bool(faults))
