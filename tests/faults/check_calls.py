#!/usr/bin/python3
"""Every call of the host that the module makes is failed on purpose, or says why it is not.

What the module imports is read from its objects. What it calls through tables of virtual functions no
linker sees, so the compiler is asked: its dumps name the class and the place in the table of each
such call, and the classes that have a function there.
"""
import re
import subprocess
import sys
import tempfile
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from functools import cache
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import ROOT, need_built  # noqa: E402
from report import check, expect, run_all  # noqa: E402

BUILD = ROOT / "build"
NOT_FAILED = Path(__file__).with_name("not-failed.txt")
FOLDERS = ("app", "command", "engine", "output", "settings")
CALL = re.compile(r"OBJ_TYPE_REF\([^;]*;\((?:const )?struct (\w+)\)[^-]*->(\d+)B?\)")


def output_of(*command, given=None):
    return subprocess.run(command, input=given, capture_output=True, text=True, check=True, cwd=ROOT).stdout


def lines_of(*command, given=None):
    return output_of(*command, given=given).splitlines()


def symbols(kind, objects):
    return {line.split()[-1] for line in lines_of("llvm-nm", kind, *objects) if re.match(r"^[0-9a-f]* +[A-Zwv] ", line)}


def imported():
    """Name by symbol. The optimiser leaves calls out of the module that no caller needs today, so objects are read."""
    inputs = lines_of("ninja", "-C", BUILD, "-t", "inputs", "netrax.arx")
    objects = [BUILD / name for name in inputs if name.endswith(".o") and "/host.dir/" not in name]
    found = sorted(symbols("--undefined-only", objects) - symbols("--defined-only", objects))
    return dict(zip(found, lines_of("c++filt", given="\n".join(found) + "\n")))


def failed():
    """Name by symbol."""
    return dict(line.split(" ", 1) for line in lines_of(BUILD / "fault_sweep", "--list"))


def not_failed():
    """Whole names: a pattern would excuse calls that nobody has thought of. The first lines are the heading."""
    names, reason = set(), None
    for line in NOT_FAILED.read_text(encoding="utf-8").splitlines():
        if line.startswith("# "):
            reason = line
        elif line and reason:
            expect(line not in names, f"{NOT_FAILED.name}: {line} stands there twice")
            names.add(line)
    return names


def dump(source, what, standard):
    with tempfile.NamedTemporaryFile(mode="r") as file:
        output_of("g++", f"-std={standard}", "-O0", "-I.", "-isystem", "host/sdk", "-isystem",
                  "host/windows/emulated/include", f"-fdump-{what}={file.name}", "-c", source, "-o", "/dev/null")
        return file.read()


def virtual_places():
    """Class and place of each virtual call."""
    sources = [path for folder in FOLDERS for path in sorted((ROOT / folder).glob("*.cpp"))]
    with ThreadPoolExecutor(2) as pool:
        dumps = pool.map(lambda path: dump(path, "tree-gimple", "c++11"), sources)
        return {(name, int(place)) for text in dumps for name, place in CALL.findall(text)}


def service_sources():
    """Where the host has classes of its own behind the interface."""
    derived = re.compile(r": public Ac(?:Rx|Ed|Ap)\w+")
    sources = []
    for header in sorted((ROOT / "host").rglob("*.h")):
        source = header.with_suffix(".cpp")
        if "sdk" not in header.parts and source.exists() and derived.search(header.read_text(encoding="utf-8-sig")):
            sources.append(source)
    return sources + [ROOT / "host" / "runtime" / "registry.cpp"]


def class_tables(text):
    """Of each class the functions of its table in order, and its bases."""
    tables, bases = {}, defaultdict(set)
    for block in text.split("\n\n"):
        lines = block.splitlines()
        if lines and lines[0].startswith("Vtable for "):
            entries = re.findall(r"^\d+ +(.*)$", block, re.M)
            tables[lines[0].split(" ", 2)[2]] = [entry.rsplit(")", 1)[-1] for entry in entries[2:]]
        elif lines and lines[0].startswith("Class "):
            name = lines[0].split(" ", 1)[1]
            bases[name] |= set(re.findall(r"^ *(\S+) \(0x", block, re.M)) | {name}
    return tables, bases


@cache
def virtual_calls():
    """Names of the functions that the module may reach through tables."""
    texts = [dump("app/entry.cpp", "lang-class", "c++11")]
    texts += [dump(path, "lang-class", "c++20") for path in service_sources()]
    tables, bases = class_tables("\n\n".join(texts))
    names = set()
    for base, place in virtual_places():
        reached = {tables[name][place] for name in tables if base in bases[name]}
        reached = {name for name in reached if name and "pure_virtual" not in name and name != "0"}
        expect(reached, f"no class has function {place} of {base}")
        # A service is known by the class of the interface.
        names |= {f"{base}::{name.rsplit('::', 1)[1]}" if name.startswith("host::") else name for name in reached}
    return names


def require_one(name, is_failed, excused):
    expect(is_failed or name in excused, f"{name} is neither failed nor in {NOT_FAILED.name}")
    expect(not is_failed or name not in excused, f"{name} is failed, yet stands in {NOT_FAILED.name}")


@check
def every_imported_call_is_failed_or_says_why_not():
    rows, excused, calls = failed(), not_failed(), imported()
    expect(len(calls) > 150, f"only {len(calls)} calls were found")
    for symbol, name in calls.items():
        require_one(name, symbol in rows, excused)


@check
def every_virtual_call_is_failed_or_says_why_not():
    names, excused, calls = set(failed().values()), not_failed(), virtual_calls()
    expect(len(calls) > 15, f"only {len(calls)} calls were found")
    for name in sorted(calls):
        require_one(f"virtual {name}", name in names, excused)


@check
def nothing_stands_in_the_lists_that_the_module_does_not_call():
    calls, virtual = imported(), virtual_calls()
    known = set(calls.values()) | {f"virtual {name}" for name in virtual}
    for name in not_failed() - known:
        expect(False, f"{NOT_FAILED.name}: the module calls no {name}")
    for symbol, name in failed().items():
        expect(symbol in calls or name in virtual, f"the module does not call {name}, which is failed")


if __name__ == "__main__":
    need_built()
    run_all()
