#!/usr/bin/env python3
"""Reads a public header and prints it with its comments in doxygen's notation.

The headers are written to be read as they are. Their shape carries what doxygen wants to be told by
marks: the first comment is the file's; a comment with dashes opens a section; a comment directly above
declarations is theirs, also the twins'; in it `name  text` lines are arguments, `Result` the result,
`_Ex` what the twin does differently; a comment after a field or constant is that one's. What has no
comment and is no function is left out."""
import re
import sys

ROW = re.compile(r"^ {3}([A-Za-z_]\w*(?:, \w+)*) {2,}(\S.*)$")
LAYOUT_CHECK = re.compile(r"^STM_(AT|SIZE|ASSERT_LAYOUT)\(")


def escape(text):
    """Doxygen's own signs, outside of `code`."""
    parts = text.split("`")
    parts[::2] = [re.sub(r"([\\@<>#%&])", r"\\\1", part) for part in parts[::2]]
    return "`".join(parts)


def has(code, name):
    return re.search(rf"\b{name}\b", code)


def comment_text(lines):
    text = "\n".join(lines)
    return re.sub(r"^/\* ?|\s*\*/$", "", text).split("\n")


def document(text, declaration="", run=""):
    """The lines of a comment as doxygen's. Rows become arguments of the declaration that has them. One
    that no declaration of the run has is written as an argument as well: doxygen complains of it."""
    out = []
    in_row = False
    for line in text:
        row = ROW.match(line)
        if row:
            label, rest = row[1], escape(row[2])
            names = label.split(", ")
            if label == "Result":
                out += ["", f"@return {rest}"]
            elif not label.startswith("_") and all(has(declaration, name) or not has(run, name) for name in names):
                out += ["", f"@param {','.join(names)} {rest}"]
            else:
                out += ["", f"@par {label}", rest]
            in_row = True
            continue
        if in_row and re.match(r"^ {3}\S", line):  # prose again after the rows
            out.append("\n@remark")
            in_row = False
        out.append(escape(line.strip()))
    return "/** " + "\n".join(out) + " */"


def fields(unit):
    """Comments after fields and constants."""
    out = []
    for line in unit:
        line = re.sub(r"(;)\s*/\*\s*(\d+)\s*(.*?)\s*\*/",
                      lambda m: f"; /**< Byte {m[2]}: {escape(m[3])} */".replace(":  */", " */"), line)
        line = re.sub(r"/\* (?!\*)(.*?) \*/", lambda m: f"/**< {escape(m[1])} */", line)
        out.append(line)
    return out


def take_unit(lines, start):
    """A declaration or definition: its lines, from `start` to where it closes."""
    end = start
    if lines[start].startswith("#define"):
        while lines[end].endswith("\\"):
            end += 1
        return lines[start:end + 1]
    depth = 0
    while True:
        code = re.sub(r"/\*.*?\*/", "", lines[end])
        depth += code.count("{") - code.count("}")
        if depth == 0 and code.rstrip().endswith(";") or end + 1 == len(lines):
            return lines[start:end + 1]
        end += 1


def convert(path):
    lines = open(path, encoding="utf-8").read().split("\n")
    out, doc, run, first_of_run, in_section = [], None, "", True, False
    i = 0
    while i < len(lines):
        line = lines[i]
        if line.startswith("/*"):
            end = i
            while not lines[end].endswith("*/"):
                end += 1
            text = comment_text(lines[i:end + 1])
            banner = re.match(r"^-{4} (.*?) -*$", text[0])
            if i == 0:
                out.append(document(["@@file"] + text).replace(r"\@\@", "@"))
            elif banner:
                out += ["/**@}*/"] if in_section else []
                out += [document([f"@@name {banner[1]}", ""] + text[1:]).replace(r"\@\@", "@"), "/**@{*/"]
                in_section = True
                doc, first_of_run = text[1:], True
            else:
                doc, first_of_run = text, True
            i = end + 1
            rest = lines[i:]
            run = " ".join(rest[:rest.index("")] if "" in rest else rest)
            continue
        if not line.strip():
            doc, first_of_run = None, True
        if re.match(r"^#define STMDATA_\w+_H$", line):
            line = ""
        passes = (not line.strip() or re.match(r"^(#(?!define)|extern \"C\"|})", line) or LAYOUT_CHECK.match(line))
        if passes:
            if in_section and line == "#ifdef __cplusplus":
                out.append("/**@}*/")
                in_section = False
            unit = take_unit(lines, i) if LAYOUT_CHECK.match(line) else [line]
            out += unit
            i += len(unit)
            continue
        unit = take_unit(lines, i)
        i += len(unit)
        function = "STM_CALL" in unit[0] and unit[0].startswith("STM_")
        size = re.search(r"\{ +/\* (.*?) \*/$", unit[0])
        if size:
            unit[0] = unit[0][:size.start() + 1]
        if doc and (function or first_of_run):
            text = doc + (["", size[1].capitalize() + "."] if size else [])
            out += [document(text, " ".join(unit), run), *fields(unit)]
        elif size and any("/*" in line for line in unit):
            out += [document([size[1].capitalize() + "."]), *fields(unit)]
        elif function or unit[0].startswith("enum"):
            out += fields(unit)
        else:
            out += ["/** @cond */", *unit, "/** @endcond */"]
        first_of_run = False
    print("\n".join(out))


convert(sys.argv[1])
