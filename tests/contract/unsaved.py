"""What a person at the terminal would lose: questions before it, and files for work that was not saved."""
import re
import shutil
import signal

from common import GRID, PLAN, Desk, check, expect, expect_equal, not_on_windows
from terminal import CTRL_C, CTRL_D, ENTER, ESC, answer, console, draw_grid, leave

REPLACE = "exists already. Replace it? [Yes/No] <No>: "
GIVE_UP = "The drawing has changes that are not saved. Give them up? [Yes/No] <No>: "
KEPT = re.compile(r"arxhost: the changes of the drawing are not saved, they are kept in (.*)\n")
STATE = "home/.local/state/arxhost"


def plan_on(desk):
    desk.bring(PLAN)
    return PLAN.read_bytes()


def quit_at_once(terminal):
    answer(terminal, "Command: ", "QUIT" + ENTER)
    expect_equal(terminal.wait_for_end(), 0, f"exit status after {terminal.shown!r}")


def has_grid(file):
    return b"AcDbGroup\n" in file.read_bytes().replace(b"\r\n", b"\n")


def kept_in(desk, terminal):
    found = KEPT.search(terminal.shown)
    expect(found, f"no line about a file in {terminal.shown!r}")
    file = desk / found[1]
    expect(has_grid(file), f"the grid is not in {file}")
    return str(file.relative_to(desk.folder.resolve()))


@check
@not_on_windows("a terminal of Unix")
def saveas_asks_a_person_before_it_replaces_a_file():
    with Desk() as desk:
        old = plan_on(desk)
        (desk / "other.dxf").write_text("precious")
        with console(desk, "drawing.dxf") as terminal:
            draw_grid(terminal)
            for typed in ("", "other.dxf"):
                for no in ("", "n", "No", ESC):
                    answer(terminal, "Command: ", "SAVEAS" + ENTER)
                    answer(terminal, ">: ", typed + ENTER)
                    answer(terminal, REPLACE, no if no == ESC else no + ENTER)
            answer(terminal, "Command: ", "SAVEAS" + ENTER)
            expect_equal(((desk / "drawing.dxf").read_bytes(), (desk / "other.dxf").read_text()), (old, "precious"),
                         "files after No")
            answer(terminal, ">: ", ENTER)
            answer(terminal, REPLACE, "y" + ENTER)
            terminal.wait_for(f"\nsaved {desk.folder.resolve() / 'drawing.dxf'}\n")
            answer(terminal, "Command: ", "SAVEAS" + ENTER)
            answer(terminal, ">: ", "new.dxf" + ENTER)
            terminal.wait_for("\nsaved new.dxf\n")
            quit_at_once(terminal)
        expect(has_grid(desk / "drawing.dxf") and has_grid(desk / "new.dxf"), "the grid is not in the files")


@check
@not_on_windows("a terminal of Unix")
def plot_asks_a_person_before_it_replaces_a_file():
    with Desk() as desk:
        (desk / "plot.svg").write_text("precious")
        with console(desk) as terminal:
            for yes in ("", "yes"):
                answer(terminal, "Command: ", "PLOT" + ENTER)
                answer(terminal, "svg): ", "plot.svg" + ENTER)
                expect_equal((desk / "plot.svg").read_text(), "precious", "file before Yes")
                answer(terminal, REPLACE, yes + ENTER)
            terminal.wait_for("\nsaved plot.svg\n")
            quit_at_once(terminal)


@check
@not_on_windows("a terminal of Unix")
def quit_asks_a_person_before_it_gives_changes_up():
    with Desk() as desk:
        old = plan_on(desk)
        with console(desk, "drawing.dxf") as terminal:
            draw_grid(terminal)
            for no in ("", "n", ESC):
                answer(terminal, "Command: ", "QUIT" + ENTER)
                answer(terminal, GIVE_UP, no if no == ESC else no + ENTER)
            answer(terminal, "Command: ", "QUIT" + ENTER)
            answer(terminal, GIVE_UP, "Y" + ENTER)
            expect_equal(terminal.wait_for_end(), 0, "exit status")
        expect_equal((desk / "drawing.dxf").read_bytes(), old, "the drawing")
        expect_equal([path.name for path in desk.folder.glob("*recovered*")], [], "files with what was given up")


@check
@not_on_windows("a terminal of Unix")
def a_quiet_run_at_a_terminal_asks_nothing():
    with Desk() as desk:
        plan_on(desk)
        with console(desk, "drawing.dxf", "--quiet") as terminal:
            terminal.type("zv_netrax\n10,20\n260,170\nA\nQUIT\n")
            expect_equal(terminal.wait_for_end(), 0, "exit status")


@check
@not_on_windows("a terminal of Unix")
def quit_asks_nothing_where_nothing_would_be_lost():
    with Desk() as desk:
        plan_on(desk)
        with console(desk, "drawing.dxf") as terminal:
            answer(terminal, "Command: ", "zv_netrax" + ENTER)
            answer(terminal, "[Settings]: ", ESC)
            draw_grid(terminal)
            answer(terminal, "Command: ", "U" + ENTER)
            quit_at_once(terminal)
        with console(desk, "drawing.dxf", "--save", "saved.dxf") as terminal:
            draw_grid(terminal)
            answer(terminal, "Command: ", "QUIT" + ENTER)
            terminal.wait_for("\nsaved saved.dxf\n")
            expect_equal(terminal.wait_for_end(), 0, "exit status")
        with console(desk, "saved.dxf") as terminal:
            answer(terminal, "Command: ", "SAVEAS" + ENTER)
            answer(terminal, ">: ", "copy.dxf" + ENTER)
            answer(terminal, "Command: ", "zv_netrax" + ENTER)
            answer(terminal, "[Settings]: ", "1,1" + ENTER)
            answer(terminal, "corner point: ", "200,200" + ENTER)
            answer(terminal, "[<Apply>/Settings]: ", ESC)
            quit_at_once(terminal)


@check
@not_on_windows("a terminal of Unix")
def the_questions_are_russian_for_a_russian():
    with Desk() as desk, console(desk, "--locale", "ru-RU") as terminal:
        for name in ("new.dxf", "new.dxf"):
            answer(terminal, "Команда: ", "SAVEAS" + ENTER)
            answer(terminal, ": ", name + ENTER)
        answer(terminal, "Заменить его? [Да/Нет] <Нет>: ", "д" + ENTER)
        terminal.wait_for("\nсохранено: new.dxf\n")
        answer(terminal, "Команда: ", "UCSICON" + ENTER)
        answer(terminal, ": ", "0" + ENTER)
        answer(terminal, "Команда: ", "QUIT" + ENTER)
        answer(terminal, "Отказаться от них? [Да/Нет] <Нет>: ", "да" + ENTER)
        expect_equal(terminal.wait_for_end(), 0, "exit status")


@check
@not_on_windows("a terminal of Unix")
def a_script_replaces_files_without_a_word():
    with Desk() as desk:
        plan_on(desk)
        (desk / "other.dxf").write_text("an older one")
        run = desk.run("drawing.dxf", script=GRID + "SAVEAS\nother.dxf\nSAVEAS\n\nzv_netrax\n^C\nQUIT\n")
        expect_equal((run.status, run.errors), (0, ""), "result")
        expect("saved" not in run.said and "Replace" not in run.said, f"said: {run.said!r}")
        expect(has_grid(desk / "other.dxf"), "the grid is not in the file")


@check
@not_on_windows("a terminal of Unix")
def a_session_that_is_hung_up_keeps_the_work_beside_the_drawing():
    with Desk() as desk:
        old = plan_on(desk)
        (desk / "drawing-recovered.dxf").write_text("kept before")
        for number, name in ((signal.SIGHUP, "drawing-recovered-2.dxf"), (signal.SIGTERM, "drawing-recovered-3.dxf")):
            with console(desk, "drawing.dxf") as terminal:
                draw_grid(terminal)
                answer(terminal, "Command: ", "zv_netrax" + ENTER)
                terminal.wait_for("[Settings]: ")
                terminal.send(number)
                expect_equal(terminal.wait_for_end(), -number, "exit status")
                expect(terminal.echoes, "the terminal is left silent")
            expect_equal(kept_in(desk, terminal), name, "file")
        expect_equal((desk / "drawing.dxf").read_bytes(), old, "the drawing")
        expect_equal((desk / "drawing-recovered.dxf").read_text(), "kept before", "the older file")


@check
@not_on_windows("a terminal of Unix")
def a_terminal_that_is_closed_takes_no_work_with_it():
    with Desk() as desk:
        plan_on(desk)
        with console(desk, "drawing.dxf") as terminal:
            draw_grid(terminal)
            terminal.wait_for("Command: ")
            expect_equal(terminal.hang_up(), -signal.SIGHUP, "exit status")
        expect(has_grid(desk / "drawing-recovered.dxf"), "the grid is not in the file")
        with console(desk, "drawing.dxf") as terminal:
            terminal.wait_for(f"{desk.folder.resolve() / 'drawing-recovered.dxf'} keeps changes that were not saved.\n")
            leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def the_end_of_the_input_gives_no_work_up():
    with Desk() as desk:
        for key, environment, name in ((CTRL_D, {}, "drawing-recovered.dxf"),
                                       (CTRL_C, {"TERM": "dumb"}, "drawing-recovered-2.dxf")):
            with console(desk, **environment) as terminal:
                draw_grid(terminal)
                answer(terminal, "Command: ", key)
                terminal.wait_for_end()
            expect_equal(kept_in(desk, terminal), f"{STATE}/{name}", "file of a new drawing")


@check
@not_on_windows("a terminal of Unix")
def a_save_that_fails_at_the_end_of_a_session_keeps_the_work():
    with Desk() as desk:
        plan_on(desk)
        (desk / "folder").mkdir()
        with console(desk, "drawing.dxf", "--save", "folder/saved.dxf") as terminal:
            draw_grid(terminal)
            terminal.wait_for("Command: ")
            (desk / "folder").rmdir()
            terminal.type("QUIT" + ENTER)
            expect_equal(terminal.wait_for_end(), 1, "exit status")
        expect("arxhost: folder/saved.dxf: cannot be saved: No such file or directory\n" in terminal.shown,
               f"no reason in {terminal.shown!r}")
        expect_equal(kept_in(desk, terminal), "drawing-recovered.dxf", "file")


@check
@not_on_windows("a terminal of Unix")
def a_folder_that_takes_no_file_is_not_the_end_of_the_work():
    long_name = "a" * 240 + ".dxf"  # no word more has room behind it
    with Desk() as desk:
        for number, name in enumerate(("site.dxf", long_name)):
            (desk / "disk").mkdir()
            desk.bring(PLAN, "disk/" + name)
            with console(desk, "disk/" + name) as terminal:
                draw_grid(terminal)
                terminal.wait_for("Command: ")
                shutil.rmtree(desk / "disk")
                terminal.type(CTRL_D)
                expect_equal(terminal.wait_for_end(), 0, "exit status")
            expect_equal(kept_in(desk, terminal), f"{STATE}/{('site', 'drawing')[number]}-recovered.dxf", "file")
