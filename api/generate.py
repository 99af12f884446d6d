#!/usr/bin/env python3
"""Makes from the registry: the public header, the exported stubs, the per-target members, the export lists, and the table that
the generic tests iterate over.

    generate.py header [--check]     writes (or compares) include/pxli.h
    generate.py sources OUT          writes everything else below OUT; unchanged files keep their time stamps
    generate.py names                prints every exported name
"""

import sys
from pathlib import Path

import registry
import vocabulary as v

ROOT = Path(__file__).parent.parent
RULE = "-" * 110


def header_text():
    parts = [(registry.API / "preamble.h").read_text()]
    for _, title, families in registry.load():
        parts.append(f"/* ==== {title} {'=' * (113 - len(title))} */\n")
        for family in families:
            doc = "\n".join(f" * {line}".rstrip() for line in family.doc.splitlines())
            parts.append(f"\n/* {RULE}\n * {family.title} ({family.file})\n *\n{doc}\n */\n")
            parts += [wrap(f"{m.c_prototype};") + "\n" for m in family.members]
        parts.append("\n")
    parts.append('#include "pxl_linkage.h"\n\n#endif\n')
    return "".join(parts)


def wrap(line, limit=120):
    """Breaks a prototype after commas; continuation lines are indented by four."""
    lines, current = [], ""
    for piece in line.replace(", ", ",\0").split("\0"):
        candidate = f"{current} {piece}" if current else piece
        if len(candidate) + (4 if lines else 0) > limit:
            lines.append(current)
            candidate = piece
        current = candidate
    lines.append(current)
    return "\n    ".join(lines)


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.exists() or path.read_text() != text:
        path.write_text(text)


def targeted(families):
    return [(f, [m for m in f.members if m.params is not None]) for f in families]


def bits_cast(param):
    """The argument as the unsigned type of the same size, for members that only move bits."""
    if not param.element or param.role in ("Mask", "Order"):
        return param.name
    bits = v.BITS_TYPES[v.SIZES[param.element]]
    if bits == v.C_TYPES[param.element]:
        return param.name
    if param.role == "Element":
        return f"std::bit_cast<{bits}>({param.name})"
    const = "const " if "const " in param.ctype + " " and param.role in ("Source", "Values") else ""
    stars = "* const*" if param.side.planes else "*"
    return f"reinterpret_cast<{const}{bits}{stars}>({param.name})"


def members_text(source, members):
    """The bottom of a family's source file: one plain function per member, in the namespace of the target."""
    lines = [f"// The members of {source}, generated from the registry.", "#include <bit>", "",
             "namespace pxl::PXL_TARGET {"]
    for m in members:
        args = ", ".join(bits_cast(p) if m.bits else p.name for p in m.passed)
        lines.append(f"{m.c_prototype} {{ return {m.call}({args}); }}")
    return "\n".join(lines + ["} // namespace pxl::PXL_TARGET", ""])


def exports_text(families):
    """The extern "C" functions: each goes to the target that was chosen when the library was loaded."""
    lines = ["// The exported functions, generated from the registry.", '#include "frame/exports.h"', ""]
    plain = [m for f in families for m in f.members if m.params is None]
    per_target = [m for f in families for m in f.members if m.params is not None]
    if per_target:
        for target in ("sse2", "avx2"):
            lines.append(f"namespace pxl::{target} {{")
            lines += [f"{m.c_prototype};" for m in per_target]
            lines.append("}")
    lines += [f"{m.prototype} {{ return pxl::{m.call}({m.arguments}); }}" for m in plain]
    lines += [f"{m.c_prototype} {{ return PXL_ON_TARGET({m.name})({m.arguments}); }}" for m in per_target]
    return "\n".join(lines) + "\n"


def all_members():
    return [m for _, _, families in registry.load() for f in families for m in f.members]


def allocator_names():
    return [m.name for m in all_members() if m.family == "Malloc"]


def version_script(names):
    body = "\n".join(f"        {n};" for n in names)
    return f"PXLIMX_5.3 {{\n    global:\n{body}\n    local:\n        *;\n}};\n"


def table_text():
    """The tables of tests/generic/member.h: every member with its parameters and a way to call it, and the allocators."""
    lines = ["// The exported functions, generated from the registry.",
             '#include "generic/member.h"', "", '#include "pxli.h"', "", "namespace generic {", "namespace {", ""]
    rows = []
    for m in all_members():
        if m.params is None:
            continue
        args = ", ".join(thunk_argument(p, i) for i, p in enumerate(m.params))
        lines.append(f"int32_t call_{m.name}(const reference::Arg* a) {{ return {m.name}({args}); }}")
        params = ", ".join(param_row(p) for p in m.params)
        lines.append(f"const Param params_{m.name}[] = {{{params}}};")
        rows.append(f'    {{{{"{m.name}", "{m.family}", "{m.src}", "{m.dst}", "{m.layout}", "{m.mode}"}}, '
                    f"params_{m.name}, {len(m.params)}, call_{m.name}}},")
    lines += ["", "const Member table[] = {", *rows, "};", "", "const Allocator allocatorTable[] = {",
              *[f'    {{"{n}", [](int w, int h, int* s) -> void* {{ return {n}(w, h, s); }}}},' for n in allocator_names()],
              "};", "} // namespace", "", "std::span<const Member> members() { return table; }",
              "std::span<const Allocator> allocators() { return allocatorTable; }", "", "} // namespace generic", ""]
    return "\n".join(lines)


def param_row(p):
    return (f'{{Role::{p.role}, "{p.name}", "{p.element}", {p.side.elements}, {p.side.channels}, {p.side.planes}, '
            f'{p.count}, "{p.bound}"}}')


def thunk_argument(p, i):
    if p.role == "Element" and p.element.endswith("c"):
        return f"*static_cast<const {p.ctype}*>(a[{i}].ptr)"
    if p.role in ("Size", "Point"):
        return f"{p.ctype}{{a[{i}].width, a[{i}].height}}"
    if p.role in ("Step", "Integer"):
        return f"static_cast<{p.ctype}>(a[{i}].num)"
    if p.role == "Real" or (p.role == "Element" and p.element in ("32f", "64f")):
        return f"static_cast<{p.ctype}>(a[{i}].real)"
    if p.role == "Element":
        return f"static_cast<{p.ctype}>(a[{i}].num)"
    if p.role in ("Source", "Mask", "Destination", "InPlace", "Inside", "Values", "Order", "Table", "Tables", "Result", "Buffer"):
        return f"(({p.type_only})a[{i}].ptr)"
    raise ValueError(f"no way to pass a {p.role} yet")


def write_sources(out):
    out = Path(out)
    by_source = {}
    for key, _, families in registry.load():
        write(out / f"{key}_exports.cpp", exports_text(families))
        for family, members in targeted(families):
            if members:
                by_source.setdefault(family.file, []).extend(members)
    for source, members in by_source.items():
        write(out / "members" / source.replace(".cpp", ".inc"), members_text(source, members))
    names = [m.name for m in all_members()]
    write(out / "pxlimx.map", version_script(names))
    write(out / "pxlimx.def", "EXPORTS\n" + "".join(f"    {n}\n" for n in names))
    write(out / "member_table.cpp", table_text())


def main(argv):
    header = ROOT / "include" / "pxli.h"
    match argv:
        case ["header"]:
            write(header, header_text())
        case ["header", "--check"]:
            if header.read_text() != header_text():
                sys.exit("include/pxli.h is stale: run api/generate.py header")
        case ["sources", out]:
            write_sources(out)
        case ["names"]:
            print("\n".join(m.name for m in all_members()))
        case _:
            sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
