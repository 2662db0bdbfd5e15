#!/usr/bin/python3
"""Measures whole processes side by side and prints a table of ratios.

    bench.py [--build FOLDER] [--rounds N] [--quick]

Every round runs each program once, in turn, so that all of them meet the same machine; a ratio is that
of medians. --quick leaves out the largest sheet and the slowest peer.
"""
import argparse
import os
import platform
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
OPTIONS = "[GRID]\r\nHorStep=1.0000\r\nVertStep=1.0000\r\nColor=12\r\nneedText={text}\r\nheightText=0.1000\r\n"
LABELS = "".join(f"b{axis}{edge}Scribe=1\r\n" for axis in "XY" for edge in ("Top", "Bottom", "Left", "Right"))


@dataclass
class Measure:
    """One program's runs: seconds of wall clock and processor, and peak kilobytes."""

    wall: list = field(default_factory=list)
    cpu: list = field(default_factory=list)
    peak: list = field(default_factory=list)

    def median(self, what):
        return statistics.median(getattr(self, what))


class Bench:
    def __init__(self, build, rounds):
        self.build, self.rounds = build, rounds
        self.desk = tempfile.TemporaryDirectory(prefix="netrax-bench-")
        self.folder = Path(self.desk.name)
        (self.folder / "netrax.arx").symlink_to(build / "netrax.arx")

    def once(self, measure, command):
        result = self.folder / "measured"
        done = subprocess.run([str(part) for part in (self.tool("bench_measure"), result, *command)], cwd=self.folder,
                              check=False)
        if done.returncode:
            sys.exit(f"{command[0]} failed")
        wall, cpu, peak = result.read_text().split()
        measure.wall.append(float(wall))
        measure.cpu.append(float(cpu))
        measure.peak.append(int(peak))

    def compare(self, commands, rounds=None):
        """The measures by name; a command is a list, or a function that makes ready and gives one."""
        measures = {name: Measure() for name in commands}
        for _ in range(rounds or self.rounds):
            for name, command in commands.items():
                self.once(measures[name], command() if callable(command) else command)
        return measures

    def anew(self, *command):
        """The command, which writes the file that it names last; as a new one in every run."""
        def ready():
            (self.folder / command[-1]).unlink(missing_ok=True)
            return list(command)
        return ready

    def grid(self, side, labels=False, replace=False):
        """A command that draws a grid of that many steps each way and saves it as a new drawing, or over an old one."""
        def ready():
            saved = self.folder / f"grid{side}.dxf"
            saved.write_text("old") if replace else saved.unlink(missing_ok=True)
            text = OPTIONS.format(text=int(labels)) + (LABELS if labels else "")
            (self.folder / "properties.ini").write_bytes(text.encode())
            question = "yes\n" if side > 50 else ""
            (self.folder / "answers.txt").write_text(f"zv_netrax\n0,0\n{side},{side}\n{question}A\n")
            return [self.build / "arxhost", "--module", "netrax.arx", "--script", "answers.txt",
                    "--save", saved.name]
        return ready

    def tool(self, name):
        return self.build / "bench" / name

    def size(self, file):
        return (self.folder / file).stat().st_size

    def lines_in(self, side):
        return (self.folder / f"grid{side}.dxf").read_bytes().count(b"\nLINE\n")


def ratio(a, b, what="wall"):
    return a.median(what) / b.median(what)


def row(what, value, must, aim):
    print(f"| {what} | {value} | {must} | {aim} |")


def writing(bench, side, peers):
    lines = 2 * side * side
    measures = bench.compare({
        "arxhost": bench.grid(side),
        "arxhost, over an old drawing": bench.grid(side, replace=True),
        "format": bench.anew(bench.tool("bench_floor"), "format", lines, "floor.dxf"),
        "write": lambda: bench.anew(bench.tool("bench_floor"), "write", bench.size("floor.dxf"), "bytes")(),
        **{peer: bench.anew(*command(lines)) for peer, command in peers.items()}})
    own, drawn = measures["arxhost"], bench.lines_in(side)
    print(f"\n{drawn} lines drawn, grouped and saved, seconds of wall clock (of processor):\n")
    for name, measure in measures.items():
        print(f"- {name}: {measure.median('wall'):.3f} ({measure.median('cpu'):.3f}), "
              f"peak {measure.median('peak') / 1024:.1f} MB")
    print("\n| measure | is | must | aim |\n|---|---|---|---|")
    row(f"whole job, {drawn} lines, against formatting, wall clock", f"{ratio(own, measures['format']):.2f} x",
        "1.5 x", "0.6 x")
    row("the same over an old drawing, which waits for the disk",
        f"{ratio(measures['arxhost, over an old drawing'], measures['format']):.2f} x", "", "")
    row("the whole job, processor", f"{ratio(own, measures['format'], 'cpu'):.2f} x", "1.5 x", "0.6 x")
    for peer, must, aim in (("dime", 6, 18), ("dxflib", 15, 40), ("ezdxf", 120, 300)):
        if peer in measures:
            row(f"faster than {peer}, wall clock", f"{ratio(measures[peer], own):.1f} x", f"{must} x", f"{aim} x")
    small = bench.compare({"100": bench.grid(10)}, rounds=3)["100"]
    row("peak memory a line", f"{(own.median('peak') - small.median('peak')) * 1024 / drawn:.0f} B", "160 B", "80 B")


def reading(bench, side):
    bench.compare({"made": bench.grid(side)}, rounds=1)
    file = f"grid{side}.dxf"
    (bench.folder / "quit.txt").write_text("QUIT\n")
    measures = bench.compare({
        "open": [bench.build / "arxhost", file, "--module", "netrax.arx", "--script", "quit.txt"],
        "convert": [bench.tool("bench_floor"), "convert", file],
        "count": [bench.tool("bench_floor"), "count", file]})
    for name in ("convert", "count"):
        row(f"opening {bench.lines_in(side)} lines, against to {name} the pairs",
            f"{ratio(measures['open'], measures[name]):.2f} x", *(("4 x", "2 x") if name == "convert" else ("", "")))


def scaling(bench, large):
    for labels in (False, True):
        sides = (100, large)
        measures = bench.compare({str(side): bench.grid(side, labels) for side in sides})
        start = bench.compare({"10": bench.grid(10, labels)})["10"].median("cpu")
        small, big = ((measures[str(side)].median("cpu") - start) / (side * side) for side in sides)
        row(f"cost a node from {100 * 100} to {large * large} nodes, labels {'on' if labels else 'off'}",
            f"grows by {(big / small - 1) * 100:.0f} %", "30 %", "15 %")


def start_to_end(bench):
    measure = bench.compare({"100": bench.grid(100)}, rounds=3 * bench.rounds)["100"]
    row("start to end for 100 x 100", f"{measure.median('wall') * 1000:.1f} ms", "25 ms", "12 ms")


def answer_times(bench, side, answers):
    """Seconds from each answer to the next question, in the preview loop of a grid of that many steps each way."""
    bench.grid(side)()
    command = [bench.build / "arxhost", "--module", "netrax.arx", "--script", "-"]
    with subprocess.Popen(command, cwd=bench.folder, stdin=subprocess.PIPE, stdout=subprocess.PIPE) as run:
        run.stdin.write(f"zv_netrax\n0,0\n{side},{side}\n".encode())
        times, said = [], b""
        for typed in answers:
            run.stdin.write(typed + b"\n")
            run.stdin.flush()
            begin = time.perf_counter()
            while not said.endswith(b"[<Apply>/Settings]: "):
                said += os.read(run.stdout.fileno(), 4096)
            times.append(time.perf_counter() - begin)
            said = b""
        run.communicate(b"A\n")
    return times


def rebuilding(bench, side):
    rounds = [answer_times(bench, side, [b"yes", b"x", b"x", b"x"]) for _ in range(bench.rounds)]
    first = statistics.median(times[0] for times in rounds)
    again = statistics.median(time for times in rounds for time in times[1:])
    row(f"a rebuild of {side} x {side}, against the first build", f"{again / first:.2f} x", "1.2 x", "1 x")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, default=ROOT / "build")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--quick", action="store_true")
    options = parser.parse_args()
    bench = Bench(options.build.resolve(), options.rounds)
    peers = {"dime": lambda n: [bench.tool("dime_lines"), "write", n, "dime.dxf"],
             "dxflib": lambda n: [bench.tool("dxflib_lines"), "write", n, "dxflib.dxf"]}
    if not options.quick and shutil.which("/usr/bin/python3"):
        peers["ezdxf"] = lambda n: ["/usr/bin/python3", ROOT / "bench" / "ezdxf_lines.py", "write", n, "ezdxf.dxf"]
    print(f"{platform.machine()}, {os.cpu_count()} processors, "
          f"{os.sysconf('SC_PAGE_SIZE') * os.sysconf('SC_PHYS_PAGES') >> 30} GB, {options.rounds} rounds")
    writing(bench, 500, peers)
    if not options.quick:
        writing(bench, 1000, {})
    reading(bench, 500)
    scaling(bench, 500 if options.quick else 1000)
    start_to_end(bench)
    rebuilding(bench, 500)


if __name__ == "__main__":
    main()
