"""What a session prints, where the options are, and the host's own commands."""
import os
import re

from common import BUILD, CORNERS, GRID, PLAN, ROOT, SUMMARY, Desk, check, expect, expect_equal, not_on_windows, options_text, one_line


@check
def prompts_and_messages_come_as_the_module_prints_them():
    with Desk() as desk:
        lines = desk.run(script=GRID).said.split("\n")
        for line in (SUMMARY, "Specify first corner point [Settings]: 10,20",
                     "Specify other corner point: 260,170", "[<Apply>/Settings]: A"):
            expect(line in lines, f"no line {line!r} in {lines}")


@check
def the_locale_chooses_the_language():
    with Desk() as desk:
        said = desk.run("--locale", "ru-RU", script=CORNERS + "П\n").said
        for line in ("Укажите точку первого угла [Настройки]: 10,20",
                     "Укажите точку второго угла: 260,170",
                     "[<Принять>/Настройки]: П"):
            expect(line in said.split("\n"), f"no line {line!r}")
        expect_equal(desk.run("--locale", "en-US", script=GRID).said, desk.run(script=GRID).said, "English")


@check
def a_message_box_is_one_line_with_its_answer():
    question = "Large number of horizontal lines in grid. Proceed?"
    with Desk() as desk:
        for answer in ("yes", "no"):
            run = desk.run(script=f"zv_netrax\n0,0\n5100,100\n{answer}\n^C\n")
            expect_equal(run.status, 0, "exit status")
            wanted = f"[message box] Attention: {question} (Yes/No) -> {answer}"
            expect(wanted in run.said.split("\n"), f"no line {wanted!r} in {run.said!r}")


@check
def the_meter_is_traced_only_when_asked_for():
    with Desk() as desk:
        plain, traced = desk.run(script=GRID), desk.run("--trace", script=GRID)
        expect("[meter]" not in plain.said, "the meter is printed without --trace")
        meter = [line for line in traced.said.split("\n") if line.startswith("[meter]")]
        start = re.fullmatch(r"\[meter\] Progress: +0\.\.(\d+)", meter[0])
        expect(start, f"the first line is {meter[0]!r}")
        count = int(start[1])
        step = max(1, count // 20)
        expect_equal(meter[1:-1], [f"[meter] {i}" for i in range(0, count, step)], "positions")
        expect_equal(meter[-1], "[meter] restored", "the last line")
        rest = [line for line in traced.said.split("\n") if not line.startswith("[meter]")]
        expect_equal(rest, plain.said.split("\n"), "the other lines")


@check
def setvar_prints_the_value():
    with Desk() as desk:
        run = desk.run(script="SETVAR\nUCSICON\n\nSETVAR\nUCSFOLLOW\n1\nSETVAR\nUCSFOLLOW\n\n")
        expect_equal(run.status, 0, "exit status")
        expect("UCSFOLLOW = 1" in run.said, f"no value in {run.said!r}")


@check
def a_read_only_variable_is_printed_and_asks_nothing():
    with Desk() as desk:
        run = desk.run(script="DWGNAME\nSETVAR\nVIEWTWIST\nUCSICON\n1\n")
        expect_equal((run.status, run.errors), (0, ""), "result")
        for line in ("DWGNAME = Drawing1.dwg", "VIEWTWIST = 0", "UCSICON = 1"):
            expect(line in run.said.split("\n"), f"no line {line!r} in {run.said!r}")


@check
@not_on_windows("devices and pipes of Unix")
def options_without_an_end_are_refused_and_the_defaults_stand():
    with Desk() as desk:
        for make in (lambda path: path.symlink_to("/dev/zero"), os.mkfifo):
            make(desk / "properties.ini")
            run = desk.run(script=CORNERS + "^C\n", timeout=20)
            expect_equal((run.status, run.errors), (0, ""), "result")
            expect(SUMMARY in run.said.split("\n"), f"not drawn by the defaults: {run.said!r}")
            (desk / "properties.ini").unlink()


@check
@not_on_windows("devices and pipes of Unix")
def options_are_not_written_to_a_pipe_that_nobody_reads():
    with Desk() as desk:
        os.mkfifo(desk / "properties.ini")
        run = desk.run(script=GRID, timeout=20)
        expect_equal((run.status, run.errors), (0, ""), "result")
        expect("*** failed to save changes in options data" in run.said.split("\n"), "no message")


@check
def options_are_read_and_written_beside_the_link_as_it_was_named():
    beside_the_module = BUILD / "properties.ini"
    kept = beside_the_module.exists() and beside_the_module.read_bytes()
    with Desk(options=options_text(HorStep="50.0000", Color="3")) as desk:
        (desk / "other").mkdir()
        (desk / "other" / "netrax.arx").symlink_to(desk / "netrax.arx")
        here = desk.run(script=GRID)
        there = desk.run(script=GRID, module="other/netrax.arx")
        wanted = "horizontal dist: 50.00; vertical dist: 100.00; color: 3"
        expect(wanted in here.said, "the folder's own options were not read")
        expect(SUMMARY in there.said, "the other folder's options are not its own")
        written = (desk / "other" / "properties.ini").read_bytes()
        expect_equal(written, options_text().encode(), "written options")
        now = beside_the_module.exists() and beside_the_module.read_bytes()
        expect_equal(now, kept, "the options beside the module itself")


@check
def a_cancelled_run_writes_no_options():
    with Desk() as desk:
        desk.run(script=CORNERS + "^C\n")
        expect(not (desk / "properties.ini").exists(), "options were written")


@check
def options_that_cannot_be_written_are_told_and_the_grid_stays():
    with Desk() as desk:
        (desk / "properties.ini").mkdir()
        run = desk.run("--trace", script=GRID)
        expect_equal(run.status, 0, "exit status")
        expect("*** failed to save changes in options data" in run.said.split("\n"), "no message")
        expect("[meter] restored" in run.said, "the grid was not kept")


@check
def the_options_of_another_folder_are_left_alone_where_the_path_is_too_long():
    # The module is told 520 characters of its path; cut there, it lies one folder further up.
    with Desk() as desk:
        up = desk / "up"
        deep = up / ("x" * 200) / ("x" * 200) / ("x" * 200)
        others_options = options_text(HorStep="50.0000").encode()
        deep.mkdir(parents=True)
        (deep / "netrax.arx").symlink_to(desk / "netrax.arx")
        others = [up, *(deep.parents[i] for i in range(3)), deep]
        for folder in others:
            (folder / "properties.ini").write_bytes(others_options)
        run = desk.run(script=GRID, module=str(deep / "netrax.arx"))
        expect_equal(run.status, 0, "exit status")
        expect(SUMMARY in run.said, "options were read")
        expect("*** failed to save changes in options data" in run.said.split("\n"), "no message")
        for folder in others:
            expect_equal((folder / "properties.ini").read_bytes(), others_options, "options of another folder")


@check
def the_module_unloads_and_loads_again():
    with Desk() as desk:
        run = desk.run(script="ARX\nC\nARX\nU\nnetrax.arx\nzv_netrax\nARX\nL\nnetrax.arx\n" + GRID)
        expect_equal(run.status, 0, f"exit status ({run.errors})")
        expect("Obrenta: zv_netrax" in run.said, "the command is not listed")
        expect_equal(run.said.count("Specify first corner point"), 1, "runs of the command")


@check
def quit_ends_the_session():
    with Desk() as desk:
        run = desk.run(script="QUIT\nzv_netrax\n")
        expect_equal((run.status, "Specify first" in run.said), (0, False), "result")


@check
def saveas_that_fails_is_told_once_and_fails_the_run():
    with Desk() as desk:
        desk.bring(PLAN)
        run = desk.run("drawing.dxf", script="SAVEAS\nmissing/named.dxf\nUCSICON\n\n")
        expect_equal(run.status, 1, "exit status")
        expect(one_line(run.errors) and "missing/named.dxf" in run.errors, run.errors)
        expect("UCSICON" in run.said, "the session did not go on")


@check
def saveas_writes_the_drawing():
    with Desk() as desk:
        desk.bring(PLAN)
        run = desk.run("drawing.dxf", script=f"SAVEAS\n{desk / 'named.dxf'}\n")
        expect_equal(run.status, 0, f"exit status ({run.errors})")
        expect((desk / "named.dxf").read_bytes() == PLAN.read_bytes(), "the copy differs")
