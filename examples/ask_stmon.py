#!/usr/bin/env python3
"""How a printer is, for a program of any kind: asks stmon and reads its JSON.

    ask_stmon.py [STMON [ARGUMENT...]]     such as: ask_stmon.py /opt/stmdata/bin/stmon 192.0.2.7
"""
import json
import subprocess
import sys


def ask(stmon="stmon", *arguments):
    answer = subprocess.run([stmon, "--json", *arguments], stdout=subprocess.PIPE, encoding="utf-8")
    return json.loads(answer.stdout) if answer.stdout else {"exit_status": answer.returncode}


state = ask(*sys.argv[1:])
print("exit status", state["exit_status"])
for condition in state.get("conditions", []):
    print(condition["rank"], condition["code"], condition["severity"], condition["reason"])
