#!/usr/bin/env python3
"""Times every exported function of a build, alone or beside another build of the library, and prints CSV.

    bench/members.py build/release/bench/pxl_members
    bench/members.py build/release/bench/pxl_members --beside OLD_DIRECTORY      with libpxlimx and libpxlcore
    bench/members.py build/release/bench/pxl_members --members 'Add_.*C1' --size 64x64 --steps tight

Both builds run the same program, each in a process of its own, and take turns. Rows that come out slower than the other build's
are measured again, in new processes, and the shortest times count. The arguments come from the registry; see members.cpp.
"""

import argparse
import itertools
import math
import os
import pathlib
import re
import subprocess
import sys

SLOWER = 1.05  # a ratio that is measured again


class Timer:
    """A running program with a library of its own."""

    def __init__(self, program, library):
        environment = {**os.environ, "LD_LIBRARY_PATH": str(library)} if library else None
        self.process = subprocess.Popen(
            [program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, env=environment
        )

    def time(self, row, samples):
        print(*row, samples, file=self.process.stdin, flush=True)
        answer = self.process.stdout.readline().strip()
        if not answer:
            sys.exit(f"the program ended at {row}")
        return None if answer == "-" else float(answer)

    def close(self):
        self.process.stdin.close()
        self.process.wait()


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("--beside", type=pathlib.Path, help="directory of the other build's libraries")
    parser.add_argument("--members", default="", help="regular expression on names")
    parser.add_argument("--size", action="append", help="default: 8x8, 64x64, 640x480 and 1920x1080")
    parser.add_argument("--steps", action="append", choices=["wide", "tight"], help="default: both")
    parser.add_argument("--scale", action="append", type=int, help="scale factors, default: 0, 1, 8 and -1")
    parser.add_argument("--samples", type=int, default=6)
    parser.add_argument("--again", type=int, default=3, help="how often slower rows are measured again")
    return parser.parse_args()


def exported(library):
    listing = subprocess.run(["nm", "-D", "--defined-only", library], capture_output=True, text=True, check=True)
    return [line.split()[2].split("@")[0] for line in listing.stdout.splitlines() if " T pxli" in line]


def rows_of(options, names):
    for name in names:
        if not re.search(options.members, name):
            continue
        scales = (options.scale or [0, 1, 8, -1]) if name.endswith("Sfs") else [0]
        sizes = options.size or ["8x8", "64x64", "640x480", "1920x1080"]
        for size, steps, scale in itertools.product(sizes, options.steps or ["wide", "tight"], scales):
            yield name, *size.split("x"), steps, scale


def measure(options, libraries, rows, samples, best):
    """Shortens the times in best by those of one pair of processes."""
    timers = [Timer(options.program.resolve(), library) for library in libraries]
    for row in rows:
        for _ in range(2):
            for side, timer in enumerate(timers):
                if time := timer.time(row, samples):
                    best.setdefault(row, [math.inf] * len(timers))[side] = min(
                        time, best.get(row, [math.inf] * len(timers))[side]
                    )
    for timer in timers:
        timer.close()


def main():
    options = arguments()
    own = options.program.resolve().parents[1]
    names = exported(next(own.glob("libpxlimx*.so")))
    libraries = [own]
    if options.beside:
        libraries.append(options.beside.resolve())
        known = set(exported(next(options.beside.glob("libpxlimx*.so"))))
        names = [name for name in names if name in known]
    rows = list(rows_of(options, names))
    best = {}
    measure(options, libraries, rows, options.samples, best)
    for attempt in range(options.again if options.beside else 0):
        slower = [row for row, (ours, other) in best.items() if ours > SLOWER * other]
        print(f"{len(slower)} of {len(best)} rows are slower after {attempt + 1} runs", file=sys.stderr)
        measure(options, libraries, slower, options.samples * 2, best)
    print("name,width,height,steps,scale,ns" + (",other,ratio" if options.beside else ""))
    for row, times in best.items():
        ratio = [f"{times[0] / times[1]:.3f}"] if options.beside else []
        print(",".join([*map(str, row), *(f"{time:.1f}" for time in times), *ratio]))
    if options.beside:
        ratios = [ours / other for ours, other in best.values()]
        mean = math.exp(sum(map(math.log, ratios)) / len(ratios))
        slower = sum(ratio > SLOWER for ratio in ratios)
        print(f"{len(ratios)} rows: geometric mean {mean:.3f}, {slower} above {SLOWER}", file=sys.stderr)


if __name__ == "__main__":
    main()
