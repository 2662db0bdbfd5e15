"""Rows of growth: what a thing costs at each size, and by how much the largest size makes it dearer."""
import sys
from dataclasses import dataclass
from typing import Callable

from measuring import Spread
from report import head, number, percent, row, say
from session import TooLong

MUST = 0.30
NO_BYTES = 4  # a thing; less is lost among the pages of a process
NO_TIME = 1e-9  # seconds a thing


@dataclass(frozen=True)
class Series:
    """Work of some sizes; the first size is next to nothing, and is subtracted from the others.

    `work` gives pairs of a row's name and the cost of that step, one after the other.
    """

    things: str
    sizes: tuple
    count: Callable
    work: Callable


@dataclass(frozen=True)
class Growth:
    """How one measure goes from size to size: medians a thing, and the growth from the first size to the last."""

    each: list
    grows: Spread

    @classmethod
    def of(cls, series, costs, value, least):
        nothing, *sizes = [size for size in series.sizes if size in costs]
        rounds = [[(value(cost) - value(none)) / (series.count(size) - series.count(nothing))
                   for cost, none in zip(costs[size], costs[nothing])] for size in sizes]
        grows = [max(last, least) / max(first, least) - 1 for first, last in zip(rounds[0], rounds[-1])]
        return cls([Spread.of(each).middle for each in rounds], Spread.of(grows))

    def cells(self, factor, late):
        said = f"{percent(self.grows.middle)} ({percent(self.grows.low)} .. {percent(self.grows.high)})"
        each = [*(number(each * factor) for each in self.each), *("-" for _ in late)]
        return ", ".join(each), said if len(self.each) > 1 else "-"


def costs_of(series, rounds):
    """The costs by row and size. A size that takes longer than the limit is not tried again, nor a larger one."""
    costs, too_large = {}, None
    for _ in range(rounds):
        for size in series.sizes:
            if too_large and size >= too_large:
                break
            try:
                for name, cost in series.work(size):
                    costs.setdefault(name, {}).setdefault(size, []).append(cost)
            except TooLong:
                if size == series.sizes[0]:
                    sys.exit("a run of next to nothing exceeded the limit")
                too_large = size
    return costs


def table_head():
    head("what, at how many things", "processor µs a thing", "grows (quartiles)", "peak B a thing", "grows (quartiles)",
         f"at most {percent(MUST)}")


def table_rows(series, rounds, limit):
    for name, costs in costs_of(series, rounds).items():
        what = f"{name}: {', '.join(f'{series.count(size):,}' for size in series.sizes[1:])} {series.things}"
        late = [f"{series.count(size):,}" for size in series.sizes if size not in costs]
        if len(costs) < 2:
            row(what, *"----", f"missed: {late[0]} took over {limit:g} s")
            continue
        time = Growth.of(series, costs, lambda cost: cost.cpu, NO_TIME)
        memory = Growth.of(series, costs, lambda cost: cost.peak * 1024, NO_BYTES)
        row(what, *time.cells(1e6, late), *memory.cells(1, late), _verdict(time, memory, late, limit))


def _verdict(time, memory, late, limit):
    missed = [f"missed: {late[0]} took over {limit:g} s"] if late else []
    for name, growth in (("time", time), ("memory", memory)):
        if growth.grows.middle > MUST:
            missed.append(f"{name} missed by {100 * (growth.grows.middle - MUST):.0f} points")
    return "; ".join(missed) or "met"
