"""Drawings on paper: the option --plot and the command PLOT."""
from common import GRID, Desk, check, expect, expect_equal, not_on_windows, one_line


@check
@not_on_windows("arxhost for Windows does not plot")
def a_plot_is_a_file_of_the_kind_its_name_says():
    for name, beginning in (("a.png", b"\x89PNG\r\n"), ("b.pdf", b"%PDF-"), ("c.SVG", b"<?xml")):
        with Desk() as desk:
            run = desk.run("--plot", name, script="")
            expect_equal(run.status, 0, "exit status")
            expect((desk.folder / name).read_bytes().startswith(beginning), name)


@check
@not_on_windows("arxhost for Windows does not plot")
def the_command_plots_what_the_option_plots():
    with Desk() as desk:
        script = GRID + "PLOT\nfirst.png\n"
        expect_equal(desk.run("--plot", "second.png", script=script).status, 0, "exit status")
        first, second = ((desk.folder / name).read_bytes() for name in ("first.png", "second.png"))
        expect(first == second, "the two differ")
        desk.run(script="PLOT\nwithout.png\n")
        expect((desk.folder / "without.png").read_bytes() != first, "the grid is not in it")


@check
@not_on_windows("arxhost for Windows does not plot")
def a_plot_that_cannot_be_written_fails_and_leaves_nothing():
    with Desk() as desk:
        run = desk.run("--plot", "missing/a.png", script="")
        expect_equal(run.status, 1, "exit status")
        expect(one_line(run.errors) and "missing/a.png" in run.errors, run.errors)
        run = desk.run("--plot", "a.dxf", script="")
        expect_equal(run.status, 2, "exit status")
        run = desk.run(script="PLOT\na.dxf\nPLOT\n\n")
        expect_equal((run.status, run.errors),
                     (1, "arxhost: a.dxf: expected a name that ends in .png, .pdf or .svg\n"), "result")
        expect_equal(desk.run(script="PLOT\n\n").status, 0, "exit status without a name")
        expect_equal(sorted(path.name for path in desk.folder.glob("*.dxf")), [], "files")
