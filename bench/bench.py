#!/usr/bin/python3
"""Measures speed and memory, and says which targets are met.

Without --paired: whole runs beside the floors (bench/floor.cpp) and other programs. Every
round runs each program once, in turn; a ratio is the median, with quartiles, of the ratios of each round.

--paired OTHER: whole runs of this build and of another one, in turn, each ratio this over other.
"""
import argparse
import tempfile
from pathlib import Path

import paired
import whole
from programs import Arxhost, Others
from report import machine, say

ROOT = Path(__file__).resolve().parents[1]


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=Path, default=ROOT / "build", metavar="FOLDER",
                        help="the build to measure, %(default)s by default")
    parser.add_argument("--rounds", type=int, default=11, metavar="N",
                        help="rounds of the runs that take about a second: 11 by default. Without "
                             "--paired short runs have three times as many and slow peers a third")
    parser.add_argument("--quick", action="store_true", help="leave out the largest sizes and the slowest peer")
    parser.add_argument("--paired", type=Path, metavar="OTHER", help="compare with the build in that folder instead")
    return parser.parse_args()


def main():
    options = arguments()
    build = options.build.resolve()
    with tempfile.TemporaryDirectory(prefix="netrax-bench-") as desk:
        folder = Path(desk)
        this, others = Arxhost(build, folder / "this"), Others(build, folder)
        say(f"{machine(build)}; rounds: {options.rounds}")
        if options.paired:
            other = Arxhost(options.paired.resolve(), folder / "other")
            paired.measure(this, other, others, options.rounds, options.quick)
        else:
            whole.measure(this, others, options.rounds, options.quick)


if __name__ == "__main__":
    main()
