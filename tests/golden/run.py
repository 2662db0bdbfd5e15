#!/usr/bin/python3
"""Golden drawings: runs arxhost on every case and compares the drawing and the transcript.

    run.py [--build FOLDER] [--update] [CASE...]

A case is a folder:
    before.dxf       the drawing to open (none: a new one)
    properties.ini   the module's options (none: its defaults)
    options          more arguments for arxhost, one line (none: none)
    answers.txt      what is typed
    after.dxf        the saved drawing in its canonical writing; a link to before.dxf says that the
                     saved file is the opened one byte for byte
    said.txt         standard output, then standard error and the exit status where there is one
    properties-after.ini   the options file after the run (none: not looked at)

On a mismatch the actual result is left beside the reference as *.actual.*; --update rewrites the
references (the review is the diff).
"""
import argparse
import difflib
import shlex
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import BUILD, Desk, need_built  # noqa: E402
from canonical import canonical, first_difference, written  # noqa: E402
from dxftags import read_tags  # noqa: E402

HERE = Path(__file__).resolve().parent


def transcript(run):
    text = run.said
    if run.errors:
        text += f"--- standard error\n{run.errors}"
    if run.status:
        text += f"--- exit status {run.status}\n"
    return text.encode()


class Case:
    def __init__(self, folder, build, update):
        self.folder, self.build, self.update = folder, build, update
        self.problems = []

    def run(self):
        for left_over in self.folder.glob("*.actual.*"):
            left_over.unlink()
        options = self.folder / "properties.ini"
        with Desk(self.build) as desk:
            if options.exists():
                desk.bring(options, "properties.ini")
            arguments = ["--save", "saved.dxf"]
            if (self.folder / "before.dxf").exists():
                arguments.insert(0, desk.bring(self.folder / "before.dxf"))
            if (self.folder / "options").exists():
                arguments += shlex.split((self.folder / "options").read_text())
            run = desk.run(*arguments, script=(self.folder / "answers.txt").read_text(encoding="utf-8"))
            self.compare_bytes("said.txt", transcript(run))
            self.compare_drawing(desk / "saved.dxf")
            if (self.folder / "properties-after.ini").exists():
                kept = desk / "properties.ini"
                self.compare_bytes("properties-after.ini", kept.read_bytes() if kept.exists() else b"")
        return self

    def compare_bytes(self, name, actual):
        reference = self.folder / name
        wanted = reference.read_bytes() if reference.exists() else b""
        if actual == wanted:
            return
        if self.update:
            reference.write_bytes(actual)
            return
        reference.with_suffix(f".actual{reference.suffix}").write_bytes(actual)
        changed = [line for line in difflib.ndiff(wanted.decode("utf-8", "replace").splitlines(),
                                                  actual.decode("utf-8", "replace").splitlines())
                   if line[0] in "+-"]
        self.problems.append(f"{name}: " + "\n        ".join(changed[:4] or ["line ends differ"]))

    def compare_drawing(self, saved):
        reference = self.folder / "after.dxf"
        if not saved.exists():
            if reference.exists():
                self.problems.append("after.dxf: no drawing was saved")
            return
        if reference.is_symlink():
            if saved.read_bytes() != reference.read_bytes():
                self.mismatch(reference, saved.read_bytes(), read_tags(saved), read_tags(reference))
            return
        actual = canonical(read_tags(saved))
        if self.update:
            reference.write_bytes(written(actual))
        elif not reference.exists():
            self.problems.append("after.dxf: there is no reference (run with --update, review)")
        elif written(actual) != reference.read_bytes():
            self.mismatch(reference, written(actual), read_tags(saved), read_tags(reference))

    def mismatch(self, reference, actual, got, wanted):
        (self.folder / "after.actual.dxf").write_bytes(actual)
        where = first_difference(canonical(got), canonical(wanted))
        where = where or "differs from the opened file in its writing only"
        self.problems.append(f"{reference.name}: {where}")


def main():
    parser = argparse.ArgumentParser(description="Runs the golden drawings.")
    parser.add_argument("--build", type=Path, default=BUILD)
    parser.add_argument("--update", action="store_true")
    parser.add_argument("cases", nargs="*")
    arguments = parser.parse_args()
    need_built(arguments.build)
    names = arguments.cases or sorted(p.parent.name for p in HERE.glob("*/answers.txt"))
    cases = [Case(HERE / Path(name).name, arguments.build, arguments.update) for name in names]
    with ThreadPoolExecutor(2) as pool:
        list(pool.map(Case.run, cases))
    failed = [case for case in cases if case.problems]
    for case in failed:
        print(f"FAILED {case.folder.name}", *case.problems, sep="\n    ")
    print(f"{len(cases) - len(failed)} passed, {len(failed)} failed")
    return 1 if failed or not cases else 0


if __name__ == "__main__":
    sys.exit(main())
