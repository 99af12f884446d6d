"""What registry entries are written in: element types, layouts, and the argument vocabulary.

An argument word is  kind[:name][.channel][/size]  and expands to one or two C parameters:

  image operands (pointer and step; the element type and channels follow from the member's name)
    src src1 src2          read            dst        written           srcDst   read and written in place
    inside:NAME            a region inside a larger buffer that is written around it (in-place borders)
    .channel               the pointer addresses one channel of interleaved pixels
    /NAME                  the size argument that bounds the operand (default roiSize); /transposed: height x width of it;
                           /kernel: the region is read beyond its edges by kernel and anchor; /unbounded: the caller's affair
    mask                   an 8u mask of the region
    map:NAME               a 32f coordinate map of the destination region
  regions and geometry
    roi size:NAME point:NAME rect:NAME (by address) rectValue:NAME (by value)
    quad:NAME bound:NAME coeffs:NAME (arrays of doubles; coeffs are read, with =out written)
  values
    value[:NAME]           the element type: a scalar for one processed channel, else an array of one per processed channel
    element:NAME           one element of the destination type
    shift:NAME             unsigned counts, one per processed channel like value
    int:NAME uint:NAME float:NAME double:NAME u8:NAME i16:NAME scaleFactor roundMode axis:NAME cmpOp interpolation
    order:N                N channel indices, dstOrder
    table:TYPE:NAME        read-only array of the caller's; tables:TYPE:NAME an array of such pointers, one per channel
    kernel:TYPE            taps; kernelSize, anchor and divisor are words of their own (size, point, int)
  results and objects
    result:TYPE:NAME       a pointer to one result, or to one per processed channel; TYPE may be {D}
    state:TYPE state=new:TYPE  a prepared object; the address that receives one
    buffer                 scratch from the caller
"""

import re
from dataclasses import dataclass, field

C_TYPES = {
    "1u": "uint8_t", "8u": "uint8_t", "8s": "int8_t", "16u": "uint16_t", "16s": "int16_t", "32u": "uint32_t",
    "32s": "int32_t", "64s": "int64_t", "32f": "float", "64f": "double",
    "16sc": "Pxl16sc", "32sc": "Pxl32sc", "32fc": "Pxl32fc", "24u": "uint8_t",
}
SIZES = {"1u": 1, "8u": 1, "8s": 1, "16u": 2, "16s": 2, "32u": 4, "32s": 4, "64s": 8, "32f": 4, "64f": 8,
         "16sc": 4, "32sc": 8, "32fc": 8, "24u": 3}
BITS_TYPES = {1: "uint8_t", 2: "uint16_t", 4: "uint32_t", 8: "uint64_t"}
SCALARS = {"int": "int", "uint": "uint32_t", "float": "float", "double": "double", "u8": "uint8_t", "i16": "int16_t"}
NAMED_SCALARS = {"scaleFactor": ("int", "scaleFactor"), "roundMode": ("PxlRoundMode", "roundMode"),
                 "cmpOp": ("PxlCmpOp", "cmpOp"), "interpolation": ("PxlInterpolation", "interpolation")}

IMAGES = ("Source", "Destination", "InPlace", "Inside", "Mask")  # roles whose pointer is followed by a step

TYPE_CODE = re.compile(r"(?:1u|8u|8s|16sc|16uc|16u|16s|24u|32sc|32fc|32u|32s|32f|64s|64f)")


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
    """The source and the destination side of a layout code."""
    if layout in ("C3C", "C4C"):
        side = Layout(int(layout[1]), 1, one_channel=True)
        return side, side
    sides = [_side(code) for code in re.findall(r"A?[CP]\d", layout)]
    return sides[0], sides[-1]


def _side(code):
    count = int(code[-1])
    if "P" in code:
        return Layout(1, 1, planes=count)
    return Layout(count, 3 if code == "AC4" else count)


def split_types(code):
    """'8u32f' -> ('8u', '32f'); '8u' -> ('8u', '8u')."""
    codes = TYPE_CODE.findall(code)
    return codes[0], codes[-1]


@dataclass
class Param:
    """One C parameter. `role` tells the generic tests what to pass; see tests/generic/member.h."""
    ctype: str
    name: str
    role: str
    suffix: str = ""
    element: str = ""                       # element type code of what it points at
    side: Layout = field(default_factory=lambda: Layout(1, 1))
    bound: str = "roiSize"
    count: int = 1
    per_channel: bool = False               # one value, or an array of one per processed channel

    @property
    def declaration(self):
        return f"{self.ctype} {self.name}{self.suffix}"

    @property
    def type_only(self):
        """The parameter's type as a cast can name it."""
        if not self.suffix:
            return self.ctype
        return self.ctype + ("*" if self.ctype.endswith("const") or "*" in self.ctype else " *")


def expand(word, member):
    """The C parameters of one argument word for one member."""
    word, _, bound = word.partition("/")
    kind, _, rest = word.partition(":")
    base, _, flag = kind.partition(".")
    if base in ("src", "src1", "src2", "dst", "srcDst", "inside"):
        return _image(base, rest or base, flag, bound or "roiSize", member)
    if kind == "mask":
        return [Param("const uint8_t*", "mask", "Mask", element="8u"), Param("int", "maskStep", "Step")]
    if kind == "map":
        return [Param("const float*", rest, "Source", element="32f", bound=bound or "roiSize"),
                Param("int", f"{rest}Step", "Step")]
    if kind == "roi":
        return [Param("ImageSize", "roiSize", "Size")]
    if kind in ("size", "point", "rectValue"):
        ctype, role = {"size": ("ImageSize", "Size"), "point": ("ImagePoint", "Point"), "rectValue": ("ImageRect", "Rect")}[kind]
        return [Param(ctype, rest, role)]
    if kind == "rect":
        return [Param("const ImageRect*", rest, "RectPointer")]
    if kind in ("quad", "bound", "coeffs"):
        const = "" if rest.endswith("=out") else "const "
        rows = {"quad": "[4][2]", "bound": "[2][2]", "coeffs": f"[{member.coefficients}]"}[kind]
        return [Param(const + "double", rest.removesuffix("=out"), "Doubles", suffix=rows)]
    if kind in ("value", "shift"):
        return [_per_channel(kind, rest or kind, member)]
    if kind == "element":
        return [Param(C_TYPES[member.dst], rest, "Element", element=member.dst)]
    if kind in SCALARS:
        return [Param(SCALARS[kind], rest, "Real" if kind in ("float", "double") else "Integer")]
    if kind in NAMED_SCALARS:
        ctype, name = NAMED_SCALARS[kind]
        return [Param(ctype, name, "Integer")]
    if kind == "axis":
        return [Param("PxlAxis", rest, "Integer")]
    if kind == "order":
        return [Param("const int32_t", "dstOrder", "Order", suffix=f"[{rest}]", element="32s", count=int(rest))]
    if kind in ("table", "tables", "result", "kernel"):
        return [_array(kind, rest, member)]
    if kind == "state":
        return [Param(f"{rest}*", "state", "State")]
    if kind == "state=new":
        return [Param(f"{rest}**", "state", "NewState")]
    if kind == "buffer":
        return [Param("uint8_t*", "buffer", "Buffer")]
    raise ValueError(f"{member.name}: unknown argument word {word!r}")


def _image(base, name, flag, bound, member):
    reads = base in ("src", "src1", "src2")
    element = member.src if reads else member.dst
    side = member.src_side if reads else member.dst_side
    if flag == "channel" and side.elements > 1:
        side = Layout(side.elements, 1, one_channel=True)
    role = {"dst": "Destination", "srcDst": "InPlace", "inside": "Inside"}.get(base, "Source")
    const = "const " if reads else ""
    stepname = "srcDstStep" if base == "inside" else f"{name}Step"
    if side.planes:
        pointer = Param(f"{const}{C_TYPES[element]}* const", name, role, f"[{side.planes}]", element, side, bound)
    else:
        pointer = Param(f"{const}{C_TYPES[element]}*", name, role, "", element, side, bound)
    return [pointer, Param("int", stepname, "Step")]


def _per_channel(kind, name, member):
    side = member.dst_side
    element = "32u" if kind == "shift" else member.dst
    if side.channels == 1:
        return Param(C_TYPES[element], name, "Element", element=element, per_channel=True)
    return Param(f"const {C_TYPES[element]}", name, "Values", f"[{side.channels}]", element, count=side.channels,
                 per_channel=True)


def _array(kind, rest, member):
    ctype, _, name = rest.partition(":")
    ctype = ctype.format(D=C_TYPES[member.dst], S=C_TYPES[member.src])
    channels = member.src_side.channels
    if kind == "result":
        if channels == 1:
            return Param(f"{ctype}*", name, "Result")
        return Param(ctype, name, "Result", f"[{channels}]", count=channels)
    if kind == "tables":
        return Param(f"const {ctype}* const", name, "Tables", f"[{channels}]", count=channels)
    codes = {"int32_t": "32s", "float": "32f", "double": "64f"}
    return Param(f"const {ctype}*", name or "kernel", "Table", element=codes.get(ctype, ""))
