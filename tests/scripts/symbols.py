#!/usr/bin/env python3
"""Symbols of a build: the shared library exports the header's names and nothing else, and no object compiled for AVX2 holds
code outside its namespace that the linker could pick for everybody.

    symbols.py exports LIBRARY SOURCE_DIR
    symbols.py leaks OBJECT...
"""

import re
import subprocess
import sys
from pathlib import Path


def nm(*arguments):
    out = subprocess.run(["nm", *arguments], capture_output=True, text=True, check=True).stdout
    return [line.split() for line in out.splitlines() if len(line.split()) >= 2]


def exports(library, source):
    exported = {row[-1] for row in nm("-D", "--defined-only", library)}
    header = Path(source, "include", "pxli.h").read_text()
    declared = set(re.findall(r"\b(pxli\w+)\(", re.sub(r"/\*.*?\*/", "", header, flags=re.S)))
    problems = [f"not exported: {n}" for n in sorted(declared - exported)]
    problems += [f"exported but not in the header: {n}" for n in sorted(exported - declared)]
    if len(declared) < 431:
        problems.append(f"the header declares only {len(declared)} functions")
    return problems


def leaks(*objects):
    problems = []
    for path in objects:
        for row in nm("--defined-only", path):
            kind, name = row[-2], row[-1]
            if kind in "TWVuDBR" and not re.match(r"_Z[A-Z]*3pxl4avx2|DW\.ref\.", name):
                problems.append(f"{path}: {kind} {name}")
    return problems


def main():
    problems = {"exports": exports, "leaks": leaks}[sys.argv[1]](*sys.argv[2:])
    print("\n".join(problems) or "no problems")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
