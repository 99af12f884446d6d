#!/usr/bin/env python3
"""Runs pxl_bench and prints its pairs as Markdown tables, one per subject.

    bench/report.py                                    all rows, build/release/bench/pxl_bench
    bench/report.py --filter 'copy_.*/640x480' --min-time 0.2
    bench/report.py --subject filter --subject box     the rows of these subjects, named as in SECTIONS
    bench/report.py --from results.json                tables of an earlier run

Every number is the median of the repetitions of one interleaved run. Exit status 1: a row failed its check.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys
from collections import defaultdict

ROOT = pathlib.Path(__file__).resolve().parent.parent
LEVEL = 0.97  # a ratio below this, noise allowed for, is behind the peer
TINY_NS = 25  # what a call on 8x8 may cost
FLOORS = ("memcpy", "memset")
TWO_THREADS = "_2threads"  # ends the name of a row that runs again on two threads
SECTIONS = {
    "Data exchange": {
        "copy": "Copy",
        "set": "Set",
        "split": "Interleaved to planes",
        "merge": "Planes to interleaved",
        "extract": "Extract a channel",
        "insert": "Insert a channel",
        "swap": "Channel order",
        "dup": "Gray to colour",
        "convert": "Convert",
        "scale": "Scale",
        "border": "Border extension",
        "flip": "Mirror",
        "transpose": "Transpose",
    },
    "Arithmetic and logic": {
        "add": "Add",
        "sub": "Subtract",
        "mul": "Multiply",
        "mulscale": "Multiply, normalised",
        "div": "Divide",
        "divround": "Divide with a rounding mode",
        "addc": "Add a constant",
        "subc": "Subtract a constant",
        "mulc": "Multiply by a constant",
        "mulcscale": "Multiply by a constant, normalised",
        "divc": "Divide by a constant",
        "logical": "Bitwise operations",
        "shift": "Shifts",
    },
    "Threshold, compare, lookup": {
        "threshold": "Thresholds",
    },
    "Filters": {
        "filter": "Linear filters",
        "box": "Box filters",
    },
}
# Rows whose kernels are held against the bound of another type: their sums need 32 bits.
BOUND_OF = {"filter_11x11_8u_C1": "16s"}
# What keeps rows behind the peer that the contract of the functions does not leave open. Printed below a table that has such rows.
NOTES = [
    (
        re.compile("convert_32f(8s|16s)_"),
        "32f to signed types: NaN gives 0, values from 2^31 on give the maximum, and one value on each side of 0 has a rounding of "
        "its own (a sum that ties); that takes four operations beside the conversion itself. The peer's conversion does none of it.",
    ),
    (
        re.compile("(convert|scale)_32f(8u|16u)_"),
        "32f to unsigned types: the result is bounded before the conversion, and one value has a rounding of its own, which takes "
        "two operations more than the peer's.",
    ),
]
LINEAR_ROW = re.compile(r"filter_(?:(\d+)x(\d+)|(?:row|column)(\d+))_(8u|16s|32f)_C(\d)$")


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("binary", type=pathlib.Path, nargs="?", default=ROOT / "build/release/bench/pxl_bench")
    rows = parser.add_mutually_exclusive_group()
    rows.add_argument("--filter", default="", help="regular expression on benchmark names (row/side/size)")
    rows.add_argument("--subject", action="append", default=[], metavar="NAME", help="rows of this subject only")
    parser.add_argument("--min-time", type=float, default=0.05, help="seconds per repetition (default 0.05)")
    parser.add_argument("--repetitions", type=int, default=5)
    parser.add_argument("--json", type=pathlib.Path, help="where the raw results go (default: beside the binary)")
    parser.add_argument("--from", dest="source", type=pathlib.Path, help="read these results instead of running")
    return parser.parse_args()


def from_root(path):
    """The path as typed at the root of the tree, so that the command in the report works on any checkout."""
    path = path.resolve()
    return f"./{path.relative_to(ROOT)}" if path.is_relative_to(ROOT) else str(path)


def subject_of(row):
    return row.split("_")[0]


def run(options):
    """Runs the benchmarks in random order and returns the results file and whether every check passed."""
    results = options.json or options.binary.with_name("results.json")
    command = [
        from_root(options.binary),
        "--benchmark_enable_random_interleaving=true",
        f"--benchmark_repetitions={options.repetitions}",
        f"--benchmark_min_time={options.min_time}",
        "--benchmark_report_aggregates_only=true",
        f"--benchmark_out={from_root(results)}",
        "--benchmark_out_format=json",
    ]
    if wanted := options.filter or (options.subject and f"^({'|'.join(options.subject)})_"):
        command.append(f"--benchmark_filter={wanted}")
    done = subprocess.run(command, stdout=sys.stderr, cwd=ROOT)
    if done.returncode not in (0, 1):
        sys.exit(f"{options.binary} ended with status {done.returncode}")
    return results, done.returncode == 0


def medians(benchmarks):
    """{(row, size): {side: benchmark}}, in the order of the program: interleaved runs are written as they finish."""
    rows = defaultdict(dict)
    for entry in sorted(benchmarks, key=lambda entry: entry["family_index"]):
        if entry.get("aggregate_name") == "median":
            row, side, size = entry["run_name"].split("/")[:3]  # a fourth part tells the clock
            rows[row, size][side] = entry
    return rows


def head(context):
    yield f"- CPU: {context['cpu']}, {context['num_cpus']} cores at {context['mhz_per_cpu']} MHz"
    yield f"- Compiler: {context['compiler']}"
    yield f"- Peer: OpenCV {context['opencv']}, one thread on each side (two in rows ending in {TWO_THREADS})"
    yield f"- Date: {context['date'][:10]}"
    yield ""
    yield (
        "Medians, for images of three sizes. MPix/s counts our destination pixels; `ratio` is our rate over OpenCV's, in bold below "
        f"{LEVEL}; `of memcpy` is our share of the rate of a memcpy (for set: memset) that moves as many bytes; "
        "`gain` is the rate on two threads, by the wall clock, over that on one, ours / OpenCV's."
    )


# The columns of a table: each gives a cell for a row at one size, empty where the run does not tell.


def rate(rows, row, size):
    sides = rows.get((row, size), {})
    return f"{sides['pxl']['items_per_second'] / 1e6:.0f}" if "pxl" in sides else ""


def ratio(rows, row, size):
    sides = rows.get((row, size), {})
    if not compared(sides):
        return ""
    return f"**{ratio_of(sides):.2f}**" if behind(sides) else f"{ratio_of(sides):.2f}"


def share_of_floor(rows, row, size):
    sides = rows.get((row, size), {})
    floor = next((sides[name] for name in FLOORS if name in sides), None)
    return f"{sides['pxl']['bytes_per_second'] / floor['bytes_per_second']:.0%}" if floor and "pxl" in sides else ""


def gains(rows, row, size):
    """What the second thread brought each side, by the clock on the wall; empty for rows on one thread."""
    if not row.endswith(TWO_THREADS):
        return ""
    one, two = rows.get((row.removesuffix(TWO_THREADS), size), {}), rows.get((row, size), {})
    pairs = [(one[side], two[side]) for side in ("pxl", "opencv") if side in one and side in two]
    return " / ".join(f"{single['real_time'] / double['real_time']:.2f}" for single, double in pairs)


def ratio_of(sides):
    return sides["pxl"]["items_per_second"] / sides["opencv"]["items_per_second"]


def compared(sides):
    return "pxl" in sides and "opencv" in sides


def behind(sides):
    return compared(sides) and ratio_of(sides) < LEVEL


def pair_table(rows, names, sizes):
    """A line for each row, with the sizes side by side; columns that no row fills are left out."""
    heads, columns = [], []
    for head, cell in {"MPix/s": rate, "ratio": ratio, "of memcpy": share_of_floor, "gain": gains}.items():
        for size in sizes:
            column = [cell(rows, name, size) for name in names]
            if any(column):
                heads.append(f"{head} {size}")
                columns.append(column)
    yield "| row | " + " | ".join(heads) + " |"
    yield "|---|" + "---:|" * len(heads)
    for name, *cells in zip(names, *columns):
        yield f"| {name} | " + " | ".join(cells) + " |"


def pair_tables(rows):
    names, notes = defaultdict(dict), defaultdict(dict)
    for (row, _), sides in rows.items():
        if "pxl" in sides: # else the run holds no number of ours for it
            names[subject_of(row)][row] = True
        if behind(sides):
            notes[subject_of(row)] |= {note: None for wanted, note in NOTES if wanted.match(row)}
    sizes = sorted({size for _, size in rows}, key=lambda size: int(size.split("x")[0]))
    for section, subjects in SECTIONS.items():
        if not names.keys() & subjects.keys():
            continue
        yield f"\n## {section}"
        for subject in (name for name in subjects if name in names):
            yield f"\n### {subjects[subject]}\n"
            yield from pair_table(rows, list(names[subject]), sizes)
            for note in notes[subject]:
                yield f"\n{note}"


def bound_table(rows, bounds):
    """Cycles per pixel of linear filters on one thread beside those of their multiplications and additions alone."""
    clock = bounds["clock"]
    yield "\n### Linear filters beside the multiply-add bound\n"
    yield (
        f"640x480, one thread, at {clock / 1e9:.1f} GHz. The bound is what the multiplications and additions of a pixel take "
        "in registers, without a load, a store or a fused operation.\n"
    )
    yield "| row | cycles per pixel | bound | share |"
    yield "|---|---:|---:|---:|"
    for (row, size), sides in rows.items():
        if size != "640x480" or "pxl" not in sides or not (match := LINEAR_ROW.match(row)):
            continue
        width, height, length, element, channels = match.groups()
        taps = int(length or int(width) * int(height)) * int(channels)
        cycles = clock / sides["pxl"]["items_per_second"]
        bound = clock * taps / bounds[BOUND_OF.get(row, element)]
        yield f"| {row} | {cycles:.2f} | {bound:.2f} | {bound / cycles:.0%} |"


def tiny_table(rows):
    yield f"\n## Calls on 8x8\n\nCalls of {TINY_NS} ns and more are in bold.\n"
    yield "| row | ns per call |"
    yield "|---|---:|"
    for (row, _), sides in rows.items():
        time = f"{sides['pxl']['cpu_time']:.1f}"
        yield f"| {row.removeprefix('tiny_')} | {f'**{time}**' if sides['pxl']['cpu_time'] >= TINY_NS else time} |"


def report(results, subjects):
    rows = medians(results["benchmarks"])
    if subjects:
        rows = {key: sides for key, sides in rows.items() if subject_of(key[0]) in subjects}
    tiny = {key: sides for key, sides in rows.items() if key[0].startswith("tiny_")}
    bounds = {row[6:]: sides["pxl"]["items_per_second"] for (row, _), sides in rows.items() if row.startswith("bound_")}
    pairs = {key: sides for key, sides in rows.items() if not key[0].startswith(("tiny_", "bound_"))}
    yield from head(results["context"])
    yield from pair_tables(pairs)
    if "32f" in bounds:
        yield from bound_table(pairs, bounds)
    if tiny:
        yield from tiny_table(tiny)
    both = [sides for sides in pairs.values() if compared(sides)]
    yield f"\n{sum(map(behind, both))} of {len(both)} comparisons are below {LEVEL}."


def main():
    options = arguments()
    path, passed = (options.source, True) if options.source else run(options)
    print("\n".join(report(json.loads(path.read_text()), options.subject)))
    if not passed:
        sys.exit("some rows failed their check and are missing from the tables; see the messages above")


if __name__ == "__main__":
    main()
