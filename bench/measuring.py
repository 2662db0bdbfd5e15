"""What a process takes, and how two of them compare when they run in turn."""
import statistics
import subprocess
import sys
from dataclasses import dataclass


@dataclass(frozen=True)
class Cost:
    """What a run or a step took: seconds of wall clock and of processor, kilobytes at the peak, page faults."""

    wall: float
    cpu: float
    peak: int
    faults: int


@dataclass(frozen=True)
class Spread:
    """The median of some values between their quartiles."""

    low: float
    middle: float
    high: float

    @classmethod
    def of(cls, values):
        values = list(values)
        return cls(*(statistics.quantiles(values, method="inclusive") if len(values) > 1 else values * 3))


class Measures:
    """The costs of some programs, each a list with one cost a round."""

    def __init__(self, names):
        self.costs = {name: [] for name in names}

    def spread(self, name, what="wall"):
        return Spread.of(getattr(cost, what) for cost in self.costs[name])

    def ratio(self, one, other, what="wall"):
        """Ratios of the two costs of one round: what slows a whole round leaves them alone."""
        return Spread.of(getattr(a, what) / getattr(b, what) for a, b in zip(self.costs[one], self.costs[other]))

    def peak_beyond(self, one, other):
        """Bytes that one needs at its peak beyond the other."""
        return Spread.of((a.peak - b.peak) * 1024 for a, b in zip(self.costs[one], self.costs[other]))


def run(tool, folder, command):
    """Runs the command under the measuring tool, in the folder."""
    result = folder / "measured"
    done = subprocess.run([str(part) for part in (tool, result, *command)], cwd=folder, check=False)
    if done.returncode:
        sys.exit(f"{command[0]} failed")
    wall, cpu, peak, faults = result.read_text().split()
    return Cost(float(wall), float(cpu), int(peak), int(faults))


def in_turn(tool, folder, programs, rounds):
    """Runs each program once in every round; a program is a function that makes ready and gives its command."""
    measures = Measures(programs)
    for _ in range(rounds):
        for name, ready in programs.items():
            measures.costs[name].append(run(tool, folder, ready()))
    return measures
