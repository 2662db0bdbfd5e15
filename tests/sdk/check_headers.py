#!/usr/bin/python3
"""The headers that a module sees are a contract: they show nothing of how the host keeps its things."""
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import ROOT  # noqa: E402
from report import add, check, expect, expect_equal, run_all  # noqa: E402

SDK = ROOT / "host" / "sdk"
FOLDERS = [SDK, ROOT / "host" / "windows" / "emulated" / "include"]
# Names of the library that hold things or own them, and so would fix how the host keeps its own.
KEEPS = """any array basic_string bitset deque filesystem forward_list function list map memory multimap multiset
mutex optional priority_queue queue set shared_ptr span stack string string_view thread tuple unique_ptr
unordered_map unordered_multimap unordered_multiset unordered_set valarray variant vector weak_ptr wstring
wstring_view""".split()
CONTAINER = re.compile(rf"std\s*::\s*(?:\w+\s*::\s*)*({'|'.join(KEEPS)})\b")
INCLUDED = re.compile(rf"#\s*include\s*<({'|'.join(KEEPS)})>")
HOST = re.compile(r"\bhost\s*::|\bnamespace\s+host\b")


def headers():
    return sorted(SDK.glob("*.h"))


def code_of(text):
    """Without comments and texts."""
    return re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', " ", text, flags=re.S)


def shown(text):
    """What a header lets a module see of the host's insides."""
    code = code_of(text)
    return [found[0] for pattern in (HOST, INCLUDED, CONTAINER) for found in pattern.finditer(code)]


def complaints(source, *options):
    folders = [word for folder in FOLDERS for word in ("-isystem", folder)]
    return subprocess.run(["g++", "-fsyntax-only", "-x", "c++", *options, *folders, "-"], input=source,
                          capture_output=True, text=True, check=False).stderr


@check
def no_header_names_the_hosts_own_or_a_container():
    found = [f"{path.name}: {name}" for path in headers() for name in shown(path.read_text(encoding="utf-8-sig"))]
    expect_equal(found, [], "what the headers show")


@check
def no_header_brings_the_hosts_names_along():
    """A module may call something of its own host; a compiler refuses that where there is a namespace."""
    source = "".join(f'#include "{path.name}"\n' for path in headers()) + "int host;\n"
    expect_equal(complaints(source, "-std=c++11"), "", "complaints")


@check
def every_header_compiles_alone():
    with ThreadPoolExecutor(2) as pool:
        said = list(pool.map(lambda path: complaints(f'#include "{path.name}"\n', "-std=c++11"), headers()))
    expect(len(said) > 50, f"only {len(said)} headers were found")
    expect_equal([text for text in said if text], [], "complaints")


@check
def what_a_class_keeps_is_out_of_a_modules_reach():
    """A module that asks for the insides of a drawing is not compiled."""
    source = '#include "dbmain.h"\n#include "dbgroup.h"\n{}'
    for line in ("void f(AcDbDatabase& d) {{ d.core(); }}", "void f(AcDbDatabase& d) {{ d.m_internals; }}",
                 "int f(AcDbDatabase::Internals& i) {{ return sizeof i; }}",
                 "int f(AcDbGroup& g) {{ return g.m_internals != nullptr; }}",
                 "void f(AcDbObject& o) {{ AcDbObject::Internals::destroy(&o); }}"):
        expect("error:" in complaints(source.format(line.format()), "-std=c++11"), f"compiled: {line.format()}")


def tells(text, name):
    expect_equal(shown(text), name, text)


for header, name in (("friend struct host::ObjectAccess;", ["host::"]), ("namespace host\n{", ["namespace host"]),
                     ("#include <vector>", ["#include <vector>"]), ("std::wstring m_text;", ["std::wstring"]),
                     ("std::vector<std::map<int, int>> m_all;", ["std::vector", "std::map"]),
                     ("// host::documents() and std::string", []), ("std::int32_t m_at;", []),
                     ("struct Internals;  // the host's own", []), ('extern "C" // std::set', [])):
    add(f"a header with {header!r} is told from others", tells, header, name)

if __name__ == "__main__":
    run_all()
