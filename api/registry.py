"""Reads the registry (api/*.toml) and expands its families into members, one per exported function."""

import functools
import re
import tomllib
from dataclasses import dataclass, field
from pathlib import Path

import prose
import vocabulary as v

API = Path(__file__).parent
SUBSYSTEMS = [  # header order
    ("frame", "Version and image memory"),
    ("exchange", "Data exchange"),
    ("arith", "Arithmetic and logic"),
    ("threshold", "Threshold, compare, lookup"),
    ("filter", "Filters"),
]
LAYOUTS = {  # names that stand for several layouts; modes follow them: "pixels R IR"
    "pixels": ("C1", "C3", "C4"),
    "pixels+alpha": ("C1", "C3", "C4", "AC4"),
    "complex": ("C1", "C3", "AC4"),
}


@dataclass
class Facts:
    """What tests must know of a family or form beyond its arguments: `facts = { ... }` in its entry."""
    rows: str = "any"        # "apart": a step below a row is refused or leaves the order of rows free; "written apart": the same of
                             # those that are written
    steps: str = "bytes"     # "whole elements": what is over is dropped
    overlap: bool = True     # operands may overlap in part, with the result of the plain loop
    square: bool = False     # other regions are refused
    large: tuple = (0, 0)    # regions that are large in both directions, up to this size, take ways of their own
    windows: tuple = ()      # window sizes beside which the formula changes
    running: bool = False    # sums of floats run on, so that an infinity stays in them


@dataclass
class Member:
    name: str
    family: str
    src: str = ""
    dst: str = ""
    layout: str = ""
    mode: str = ""
    src_side: v.Layout | None = None
    dst_side: v.Layout | None = None
    params: list | None = None
    passed: list | None = None   # the parameters that the template is called with, in its order
    call: str = ""
    bits: bool = False
    room: str = ""               # the folder of its source, and the namespace of its template
    targets: tuple = ()          # the names of the targets that it is compiled for
    facts: Facts = field(default_factory=Facts)
    takes_memory: bool = False   # and may fail for want of it
    prototype: str = ""      # set for members that follow no pattern; they are the same on every target

    @property
    def c_prototype(self):
        if self.prototype:
            return self.prototype
        return f"PxlStatus {self.name}({', '.join(p.declaration for p in self.params)})"

    @property
    def arguments(self):
        if self.prototype:
            inside = self.prototype.partition("(")[2].rpartition(")")[0]
            words = [part.replace("*", " ").split()[-1] for part in inside.split(",")]
            return ", ".join(w for w in words if w != "void")
        return ", ".join(p.name for p in self.params)


@dataclass
class Target:
    name: str
    title: str
    vectors: str             # the header of its vector primitives
    flags: list
    cpu: list                # what the processor must offer, as __builtin_cpu_supports names it
    optional: bool = False   # only for forms that ask for it


@dataclass
class Family:
    name: str
    title: str
    file: str
    doc: str                 # see prose.py
    statuses: list           # in the order in which they are tested; see prose.py
    members: list

    @property
    def source_id(self):
        return self.file.removesuffix(".cpp")


@functools.cache
def targets():
    """The targets, from the one that every processor has to the best."""
    return [Target(**entry) for entry in tomllib.loads((API / "targets.toml").read_text())["target"]]


def load():
    """[(subsystem key, title, [Family])] in header order."""
    return [(key, title, _families(API / f"{key}.toml")) for key, title in SUBSYSTEMS]


def _families(path):
    data = tomllib.loads(path.read_text())
    families = []
    for entry in data["family"]:
        members = [m for form in entry["form"] for m in _members(entry, form)]
        for m in members:
            types = m.src if m.src == m.dst else m.src + m.dst
            m.takes_memory = "PXL_E_MEM_ALLOC" in prose.codes_of(entry.get("statuses", []), types)
        families.append(Family(entry["name"], entry.get("title", entry["name"]), entry["file"], entry["doc"].strip(),
                               entry.get("statuses", []), members))
    return families


def _members(entry, form):
    if "types" not in form and "prototype" in form:
        prototype = form["prototype"]
        name = prototype.partition("(")[0].split()[-1].lstrip("*")
        return [Member(name, entry["name"], prototype=prototype, call=form["call"])]
    return [member_of(entry, form, types, code) for types in form.get("types", [""])
            for code in _layout_codes(form.get("layouts", [""]))]


def _layout_codes(words):
    """['pixels R IR', 'C3CR'] -> ['C1R', 'C3R', 'C4R', 'C1IR', 'C3IR', 'C4IR', 'C3CR']"""
    codes = []
    for word in words:
        name, *modes = word.split(" ")
        codes += [layout + mode for mode in modes for layout in LAYOUTS[name]] if modes else [name]
    return codes


def member_of(entry, form, types, code):
    """The member of a form with this type code and this layout and mode, either of which may be missing."""
    family = entry["name"]
    src, dst = v.split_types(types)
    layout, mode = v.split_layout(code) if code else ("", "")
    src_side, dst_side = v.parse_layout(layout)
    member = Member("_".join(filter(None, [f"pxli{family}", types, code])), family, src, dst, layout, mode, src_side, dst_side,
                    bits=form.get("bits", False))
    names = _placeholders(member)
    if "prototype" in form:
        member.call = form["call"].format(**names)
        member.prototype = form["prototype"].format(**names)
        return member
    member.facts = Facts(**(entry.get("facts", {}) | form.get("facts", {})))
    member.room = entry["file"].partition("/")[0]
    asked = form.get("targets", {}) # of optional targets, the members that ask for them
    member.targets = tuple(t.name for t in targets() if not t.optional or f"{types}_{code}" in asked.get(t.name, ()))
    member.call = form["call"].format(**names)
    member.params, member.passed = _parameters(member, form["args"])
    return member


def _parameters(member, words):
    """The C parameters of a member, and those that its template gets.

    A form that states the arguments of an out-of-place operation serves in-place members too: srcDst stands in the place of
    the last source, a constant that stood before the destination in front of it, and the template gets srcDst as that source
    and as the destination.
    """
    bases = [re.match(r"\w*", word)[0] for word in words]
    if "I" not in member.mode or "dst" not in bases:
        params = [p for word in words for p in v.expand(word, member)]
        return params, params
    rename = {"src1": "src", "src2": "srcDst", "src": "srcDst", "dst": "srcDst"}
    renamed = [rename.get(base, base) + word.removeprefix(base) for base, word in zip(bases, words)]
    dst = bases.index("dst")
    kept = renamed[:dst] + renamed[dst + 1:]
    if "src2" not in bases:
        before = [word for base, word in zip(bases[:dst], words) if base in ("value", "shift")]
        kept.sort(key=lambda word: word not in before)
    params = [p for word in kept for p in v.expand(word, member)]
    passed = [p for word in renamed for p in v.expand(word, member)]
    return params, passed


def _placeholders(member):
    """What a form's `call` and `prototype` may name in braces."""
    return {"name": member.name, "D": v.C_TYPES.get(member.dst, ""), "elements": member.dst_side.elements}
