#!/usr/bin/env python3
"""Both libraries export exactly what the module definition lists, at its ordinals; the DLL imports
system libraries only; two builds of it are byte for byte equal."""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

root = pathlib.Path(__file__).resolve().parents[2]
faults = []


def run(*command):
    return subprocess.run(command, cwd=root, check=True, capture_output=True, text=True).stdout


rows = re.findall(r"^ *(\w+) = \w+@\d+ @(\d+)$", (root / "src/exports/stmdata.def").read_text(), re.M)
expected = {name: int(ordinal) for name, ordinal in rows}

dump = run("i686-w64-mingw32-objdump", "-p", "build/windows/stmdata.dll")
base = int(re.search(r"Ordinal Base\s+(\d+)", dump)[1])
names = re.findall(r"^\s*\[ *(\d+)\] (?:\+base\[ *\d+\]\s+[0-9a-f]+ )?(\w+)$", dump.split("[Ordinal/Name Pointer]")[1], re.M)
found = {name: base + int(index) for index, name in names}
by_address = len(re.findall(r"\+base\[ *\d+\] [0-9a-f]+ Export RVA", dump))
if found != expected or by_address != len(expected):
    faults.append(f"stmdata.dll exports {sorted(found.items())}, wanted {sorted(expected.items())}")
imports = set(re.findall(r"DLL Name: (\S+)", dump))
if not imports <= {"KERNEL32.dll", "USER32.dll", "GDI32.dll", "msvcrt.dll"}:
    faults.append(f"stmdata.dll imports {sorted(imports)}")

host = (root / "src/exports/host_functions.txt").read_text().split()
visible = {line.split()[-1] for line in run("nm", "-D", "--defined-only", "build/linux/libstmdata.so").splitlines()}
if visible != set(expected) | set(host):
    faults.append(f"libstmdata.so: {sorted(visible ^ (set(expected) | set(host)))} differ")

again = pathlib.Path(tempfile.mkdtemp())
try:
    run("cmake", "--preset", "windows", "-B", str(again))
    run("cmake", "--build", str(again), "--target", "stmdata")
    if (again / "stmdata.dll").read_bytes() != (root / "build/windows/stmdata.dll").read_bytes():
        faults.append("two builds of stmdata.dll differ")
finally:
    shutil.rmtree(again)

print("\n".join(faults))
sys.exit(bool(faults))
