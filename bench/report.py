"""Lines of the report: the machine, rows of tables, and whether a target is met."""
import os
import platform
import re
import subprocess
from pathlib import Path


def say(text=""):
    print(text, flush=True)


def _first(pattern, path, otherwise="unknown"):
    try:
        found = re.search(pattern, Path(path).read_text(), re.MULTILINE)
    except OSError:
        return otherwise
    return found.group(1) if found else otherwise


def _compiler(build):
    cache = build / "CMakeCache.txt"
    program = _first(r"^CMAKE_CXX_COMPILER:\w+=(.*)$", cache, "c++")
    kind = _first(r"^CMAKE_BUILD_TYPE:\w+=(.*)$", cache)
    flags = _first(rf"^CMAKE_CXX_FLAGS_{kind.upper()}:\w+=(.*)$", cache, "")
    version = subprocess.run([program, "--version"], capture_output=True, text=True, check=False)
    return f"{version.stdout.splitlines()[0] if version.stdout else program}, {kind} {flags}"


def machine(build):
    """What the figures depend on. Speed depends on whether memory comes in large pages."""
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    large = _first(r"\[(\w+)\]", "/sys/kernel/mm/transparent_hugepage/enabled", "not there")
    processor = _first(r"^model name\s*: (.*)$", "/proc/cpuinfo", platform.machine())
    return (f"{processor}, {os.cpu_count()} processors, "
            f"{memory:.0f} GB; Linux {platform.release()}, transparent_hugepage {large}; {_compiler(build)}; "
            f"load {os.getloadavg()[0]:.1f}")


def row(*cells):
    say("| " + " | ".join(str(cell) for cell in cells) + " |")


def head(*cells):
    say()
    row(*cells)
    say("|" + "---|" * len(cells))


def number(value):
    """Three digits."""
    return f"{value:,.0f}" if abs(value) >= 100 or value == 0 else f"{value:#.3g}"


def percent(share):
    return f"{share:.0%}" if abs(share) >= 0.0995 else f"{share:.1%}"


def spread(values, show=number):
    return f"{show(values.middle)} ({show(values.low)} .. {show(values.high)})"


def verdict(value, must, aim=None, more=False):
    """`more`: a larger value is better."""
    def missed(goal):
        return (goal - value) / goal if more else (value - goal) / goal
    if missed(must) > 0:
        return f"missed by {percent(missed(must))}"
    if aim is None:
        return "met"
    return "aim met" if missed(aim) <= 0 else f"met; aim missed by {percent(missed(aim))}"


def target(what, values, unit, must, aim, more=False):
    row(what, f"{spread(values)} {unit}", f"{must} {unit}", f"{aim} {unit}", verdict(values.middle, must, aim, more))
