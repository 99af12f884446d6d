"""Reads the registry (api/*.toml) and expands its families into members, one per exported function."""

import functools
import tomllib
from dataclasses import dataclass
from pathlib import Path

import loose
import vocabulary as v

API = Path(__file__).parent
SUBSYSTEMS = [  # header order
    ("frame", "Version and image memory"),
    ("exchange", "Data exchange"),
    ("arith", "Arithmetic and logic"),
    ("filter", "Filters"),
]
LAYOUTS = {  # names that stand for several layouts; modes follow them: "pixels R IR"
    "pixels": ("C1", "C3", "C4"),
    "pixels+alpha": ("C1", "C3", "C4", "AC4"),
    "complex": ("C1", "C3", "AC4"),
}


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
    loose: bool = False          # its template takes pointers and steps one by one
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
        families.append(Family(entry["name"], entry.get("title", entry["name"]), entry["file"], entry["doc"].strip(),
                               entry.get("statuses", []), members))
    return families


def _members(entry, form):
    if "layouts" not in form:
        prototype = form["prototype"]
        name = prototype.partition("(")[0].split()[-1].lstrip("*")
        return [Member(name, entry["name"], prototype=prototype, call=form["call"])]
    return [_member(entry, form, types, code) for types in form["types"] for code in _layout_codes(form["layouts"])]


def _layout_codes(words):
    """['pixels R IR', 'C3CR'] -> ['C1R', 'C3R', 'C4R', 'C1IR', 'C3IR', 'C4IR', 'C3CR']"""
    codes = []
    for word in words:
        name, *modes = word.split()
        codes += [layout + mode for mode in modes for layout in LAYOUTS[name]] if modes else [name]
    return codes


def _member(entry, form, types, code):
    family = entry["name"]
    src, dst = v.split_types(types)
    layout, mode = v.split_layout(code)
    src_side, dst_side = v.parse_layout(layout)
    member = Member(f"pxli{family}_{types}_{code}", family, src, dst, layout, mode, src_side, dst_side,
                    bits=form.get("bits", False))
    names = _placeholders(member)
    if "prototype" in form:
        member.call = form["call"].format(**names)
        member.prototype = form["prototype"].format(**names)
        return member
    member.room = entry["file"].partition("/")[0]
    member.targets = tuple(t.name for t in targets() if not t.optional or t.name in form.get("targets", ()))
    loose_call = loose.CALLS.get(entry["file"], {}).get(form["call"])
    member.loose = loose_call is not None
    member.call = (loose_call or form["call"]).format(**names)
    member.params, member.passed = _parameters(member, form["args"])
    return member


def _parameters(member, words):
    """The C parameters of a member, and those that its template gets.

    A form that states the arguments of an out-of-place operation serves in-place members too: srcDst stands in the place of
    the last source, a constant before it, and the template gets srcDst as that source and as the destination.
    """
    if "I" not in member.mode or "dst" not in words:
        params = [p for word in words for p in v.expand(word, member)]
        return params, params
    two_sources = "src2" in words
    rename = {"src1": "src", "src2": "srcDst", "src": "srcDst", "dst": "srcDst"}
    kept = [rename.get(word, word) for word in words if word != "dst"]
    if not two_sources:
        kept.sort(key=lambda word: word.partition(":")[0] not in ("value", "shift"))
    params = [p for word in kept for p in v.expand(word, member)]
    passed = [p for word in words for p in v.expand(rename.get(word, word), member)]
    return params, passed


def _placeholders(member):
    """What a form's `call` and `prototype` may name in braces."""
    def ctype(code):
        return v.BITS_TYPES[v.SIZES[code]] if member.bits else v.C_TYPES[code]
    return {"name": member.name, "S": ctype(member.src), "D": ctype(member.dst),
            "elements": member.dst_side.elements, "channels": member.dst_side.channels,
            "srcElements": member.src_side.elements, "planes": member.dst_side.planes,
            "inPlace": "true" if "I" in member.mode else "false"}
