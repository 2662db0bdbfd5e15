#!/usr/bin/python3
"""Runs the grid over real drawings, where there are some, and has an independent reader look at the result.

The drawings are those of the folder named by NETRAX_DRAWINGS, else of ../shared/drawings beside the
project. Without them nothing is checked here, and that is said.
"""
import logging
import math
import os
import re
import sys
from collections import Counter
from functools import cached_property
from pathlib import Path

sys.path[:0] = [str(Path(__file__).resolve().parents[1] / folder) for folder in ("support", "readers")]
import ezdxf  # noqa: E402
from arxhost import ROOT, Desk, need_built, options_text  # noqa: E402
from dxftags import read_records, read_tags  # noqa: E402
from rawtags import problems  # noqa: E402
from readers import of_dxflib, of_gdal, of_tags  # noqa: E402
from report import add, expect, expect_equal, run_all  # noqa: E402
from unchanged import Comparison  # noqa: E402

FOLDER = Path(os.environ.get("NETRAX_DRAWINGS") or ROOT.parent / "shared" / "drawings")
EDGES = ("Top", "Bottom", "Left", "Right")


def is_readable(path):
    return not path.name.startswith("bad_")


def is_repairable(path):
    return "duplicate_handles" in path.name


def is_r12(path):
    return any(tag.value.strip() == b"AC1009" for tag in read_tags(path)[:40])


def encoding_of(path):
    values = {r.kind: r.tags[1].value.strip() for r in read_records(path) if r.kind in ("$ACADVER", "$DWGCODEPAGE")}
    if values["$ACADVER"] >= b"AC1021":
        return "utf-8"
    return values.get("$DWGCODEPAGE", b"ANSI_1252").decode().lower().replace("ansi_", "cp")


def is_binary(path):
    return path.read_bytes().startswith(b"AutoCAD Binary DXF")


def is_tilted(path):
    """In such a view a grid along the world's axes cannot be drawn."""
    return "view3d" in path.name


def extents(path):
    """Lower left and upper right corner: the header's, or those of the entities' first points."""
    corners, points = {}, []
    for record in read_records(path):
        if record.kind in ("$EXTMIN", "$EXTMAX"):
            corners[record.kind] = [float(tag.value) for tag in record.tags[1:3]]
        elif record.section == "ENTITIES" and record.first(10) and record.first(20):
            points.append((float(record.first(10)), float(record.first(20))))
    low, high = corners.get("$EXTMIN", [0, 0]), corners.get("$EXTMAX", [0, 0])
    if low[0] < high[0] < 1e10 and low[1] < high[1] < 1e10:
        return low, high
    xs, ys = zip(*points)
    return [min(xs), min(ys)], [max(xs), max(ys)]


def auditor(path):
    """The document as the independent reader sees it, its errors and its fixes."""
    doc = ezdxf.readfile(path)
    audit = doc.audit()
    return doc, audit.errors, Counter(entry.code for entry in audit.fixes)


class Drawing:
    """One drawing with a grid accepted in it; the run is made once, by the first test that needs it."""

    def __init__(self, path):
        self.path = path

    @cached_property
    def script(self):
        (x1, y1), (x2, y2) = extents(self.path)
        if is_tilted(self.path):
            return f"zv_netrax\n0,0\n{x2 - x1:.6f},{y2 - y1:.6f}\n"
        return f"zv_netrax\n*{x1:.6f},{y1:.6f}\n*{x2:.6f},{y2:.6f}\n"

    @cached_property
    def options(self):
        (x1, y1), (x2, y2) = extents(self.path)
        step = 10 ** math.floor(math.log10(max(x2 - x1, y2 - y1))) / 4
        step = max(step, max(x2 - x1, y2 - y1) / 40)
        mode = "1" if is_tilted(self.path) else "0"
        labels = {f"b{axis}{edge}Scribe": "1" for axis in "XY" for edge in EDGES}
        return options_text(HorStep=f"{step:.4f}", VertStep=f"{step:.4f}", needText="1",
                            WCSBasePoint=mode,
                            heightText=f"{step / 20:.4f}", iCountSigns="1", **labels)

    @cached_property
    def accepted(self):
        desk = Desk(options=self.options)
        desk.bring(self.path)
        run = desk.run("drawing.dxf", "--save", "saved.dxf", "--trace", script=self.script + "A\n")
        expect_equal(run.status, 0, f"exit status ({run.errors.strip()})")
        expect("[message box]" not in run.said, "a question came that the script does not answer")
        return desk, run

    @cached_property
    def compared(self):
        return Comparison(self.path, self.accepted[0] / "saved.dxf")

    @cached_property
    def group_size(self):
        """The number of ids that the transcript tells of."""
        meter = re.findall(r"^\[meter\] Progress: +0\.\.(\d+)$", self.accepted[1].said, re.M)
        expect_equal(len(meter), 1, "progress meters in the transcript")
        return int(meter[0])


def the_old_content_is_unchanged(drawing):
    problem = drawing.compared.problem()
    expect(problem is None, problem)
    expect(drawing.compared.seed_is_above, "$HANDSEED does not lie above the new handles")


def the_header_covers_the_new_lines(drawing):
    saved = {r.kind: [float(t.value) for t in r.tags[1:3]] for r in drawing.compared.new
             if r.kind in ("$EXTMIN", "$EXTMAX")}
    if not saved:
        return  # as in the drawing that was opened
    for line in (r for r in drawing.compared.added if r.kind == "LINE"):
        for codes in ((10, 20), (11, 21)):
            for i, code in enumerate(codes):
                expect(saved["$EXTMIN"][i] <= float(line.first(code)) <= saved["$EXTMAX"][i],
                       f"{line} lies outside {saved}")


def the_new_content_is_what_the_transcript_tells(drawing):
    kinds = Counter(record.kind for record in drawing.compared.added)
    grid = kinds["LINE"] + kinds["TEXT"]
    expect(kinds["LINE"] > 0 and kinds["TEXT"] > 0, f"no labelled grid was drawn: {dict(kinds)}")
    expect_equal(grid, drawing.group_size, "lines and texts against the meter")
    expect_equal(kinds["POLYLINE"], 1, "outlines")
    expect_equal(kinds["GROUP"], 0 if is_r12(drawing.path) else 1, "new groups")
    told = "R12 has no groups" in drawing.accepted[1].errors
    expect_equal(told, is_r12(drawing.path), "whether it was told that the group is not kept")


def the_independent_reader_agrees(drawing):
    _, _, fixes_before = auditor(drawing.path)
    doc, errors, fixes = auditor(drawing.accepted[0] / "saved.dxf")
    expect_equal([str(e.message) for e in errors], [], "the auditor's errors")
    expect(not fixes - fixes_before, f"new fixes: {dict(fixes - fixes_before)}")
    fresh = {handle.decode() for handle in drawing.compared.fresh}
    kinds = Counter(entity.dxftype() for entity in doc.modelspace() if entity.dxf.handle in fresh)
    expect_equal(kinds["LINE"] + kinds["TEXT"], drawing.group_size, "lines and texts in model space")
    if is_r12(drawing.path):
        return
    groups = [(name, group) for name, group in doc.groups if group.dxf.handle in fresh]
    expect_equal(len(groups), 1, "new groups")
    name, group = groups[0]
    expect(re.fullmatch(r"\*A\d+", name), f"the new group is called {name}")
    expect_equal(len(group), drawing.group_size, "members of the new group")
    for member in group:
        expect(member.dxf.handle in fresh, f"{member} was there before the run")
        expect_equal(list(member.get_reactors()), [group.dxf.handle], f"reactors of {member}")


def no_rule_of_the_tags_is_broken_that_was_not(drawing):
    broken = Counter(problems(drawing.accepted[0] / "saved.dxf", drawing.path))
    expect_equal([*(broken - Counter(problems(drawing.path)))], [], "rules that the saved drawing breaks")


def gdal_and_dxflib_see_the_grid(drawing):
    path = drawing.accepted[0] / "saved.dxf"
    encoding = encoding_of(path)
    fresh = None if is_r12(path) else drawing.compared.fresh
    grid = of_tags(path, encoding, fresh)
    expect(grid.lines, "no lines were drawn")
    for name, read in (("GDAL", of_gdal(path, encoding)), ("dxflib", of_dxflib(path, encoding))):
        missing = read.lacks(grid)
        expect(missing is None, f"{name} does not see {missing}")


def a_cancelled_run_saves_the_opened_file(drawing):
    with Desk(options=drawing.options) as desk:
        desk.bring(drawing.path)
        run = desk.run("drawing.dxf", "--save", "saved.dxf", script=drawing.script + "^C\n")
        expect_equal(run.status, 0, f"exit status ({run.errors.strip()})")
        same = (desk / "saved.dxf").read_bytes() == drawing.path.read_bytes()
        expect(same, "the saved file differs from the opened one")


def a_plot_leaves_out_only_what_has_no_lines_of_its_own(drawing):
    with Desk() as desk:
        desk.bring(drawing.path)
        run = desk.run("drawing.dxf", "--plot", "plot.png", script="")
        expect_equal(run.status, 0, f"exit status ({run.errors.strip()})")
        left_out = set(re.findall(r"\d+ ([A-Z_0-9]+)", run.errors.partition("not drawn: ")[2]))
        expect_equal(left_out - {"ACAD_TABLE", "IMAGE", "MESH", "PDFUNDERLAY", "SHAPE", "WIPEOUT"}, set(), "left out")


def is_repaired(path):
    """Records that share handles get new ones, it is told, and the result has fewer faults than the file."""
    with Desk() as desk:
        desk.bring(path)
        run = desk.run("drawing.dxf", "--save", "saved.dxf", script="zv_netrax\n0,0\n400,300\nA\n")
        expect_equal(run.status, 0, "exit status")
        expect("28 records are given new ones" in run.errors and run.errors.count("\n") == 1, run.errors)
        _, _, before = auditor(path)
        doc, errors, after = auditor(desk / "saved.dxf")
        expect_equal([str(e.message) for e in errors], [], "the auditor's errors")
        expect(sum(after.values()) < sum(before.values()) / 2, f"fixes: {dict(after)}, before: {dict(before)}")
        expect_equal(len(list(doc.groups)[0][1]), 22, "members of the group")
        handles = [record.handle for record in read_records(desk / "saved.dxf") if record.handle]
        expect_equal(len(handles), len(set(handles)), "handles")


def is_refused(path):
    with Desk() as desk:
        desk.bring(path)
        (desk / "kept.dxf").write_text("precious")
        for target in ("saved.dxf", "kept.dxf"):
            run = desk.run("drawing.dxf", "--save", target, script="")
            expect_equal(run.status, 1, "exit status")
            expect_equal(run.errors.count("\n"), 1, f"lines on standard error ({run.errors!r})")
        expect(not (desk / "saved.dxf").exists(), "something was saved")
        expect_equal((desk / "kept.dxf").read_text(), "precious", "the existing file")


def can_be_read_by_ezdxf(path):
    try:
        ezdxf.readfile(path)
    except ezdxf.DXFError as error:
        print(f"{path.name}: ezdxf cannot read it even before ({error!r}); checked without it")
        return False
    return True


def main():
    need_built()
    logging.disable(logging.CRITICAL)
    drawings = sorted(FOLDER.glob("*.dxf"))
    if not drawings:
        print(f"SKIPPED: no real drawings in {FOLDER}\n0 passed, 0 failed")
        return
    readable = [path for path in drawings if is_readable(path)]
    for path in readable:
        drawing = Drawing(path)
        tests = [the_old_content_is_unchanged, the_header_covers_the_new_lines,
                 the_new_content_is_what_the_transcript_tells,
                 no_rule_of_the_tags_is_broken_that_was_not, a_cancelled_run_saves_the_opened_file,
                 a_plot_leaves_out_only_what_has_no_lines_of_its_own]
        if not is_binary(path):  # which neither of the two reads
            tests.append(gdal_and_dxflib_see_the_grid)
        if can_be_read_by_ezdxf(path):
            tests.append(the_independent_reader_agrees)
        for test in tests:
            add(f"{path.name}: {test.__name__.replace('_', ' ')}", test, drawing)
    for path in drawings:
        if is_repairable(path):
            add(f"{path.name}: is repaired", is_repaired, path)
        elif path not in readable:
            add(f"{path.name}: is refused", is_refused, path)
    others = [path for path in drawings if path not in readable]
    repaired = sum(map(is_repairable, others))
    print(f"real drawings: {len(readable)} run, {repaired} repaired, {len(others) - repaired} refused, "
          f"of {len(drawings)}")
    run_all()


if __name__ == "__main__":
    main()
