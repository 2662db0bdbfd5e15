"""Whole runs of two builds, in turn: what a change of the code gains."""
import filecmp

from measuring import in_turn
from programs import lines
from report import head, row, spread


def measure(this, other, others, rounds, quick):
    head("this build against the other", "wall clock", "processor", "peak", "page faults", "saved bytes")
    for name, program, saved in _jobs(this, 200 if quick else 500):
        measures = in_turn(others.measure(), others.folder, {"this": program(this), "other": program(other)}, rounds)
        equal = filecmp.cmp(this.folder / saved, other.folder / saved, shallow=False)
        row(name, *(f"{spread(measures.ratio('this', 'other', what), '{:.3f}'.format)} x"
                    for what in ("wall", "cpu", "peak", "faults")), "equal" if equal else "differ")


def _jobs(this, side):
    """Names, programs of a build, and what they save; the last opens what this build drew before."""
    def drawn(columns):
        return this.drawn(columns, columns).name
    return (("100 x 100", lambda build: build.grid(100, 100), drawn(100)),
            (f"{side} x {side} with labels", lambda build: build.grid(side, side, labels=True), drawn(side)),
            (f"{side} x {side}", lambda build: build.grid(side, side), drawn(side)),
            (f"{lines(side, side):,} lines opened and saved",
             lambda build: build.opening(this.drawn(side, side), "copy.dxf"), "copy.dxf"))
