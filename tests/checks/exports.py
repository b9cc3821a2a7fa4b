#!/usr/bin/env python3
"""All four libraries export exactly what the module definition lists, the Windows ones at its ordinals;
the DLLs import system libraries only; two builds of them are byte for byte equal."""
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

for preset, processor in (("windows", "i686"), ("windows64", "x86_64")):
    built = root / f"build/{preset}/stmdata.dll"
    dump = run(f"{processor}-w64-mingw32-objdump", "-p", built)
    base = int(re.search(r"Ordinal Base\s+(\d+)", dump)[1])
    names = re.findall(r"^\s*\[ *(\d+)\] (?:\+base\[ *\d+\]\s+[0-9a-f]+ )?(\w+)$", dump.split("[Ordinal/Name Pointer]")[1], re.M)
    found = {name: base + int(index) for index, name in names}
    by_address = len(re.findall(r"\+base\[ *\d+\] [0-9a-f]+ Export RVA", dump))
    if found != expected or by_address != len(expected):
        faults.append(f"{preset}: exports {sorted(found.items())}, wanted {sorted(expected.items())}")
    imports = set(re.findall(r"DLL Name: (\S+)", dump))
    if not imports <= {"KERNEL32.dll", "USER32.dll", "GDI32.dll", "msvcrt.dll"}:
        faults.append(f"{preset}: imports {sorted(imports)}")

    again = pathlib.Path(tempfile.mkdtemp())
    try:
        run("cmake", "--preset", preset, "-B", str(again))
        run("cmake", "--build", str(again), "--target", "stmdata")
        if (again / "stmdata.dll").read_bytes() != built.read_bytes():
            faults.append(f"{preset}: two builds of stmdata.dll differ")
    finally:
        shutil.rmtree(again)

host = (root / "src/exports/host_functions.txt").read_text().split()
for preset in "native", "linux":
    symbols = run("nm", "-D", "--defined-only", f"build/{preset}/libstmdata.so").splitlines()
    visible = {line.split()[-1] for line in symbols}
    if visible != set(expected) | set(host):
        faults.append(f"{preset}: {sorted(visible ^ (set(expected) | set(host)))} differ")

print("\n".join(faults))
sys.exit(bool(faults))
