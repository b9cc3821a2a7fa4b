#!/usr/bin/env python3
"""What --metrics writes is well-formed Prometheus text, for every scenario, both records and a printer
that was never seen: each metric is described before its samples and each series stands once. Where
promtool is at hand it is asked as well; it is not installed for this, being some hundred megabytes."""
import math
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

STMON = pathlib.Path(__file__).resolve().parents[2] / "build/native/stmon"
LABEL = r'[a-z_]+="(?:[^"\\\n]|\\[\\"n])*"'
SAMPLE = re.compile(rf"([a-z_]+)\{{({LABEL}(?:,{LABEL})*)\}} (\S+)")
promtool = shutil.which("promtool")
faults = []


def judge(why, text, exit_status):
    described, seen, values = [], set(), {}
    lines = text.split("\n")
    if lines.pop() != "":
        faults.append(f"{why}: no line feed at the end")
    while lines:
        line = lines.pop(0)
        if line.startswith("# HELP "):
            name = line.split()[2]
            if name in described or lines[:1] != [f"# TYPE {name} gauge"]:
                faults.append(f"{why}: {name} is described twice or has no type")
            described.append(name)
            lines[:1] = []
            continue
        sample = SAMPLE.fullmatch(line)
        if not sample or described[-1:] != [sample[1]] or not math.isfinite(float(sample[3])):
            faults.append(f"{why}: {line!r}")
        elif (series := (sample[1], sample[2])) in seen:
            faults.append(f"{why}: {series} stands twice")
        else:
            seen.add(series)
            values[sample[1]] = float(sample[3])
    if values.get("stmon_verdict") != exit_status:
        faults.append(f"{why}: verdict {values.get('stmon_verdict')}, exit status {exit_status}")
    told = ("stmon_online" in values, "stmon_last_answer_age_seconds" in values)
    if told != (values.get("stmon_up") == 1,) * 2 or values.get("stmon_last_answer_age_seconds", 0) < 0:
        faults.append(f"{why}: up {values.get('stmon_up')}, but {values}")
    if promtool:
        said = subprocess.run([promtool, "check", "metrics"], input=text, capture_output=True, text=True)
        if said.returncode or said.stderr:
            faults.append(f"{why}: promtool: {said.stderr.strip()}")


with tempfile.TemporaryDirectory() as folder:
    twice = pathlib.Path(folder, "twice.txt")
    twice.write_text("status 32,32,777,777,778\ntray 1 6 50\ntray 1 8 20\ntray T 6 0\ntray T 6 100\n")
    listed = subprocess.run([STMON, "--scenario", "list"], capture_output=True, text=True, check=True)
    scenarios = [line.split()[0] for line in listed.stdout.splitlines()] + [str(twice)]
    runs = [["--scenario", name, "--record", kind] for name in scenarios for kind in ("list", "flat")]
    for run in [*runs, ["127.0.0.1:1"]]:
        file = pathlib.Path(folder, "metrics")
        done = subprocess.run(
            [STMON, *run, "--timeout", "1", "--metrics", file], capture_output=True, text=True)
        why = " ".join(run)
        if file.exists():
            judge(why, file.read_text(encoding="utf-8"), done.returncode)
            file.unlink()
        else:
            faults.append(f"{why}: no file; {done.stderr.strip()}")
print("\n".join(faults))
sys.exit(bool(faults))
