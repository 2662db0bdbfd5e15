"""arxhost at a console of Windows: lines that the console edits, and its Ctrl-C."""
import os
import time

from common import PLAN, Desk, check, expect, expect_equal, only_on_windows
from arxhost import program
from console import Console

ENTER, CTRL_C = "\r", "\x03"
HERE = "a console of Windows"


def console(desk, *arguments, before=()):
    wine, arxhost = program(desk.build)
    given = arguments or ("--module", "netrax.arx", "--save", "saved.dxf")
    return Console(["/usr/bin/env", wine, *before, arxhost, *given], desk.folder, **os.environ)


def answer(shown, prompt, typed):
    shown.wait_for(prompt)
    while shown.echoes:  # Wine's console has not taken the keyboard over yet
        time.sleep(0.05)
    shown.type(typed)


def cancel(shown, prompt):
    """Ctrl-C in the middle of a line: once a letter shows, the console is reading."""
    answer(shown, prompt, "12,3")
    shown.wait_for("12,3")
    shown.type(CTRL_C)


def leave(shown):
    answer(shown, "Command: ", "QUIT" + ENTER)
    expect_equal(shown.wait_for_end(), 0, f"exit status after {shown.shown!r}")


@check
@only_on_windows(HERE)
def a_grid_can_be_drawn_at_a_console_of_windows():
    with Desk() as desk, console(desk) as shown:
        for prompt, typed in (("Command: ", "; a comment"), ("", "zv_netrax"),
                              ("corner point [Settings]: ", "10,20"), ("other corner point: ", "260,170"),
                              ("[<Apply>/Settings]: ", "A")):
            answer(shown, prompt, typed + ENTER)
        leave(shown)
        expect_equal((desk / "saved.dxf").exists(), True, "the drawing is saved")


@check
@only_on_windows(HERE)
def ctrl_c_cancels_the_question_at_a_console_of_windows():
    with Desk() as desk, console(desk) as shown:
        answer(shown, "Command: ", "zv_netrax" + ENTER)
        cancel(shown, "first corner point [Settings]: ")
        cancel(shown, "\nCommand: ")
        answer(shown, "\nCommand: ", "zv_netrax" + ENTER)
        cancel(shown, "\nSpecify first corner point [Settings]: ")
        leave(shown)


@check
@only_on_windows(HERE)
def a_dialog_is_worked_with_lines_at_a_console_of_windows():
    with Desk() as desk, console(desk) as shown:
        for prompt, typed in (("Command: ", "zv_netrax"), ("[Settings]: ", "S"),
                              ("Dialog: ", "set 107 25"), ("Dialog: ", ""),
                              ("[Settings]: ", "S"), ("Vertical step: [25.0000]", "close"),
                              ("[Settings]: ", "^C")):
            answer(shown, prompt, typed + ENTER)
        leave(shown)


@check
@only_on_windows(HERE)
def ctrl_c_cancels_the_dialog_at_a_console_of_windows():
    with Desk() as desk, console(desk) as shown:
        answer(shown, "Command: ", "zv_netrax" + ENTER)
        answer(shown, "[Settings]: ", "S" + ENTER)
        cancel(shown, "Dialog: ")
        shown.wait_for("[dialog closed] cancel")
        cancel(shown, "[Settings]: ")
        leave(shown)


@check
@only_on_windows(HERE)
def russian_letters_are_whole_at_a_console_of_windows():
    with Desk() as desk, console(desk, "--module", "netrax.arx", "--locale", "ru-RU") as shown:
        answer(shown, "остальное перечислит HELP.\nКоманда: ", "ПРИВЕТ" + ENTER)
        answer(shown, 'Неизвестная команда "ПРИВЕТ".', "QUIT" + ENTER)
        expect_equal(shown.wait_for_end(), 0, f"exit status after {shown.shown!r}")


@check
@only_on_windows(HERE)
def a_console_of_its_own_stays_open_until_a_failure_has_been_read():
    error = "arxhost: плохой.dxf: cannot be opened: No such file or directory\n"
    with Desk() as desk:
        with console(desk, "плохой.dxf") as shown:
            answer(shown, error + "Press Enter to close the window.", ENTER)
            expect_equal(shown.wait_for_end(), 1, "exit status")
        with console(desk, "плохой.dxf", before=("cmd", "/c")) as shown:
            shown.wait_for(error)
            expect_equal(shown.wait_for_end(), 1, "exit status in the console of another program")
            expect_equal("Press Enter" in shown.shown, False, "waits all the same")


@check
@only_on_windows(HERE)
def a_console_of_windows_that_goes_away_takes_no_work_with_it():
    with Desk() as desk:
        desk.bring(PLAN)
        command = [*program(desk.build), "drawing.dxf", "--module", "netrax.arx"]
        # Wine itself would be ended by the signal of the terminal.
        with Console(["/bin/sh", "-c", 'trap "" HUP; exec "$@"', "sh", *command], desk.folder, **os.environ) as shown:
            for prompt, typed in (("Command: ", "zv_netrax"), ("corner point [Settings]: ", "10,20"),
                                  ("other corner point: ", "260,170"), ("[<Apply>/Settings]: ", "A")):
                answer(shown, prompt, typed + ENTER)
            shown.wait_for("Command: ")
            shown.hang_up()
        kept = (desk / "drawing-recovered.dxf").read_bytes()
        expect(b"AcDbGroup\n" in kept.replace(b"\r\n", b"\n"), "the grid is not in the file")
