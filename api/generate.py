#!/usr/bin/env python3
"""Makes from the registry: the public header, the exported stubs, the per-target members, the export lists, and the table that
the generic tests iterate over.

    generate.py header [--check]     writes (or compares) include/pxli.h
    generate.py sources OUT TARGET...  writes everything else below OUT for these targets; unchanged files keep their time stamps
    generate.py cmake OUT            writes what the build must know of the targets
    generate.py names                prints every exported name
"""

import re
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
    if member.bits and param.role in (*v.IMAGES, "Values", "Element") and param.role != "Mask":
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


def passed_argument(param, step, member, read):
    """What the template gets for a parameter: an Image or Planes for a pointer and its step, Values for constants."""
    const = "const " if read else ""
    if param.role in v.IMAGES:
        side, lane, pointer = param.side, lane_type(param, member), as_lanes(param, member, param.name)
        if side.planes:
            return f"Planes<{const}{lane}, {side.planes}>{{{pointer}, {step.name}}}"
        shape = f"{side.elements}" if side.channels == side.elements else f"{side.elements}, {side.channels}"
        return f"Image<{const}{lane}, {shape}>{{{pointer}, {step.name}}}"
    if param.per_channel:
        pointer = as_lanes(param, member, param.name if param.role == "Values" else f"&{param.name}")
        return f"Values<{lane_type(param, member)}, {param.count or 1}>{{{pointer}}}"
    if param.role == "Element" and member.bits:
        return f"std::bit_cast<{lane_type(param, member)}>({param.name})"
    return param.name


def passed_arguments(member):
    arguments, params = [], iter(member.passed)
    images = [p.name for p in member.passed if p.role in v.IMAGES]
    for param in params:
        size = next(params) if param.sized else None
        step = next(params) if param.role in v.IMAGES else None
        read = param.role in ("Source", "Mask") or images.count(param.name) > 1  # in place, a source first
        if step:
            images.remove(param.name)
        arguments.append(passed_argument(param, step, member, read))
        arguments += [size.name] if size else []
    return ", ".join(arguments)


def members_text(source, members):
    """The bottom of a family's source file: one plain function per member, in the namespace of its room."""
    lines = [f"// The members of {source}, generated from the registry.", "#include <bit>", "",
             f"namespace pxl::PXL_TARGET::{members[0].room} {{"]
    for m in members:
        lines.append(f"{m.c_prototype} {{ return {m.call}({passed_arguments(m)}); }}")
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


def table_text(members, allocators):
    """The tables of tests/generic/member.h: every member with its parameters and a way to call it, and the allocators."""
    lines = ["// The exported functions, generated from the registry.",
             '#include "generic/member.h"', "", '#include "pxli.h"', "", "namespace generic {", "namespace {", ""]
    rows = []
    for m in members:
        if m.params is None:
            continue
        args = ", ".join(thunk_argument(p, i) for i, p in enumerate(m.params))
        lines.append(f"int32_t call_{m.name}(const reference::Arg* a) {{ return {m.name}({args}); }}")
        params = ", ".join(param_row(p, m) for p in m.params)
        lines.append(f"const Param params_{m.name}[] = {{{params}}};")
        rows.append(f'    {{{{"{m.name}", "{m.family}", "{m.src}", "{m.dst}", "{m.layout}", "{m.mode}"}}, '
                    f'params_{m.name}, {len(m.params)}, call_{m.name}, "{" ".join(m.targets)}", '
                    f'{"true" if m.takes_memory else "false"}, {facts_row(m.facts)}}},')
    lines += ["", "const Member table[] = {", *rows, "};", "", "const Allocator allocatorTable[] = {",
              *[f'    {{"{n}", [](int w, int h, int* s) -> void* {{ return {n}(w, h, s); }}}},' for n in allocators],
              "};", "} // namespace", "", "std::span<const Member> members() { return table; }",
              "std::span<const Allocator> allocators() { return allocatorTable; }", "", "} // namespace generic", ""]
    return "\n".join(lines)


def position(name, member):
    """The position of a parameter by its name."""
    return [p.name for p in member.params].index(name)


def param_row(p, member):
    meaning = p.meaning
    windows = [v.WINDOWS[q.region] for q in member.params if q.region in v.WINDOWS]
    if any(w.size == p.name and w.kind in ("Sized", "Row", "Column") for w in windows):
        meaning = "WindowSize"
    if any(w.anchor == p.name for w in windows):
        meaning = "WindowAnchor"
    return (f'{{Role::{p.role}, Meaning::{meaning}, "{p.name}", "{p.element}", {p.side.elements}, {p.side.channels}, '
            f'{p.side.planes}, {region_row(p.region, member)}, {count_row(p.count, member)}, {valid_row(p.valid)}}}')


def region_row(region, member):
    """Of an image: a shape, the parameters that it depends on, and the window that is read around it."""
    if not region:
        return "{}"
    of = lambda name: str(position(name, member))
    if region in v.WINDOWS:
        w = v.WINDOWS[region]
        size, anchor = (of(name) if name else "-1" for name in (w.size, w.anchor))
        sides = ", ".join(map(str, w.sides))
        window = f"{{Window::{w.kind}, {size}, {anchor}, {'true' if w.mirrored else 'false'}, {{{sides}}}}}"
        return f"{{Shape::Plain, {of('roiSize')}, -1, {window}}}"
    if region == "transposed":
        return f"{{Shape::Transposed, {of('roiSize')}}}"
    if region == "8x8":
        return "{Shape::Block}"
    if joined := re.fullmatch(r"(\w+)([+-])(\w+)[+-]1", region):
        shape = "Joined" if joined[2] == "+" else "Moved"
        return f"{{Shape::{shape}, {of(joined[1])}, {of(joined[3])}}}"
    if wide := re.fullmatch(r"(\w+)x(\w+)", region):
        return f"{{Shape::OwnWidth, {of(wide[1])}, {of(wide[2])}}}"
    return f"{{Shape::Plain, {of(region)}}}"


def count_row(count, member):
    """Entries of an array: a fixed number, or what parameters say."""
    if count == "" or count.isdigit():
        return f"{{{count}}}"
    power, less = count.startswith("2^"), count.endswith("-1")
    names = count.removeprefix("2^").removesuffix("-1").split("*")
    first, second = [position(n, member) for n in names] + [-1] * (2 - len(names))
    return f"{{0, {first}, {second}, {'true' if power else 'false'}, {'true' if less else 'false'}}}"


def valid_row(valid):
    """The least and the greatest valid number, and of those below 64 a bit for each, unless all between are valid."""
    if not valid:
        return "{}"
    if ".." in valid:
        low, high = valid.split("..")
        return f"{{true, {low}, {high}}}"
    numbers = [int(n) for n in valid.split(",")]
    return f"{{true, {min(numbers)}, {max(numbers)}, {sum(1 << n for n in numbers):#x}}}"


def facts_row(facts):
    rows = {"any": "Any", "apart": "Apart", "written apart": "WrittenApart"}[facts.rows]
    whole = {"bytes": "false", "whole elements": "true"}[facts.steps]
    flag = lambda on: "true" if on else "false"
    windows = ", ".join(f"{{{w}, {h}}}" for w, h in facts.windows)
    return (f'{{Rows::{rows}, {whole}, {flag(facts.overlap)}, {flag(facts.square)}, {{{facts.large[0]}, {facts.large[1]}}}, '
            f'{{{windows}}}, {flag(facts.running)}}}')


def thunk_argument(p, i):
    if p.role == "Element" and p.element.endswith("c"):
        return f"*static_cast<const {p.ctype}*>(a[{i}].ptr)"
    if p.role in ("Size", "Point"):
        return f"{p.ctype}{{a[{i}].width, a[{i}].height}}"
    if p.role == "Rect":
        return f"*static_cast<const {p.ctype}*>(a[{i}].ptr)"
    if p.role in ("Step", "Integer"):
        return f"static_cast<{p.ctype}>(a[{i}].num)"
    if p.role == "Real" or (p.role == "Element" and p.element in ("32f", "64f")):
        return f"static_cast<{p.ctype}>(a[{i}].real)"
    if p.role == "Element":
        return f"static_cast<{p.ctype}>(a[{i}].num)"
    return f"(({p.type_only})a[{i}].ptr)"


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
    write(out / "member_table.cpp", table_text(all_members(), allocator_names()))


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
