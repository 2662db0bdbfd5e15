"""How answers are read."""
from common import CORNERS, GRID, PLAN, Desk, check, expect, expect_equal, one_line, options_text


@check
def a_script_file_and_standard_input_are_the_same():
    with Desk() as desk:
        (desk / "answers.txt").write_text(GRID)
        by_file = desk.run("--script", "answers.txt", "--save", "a.dxf")
        (desk / "properties.ini").unlink()
        by_input = desk.run("--save", "b.dxf", script=GRID)
        expect_equal(by_file.said, by_input.said, "transcripts")
        expect_equal((by_file.status, by_input.status), (0, 0), "statuses")


@check
def comments_are_no_answers_and_an_empty_line_is_enter():
    plain = CORNERS + "\n"
    noted = "; a grid\nzv_netrax\n;10,10 is not it\n10,20\n260,170\n; Enter comes next\n\n; end\n"
    with Desk() as desk:
        one, two = desk.run(script=plain), desk.run(script=noted)
        expect_equal((one.status, two.status), (0, 0), "statuses")
        expect_equal(two.said, one.said, "transcripts")


@check
def lines_may_end_in_CR_LF_and_the_last_needs_no_line_end():
    with Desk() as desk:
        wanted = desk.run(script=GRID)
        for script in (GRID.replace("\n", "\r\n"), GRID[:-1]):
            run = desk.run(script=script)
            expect_equal((run.status, run.said), (0, wanted.said), "result")


@check
def command_names_are_matched_without_case_and_with_their_marks():
    with Desk() as desk:
        for name in ("ZV_NETRAX", "_zv_netrax", ".zv_netrax", "'zv_netrax", "Zv_Netrax"):
            run = desk.run(script=f"{name}\n^C\n")
            expect_equal(run.status, 0, "exit status")
            expect("Specify first corner point" in run.said, f"{name} did not start the command")


@check
def esc_is_no_failure():
    with Desk() as desk:
        for script in ("zv_netrax\n^C\n", "zv_netrax\n1,1\n^C\n", CORNERS + "^C\n"):
            run = desk.run(script=script)
            expect_equal((run.status, run.errors), (0, ""), f"result of {script!r}")


@check
def input_that_ends_inside_a_command_counts_as_esc_and_fails():
    with Desk(options=options_text(needText="1")) as desk:
        desk.bring(PLAN)
        for script in ("zv_netrax\n", "zv_netrax\n10,20\n", CORNERS, "zv_netrax\n0,0\n5100,100\n"):
            run = desk.run("drawing.dxf", "--save", "saved.dxf", script=script)
            expect_equal(run.status, 1, f"exit status of {script!r}")
            expect(one_line(run.errors), f"standard error is not one line: {run.errors!r}")
            same = (desk / "saved.dxf").read_bytes() == PLAN.read_bytes()
            expect(same, "the saved drawing is not the opened one")
            (desk / "saved.dxf").unlink()


@check
def points_are_understood_in_every_form():
    with Desk() as desk:
        desk.run("--save", "plain.dxf", script=GRID)
        for form in ("@250,150", "*260,170", "260,170,0", "260.0,1.7e2", " 260,170"):
            run = desk.run("--save", "form.dxf", script=f"zv_netrax\n10,20\n{form}\nA\n")
            expect_equal((run.status, run.errors), (0, ""), f"result of {form!r}")
            same = (desk / "form.dxf").read_bytes() == (desk / "plain.dxf").read_bytes()
            expect(same, f"{form!r} is not 260,170")
