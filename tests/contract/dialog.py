"""The settings dialog, worked by lines, and its picture."""
import struct
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "golden"))
from canonical import canonical, written  # noqa: E402
from common import CORNERS, GRID, PLAN, Desk, check, expect, expect_equal, one_line  # noqa: E402
from dxftags import read_tags  # noqa: E402


def dialog(*lines, before="zv_netrax\nS\n", after="^C\n", **more):
    with Desk() as desk:
        return desk.run(script=before + "".join(line + "\n" for line in lines) + after, **more)


@check
def a_dialog_tells_when_it_opens_and_how_it_was_closed():
    for how, told in (("click 1", "ok"), ("click 2", "cancel"), ("close", "cancel"), ("^C", "cancel"), ("", "ok"),
                      ("CLICK 1", "ok")):
        run = dialog(how)
        expect_equal(run.status, 0, "exit status")
        expect(f"[dialog] Settings...\n[dialog closed] {told}\n" in run.said, f"{how!r}: {run.said}")


@check
def every_line_of_a_dialog_does_what_it_says():
    said = dialog("set 107 2,5", "check 126 on", "check 126 on", "click 116", "set 117 ", "color 113 42", "click 154",
                  "select 133 0.000", "select 131 #0", "check 135 off", "set 138  N ", "show", "close").said
    for line in ('[control] 107 edit enabled - "2,5"', '[control] 126 check enabled checked "Erase boundary"',
                 '[control] 115 radio enabled unchecked "Continuous line"',
                 '[control] 116 radio enabled checked "Cross mark"', '[control] 117 edit enabled - ""',
                 '[control] 113 combo enabled selected=0 "Color 42"', '[control] 133 combo enabled selected=3 "0.000"',
                 '[control] 131 combo enabled selected=0 "Standard"', '[control] 135 check enabled unchecked "X"',
                 '[control] 138 edit enabled - " N "', '[control] 105 group enabled - " Grid "',
                 '[control] 106 label enabled - "Vertical step:"', '[control] 122 line enabled - ""',
                 '[control] 110 button enabled - "Set a vertical step"', '[control] 1 button enabled - "OK"'):
        expect(line in said.split("\n"), f"no line {line!r}")


@check
def a_click_on_a_disabled_control_does_nothing():
    said = dialog("click 118", "click 135", "set 132 5", "show", "close").said
    for line in ('[control] 118 button disabled - "Set a cross size"', '[control] 135 check disabled checked "X"',
                 '[control] 132 edit disabled - "1.0000"'):
        expect(line in said.split("\n"), f"no line {line!r}")
    expect("Size of a cross" not in said, "the pick ran")


@check
def input_that_ends_in_a_dialog_or_its_pick_counts_as_esc_and_fails():
    for lines in ((), ("set 107 5",), ("click 110",), ("click 124",)):
        run = dialog(*lines, after="")
        expect_equal(run.status, 1, "exit status")
        expect(one_line(run.errors), run.errors)
        expect("[dialog closed] cancel\n" in run.said, run.said)


@check
def a_run_with_the_dialog_cancelled_equals_a_run_without_it():
    changed = "S\nset 107 5\ncolor 113 3\nclick 116\nclick 110\n7\nyes\nclick 124\n1,2\n"
    with Desk() as desk:
        drawing = desk.bring(PLAN)
        desk.run(drawing, "--save", "without.dxf", script=GRID)
        without = written(canonical(read_tags(desk / "without.dxf")))
        for leave in ("click 2", "close", "^C"):
            desk.run(drawing, "--save", "with.dxf", script=f"{CORNERS}{changed}{leave}\nA\n")
            # The grid was rebuilt once more: only its handles are others.
            expect(written(canonical(read_tags(desk / "with.dxf"))) == without, leave)


def png_size(path):
    head = path.read_bytes()[:24]
    expect(head[:8] == b"\x89PNG\r\n\x1a\n", "no PNG")
    return struct.unpack(">II", head[16:24])


@check
def the_dialog_is_drawn_in_both_languages_without_a_script():
    with Desk() as desk:
        for locale in ("en-US", "ru-RU"):
            run = desk.run("--locale", locale, "--dialog-picture", f"{locale}.png")
            expect_equal((run.status, run.errors), (0, ""), "status and errors")
            width, height = png_size(desk / f"{locale}.png")
            expect(width > 450 and height > 250, f"{width} x {height}")
        expect((desk / "en-US.png").read_bytes() != (desk / "ru-RU.png").read_bytes(), "the same picture twice")


@check
def a_picture_that_cannot_be_drawn_is_one_line_and_status_1():
    with Desk() as desk:
        for arguments, script in ((("--dialog-picture", "no/folder.png"), None), (("--dialog-picture", "a.png"), "")):
            run = desk.run(*arguments, script=script)
            expect_equal(run.status, 1, "exit status")
            expect(one_line(run.errors) and ".png" in run.errors, run.errors)
