"""arxhost at a terminal, script files of the CAD program, and runs that print nothing."""
import signal

from common import CORNERS, GRID, PLAN, Desk, check, expect, expect_equal, not_on_windows, one_line
from console import Console

ENTER, TAB, ESC, UP, LEFT, BACKSPACE = "\r", "\t", "\x1b", "\x1b[A", "\x1b[D", "\x7f"
CTRL_C, CTRL_D = "\x03", "\x04"


def console(desk, *arguments, **environment):
    command = [str(desk.build / "arxhost"), "--module", "netrax.arx", *arguments]
    home = {"HOME": str(desk / "home")}
    return Console(command, desk.folder, **(home | environment))


def answer(terminal, prompt, typed):
    terminal.wait_for(prompt)
    terminal.type(typed)


def draw_grid(terminal, first="10,20", other="260,170"):
    for prompt, typed in (("Command: ", "zv_netrax"), ("corner point [Settings]: ", first),
                          ("other corner point: ", other), ("[<Apply>/Settings]: ", "A")):
        answer(terminal, prompt, typed + ENTER)


def leave(terminal):
    answer(terminal, "Command: ", CTRL_D)
    expect_equal(terminal.wait_for_end(), 0, f"exit status after {terminal.shown!r}")


@check
@not_on_windows("a terminal of Unix")
def a_line_can_be_edited_at_a_terminal():
    with Desk() as desk, console(desk) as terminal:
        answer(terminal, "Command: ", "XШАГZ" + LEFT + BACKSPACE + "Ы" + ENTER)
        terminal.wait_for('Unknown command "XШАЫZ".')
        leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def a_session_that_is_terminated_leaves_the_terminal_as_it_was():
    for number in (signal.SIGTERM, signal.SIGHUP):
        with Desk() as desk, console(desk) as terminal:
            terminal.wait_for("Command: ")
            expect(not terminal.echoes, "the terminal echoes while a line is edited")
            terminal.send(number)
            expect_equal(terminal.wait_for_end(), -number, "exit status")
            expect(terminal.echoes, f"signal {number} leaves the terminal silent")


@check
@not_on_windows("a terminal of Unix")
def a_line_survives_the_resizing_of_its_window():
    with Desk() as desk, console(desk) as terminal:
        answer(terminal, "Command: ", "ABC")
        terminal.wait_for("ABC")
        for columns in (60, 120):
            terminal.resize(columns)
        terminal.type("DEF" + LEFT * 6 + "X" + ENTER)
        terminal.wait_for('Unknown command "XABCDEF".')
        leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def each_prompt_is_shown_once_and_each_answer_ends_its_line():
    with Desk() as desk, console(desk) as terminal:
        draw_grid(terminal)
        leave(terminal)
        told = [line for line in terminal.shown.replace("\r", "\n").split("\n")
                if line and not line.startswith(("Progress:", "***", "arxhost"))]
        expect_equal(told, ["Command: zv_netrax", "Specify first corner point [Settings]: 10,20",
                            "Specify other corner point: 260,170", "[<Apply>/Settings]: A",
                            "Command: ^D"], "lines")


def many_circles(count):
    circles = "".join(f"0\nCIRCLE\n10\n{i % 300}\n20\n{i // 300}\n40\n{i % 7 + 1}.5\n" for i in range(count))
    return f"0\nSECTION\n2\nENTITIES\n{circles}0\nENDSEC\n0\nEOF\n"


@check
@not_on_windows("a terminal of Unix")
def long_work_shows_how_far_it_has_come_and_leaves_no_trace():
    work = ["circles.dxf", "--script", "nothing.txt", "--plot", "circles.png"]
    with Desk() as desk:
        (desk / "circles.dxf").write_text(many_circles(32000))
        (desk / "nothing.txt").write_text("")
        with console(desk, *work) as terminal:
            terminal.wait_for("Plotting [")
            terminal.wait_for("] 100%")
            expect_equal(terminal.wait_for_end(), 0, "exit status")
            expect(terminal.shown.endswith("\r" + " " * 99 + "\r"), f"something is left: {terminal.shown[-200:]!r}")
        with console(desk, *work, "--quiet") as terminal:
            expect_equal((terminal.wait_for_end(), terminal.shown), (0, ""), "quiet: exit status and what is shown")
        run = desk.run(*work)
        expect_equal((run.said.strip(), run.errors), ("Command:", ""), "what a script's reader is shown")


@check
@not_on_windows("a terminal of Unix")
def arrow_up_brings_earlier_lines_back_also_in_the_next_session():
    with Desk() as desk:
        with console(desk) as terminal:
            answer(terminal, "Command: ", "FIRST" + ENTER)
            answer(terminal, "Command: ", "SECOND" + ENTER)
            answer(terminal, "Command: ", UP + UP + ENTER)
            terminal.wait_for('Unknown command "FIRST".')
            leave(terminal)
        expect((desk / "home" / ".local" / "state" / "arxhost" / "history").exists(), "no history file")
        with console(desk) as terminal:
            answer(terminal, "Command: ", UP + UP + ENTER)
            terminal.wait_for('Unknown command "SECOND".')
            leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def the_history_is_kept_where_the_user_keeps_such_things():
    with Desk() as desk:
        with console(desk, XDG_STATE_HOME=str(desk / "state")) as terminal:
            leave(terminal)
        expect((desk / "state" / "arxhost" / "history").exists(), "no history file")
        expect(not (desk / "home").exists(), "the home folder was used as well")


@check
@not_on_windows("a terminal of Unix")
def a_history_that_cannot_be_kept_is_no_reason_for_a_word():
    with Desk() as desk:
        (desk / "state").write_text("no folder")
        with console(desk, XDG_STATE_HOME=str(desk / "state")) as terminal:
            answer(terminal, "Command: ", "FIRST" + ENTER)
            answer(terminal, "Command: ", UP + ENTER)
            leave(terminal)
        expect_equal(terminal.shown.count('Unknown command "FIRST".'), 2, "times that the line was taken")
        expect("arxhost:" not in terminal.shown, f"something was said: {terminal.shown!r}")


@check
@not_on_windows("a terminal of Unix")
def tab_completes_commands_variables_and_keywords():
    with Desk() as desk, console(desk) as terminal:
        answer(terminal, "Command: ", "ucsi" + TAB + ENTER)
        terminal.wait_for("Enter new value for UCSICON")
        answer(terminal, ": ", ENTER)
        answer(terminal, "Command: ", "_ZV" + TAB + ENTER)
        answer(terminal, "[Settings]: ", "s" + TAB)
        terminal.wait_for("S")  # the keyword is this letter
        terminal.type(ENTER)
        answer(terminal, "Dialog: ", "clo" + TAB + ENTER)
        terminal.wait_for("[dialog closed] cancel")
        answer(terminal, "[Settings]: ", ESC)
        leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def tab_goes_as_far_as_the_names_agree_and_then_lists_them():
    names = "VIEWCTR  VIEWDIR  VIEWSIZE  VIEWTWIST"
    with Desk() as desk, console(desk) as terminal:
        answer(terminal, "Command: ", "vi" + TAB + ENTER)
        expect(names not in terminal.wait_for('Unknown command "VIEW".'), "the names were listed")
        answer(terminal, "Command: ", "VIEW" + TAB)
        terminal.wait_for(f"\n{names}  \n")
        answer(terminal, "Command: VIEW", BACKSPACE * 3 + TAB)
        terminal.wait_for(f"\n{names}  VPOINT  \n")
        answer(terminal, "Command: V", "IEWT" + TAB + ENTER)
        terminal.wait_for("\nVIEWTWIST = 0\n")
        leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def ctrl_c_and_esc_cancel_the_command_but_not_the_program():
    with Desk() as desk, console(desk) as terminal:
        for key in (CTRL_C, ESC, "half a word" + CTRL_C, "half" + ESC, "front" + LEFT + CTRL_C):
            answer(terminal, "Command: ", "zv_netrax" + ENTER)
            answer(terminal, "[Settings]: ", key)
            terminal.wait_for("^C\n")
        expect("front\bt^C" in terminal.shown, "the end of the line was overwritten")
        answer(terminal, "Command: ", CTRL_C)
        terminal.wait_for("^C\n")
        leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def ctrl_c_does_not_stop_a_command_that_computes():
    with Desk() as desk, console(desk, "--save", "saved.dxf") as terminal:
        draw_grid(terminal, "0,0", "5000,5000")
        terminal.wait_for("Progress: [")
        terminal.send(signal.SIGINT)  # the terminal does so for Ctrl-C, unless a line is being edited
        leave(terminal)
        expect("\nAcDbGroup\n" in (desk / "saved.dxf").read_text(), "the grid was not kept")


@check
@not_on_windows("a terminal of Unix")
def the_end_of_input_at_a_terminal_is_ctrl_d():
    with Desk() as desk, console(desk) as terminal:
        answer(terminal, "Command: ", "zv_netrax" + ENTER)
        answer(terminal, "[Settings]: ", CTRL_D)
        expect_equal(terminal.wait_for_end(), 1, "exit status")
        expect("\narxhost: the input ended in the middle of zv_netrax\n" in terminal.shown,
               f"no line about it in {terminal.shown!r}")


@check
@not_on_windows("a terminal of Unix")
def the_dialog_is_printed_at_a_terminal_and_worked_by_lines():
    with Desk() as desk, console(desk) as terminal:
        answer(terminal, "Command: ", "zv_netrax" + ENTER)
        answer(terminal, "[Settings]: ", "S" + ENTER)
        printed = terminal.wait_for("Dialog: ")
        expect("\n   107  Vertical step: [100.0000]\n" in printed, f"no such line in {printed!r}")
        terminal.type("set 107 25" + ENTER)
        answer(terminal, "Dialog: ", "show" + ENTER)
        printed = terminal.wait_for("Dialog: ")
        expect('\n[control] 107 edit enabled - "25"\n' in printed, f"no such line in {printed!r}")
        terminal.type("close" + ENTER)
        terminal.wait_for("\n[dialog closed] cancel\n")
        answer(terminal, "[Settings]: ", ESC)
        leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def the_meter_is_a_bar_that_goes_away():
    with Desk() as desk:
        with console(desk) as terminal:
            draw_grid(terminal)
            leave(terminal)
        bars = terminal.raw.split(b"\r")
        expect(b"Progress: [" + b"#" * 20 + b"." * 20 + b"] 50%\x1b[K" in bars, f"no bar at 50% in {bars}")
        last = max(i for i, bar in enumerate(bars) if bar.startswith(b"Progress: "))
        expect(bars[last + 1].startswith(b"\x1b[K"), f"the bar was not erased: {bars[last:]}")
        expect("Progress" not in desk.run(script=GRID).said, "a script's output has the bar")


@check
@not_on_windows("a terminal of Unix")
def a_narrow_terminal_gets_a_narrow_bar():
    with Desk() as desk:
        command = [str(desk.build / "arxhost"), "--module", "netrax.arx"]
        with Console(command, desk.folder, columns=50, HOME=str(desk / "home")) as terminal:
            draw_grid(terminal)
            leave(terminal)
        expect(b"\rProgress: [" + b"#" * 16 + b"." * 16 + b"] 50%\x1b[K" in terminal.raw, f"no such bar in {terminal.raw}")


@check
@not_on_windows("a terminal of Unix")
def prompts_are_dim_unless_the_user_wants_no_colour():
    dim = b"\x1b[2mCommand:\x1b[0m "
    with Desk() as desk:
        for wanted, environment in ((True, {}), (True, {"NO_COLOR": ""}), (False, {"NO_COLOR": "1"})):
            with console(desk, **environment) as terminal:
                leave(terminal)
            expect_equal(dim in terminal.raw, wanted, f"a dim prompt with {environment}")


@check
@not_on_windows("a terminal of Unix")
def a_terminal_that_understands_nothing_gets_plain_lines():
    with Desk() as desk, console(desk, TERM="dumb") as terminal:
        answer(terminal, "Command: ", "zv_netrax\n")
        answer(terminal, "[Settings]: ", "^C\n")
        leave(terminal)
        expect(b"\x1b" not in terminal.raw, f"there are escape sequences in {terminal.raw}")


@check
@not_on_windows("a terminal of Unix")
def a_script_file_of_the_CAD_program_has_blanks_between_its_answers():
    with Desk() as desk:
        by_lines = desk.run("--save", "lines.dxf", script=GRID)
        (desk / "properties.ini").unlink()
        (desk / "grid.SCR").write_bytes(b"; one line\r\nzv_netrax 10,20 260,170 A\r\n")
        by_blanks = desk.run("--script", "grid.SCR", "--save", "blanks.dxf")
        expect_equal((by_blanks.status, by_blanks.errors), (0, ""), "result")
        expect_equal(by_blanks.said, by_lines.said, "transcripts")
        expect((desk / "blanks.dxf").read_bytes() == (desk / "lines.dxf").read_bytes(), "the drawings differ")
        (desk / "grid.txt").write_bytes((desk / "grid.SCR").read_bytes())
        expect("Unknown command" in desk.run("--script", "grid.txt").said, "blanks end answers in any file")


@check
@not_on_windows("a terminal of Unix")
def a_script_file_of_the_CAD_program_works_the_dialog_by_lines():
    with Desk() as desk:
        (desk / "grid.scr").write_text("zv_netrax S\nset 107 25\n\n10,20 260,170 \n")
        run = desk.run("--script", "grid.scr")
        expect_equal((run.status, run.errors), (0, ""), "result")
        # The grid was accepted by the blank before the line end, which is Enter.
        expect("=25.0000" in (desk / "properties.ini").read_text(), "the step is not 25")


@check
@not_on_windows("a terminal of Unix")
def host_commands_take_their_answers_from_one_line_of_a_script_file():
    with Desk() as desk:
        (desk / "all.scr").write_text('SETVAR UCSICON 1 DVIEW  TW 30  SAVEAS "a b.dxf" VIEWTWIST \n')
        run = desk.run("--script", "all.scr")
        expect_equal((run.status, run.errors), (0, ""), "result")
        for line in ("UCSICON = 1", "VIEWTWIST = 30"):
            expect(line in run.said.split("\n"), f"no line {line!r} in {run.said!r}")
        expect((desk / "a b.dxf").exists(), "the drawing was not saved under its name")


@check
@not_on_windows("a terminal of Unix")
def a_quiet_run_prints_nothing_and_does_the_same():
    with Desk() as desk:
        desk.bring(PLAN)
        plain = desk.run("drawing.dxf", "--save", "plain.dxf", script=GRID)
        (desk / "properties.ini").unlink()
        quiet = desk.run("drawing.dxf", "--quiet", "--trace", "--save", "quiet.dxf", script=GRID)
        expect_equal((quiet.status, quiet.said, quiet.errors), (0, "", ""), "result")
        expect(plain.said != "", "the other run printed nothing either")
        expect((desk / "quiet.dxf").read_bytes() == (desk / "plain.dxf").read_bytes(), "the drawings differ")


@check
@not_on_windows("a terminal of Unix")
def a_quiet_run_still_tells_its_errors():
    with Desk() as desk:
        for arguments, script in ((["nowhere.dxf"], ""), ([], CORNERS)):
            plain, quiet = (desk.run(*arguments, *more, script=script) for more in ([], ["--quiet"]))
            expect_equal((quiet.status, quiet.said), (1, ""), "result")
            expect_equal(quiet.errors, plain.errors, "standard error")
            expect(one_line(quiet.errors), f"standard error is not one line: {quiet.errors!r}")


# A question of the host's own and what is answered; keywords may be English.
IN_RUSSIAN = (
    ("Команда: ", "ПРИВЕТ"), ('Неизвестная команда "ПРИВЕТ". Список команд: HELP.\nКоманда: ', "UCS"),
    ("Имя текущей ПСК:  *МИР*\nУкажите начало ПСК или [Начало/Предыдущая/Мир/X/Y/Z] <Мир>: ", "н"),
    ("Новое начало координат: ", "где"), ("Недопустимая точка.\nНовое начало координат: ", "5,5"),
    ("Команда: ", "UCS"), ("Имя текущей ПСК:  *БЕЗ ИМЕНИ*\n", "World"), ("Команда: ", "UCS"), ("*МИР*\n", "Z"),
    ("Угол поворота вокруг оси Z <90>: ", "30"), ("Команда: ", "DVIEW"), ("Выберите объекты или <DVIEWBLOCK>: ", ""),
    ("Задайте параметр [ПОворот]: ", "по"), ("Угол поворота вида <0>: ", "10"), ("[ПОворот]: ", ""),
    ("Команда: ", "PLAN"), ("Задайте параметр [Текущая пск/Пск/Мир] <Текущая>: ", "мир"), ("Команда: ", "SETVAR"),
    ("Имя переменной: ", "ucsicon"), ("Новое значение UCSICON <3>: ", "99"), ("Требуется целое число от ", "1"),
    ("UCSICON = 1\nКоманда: ", "VPOINT"), ("Укажите точку зрения <не менять>: ", ""), ("Команда: ", "SAVEAS"),
    ("Сохранить чертёж как: ", ""), ("Команда: ", "PLOT"), ("Файл для печати (.png, .pdf или .svg): ", ""),
    ("Команда: ", "ARX"), ("Задайте параметр [Загрузить/Выгрузить/Команды]: ", "з"), ("Имя загружаемого файла ARX: ", ""),
    ("Команда: ", "zv_netrax"), ("[Настройки]: ", "Н"), ("select НОМЕР ТЕКСТ или #N — выбрать,", ""),
)


@check
@not_on_windows("a terminal of Unix")
def the_hosts_own_questions_are_russian_for_a_russian_at_a_terminal():
    with Desk() as desk, console(desk, "--locale", "ru-RU") as terminal:
        for prompt, typed in IN_RUSSIAN[:-1]:
            answer(terminal, prompt, typed + ENTER)
        terminal.wait_for(IN_RUSSIAN[-1][0])
        answer(terminal, "Диалог: ", "check 107 on" + ENTER)
        terminal.wait_for("Элемент 107 — поле ввода, команда check к нему не подходит.\n")
        answer(terminal, "Диалог: ", "set 107 0.1" + ENTER)
        answer(terminal, "Диалог: ", ENTER)
        answer(terminal, "]: ", "0,0" + ENTER)
        answer(terminal, ": ", "100,100" + ENTER)
        answer(terminal, "(Да/Нет) -> ", "может быть" + ENTER)
        answer(terminal, "Ответьте одной из кнопок: Да/Нет.", "нет" + ENTER)
        answer(terminal, "]: ", ESC)
        answer(terminal, "Команда: ", CTRL_D)
        expect_equal(terminal.wait_for_end(), 0, f"exit status after {terminal.shown!r}")


@check
def a_script_reads_the_hosts_own_questions_in_english_whatever_the_language():
    with Desk() as desk:
        script = "UCS\n\nSETVAR\nUCSICON\n3\nzv_netrax\n^C\n"
        said = [desk.run("--locale", locale, script=script).said.split("zv_netrax")[0] for locale in ("en-US", "ru-RU")]
        expect_equal(said[1], said[0], "what a script gets to read")
        expect("Enter variable name: UCSICON\n" in said[1], f"no such prompt in {said[1]!r}")


WELCOME = {"en-US": "arxhost 1.0.0 for DXF drawings: zv_netrax, SAVEAS, QUIT; HELP lists the rest.\n",
           "ru-RU": "arxhost 1.0.0, чертежи DXF: zv_netrax, SAVEAS, QUIT; остальное перечислит HELP.\n"}


@check
@not_on_windows("a terminal of Unix")
def a_session_at_a_terminal_begins_with_one_line_that_says_how_to_go_on():
    for kind in ("xterm", "dumb"):
        for locale, welcome in WELCOME.items():
            with Desk() as desk, console(desk, "--locale", locale, TERM=kind) as terminal:
                prompt = "Command: " if locale == "en-US" else "Команда: "
                expect_equal(terminal.wait_for(prompt), welcome + prompt, "what a session begins with")
                terminal.type(CTRL_D)
                terminal.wait_for_end()


@check
@not_on_windows("a terminal of Unix")
def neither_a_script_nor_a_quiet_run_begins_with_it():
    with Desk() as desk:
        (desk / "quit.txt").write_text("QUIT\n")
        expect_equal(desk.run("--script", "quit.txt").said, "Command: QUIT\n", "what a script gets to read")
        with console(desk, "--script", "quit.txt") as terminal:
            terminal.wait_for_end()
            expect_equal(terminal.shown, "Command: QUIT\n", "what a script at a terminal shows")
        with console(desk, "--quiet") as terminal:
            terminal.type("QUIT\n")
            terminal.wait_for_end()
            expect_equal(terminal.shown, "QUIT\n", "what a quiet run shows")


@check
@not_on_windows("a terminal of Unix")
def HELP_and_a_question_mark_list_every_command_in_one_line():
    names = ["zv_netrax", "?", "ARX", "DVIEW", "HELP", "PLAN", "PLOT", "QUIT", "REDO", "SAVEAS", "SETVAR", "U", "UCS",
             "VPOINT"]
    rows = {"en-US": "SAVEAS      saves the drawing as DXF", "ru-RU": "SAVEAS      сохраняет чертёж в DXF"}
    for locale, row in rows.items():
        for typed in ("HELP", "?"):
            with Desk() as desk, console(desk, "--locale", locale) as terminal:
                answer(terminal, "Command: " if locale == "en-US" else "Команда: ", typed + ENTER)
                lines = terminal.wait_for("VPOINT").split("\n")[1:]
                expect_equal([line.split(" ")[0] for line in lines], names, "names listed")
                expect(row in lines, f"no line {row!r} in {lines}")
    with Desk() as desk:
        said = desk.run(script="zv_netrax\n'HELP\n^C\n").said
        expect("\nQUIT        ends the session\n" in said, f"no help inside a command: {said!r}")


@check
@not_on_windows("a terminal of Unix")
def the_printed_dialog_tells_the_boxes_of_the_edges_apart_and_what_a_list_offers():
    wanted = {"en-US": ("135  [x] X (top)", "137  [x] Y (top)", "139  [x] X (left)", "150  [x] Y (left)",
                        "141  [x] X (right)", "148  [x] Y (right)", "136  [x] X (bottom)", "140  [x] Y (bottom)",
                        "133  Accuracy: [0]  one of: 0, 0.0, 0.00, 0.000, 0.0000", "154  [ ] Text"),
              "ru-RU": ("135  [x] X (сверху)", "150  [x] Y (слева)", "148  [x] Y (справа)", "140  [x] Y (снизу)",
                        "133  Точность: [0]  варианты: 0, 0.0, 0.00, 0.000, 0.0000")}
    for locale, lines in wanted.items():
        with Desk() as desk, console(desk, "--locale", locale) as terminal:
            answer(terminal, ": ", "zv_netrax" + ENTER)
            answer(terminal, "]: ", ("S" if locale == "en-US" else "Н") + ENTER)
            printed = terminal.wait_for("^C")
            for line in lines:
                expect(f"  {line}\n" in printed, f"no line {line!r} in {printed}")


@check
@not_on_windows("a terminal of Unix")
def tab_completes_the_names_of_files_where_a_file_is_asked_for():
    with Desk() as desk, console(desk) as terminal:
        (desk / "site plans").mkdir()
        for name in ("site plans/North.dxf", "site plans/north 2.dxf", "site plans/.hidden"):
            (desk / name).write_text("")
        answer(terminal, "Command: ", "SAVEAS" + ENTER)
        answer(terminal, "Save drawing as: ", "si" + TAB)
        terminal.wait_for("te plans/")
        terminal.type(TAB)
        terminal.wait_for("\nNorth.dxf  north 2.dxf  \n")
        terminal.type("n" + TAB)
        terminal.wait_for("orth 2.dxf")
        terminal.type(CTRL_C)
        answer(terminal, "Command: ", "PLOT" + ENTER)
        answer(terminal, ".svg): ", '"site plans/N' + TAB)
        terminal.wait_for("orth.dxf")
        terminal.type(CTRL_C)
        answer(terminal, "Command: ", "ARX" + ENTER)
        answer(terminal, "]: ", "L" + ENTER)
        answer(terminal, "to load: ", "netr" + TAB)
        terminal.wait_for("ax.arx")
        terminal.type(CTRL_C)
        leave(terminal)


@check
@not_on_windows("a terminal of Unix")
def tab_inside_a_word_completes_the_word_and_does_not_split_it():
    with Desk() as desk, console(desk) as terminal:
        answer(terminal, "Command: ", "ucsi" + LEFT * 2 + TAB + ENTER)
        answer(terminal, "Enter new value for UCSICON <3>: ", CTRL_C)
        answer(terminal, "Command: ", "UCSXX" + LEFT * 2 + TAB + ENTER)  # no such word: nothing is put in
        terminal.wait_for('Unknown command "UCSXX".')
        leave(terminal)
