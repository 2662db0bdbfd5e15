#!/usr/bin/python3
"""Measures speed and memory, and says which targets are met.

Without --growth or --paired: whole runs beside the floors (bench/floor.cpp) and other programs. Every
round runs each program once, in turn; a ratio is the median, with quartiles, of the ratios of each round.

--growth: what a thing takes at 10,000, 100,000 and 1,000,000 things, less what next to nothing takes.
arxhost is worked answer by answer, so each row is one step of its own: processor time, and the peak
beyond what the process held before the step. A drawing is the same of a square grid; the group is the
one that accepting makes, as scripts cannot select. A run that exceeds the limit is ended, and said.

--paired OTHER: whole runs of this build and of another one, in turn, each ratio this over other.
"""
import argparse
import tempfile
from pathlib import Path

import growth
import paired
import whole
from programs import Arxhost, Others
from report import machine, say

ROOT = Path(__file__).resolve().parents[1]


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--build", type=Path, default=ROOT / "build", metavar="FOLDER",
                        help="the build to measure, %(default)s by default")
    parser.add_argument("--rounds", type=int, metavar="N",
                        help="rounds of the runs that take about a second: 11 by default, with --growth 5. Without "
                             "--growth or --paired short runs have three times as many and slow peers a third")
    parser.add_argument("--quick", action="store_true", help="leave out the largest sizes and the slowest peer")
    what = parser.add_mutually_exclusive_group()
    what.add_argument("--growth", action="store_true", help="measure growth instead")
    what.add_argument("--paired", type=Path, metavar="OTHER", help="compare with the build in that folder instead")
    parser.add_argument("--limit", type=float, default=20, metavar="SECONDS",
                        help="seconds that a run of --growth may take, %(default)g by default")
    return parser.parse_args()


def main():
    options = arguments()
    build = options.build.resolve()
    rounds = options.rounds or (5 if options.growth else 11)
    with tempfile.TemporaryDirectory(prefix="netrax-bench-") as desk:
        folder = Path(desk)
        this, others = Arxhost(build, folder / "this"), Others(build, folder)
        say(f"{machine(build)}; rounds: {rounds}")
        if options.growth:
            growth.measure(this, others, rounds, options.limit, options.quick)
        elif options.paired:
            other = Arxhost(options.paired.resolve(), folder / "other")
            paired.measure(this, other, others, rounds, options.quick)
        else:
            whole.measure(this, others, rounds, options.quick)


if __name__ == "__main__":
    main()
