#!/usr/bin/python3
"""Checks that tests run alone: the same on every machine, which they leave as it was."""
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import ROOT, need_built  # noqa: E402
from report import check, expect, expect_equal, run_all  # noqa: E402

DRAWING = ROOT / "tests/golden/drawings/r12-cyrillic.dxf"  # its texts need fonts

PLOT = 'cd "$TMPDIR"; "$0" "$1" --plot x.svg </dev/null >/dev/null && grep -c glyph x.svg && sha256sum x.svg; rm x.svg'
SIGNALS = """import os, sys
sys.path.insert(0, 'tests/support')
import arxhost
os.execvp('cat', ['cat', '/proc/self/status'])"""


def alone(*command, first="", **machine):
    """Runs a command as the tests run on a machine with these variables; what it says, and its status."""
    done = subprocess.run(["bash", "-c", f'{first} . "$0"; alone "$@"', ROOT / "scripts/alone", *command],
                          env={"PATH": os.environ["PATH"]} | machine, capture_output=True, text=True, check=False)
    return done.stdout, done.returncode


class Machine:
    """One with a home and fonts of its own, and a language that not every machine has."""

    def __init__(self, folder):
        self.folder = Path(folder)
        for name in ("home", "cache", "state", "temporary", "fonts"):
            (self.folder / name).mkdir()
        (self.folder / "home/.inputrc").write_text("")
        (self.folder / "fonts.conf").write_text(
            f"<fontconfig><dir>{folder}/fonts</dir><cachedir>{folder}/cache</cachedir></fontconfig>")
        self.variables = {
            "HOME": f"{folder}/home", "XDG_CACHE_HOME": f"{folder}/cache", "XDG_STATE_HOME": f"{folder}/state",
            "TMPDIR": f"{folder}/temporary", "FONTCONFIG_FILE": f"{folder}/fonts.conf", "LC_ALL": "ru_RU.KOI8-R",
            "TZ": "Asia/Kathmandu", "GTEST_FILTER": "-*", "ASAN_OPTIONS": "help=1", "MALLOC_PERTURB_": "7"}

    def files(self):
        return {str(path): (path.stat().st_mtime_ns, path.stat().st_size) for path in self.folder.rglob("*")}


def on_two_machines(*command):
    """What the command says on a machine of its own and on a bare one; the first stays as it was."""
    with tempfile.TemporaryDirectory() as folder:
        machine = Machine(folder)
        before = machine.files()
        said = alone(*command, **machine.variables)
        expect_equal(machine.files(), before, "the machine's files")
    return said, alone(*command)


@check
def a_test_sees_the_same_on_every_machine():
    (first, _), (second, _) = on_two_machines("env")
    first, second = (sorted(re.sub(r"-\w{6}\b", "", text).splitlines()) for text in (first, second))
    expect_equal(first, second, "the variables")
    expect("TZ=UTC" in first, f"no time zone in {first}")


@check
def a_text_is_drawn_with_the_same_fonts_on_every_machine():
    first, second = on_two_machines("bash", "-c", PLOT, ROOT / "build/arxhost", DRAWING)
    expect("x.svg" in first[0], f"no text in the plot: {first}")
    expect_equal(first, second, "the plots")


@check
def signals_that_the_caller_ignores_reach_the_program():
    said, _ = alone("python3", "-c", SIGNALS, first=f"trap '' HUP INT QUIT TERM; cd '{ROOT}';")
    ignored = int(re.search(r"SigIgn:\s*(\w+)", said)[1], 16)
    expect_equal(ignored & 0x4007, 0, "ignored signals")


@check
def what_a_test_leaves_behind_fails_it():
    said, status = alone("bash", "-c", 'touch "$TMPDIR/forgotten"')
    expect(status == 1 and "forgotten" in said, f"status {status}, said {said!r}")
    expect_equal(alone("false"), ("", 1), "a test that fails")


@check
def the_folders_of_a_test_go_with_it():
    said, _ = alone("bash", "-c", 'echo "$NETRAX_ALONE $TMPDIR $HOME"')
    expect([Path(folder).exists() for folder in said.split()] == [False] * 3, f"left: {said}")


@check
def a_group_that_is_killed_or_ends_badly_counts_as_a_failure():
    script = """. scripts/groups; alone() { "$@"; }; killed() { kill -9 $BASHPID; }
        group well true; group killed killed; group "it's bad" false; group two echo "2 passed, 0 failed"
        count_groups; echo "$passed and $failed" """
    done = subprocess.run(["bash", "-c", script], cwd=ROOT, capture_output=True, text=True, check=False)
    expect_equal(done.stdout.splitlines()[-3:], ["failed: killed", "failed: it's bad", "3 and 2"], "what is counted")


need_built()
run_all()
