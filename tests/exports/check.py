"""Compares the export table of a build's Lib_Brask with a list of names. Usage: check.py BUILD LIST"""

import os
import re
import subprocess
import sys


def run(*words, given=None):
    return subprocess.run(words, input=given, capture_output=True, text=True, check=True).stdout


def raw_names(build):
    library = os.path.join(build, "bin", "Lib_Brask.so")
    if os.path.exists(library):
        lines = run("nm", "-D", "--defined-only", library).splitlines()
        return [line.split()[-1] for line in lines]
    table = run("x86_64-w64-mingw32-objdump", "-p", os.path.join(build, "bin", "Lib_Brask.dll"))
    table = table[table.index("[Ordinal/Name Pointer] Table"):]
    return re.findall(r"^\s*\[\s*\d+\](?:\s*\+base\[\s*\d+\]\s*[0-9a-f]+)?\s+(\S+)$", table, re.M)


def exported(build):
    """{demangled name without arguments: class, function or variable}"""
    names = [name for name in raw_names(build) if not name.startswith("__odr_asan")]  # the sanitizer's own
    kinds = {}
    for name in run("c++filt", given="\n".join(names)).splitlines():
        if "(" not in name:
            kinds[name] = "variable"
        elif "::" in name.split("(")[0]:
            kinds.setdefault(name.split("::")[0], "class")
        else:
            kinds[name.split("(")[0]] = "function"
    return kinds


build, listed = sys.argv[1:]
with open(listed, encoding="utf-8") as file:
    wanted = dict(reversed(line.split()) for line in file if line.strip() and not line.startswith("#"))
found = exported(build)
wrong = [f"missing: {kind} {name}" for name, kind in wanted.items() if found.get(name) != kind]
wrong += [f"too much: {kind} {name}" for name, kind in found.items() if name not in wanted]
for line in wrong:
    print(line)
print(f"{len(wanted) - sum(line.startswith('missing') for line in wrong)} passed, {len(wrong)} failed")
sys.exit(1 if wrong else 0)
