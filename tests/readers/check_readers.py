#!/usr/bin/python3
"""Independent programs read the drawings that arxhost saves: ezdxf, GDAL, dxflib and LibreCAD."""
import logging
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE.parent / "support"), str(HERE)]
import ezdxf  # noqa: E402
from arxhost import Desk, need_built  # noqa: E402
from rawtags import problems  # noqa: E402
from readers import librecad_draws, of_dxflib, of_gdal, of_tags  # noqa: E402
from report import add, expect, expect_equal, run_all  # noqa: E402

GOLDEN = HERE.parent / "golden"
CASES = {  # of tests/golden, and the encoding of the drawing's texts
    "labels": "utf-8", "labels-in-the-current-ucs": "utf-8", "crosses": "utf-8", "two-runs-in-one-session": "utf-8",
    "turned-view": "utf-8", "survey-coordinates-turned": "cp1251", "russian": "cp1251",
    "r12-with-cyrillic-names": "cp1251", "entities-only": "cp1252",
}
EMPTY_GROUP = "Removed empty group"
DRAWN = ("turned-view", "r12-with-cyrillic-names")  # LibreCAD takes seconds for each


class Saved:
    """A golden case, run and saved as arxhost writes it."""

    def __init__(self, name):
        folder, self.desk = GOLDEN / name, Desk()
        options = folder / "properties.ini"
        if options.exists():
            self.desk.bring(options, "properties.ini")
        arguments = ["--save", "saved.dxf", *(folder / "options").read_text().split()] \
            if (folder / "options").exists() else ["--save", "saved.dxf"]
        self.before = folder / "before.dxf" if (folder / "before.dxf").exists() else None
        if self.before:
            arguments.insert(0, self.desk.bring(folder / "before.dxf"))
        run = self.desk.run(*arguments, script=(folder / "answers.txt").read_text(encoding="utf-8"))
        expect_equal(run.status, 0, f"exit status ({run.errors.strip()})")
        self.path, self.encoding = self.desk / "saved.dxf", CASES[name]
        self.content = of_tags(self.path, self.encoding)
        expect(self.content.lines, "no lines were drawn")


def the_tags_keep_the_rules(saved):
    expect_equal(problems(saved.path, saved.before), [], "rules that are broken")


def ezdxf_agrees(saved):
    doc = ezdxf.readfile(saved.path)
    audit = doc.audit()
    expect_equal([str(e.message) for e in audit.errors], [], "errors")
    expect_equal([f.message for f in audit.fixes if not f.message.startswith(EMPTY_GROUP)], [], "fixes")
    lines = doc.modelspace().query("LINE")
    expect_equal(len(lines), sum(saved.content.lines.values()), "lines")
    expect_equal(len(doc.modelspace().query("TEXT")), sum(saved.content.texts.values()), "texts")


def gdal_agrees(saved):
    missing = of_gdal(saved.path, saved.encoding).lacks(saved.content)
    expect(missing is None, f"GDAL does not see {missing}")


def dxflib_agrees(saved):
    read = of_dxflib(saved.path, saved.encoding)
    expect_equal(sum(read.lines.values()), sum(saved.content.lines.values()), "lines")
    missing = read.lacks(saved.content)
    expect(missing is None, f"dxflib does not see {missing}")


def librecad_agrees(saved):
    expect(librecad_draws(saved.path, saved.desk.folder), "LibreCAD drew nothing")


def main():
    need_built()
    logging.disable(logging.CRITICAL)
    for name in CASES:
        saved = Saved(name)
        tests = [the_tags_keep_the_rules, ezdxf_agrees, gdal_agrees, dxflib_agrees]
        if name in DRAWN:
            tests.append(librecad_agrees)
        for test in tests:
            add(f"{name}: {test.__name__.replace('_', ' ')}", test, saved)
    run_all()


if __name__ == "__main__":
    main()
