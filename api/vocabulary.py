"""What registry entries are written in: element types, layouts, and the argument vocabulary.

An argument word is  kind[:TYPE][:name]  with additions, and expands to one C parameter, or more for images.

  images: a pointer, or an array of plane pointers, and a step; element type and channels follow from the member's name
    src src1 src2          read            dst        written           srcDst   read and written in place
    inside:NAME            a region of srcSize inside a larger one of outer:NAME that is written around it
    mask                   an 8u mask of the region that is read         map:NAME  a 32f map of the region
    .channel               the pointer addresses one channel of interleaved pixels
    .all                   AC4, AP4: the alpha is processed like the colours
    .mask                  one 8u element per pixel, whatever the member's name says
    .sized                 the size of the whole image stands between pointer and step, and bounds it
    /REGION                what the operand covers: a size, rectangle or object by name (default roiSize); A+B-1 (A-B+1): two
                           sizes joined (one moved inside the other); WxSIZE: a width of its own; 8x8: a block; transposed:
                           height x width; and, read beyond the region's edges, what a window reaches (WINDOWS below)
  regions and geometry
    roi size:NAME point:NAME rect:NAME (by address) rectValue:NAME (by value)
    outer:NAME             the size of a destination that holds a source and a border; top:NAME left:NAME: its rows above and
                           columns left of the source
  numbers, with [LOW..HIGH] or [A,B,C]: the valid ones; where none are given, all are
    int u64 float double :NAME, enum:CTYPE:NAME, and with a meaning of their own: scaleFactor divisor roundMode
    count:NAME             entries of a counted array, one per processed channel
    bitOffset:NAME         the first bit of every row      low:NAME high:NAME   single-precision ends of a range
  values
    value[:TYPE[:NAME]]    a scalar for one processed channel, else an array of one per processed channel
    shift:NAME             counts of bits in the same way
    lowest:NAME highest:NAME   the ends of a range of values in the same way
    element[:TYPE]:NAME    one element, of the destination type
    order:N                N channel indices, dstOrder
  arrays; TYPE is an element type, S or D (the member's), int, or a C type
    table:TYPE:NAME        read                 result:TYPE:NAME   written         inout:TYPE:NAME   both
    tables, levels, results   one per processed channel, by an array of pointers; levels are in ascending order
    @COUNT                 entries: 64, 4x2, the name of a number, NAME-1, 2^NAME, A*B, or of a size (its area); without it a
                           result has one per processed channel
    kernel:TYPE            taps of a linear filter, as many as kernelSize says
  objects and scratch
    state:CTYPE:NAME       a prepared object that is read; state=written, state=freed; state=new: the address of one to be made
    buffer                 scratch from the caller, or null; buffer@0 is never touched
"""

import math
import re
from dataclasses import dataclass, field

C_TYPES = {
    "1u": "uint8_t", "8u": "uint8_t", "8s": "int8_t", "16u": "uint16_t", "16s": "int16_t", "32u": "uint32_t",
    "32s": "int32_t", "64s": "int64_t", "32f": "float", "64f": "double",
    "16sc": "Pxl16sc", "16uc": "Pxl16uc", "32sc": "Pxl32sc", "32fc": "Pxl32fc", "24u": "uint8_t",
}
SIZES = {"1u": 1, "8u": 1, "8s": 1, "16u": 2, "16s": 2, "32u": 4, "32s": 4, "64s": 8, "32f": 4, "64f": 8,
         "16sc": 4, "16uc": 4, "32sc": 8, "32fc": 8, "24u": 3}
BITS_TYPES = {1: "uint8_t", 2: "uint16_t", 4: "uint32_t", 8: "uint64_t"}
SCALARS = {"int": "int", "u64": "uint64_t", "float": "float", "double": "double"}
# Words of a number: C type, name, meaning and valid numbers.
NUMBERS = {"scaleFactor": ("int", "scaleFactor", "ScaleFactor", ""), "divisor": ("int", "divisor", "Divisor", ""),
           "roundMode": ("PxlRoundMode", "roundMode", "None", "0..2")}
GEOMETRY = {"size": ("ImageSize", "Size", "None"), "outer": ("ImageSize", "Size", "Outer"),
            "point": ("ImagePoint", "Point", "None"), "rect": ("const ImageRect*", "RectPointer", "None"),
            "rectValue": ("ImageRect", "Rect", "None")}
MEANINGS = {"bitOffset": ("int", "BitOffset"), "top": ("int", "BorderTop"), "left": ("int", "BorderLeft"),
            "low": ("float", "RangeLow"), "high": ("float", "RangeHigh")}

IMAGES = ("Source", "Destination", "InPlace", "Inside", "Mask")  # roles whose pointer is followed by a step
ARRAYS = {"table": "Table", "tables": "Table", "levels": "Table", "result": "Result", "results": "Result", "inout": "InOut"}

TYPE_CODE = re.compile(r"(?:1u|8u|8s|16sc|16uc|16u|16s|24u|32sc|32fc|32u|32s|32f|64s|64f)")


@dataclass
class Window:
    """What is read around a region.

    Sized, Row, Column: by the parameters `size` and `anchor`; a mirrored window reaches anchor columns to the right, and its
    anchor may lie anywhere. Code: `size` is a mask code, ten times the width, and the height, centred. Radius: `size` on every
    side. Fixed: so many pixels left, above, right and below.
    """
    kind: str
    size: str = ""
    anchor: str = ""
    mirrored: bool = False
    sides: tuple = (0, 0, 0, 0)


WINDOWS = {
    "kernel": Window("Sized", "kernelSize", "anchor", mirrored=True),
    "row": Window("Row", "kernelSize", "xAnchor", mirrored=True),
    "column": Window("Column", "kernelSize", "yAnchor", mirrored=True),
    "mask": Window("Sized", "maskSize", "anchor"),
    "windowRow": Window("Row", "maskSize", "anchor"),
    "windowColumn": Window("Column", "maskSize", "anchor"),
    "maskCode": Window("Code", "maskCode"),
    "radius": Window("Radius", "radius"),
    "3x3": Window("Fixed", sides=(1, 1, 1, 1)),
    "2x2": Window("Fixed", sides=(0, 0, 1, 1)),
}


@dataclass
class Layout:
    """One side of a layout code: elements per pixel, those processed, planes (0: interleaved), chosen channel."""
    elements: int
    channels: int
    planes: int = 0
    one_channel: bool = False


def split_layout(code):
    """'C3P3R' -> ('C3P3', 'R'): the layout part and the mode letters."""
    match = re.fullmatch(r"(.+?)(I?M?R?(?:Sfs)?)", code)
    return match.group(1), match.group(2)


def parse_layout(layout):
    """The source and the destination side of a layout code; of members without one, single elements."""
    if layout in ("C3C", "C4C"):
        side = Layout(int(layout[1]), 1, one_channel=True)
        return side, side
    sides = [_side(code) for code in re.findall(r"A?[CP]\d", layout)] or [Layout(1, 1)]
    return sides[0], sides[-1]


def _side(code):
    count = int(code[-1])
    if "P" in code:
        return Layout(1, 1, planes=count)
    return Layout(count, 3 if code == "AC4" else count)


def split_types(code):
    """'8u32f' -> ('8u', '32f'); '8u' -> ('8u', '8u')."""
    codes = TYPE_CODE.findall(code) or [""]
    return codes[0], codes[-1]


@dataclass
class Param:
    """One C parameter. `role` and `meaning` tell the generic tests what to pass; see tests/generic/member.h."""
    ctype: str
    name: str
    role: str
    suffix: str = ""
    element: str = ""                       # element type code of what it points at
    side: Layout = field(default_factory=lambda: Layout(1, 1))
    region: str = ""                        # of images
    count: str = ""                         # of arrays
    sized: bool = False                     # of images: a size stands between pointer and step
    per_channel: bool = False               # one value, or an array of one per processed channel
    meaning: str = "None"
    valid: str = ""                         # the valid numbers: "LOW..HIGH" or "A,B,C"

    @property
    def declaration(self):
        return f"{self.ctype} {self.name}{self.suffix}"

    @property
    def type_only(self):
        """The parameter's type as a cast can name it."""
        stars = self.suffix.count("[")
        if stars == 0:
            return self.ctype
        if stars == 2:
            return f"{self.ctype} (*)[{self.suffix.split('[')[2]}"
        return self.ctype + ("*" if self.ctype.endswith("const") or "*" in self.ctype else " *")


def expand(word, member):
    """The C parameters of one argument word for one member."""
    parts = re.fullmatch(r"([^][@/]+)(?:@([^][]+)|/([^][]+))?(?:\[([^][]+)\])?", word)
    if not parts:
        raise ValueError(f"not an argument word: {word!r}")
    stem, count, region, valid = (part or "" for part in parts.groups())
    kind, *rest = stem.split(":")
    base, _, flag = kind.partition(".")
    name = rest[-1] if rest else kind
    if base in ("src", "src1", "src2", "dst", "srcDst", "inside"):
        return _image(base, rest[0] if rest else base, flag, region or ("" if base == "inside" else "roiSize"), member)
    if kind == "mask":
        return [Param("const uint8_t*", "mask", "Mask", element="8u", region="roiSize"), Param("int", "maskStep", "Step")]
    if kind == "map":
        return [Param("const float*", name, "Source", element="32f", region=region or "roiSize"),
                Param("int", f"{name}Step", "Step")]
    if kind == "roi":
        return [Param("ImageSize", "roiSize", "Size")]
    if kind in GEOMETRY:
        ctype, role, meaning = GEOMETRY[kind]
        return [Param(ctype, name, role, meaning=meaning)]
    if kind in ("value", "shift", "count", "lowest", "highest"):
        return [_per_channel(kind, rest, member)]
    if kind == "element":
        ctype, element = _type(rest[0] if len(rest) > 1 else "D", member)
        return [Param(ctype, name, "Element", element=element, count="1")]
    if kind == "order":
        limit = valid or f"0..{member.src_side.channels - 1}"
        return [Param("const int32_t", "dstOrder", "Order", f"[{rest[0]}]", "32s", count=rest[0], valid=limit)]
    if kind == "kernel":
        ctype, element = _type(rest[0], member)
        return [Param(f"const {ctype}*", "kernel", "Table", element=element, count="kernelSize", meaning="Taps")]
    if kind in ARRAYS:
        return [_array(kind, rest[0], name, count, valid, member)]
    if base in ("state", "state=written", "state=freed", "state=new"):
        const, stars, role = {"state": ("const ", "*", "State"), "state=new": ("", "**", "NewState")}.get(kind, ("", "*", "State"))
        return [Param(f"{const}{rest[0]}{stars}", name, role)]
    if kind == "buffer":
        return [Param("uint8_t*", "buffer", "Buffer", count=count)]
    return [_number(kind, rest, name, valid, word)]


def _number(kind, rest, name, valid, word):
    if kind in NUMBERS:
        ctype, name, meaning, usual = NUMBERS[kind]
        return Param(ctype, name, "Integer", meaning=meaning, valid=valid or usual)
    if kind in MEANINGS:
        ctype, meaning = MEANINGS[kind]
    elif kind == "enum":
        ctype, meaning = rest[0], "None"
    elif kind in SCALARS:
        ctype, meaning = SCALARS[kind], "None"
    else:
        raise ValueError(f"unknown argument word {word!r}")
    return Param(ctype, name, "Real" if ctype in ("float", "double") else "Integer", meaning=meaning, valid=valid)


def _image(base, name, flag, region, member):
    reads = base in ("src", "src1", "src2")
    element = member.src if reads else member.dst
    side = member.src_side if reads else member.dst_side
    if flag == "channel" and side.elements > 1:
        side = Layout(side.elements, 1, one_channel=True)
    if flag == "all":
        side = Layout(side.elements, side.elements, side.planes)
    if flag == "mask":
        side, element = Layout(1, 1), "8u"
    size = [Param("ImageSize", f"{name}Size", "Size")] if flag == "sized" else []
    role = {"dst": "Destination", "srcDst": "InPlace", "inside": "Inside"}.get(base, "Source")
    const = "const " if reads else ""
    stars, suffix = ("* const", f"[{side.planes}]") if side.planes else ("*", "")
    step = "srcDstStep" if base == "inside" else f"{name}Step"
    pointer = Param(f"{const}{C_TYPES[element]}{stars}", name, role, suffix, element, side,
                    size[0].name if size else region, sized=bool(size))
    return [pointer, *size, Param("int", step, "Step")]


def _per_channel(kind, rest, member):
    """value[:TYPE[:NAME]], shift:NAME, count:NAME, lowest:NAME, highest:NAME"""
    side = member.dst_side
    meaning = {"shift": "Shift", "count": "Count", "lowest": "RangeLow", "highest": "RangeHigh"}.get(kind, "None")
    name = rest[-1] if rest else kind
    ctype, element = _type({"value": rest[0] if rest else "D", "shift": "32u", "count": "int"}.get(kind, "S"), member)
    if side.channels * max(side.planes, 1) == 1:
        role = "Integer" if kind == "count" else "Element"
        return Param(ctype, name, role, element=element, count="1", per_channel=True, meaning=meaning)
    count = side.channels * max(side.planes, 1)
    return Param(f"const {ctype}", name, "Values", f"[{count}]", element, count=str(count), per_channel=True, meaning=meaning)


def _array(kind, code, name, count, valid, member):
    ctype, element = _type(code, member)
    const = "const " if ARRAYS[kind] == "Table" else ""
    facts = {"element": element, "meaning": "Levels" if kind == "levels" else "None", "valid": valid}
    channels = member.src_side.channels * max(member.src_side.planes, 1)
    if kind in ("tables", "levels", "results") and channels > 1:
        return Param(f"{const}{ctype}* const", name, ARRAYS[kind], f"[{channels}]", side=Layout(1, 1, planes=channels),
                     count=count, **facts)
    if not count:
        count = str(channels) if channels > 1 else ""
    if re.fullmatch(r"[\dx]+", count): # a fixed number shows in the declaration
        sides = count.split("x")
        return Param(f"{const}{ctype}", name, ARRAYS[kind], "".join(f"[{n}]" for n in sides),
                     count=str(math.prod(map(int, sides))), **facts)
    return Param(f"{const}{ctype}*", name, ARRAYS[kind], count=count or "1", **facts)


def _type(code, member):
    """The C type and the element type code of a TYPE in a word."""
    code = {"S": member.src, "D": member.dst}.get(code, code)
    return (C_TYPES[code], code) if code in C_TYPES else (code, "32s" if code == "int" else "")
