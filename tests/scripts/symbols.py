#!/usr/bin/env python3
"""Symbols of a build, ELF or PE: a shared library exports the names of its header and nothing else, it needs no other library
than it may, and no object compiled for a target holds code outside its namespace that the linker could pick for everybody.

    symbols.py exports LIBRARY HEADER
    symbols.py needs LIBRARY...
    symbols.py leaks TARGET OBJECT...
"""

import re
import subprocess
import sys
from pathlib import Path

# The C library, the OpenMP runtime and the companion.
MAY_NEED = re.compile(r"(libc|libm|libgomp|libpxlcore|ld-linux-x86-64)\.so|(KERNEL32|msvcrt|libgomp-1|pxlcore)\.dll$")


def lines(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()


def nm(*arguments):
    return [line.split() for line in lines("nm", *arguments) if len(line.split()) >= 2]


def exported_by(library):
    if library.endswith(".dll"):
        table = "\n".join(lines("objdump", "-p", library)).split("[Ordinal/Name Pointer] Table")[1]
        return set(re.findall(r"^\s*\[ *\d+\] (\S+)", table, flags=re.M))
    # The name of the version stands in the table too, as an absolute symbol.
    rows = [row for row in nm("-D", "--defined-only", library) if row[-2] != "A"]
    return {row[-1].split("@@")[0] for row in rows}


def exports(library, header):
    text = re.sub(r"/\*.*?\*/|^\s*#.*?$", "", Path(header).read_text(), flags=re.S | re.M)
    declared = set(re.findall(r"\b(pxl\w+)\(", text)) | set(re.findall(r"^extern \w+ (\w+);", text, flags=re.M))
    exported = exported_by(library)
    problems = [f"not exported: {n}" for n in sorted(declared - exported)]
    problems += [f"exported but not in the header: {n}" for n in sorted(exported - declared)]
    if not declared:
        problems.append("the header declares nothing")
    return problems


def needs(*libraries):
    problems = []
    for library in libraries:
        needed = re.findall(r"(?:NEEDED|DLL Name:)\s+(\S+)", "\n".join(lines("objdump", "-p", library)))
        problems += [f"{library} needs {name}" for name in needed if not MAY_NEED.match(name)]
    return problems


def leaks(target, *objects):
    problems = []
    for path in [o for o in objects if not o.endswith(".gch")]: # precompiled headers are listed as objects, too
        for row in nm("--defined-only", path):
            kind, name = row[-2], row[-1]
            if kind in "TWVuDBR" and not re.match(rf"_Z[A-Z]*3pxl{len(target)}{target}|DW\.ref\.|\.refptr\.", name):
                problems.append(f"{path}: {kind} {name}")
    return problems


def main():
    problems = {"exports": exports, "needs": needs, "leaks": leaks}[sys.argv[1]](*sys.argv[2:])
    print("\n".join(problems) or "no problems")
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
