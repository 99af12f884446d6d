#!/usr/bin/env python3
"""The argument vocabulary, word by word: made-up families expand to the prototypes that they state, and what is generated for
them compiles and serves random calls.

    registry_test.py SOURCE_DIR CXX
"""

import subprocess
import sys
import tempfile
import tomllib
from pathlib import Path

source, compiler = Path(sys.argv[1]), sys.argv[2]
sys.path.insert(0, str(source / "api"))
import generate  # noqa: E402
import registry  # noqa: E402

here = Path(__file__).parent


def members_of(entry):
    forms = [(types, code) for types in entry.get("types", [""]) for code in entry.get("layouts", [""])]
    for types, code in forms:
        args = entry["args"][code] if isinstance(entry["args"], dict) else entry["args"]
        yield registry.member_of(entry | {"file": "made/up.cpp"}, {"args": args, "call": "madeUp"}, types, code)


def expand(entries):
    """All members, each checked against the prototype that its family expects."""
    members, wrong = [], []
    for entry in entries:
        made = list(members_of(entry))
        assert len(made) == len(entry["expected"]), entry["name"]
        for member, arguments in zip(made, entry["expected"]):
            expected = f"PxlStatus {member.name}({arguments})"
            if member.c_prototype != expected:
                wrong.append(f"{member.c_prototype}\n  instead of\n{expected}")
        members += made
    if wrong:
        sys.exit("\n".join(wrong))
    return members


def refuse_unknown_words(entry):
    for word in ("vlaue", "table:32s:x@nothing"):
        try:
            member = registry.member_of(entry | {"file": "made/up.cpp"}, {"args": [word], "call": "madeUp"}, "8u", "C1R")
            generate.table_text([member], [])
        except ValueError:
            continue
        sys.exit(f"{word} was taken for a word")


def compile_and_run(members):
    with tempfile.TemporaryDirectory() as name:
        work = Path(name)
        stubs = "".join(f"inline {m.c_prototype} {{ return PXL_OK; }}\n" for m in members)
        stubs += "inline void* pxliMalloc(int, int, int*) { return nullptr; }\n"
        (work / "pxli.h").write_text(f'#pragma once\n#include "{source}/include/pxli.h"\nstruct MadeUpState {{}};\n{stubs}')
        (work / "table.cpp").write_text(generate.table_text(members, ["pxliMalloc"]))
        (work / "members.cpp").write_text(
            '#include "frame/image.h"\n#include "pxli.h"\nnamespace pxl::PXL_TARGET::made {\n'
            "template <class... Arguments>\nPxlStatus madeUp(Arguments...) { return PXL_OK; }\n}\n"
            + generate.members_text("made/up.cpp", members))
        files = [work / "table.cpp", work / "members.cpp", here / "random_calls.cpp", *(source / "tests/generic").glob("*.cpp")]
        program = work / "random_calls"
        subprocess.run([compiler, "-std=c++20", "-Wall", "-Wextra", "-Wno-unused-parameter", "-Werror", "-DPXL_TARGET=sse2",
                        '-DPXL_VECTORS="frame/vec/x86_128.h"', f"-I{work}", f"-I{source}/tests", f"-I{source}",
                        f"-I{source}/include", "-o", program, *files], check=True)
        subprocess.run([program], check=True)


entries = tomllib.loads((here / "made_up.toml").read_text())["family"]
refuse_unknown_words(entries[0])
compile_and_run(expand(entries))
