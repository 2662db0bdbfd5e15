"""Drawings on paper: the option --plot and the command PLOT."""
import shutil
import tempfile

from common import BUILD, GRID, Desk, check, expect, expect_equal, not_on_windows, one_line, only_on_windows


@check
@not_on_windows("arxhost for Windows draws PNG only")
def a_plot_is_a_file_of_the_kind_its_name_says():
    for name, beginning in (("a.png", b"\x89PNG\r\n"), ("b.pdf", b"%PDF-"), ("c.SVG", b"<?xml")):
        with Desk() as desk:
            run = desk.run("--plot", name, script="")
            expect_equal(run.status, 0, "exit status")
            expect((desk.folder / name).read_bytes().startswith(beginning), name)


@check
@only_on_windows("arxhost for Linux draws all kinds")
def a_plot_of_another_kind_than_png_is_refused_in_one_line():
    for name in ("b.pdf", "c.SVG"):
        with Desk() as desk:
            run = desk.run("--plot", name, script="")
            expect_equal((run.status, run.errors),
                         (1, f"arxhost: {name}: arxhost draws PDF and SVG on Linux only; PNG can be drawn\n"), "result")
            expect(not (desk.folder / name).exists(), name)


@check
def the_command_plots_what_the_option_plots():
    with Desk() as desk:
        script = GRID + "PLOT\nfirst.png\n"
        expect_equal(desk.run("--plot", "second.png", script=script).status, 0, "exit status")
        first, second = ((desk.folder / name).read_bytes() for name in ("first.png", "second.png"))
        expect(first == second, "the two differ")
        desk.run(script="PLOT\nwithout.png\n")
        expect((desk.folder / "without.png").read_bytes() != first, "the grid is not in it")


@check
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


@check
@not_on_windows("what draws there is the system's")
def without_the_library_that_draws_everything_else_is_done():
    with tempfile.TemporaryDirectory() as build:
        for name in ("arxhost", "libarxhost_core.so", "netrax.arx"):
            shutil.copy(BUILD / name, build)
        with Desk(build) as desk:
            told = (1, f"arxhost: {build}/libarxhost_pictures.so: cannot open shared object file: "
                       "No such file or directory\n")
            run = desk.run("--save", "saved.dxf", "--plot", "plot.png", script=GRID)
            expect_equal((run.status, run.errors), told, "the option")
            expect("\nLINE\n" in (desk / "saved.dxf").read_text(), "the grid is not saved")
            run = desk.run(script="PLOT\nplot.png\n")
            expect_equal((run.status, run.errors), told, "the command")
            run = desk.run("--dialog-picture", "dialog.png")
            expect_equal((run.status, run.errors), (1, told[1].replace("arxhost: ", "arxhost: dialog.png: ")), "a dialog")
            expect_equal([*desk.folder.glob("*.png")], [], "pictures")
