#!/usr/bin/env python3
"""stmon keeps its word about exit statuses and standard output: what goes wrong ends with 3 and a line on
standard error, also when nobody takes the output; what goes to '-' is alone there."""
import json
import pathlib
import socket
import subprocess
import sys
import tempfile

STMON = pathlib.Path(__file__).resolve().parents[2] / "build/native/stmon"
faults = []


def run(*arguments, **more):
    more = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, "timeout": 20, **more}
    return subprocess.run([STMON, *arguments], **more)


def check(why, good):
    if not good:
        faults.append(why)


with socket.create_server(("127.0.0.1", 0)) as server:
    free_port = str(server.getsockname()[1])

# Everything that prints, with an output that takes nothing.
PRINTING = [
    [], ["--json"], ["--raw"], ["--watch", "0.1"], ["--watch", "0.1", "--json", "--raw"], ["--catalogue"],
    ["--scenario", "list"], ["--simulate", free_port], ["--device-id", "MDL:X1"], ["--metrics", "-"],
    ["--picture", "-"], ["--save-reply", "-"], ["--help"], ["--version"],
]
with open("/dev/full", "w") as full:
    for line in PRINTING:
        closed = ["bash", "-c", 'exec "$@" >&-', "bash", STMON, *line]
        for how, done in (("full", run(*line, stdout=full)),
                          ("closed", subprocess.run(closed, stderr=subprocess.PIPE, timeout=20))):
            check(f"{line}, {how}: {done.returncode} {done.stderr}",
                  done.returncode == 3 and done.stderr.startswith(b"stmon: cannot write to standard output"))
    reader = subprocess.Popen([STMON, "--watch", "0.1", "--scenario", "changing"],
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    reader.stdout.readline()
    reader.stdout.close()
    check("a watch goes on without its reader", reader.wait(20) == 3 and b"nobody" in reader.stderr.read())

with tempfile.TemporaryDirectory() as folder:
    target = pathlib.Path(folder, "file")
    for option in ("--metrics", "--picture", "--save-reply"):
        run(option, target, "--scenario", "no-paper")
        alone = run(option, "-", "--scenario", "no-paper")
        same = alone.stdout.splitlines()[-1:] == target.read_bytes().splitlines()[-1:]
        check(f"{option} -: {alone}", alone.returncode == 2 and same and not alone.stderr)
        for place in ("/dev/full", folder, f"{folder}/none/file"):
            done = run(option, place)
            check(f"{option} {place}: {done}", done.returncode == 3 and b"cannot write" in done.stderr)

for line in ([], ["--scenario", "garbage"], ["--scenario", "offline", "--record", "flat"]):
    document = json.loads(run("--json", "--raw", *line).stdout)
    check(f"{line}: {document}", len(document["raw"]["query"]) > 5 and document["raw"]["reply"])
stream = subprocess.Popen([STMON, "--watch", "0.1", "--json", "--raw", "--scenario", "changing"],
                          stdout=subprocess.PIPE)
lines = [json.loads(stream.stdout.readline()) for _ in range(6)]
stream.terminate()
check(f"the bytes of changes: {lines}", sum("raw" in line for line in lines) >= 2)

for line, expected in ((["--timeout", "nan"], 3), ([""], 3), (["--watch", "1", "--picture", "a.png"], 3),
                       (["--scenario", "no-such"], 3), (["--reply", "/no/such"], 3), (["--help"], 0), ([], 0)):
    done = run(*line)
    check(f"{line}: {done}", done.returncode == expected and bool(done.stderr) == (expected == 3))

# A monitoring plugin always prints one line, and knows 3 for everything that is no answer.
for line, expected in (([], 3), ([""], 3), (["127.0.0.1:1"], 3), (["--no-such", "a"], 3), (["a", "-w", ""], 3)):
    done = run("check", *line)
    check(f"check {line}: {done}", done.returncode == expected and done.stdout.startswith(b"UNKNOWN - ")
          and done.stdout.count(b"\n") == 1 and not done.stderr)

print("\n".join(faults))
sys.exit(bool(faults))
