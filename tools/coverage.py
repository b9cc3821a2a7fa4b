#!/usr/bin/env python3
"""Lines and branches of src/ that the tests reach, from gcovr's JSON report.

    tools/coverage.py REPORT

Fails when a line is not reached, when less than 95 % of the branches outside src/platform are, and when
tests/coverage_exceptions.txt does not have exactly the lines with branches that are not reached.
"""
import json
import sys
from pathlib import Path

LEAST_BRANCHES = 0.95
BY_CHANCE = "By chance:"
EXCEPTIONS = Path("tests/coverage_exceptions.txt")


def read_exceptions():
    """Reasons by file and text of the line: numbers would change with every edit."""
    reasons = {}
    file = None
    for line in EXCEPTIONS.read_text(encoding="utf-8").splitlines():
        if line.startswith("#") or not line.strip():
            continue
        if not line.startswith(" "):
            file = line
        elif not line.startswith("    "):
            text = line.strip()
            reasons[file, text] = ""
        else:
            reasons[file, text] = (reasons[file, text] + " " + line.strip()).strip()
    return reasons


def show(name, counts):
    lines, reached_lines, branches, reached_branches = counts
    branch_share = f"{reached_branches / branches:7.1%}" if branches else "       "
    line_share = f"{reached_lines / lines:7.1%}" if lines else "       "
    print(f"{name:46} {reached_lines:5} of {lines:5} {line_share}   "
          f"{reached_branches:5} of {branches:5} {branch_share}")


def main():
    reasons = read_exceptions()
    missed_lines, missed_branches, rows = [], {}, []
    for file in json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))["files"]:
        name = file["file"]
        if not Path(name).exists():  # deleted since it was compiled
            continue
        source = Path(name).read_text(encoding="utf-8").splitlines()
        counts = [0, 0, 0, 0]
        for line in file["lines"]:
            if line.get("gcovr/noncode"):
                continue
            number, branches = line["line_number"], line["branches"]
            text = source[number - 1].strip()
            reached = sum(branch["count"] > 0 for branch in branches)
            counts = [a + b for a, b in zip(counts, [1, line["count"] > 0, len(branches), reached])]
            if line["count"] == 0:
                missed_lines.append(f"{name}:{number}: {text}")
            if reached < len(branches):
                missed_branches[name, text] = f"{name}:{number}: {text}  ({len(branches) - reached} of {len(branches)})"
        rows.append((name, counts))

    total = [sum(column) for column in zip(*(counts for _, counts in rows))]
    core = [sum(column) for column in
            zip(*(counts for name, counts in rows if not name.startswith("src/platform/")))]
    print(f"{'':46} {'lines':^22}   {'branches':^22}")
    for name, counts in rows:
        show(name, counts)
    show("outside the platform layer", core)
    show("all", total)

    print("\nBranches that no test reaches, and why:")
    for key, place in missed_branches.items():
        print(f"{place}\n    {reasons.get(key, 'NO REASON GIVEN')}")

    faults = [f"line not reached: {line}" for line in missed_lines]
    faults += [f"branch without a reason in {EXCEPTIONS}: {place}"
               for key, place in missed_branches.items() if not reasons.get(key)]
    faults += [f"{EXCEPTIONS} names a branch that is reached or gone: {file}: {text}"
               for (file, text), reason in reasons.items()
               if (file, text) not in missed_branches and not reason.startswith(BY_CHANCE)]
    if core[3] < LEAST_BRANCHES * core[2]:
        faults.append(f"less than {LEAST_BRANCHES:.0%} of the branches outside the platform layer")
    if not total[0]:
        faults.append("the report has no lines")
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


sys.exit(main())
