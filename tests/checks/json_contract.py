#!/usr/bin/env python3
"""Every object that stmon prints with --json keeps to stmon.schema.json and has no field beside: the reports of
all scenarios, records and languages, of hostile replies and of Device IDs; the catalogue; the events of a
printer that does everything a printer can do. The schema refuses what lacks a field."""
import collections
import copy
import json
import pathlib
import subprocess
import sys
import tempfile
import threading

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parents[2]
STMON = ROOT / "build/native/stmon"
EVERYTHING = """
status 0
number 64
next
status 32,65
online no
tray-in-use 2
bin-in-use 2
tray 1 -1 0
tray 2 4 101
tray 3 128 50
bin 2 1
version SYS 2.00
number 65
language PS2
font MINCHO
duplex yes
next
manner garbage
repeat 3
next
manner whole
""" + "status 777\nrepeat 1\nnext\nstatus 0\nnext\n" * 4 + "status 0\n"
PATIENCE = 60  # seconds for what takes about five
faults = []
counts = collections.Counter()


def closed(schema):
    """The same schema, which takes no field that it does not name."""
    if isinstance(schema, list):
        return [closed(part) for part in schema]
    if not isinstance(schema, dict):
        return schema
    schema = {key: closed(part) for key, part in schema.items()}
    if isinstance(schema.get("properties"), dict) and schema.get("type") == "object":
        schema["additionalProperties"] = False
    return schema


SCHEMA = closed(json.loads((ROOT / "monitor/report/stmon.schema.json").read_text(encoding="utf-8")))
jsonschema.Draft202012Validator.check_schema(SCHEMA)
VALIDATORS = {name: jsonschema.Draft202012Validator({**SCHEMA, "oneOf": [{"$ref": f"#/$defs/{name}"}]})
              for name in ("report", "event", "catalogue")}
WHOLE = jsonschema.Draft202012Validator(SCHEMA)


def judge(why, lines):
    """The objects of the lines, judged by the schema; each type apart, since that tells what is wrong."""
    objects = []
    for line in lines:
        each = json.loads(line)
        objects.append(each)
        counts[each.get("type")] += 1
        validator = VALIDATORS.get(each.get("type"), WHOLE)
        for error in validator.iter_errors(each):
            for cause in error.context or [error]:
                faults.append(f"{why}: {'/'.join(map(str, cause.absolute_path))}: {cause.message[:200]}")
    return objects


def run(*arguments):
    done = subprocess.run([STMON, *arguments], capture_output=True, text=True)
    why = " ".join(map(str, arguments))
    objects = judge(why, done.stdout.splitlines())
    if not objects:
        faults.append(f"{why}: printed nothing; {done.stderr.strip()}")
    for each in objects:
        if each["type"] == "report" and each["exit_status"] != done.returncode:
            faults.append(f"{why}: exit status {done.returncode}, told {each['exit_status']}")
    return objects


def watch(scenario, enough):
    """The objects of a watched printer until there are enough of them."""
    printer = subprocess.Popen([STMON, "--scenario", scenario, "--watch", "0.1", "--misses", "2", "--report-every", "10",
                                "--json"], stdout=subprocess.PIPE, text=True)
    guard = threading.Timer(PATIENCE, printer.kill)
    guard.start()
    objects = []
    for line in printer.stdout:
        objects += judge("watched", [line])
        if enough(objects):
            break
    guard.cancel()
    printer.kill()
    printer.wait()
    return objects


with tempfile.TemporaryDirectory() as folder:
    listed = subprocess.run([STMON, "--scenario", "list"], capture_output=True, text=True, check=True)
    for name in (line.split()[0] for line in listed.stdout.splitlines()):
        for kind in ("list", "flat"):
            run("--scenario", name, "--record", kind, "--timeout", "1", "--json")
    odd = pathlib.Path(folder, "odd")
    odd.write_text("status 32,32,52,69,72,96,100,102,777,65535\nonline no\ntray 1 -1 50\ntray 5 128 7\ntray T 99999 999999\n")
    for more in ([], ["--lang", "all"], ["--raw"], ["--lang", "JP", "--record", "flat"], ["--offline-as", "unknown"]):
        run("--scenario", odd, "--json", *more)
    run("127.0.0.1:1", "--json")
    run("no.such.host.invalid", "--json")
    for id in ("MFG:A;CMD:NPDL,\x01\xff;MDL:B;DES:C;", "MFG:A;"):
        run("--device-id", id, "--json")
    run("--device-id", "MDL:B;", "--scenario", "ready", "--json")
    run("--catalogue", "--json")
    for reply in sorted((ROOT / "fuzz/corpus").glob("*reply*/*")):
        run("--reply", reply, "--json", "--raw")

    everything = pathlib.Path(folder, "everything")
    everything.write_text(EVERYTHING)
    objects = watch(everything, lambda all: all[-1].get("event") == "steady")
    definition = SCHEMA["$defs"]["event"]["properties"]
    for field in ("event", "group"):
        missing = set(definition[field]["enum"]) - {each.get(field) for each in objects} - {"first"}
        if missing:
            faults.append(f"watched: no event with the {field} {', '.join(sorted(missing))}")
    if sum(each["type"] == "report" for each in objects) < 3:
        faults.append("watched: no whole reports in between")
    silent = pathlib.Path(folder, "silent")
    silent.write_text("manner close\nrepeat 3\nnext\nmanner whole\n")
    told = [each.get("event") for each in watch(silent, lambda all: len(all) == 4) if each["type"] == "event"]
    if told != ["lost", "first"]:
        faults.append(f"a printer that is silent at first: {told}")

report = run("--scenario", "options", "--json", "--device-id", "MDL:B;")[0]
for field in report:
    less = copy.copy(report)
    del less[field]
    if WHOLE.is_valid(less):
        faults.append(f"the schema takes a report without {field}")
print(", ".join(f"{count} {kind}" for kind, count in sorted(counts.items())))
print("\n".join(faults[:40]))
sys.exit(bool(faults))
