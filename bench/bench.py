#!/usr/bin/python3
"""Measures speed and memory, and says which targets are met.

Whole runs beside the floors (bench/floor.cpp) and other programs. Every
round runs each program once, in turn; a ratio is the median, with quartiles, of the ratios of each round.
"""
import argparse
import tempfile
from pathlib import Path

import whole
from programs import Arxhost, Others
from report import machine, say

ROOT = Path(__file__).resolve().parents[1]


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=Path, default=ROOT / "build", metavar="FOLDER",
                        help="the build to measure, %(default)s by default")
    parser.add_argument("--rounds", type=int, default=11, metavar="N",
                        help="rounds of the runs that take about a second: 11 by default. Short "
                             "runs have three times as many and slow peers a third")
    parser.add_argument("--quick", action="store_true", help="leave out the largest sizes and the slowest peer")
    return parser.parse_args()


def main():
    options = arguments()
    build = options.build.resolve()
    with tempfile.TemporaryDirectory(prefix="netrax-bench-") as desk:
        folder = Path(desk)
        this, others = Arxhost(build, folder / "this"), Others(build, folder)
        say(f"{machine(build)}; rounds: {options.rounds}")
        whole.measure(this, others, options.rounds, options.quick)


if __name__ == "__main__":
    main()
