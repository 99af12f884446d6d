#!/usr/bin/env python3
"""Makes from the registry: the public header, the exported stubs, the per-target members, the export lists, and the table that
the generic tests iterate over.

    generate.py header [--check]     writes (or compares) include/pxli.h
    generate.py sources OUT TARGET...  writes everything else below OUT for these targets; unchanged files keep their time stamps
    generate.py cmake OUT            writes what the build must know of the targets
    generate.py names                prints every exported name
"""

import dataclasses
import sys
from pathlib import Path

import prose
import registry
import vocabulary as v

ROOT = Path(__file__).parent.parent
RULE = "-" * 117


def header_text():
    rooms = registry.load()
    preamble = (registry.API / "preamble.h").read_text()
    parts = [preamble.replace("    /* STATUS CODES */", prose.codes_text([f for _, _, families in rooms for f in families]))]
    for _, title, families in rooms:
        parts.append(f"/* ==== {title} {'=' * (108 - len(title))} */\n")
        for family in families:
            text = f"{family.title} ({family.file})\n\n{family.doc}\n\n{prose.statuses_text(family.statuses)}"
            parts.append(f"\n/* {RULE}\n{prose.comment(text)}\n */\n")
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


def lane_type(param, member):
    """The C type of what a parameter points at; members that only move bits see the unsigned type of the same size."""
    if member.bits and param.role not in ("Mask", "Order"):
        return v.BITS_TYPES[v.SIZES[param.element]]
    return v.C_TYPES[param.element]


def as_lanes(param, member, expression):
    """A pointer in the type that the member works on."""
    lane = lane_type(param, member)
    if lane == v.C_TYPES[param.element]:
        return expression
    const = "const " if param.role in ("Source", "Values", "Element") else ""
    stars = "* const*" if param.side.planes else "*"
    return f"reinterpret_cast<{const}{lane}{stars}>({expression})"


def passed_argument(param, step, member):
    """What the template gets for a parameter: an Image or Planes for a pointer and its step, Values for constants."""
    const = "const " if param.role in ("Source", "Mask") else ""
    if param.role in v.IMAGES:
        side, lane, pointer = param.side, lane_type(param, member), as_lanes(param, member, param.name)
        if side.planes:
            return f"Planes<{const}{lane}, {side.planes}>{{{pointer}, {step.name}}}"
        shape = f"{side.elements}" if side.channels == side.elements else f"{side.elements}, {side.channels}"
        return f"Image<{const}{lane}, {shape}>{{{pointer}, {step.name}}}"
    if param.per_channel:
        pointer = as_lanes(param, member, f"&{param.name}" if param.role == "Element" else param.name)
        return f"Values<{lane_type(param, member)}, {param.count}>{{{pointer}}}"
    if param.role == "Element" and member.bits:
        return f"std::bit_cast<{lane_type(param, member)}>({param.name})"
    return param.name


def passed_arguments(member):
    arguments, params = [], list(member.passed)
    while params:
        param = params.pop(0)
        step = params.pop(0) if param.role in v.IMAGES else None
        if any(p.name == param.name for p in params): # in place: first as the source, which is only read
            param = dataclasses.replace(param, role="Source")
        arguments.append(passed_argument(param, step, member))
    return ", ".join(arguments)


def loose_argument(param, member):
    if not param.element or param.role in ("Mask", "Order"):
        return param.name
    if param.role == "Element":
        return f"std::bit_cast<{lane_type(param, member)}>({param.name})" if member.bits else param.name
    return as_lanes(param, member, param.name)


def members_text(source, members):
    """The bottom of a family's source file: one plain function per member, in the namespace of its room."""
    lines = [f"// The members of {source}, generated from the registry.", "#include <bit>", "",
             f"namespace pxl::PXL_TARGET::{members[0].room} {{"]
    for m in members:
        args = ", ".join(loose_argument(p, m) for p in m.passed) if m.loose else passed_arguments(m)
        lines.append(f"{m.c_prototype} {{ return {m.call}({args}); }}")
    return "\n".join(lines + [f"}} // namespace pxl::PXL_TARGET::{members[0].room}", ""])


def chosen(member, targets):
    """The call of the best target that the member has and the processor offers."""
    *better, last = [t for t in reversed(targets) if t in member.targets]
    call = lambda t: f"pxl::{t}::{member.room}::{member.name}({member.arguments})"
    return "".join(f"pxl::target >= pxl::Target::{t} ? {call(t)} : " for t in better) + call(last)


def exports_text(families, targets):
    """The extern "C" functions: each goes to the target that was chosen when the library was loaded."""
    lines = ["// The exported functions, generated from the registry.", '#include "frame/exports.h"', ""]
    plain = [m for f in families for m in f.members if m.params is None]
    per_target = [m for f in families for m in f.members if m.params is not None]
    if per_target:
        lines.append("#pragma GCC visibility push(hidden)")
        for target in targets:
            asking = [m for m in per_target if target in m.targets]
            if asking:
                lines.append(f"namespace pxl::{target}::{asking[0].room} {{")
                lines += [f"{m.c_prototype};" for m in asking]
                lines.append("}")
        lines += ["#pragma GCC visibility pop", ""]
    lines += [f"{m.prototype} {{ return pxl::{m.call}({m.arguments}); }}" for m in plain]
    lines += [f"{m.c_prototype} {{ return {chosen(m, targets)}; }}" for m in per_target]
    return "\n".join(lines) + "\n"


def target_list_text(targets):
    """The targets that this build has, for the choice at load time and for tests."""
    known = [t for t in registry.targets() if t.name in targets]
    supported = lambda t: " && ".join(f'__builtin_cpu_supports("{c}")' for c in t.cpu) or "true"
    return "\n".join([
        "// The targets of this build, generated from the registry.", "#pragma once", "", "namespace pxl {", "",
        "enum class Target { " + ", ".join(t.name for t in known) + " };", "",
        "struct KnownTarget {", "    Target target;", "    const char* name;", "    bool (*isOffered)(); // by this processor",
        "};", "", "inline constexpr KnownTarget knownTargets[] = {",
        *[f'    {{Target::{t.name}, "{t.name}", [] {{ return static_cast<bool>({supported(t)}); }}}},' for t in known],
        "};", "", "} // namespace pxl", ""])


def cmake_text():
    """For the build: every target with its flags, its vectors, and, of optional ones, the sources that ask for it."""
    lines = ["# The targets, generated from the registry."]
    for t in registry.targets():
        files = sorted({f.file for _, _, families in registry.load() for f in families
                        for m in f.members if t.name in m.targets}) if t.optional else []
        lines += [f"list(APPEND PXL_KNOWN_TARGETS {t.name})", f"set(PXL_FLAGS_{t.name} {' '.join(t.flags)})",
                  f"set(PXL_VECTORS_{t.name} {t.vectors})", f"set(PXL_SOURCES_{t.name} {' '.join(files)})"]
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
                    f'params_{m.name}, {len(m.params)}, call_{m.name}, "{" ".join(m.targets)}"}},')
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


def write_sources(out, targets):
    out = Path(out)
    by_source = {}
    for key, _, families in registry.load():
        write(out / f"{key}_exports.cpp", exports_text(families, targets))
        for family, members in targeted(families):
            if members:
                by_source.setdefault(family.file, []).extend(members)
    for source, members in by_source.items():
        member_file = Path("members") / source.replace(".cpp", ".inc")
        write(out / member_file, members_text(source, members))
        for t in registry.targets(): # optional targets have a file of their own, with the members that ask for them
            asking = [m for m in members if t.optional and t.name in m.targets]
            if asking:
                write(out / t.name / member_file, members_text(source, asking))
    names = [m.name for m in all_members()]
    write(out / "pxlimx.map", version_script(names))
    write(out / "pxlimx.def", "EXPORTS\n" + "".join(f"    {n}\n" for n in names))
    write(out / "target_list.h", target_list_text(targets))
    write(out / "member_table.cpp", table_text())


def main(argv):
    header = ROOT / "include" / "pxli.h"
    match argv:
        case ["header"]:
            write(header, header_text())
        case ["header", "--check"]:
            if header.read_text() != header_text():
                sys.exit("include/pxli.h is stale: run api/generate.py header")
        case ["sources", out, *targets]:
            write_sources(out, targets)
        case ["cmake", out]:
            write(Path(out), cmake_text())
        case ["names"]:
            print("\n".join(m.name for m in all_members()))
        case _:
            sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
