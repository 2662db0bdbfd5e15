"""Usage, exit statuses, and what is left on disk."""
import os
import re
import subprocess

from common import CORNERS, GRID, PLAN, Desk, check, expect, expect_equal, not_on_windows, one_line


def refused(desk, *arguments, status=1, script="", **more):
    """Runs what must be refused; gives the one line on standard error."""
    run = desk.run(*arguments, script=script, **more)
    expect_equal(run.status, status, f"exit status of {arguments}")
    if status == 1:
        expect(one_line(run.errors), f"standard error is not one line: {run.errors!r}")
    expect(run.errors, "nothing was said on standard error")
    return run.errors


@check
def help_and_version_are_no_failure():
    with Desk() as desk:
        for option in ("--help", "--version"):
            run = desk.run(option, module=None)
            expect_equal((run.status, run.errors), (0, ""), option)
            expect(run.said.strip(), f"{option} printed nothing")
        said = desk.run("--help", module=None).said
        for option in ("--module", "--script", "--locale", "--save", "--trace", "--version"):
            expect(option in said, f"--help does not tell of {option}")


@check
def wrong_usage_ends_with_status_2():
    with Desk() as desk:
        for arguments in (["--nonsense"], ["a.dxf", "b.dxf"], ["--script"], ["--save"], ["--locale"],
                          ["--locale", "fr-FR"], [""], ["--save", ""], ["--plot", ""], ["--plot", "a.dxf"]):
            refused(desk, *arguments, status=2, script=None, module=None)
        expect_equal(sorted(p.name for p in desk.folder.iterdir()), ["netrax.arx"], "files")


@check
def an_empty_script_is_a_normal_end():
    with Desk() as desk:
        run = desk.run(script="")
        expect_equal((run.status, run.errors), (0, ""), "result")


@check
def an_unknown_command_is_no_failure():
    with Desk() as desk:
        run = desk.run(script="nonsense\n" + CORNERS + "^C\n")
        expect_equal(run.status, 0, "exit status")
        expect("nonsense" in run.said, "the answer is not echoed")
        expect("Specify first corner point" in run.said, "the session did not go on")


@check
def a_missing_or_unreadable_drawing_is_one_line_and_status_1():
    with Desk() as desk:
        expect("nowhere.dxf" in refused(desk, "nowhere.dxf"), "the file is not named")
        (desk / "empty.dxf").write_bytes(b"")
        refused(desk, "empty.dxf", "--save", "saved.dxf")
        (desk / "folder").mkdir()
        refused(desk, "folder", "--save", "saved.dxf")
        expect(not (desk / "saved.dxf").exists(), "something was saved")


@check
def a_file_of_another_kind_is_refused_as_what_it_is():
    with Desk() as desk:
        (desk / "folder").mkdir()
        expect("found a directory" in refused(desk, "folder"), "a directory")
        for name, start in (("a PDF document", b"%PDF-1.4\n"), ("a ZIP archive", b"PK\3\4\24\0"),
                            ("a gzip archive", b"\x1f\x8b\x08\0"), ("a DWG", b"AC1032\0\0\0\0"),
                            ("text in UTF-16", PLAN.read_text().encode("utf-16"))):
            (desk / "other.dxf").write_bytes(start)
            said = refused(desk, "other.dxf")
            expect(f"other.dxf: line 1: expected a DXF drawing, found {name}\n" in said, f"{name}: {said!r}")


@check
def a_broken_drawing_is_refused_with_the_line_number():
    lines = PLAN.read_text().split("\n")
    with Desk() as desk:
        for at in (10, 300, 1000):
            broken = lines[:]
            broken[at] = "no group code"
            (desk / "broken.dxf").write_text("\n".join(broken))
            said = refused(desk, "broken.dxf", "--save", "saved.dxf")
            expect(re.search(rf"\b{at + 1}\b", said), f"line {at + 1} is not named: {said!r}")
        expect(not (desk / "saved.dxf").exists(), "something was saved")


@check
def a_drawing_cut_anywhere_is_refused_or_read_but_never_half_saved():
    data = PLAN.read_bytes()
    with Desk() as desk:
        for at in range(0, len(data) - 10, len(data) // 40):
            (desk / "cut.dxf").write_bytes(data[:at])
            refused(desk, "cut.dxf", "--save", "saved.dxf")
        expect(not (desk / "saved.dxf").exists(), "something was saved")


@check
def a_missing_or_wrong_module_is_one_line_and_status_1():
    with Desk() as desk:
        expect("nowhere.arx" in refused(desk, module="nowhere.arx"), "the file is not named")
        (desk / "text.arx").write_text("this is no module")
        refused(desk, "--save", "saved.dxf", module="text.arx")
        expect(not (desk / "saved.dxf").exists(), "something was saved")


@check
def a_missing_script_is_one_line():
    with Desk() as desk:
        run = desk.run("--script", "nowhere.txt")
        expect(run.status in (1, 2), f"exit status {run.status}")
        expect("nowhere.txt" in run.errors, "the file is not named")


@check
def the_module_is_found_beside_the_program():
    with Desk() as desk:
        run = desk.run(script=CORNERS + "^C\n", module=None)
        expect_equal(run.status, 0, f"exit status ({run.errors})")
        expect("Specify first corner point" in run.said, "the command did not run")


@check
def saving_that_fails_is_one_line_and_status_1():
    with Desk() as desk:
        refused(desk, "--save", "no/such/folder/saved.dxf")
        (desk / "taken").mkdir()
        refused(desk, "--save", "taken")
        expect(not list((desk / "taken").iterdir()), "something was left in the folder")


@check
def a_name_of_the_wrong_kind_is_refused_in_one_line():
    with Desk() as desk:
        for option, name in (("--save", "out.txt"), ("--save", "out.dwg"), ("--save", "out"), ("--save", "dxf"),
                             ("--save", "/dev/nosuch"), ("--save", "/dev/shm/netrax-out.txt"),
                             ("--dialog-picture", "picture.svg"), ("--dialog-picture", "picture")):
            said = refused(desk, option, name, status=2, script=GRID)
            expect(one_line(said) and name in said, f"{option} {name}: {said!r}")
        expect_equal(sorted(p.name for p in desk.folder.iterdir()), ["netrax.arx"], "files")
        expect_equal(desk.run("--save", "OUT.DXF", script="").status, 0, "exit status of capitals")


@check
def where_nothing_can_be_written_is_told_before_the_work():
    with Desk() as desk:
        (desk / "file").write_text("no folder")
        for option, ending in (("--save", "dxf"), ("--plot", "png"), ("--dialog-picture", "png")):
            for folder in ("nowhere", "file"):
                run = desk.run(option, f"{folder}/out.{ending}", script=GRID)
                expect_equal((run.status, run.said), (1, ""), f"{option} {folder}")
                expect(one_line(run.errors) and f"{folder}/out.{ending}: cannot be saved: " in run.errors, run.errors)
        expect(not (desk / "properties.ini").exists(), "the command ran")


@check
@not_on_windows("devices and pipes of Unix")
def a_drawing_can_be_saved_to_a_device_or_pipe():
    with Desk() as desk:
        expect_equal(desk.run("--save", "new.dxf", script="").status, 0, "exit status")
        new = (desk / "new.dxf").read_text()
        run = desk.run("--save", "/dev/stdout", "--quiet", script="")
        expect_equal((run.status, run.errors, run.said == new), (0, "", True), "standard output")
        os.mkfifo(desk / "pipe")
        expect("nobody reads" in refused(desk, "--save", "pipe", timeout=20), "a pipe that nobody reads")
        reader = os.open(desk / "pipe", os.O_RDONLY | os.O_NONBLOCK)
        run = desk.run("--save", "pipe", script="")
        expect_equal((run.status, run.errors, os.read(reader, 65536).decode() == new), (0, "", True), "a pipe")
        os.close(reader)
        expect_equal(desk.run("--save", "/dev/null", script="").status, 0, "exit status of /dev/null")


@check
def a_script_of_other_letters_is_refused_with_its_line_before_it_runs():
    with Desk() as desk:
        for name in ("script.txt", "script.scr"):
            (desk / name).write_bytes(GRID.encode() + "Да\n".encode("cp1251"))
            run = desk.run("--script", name, "--save", "saved.dxf")
            expect_equal((run.status, run.said), (1, ""), name)
            expect(one_line(run.errors) and f"{name}: line 5: expected UTF-8" in run.errors, run.errors)
        expect_equal(sorted(p.name for p in desk.folder.iterdir()), ["netrax.arx", "script.scr", "script.txt"], "files")


@check
def a_script_may_be_utf_16_behind_its_mark():
    with Desk() as desk:
        said = desk.run(script=CORNERS + "^C\n").said
        for coding, mark in (("utf-16-le", b"\xff\xfe"), ("utf-16-be", b"\xfe\xff"), ("utf-8", b"\xef\xbb\xbf")):
            (desk / "script.txt").write_bytes(mark + (CORNERS + "^C\n").encode(coding))
            run = desk.run("--script", "script.txt")
            expect_equal((run.status, run.errors, run.said), (0, "", said), coding)


@check
@not_on_windows("devices and pipes of Unix")
def a_script_may_come_through_a_pipe_line_by_line():
    with Desk() as desk:
        os.mkfifo(desk / "pipe")
        command = [str(desk.build / "arxhost"), "--module", "netrax.arx", "--script", "pipe"]
        with subprocess.Popen(command, cwd=desk.folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE) as run:
            with open(desk / "pipe", "wb", buffering=0) as pipe:
                pipe.write(b"UCSICON\n")
                said = b""
                while not said.endswith(b"<3>: "):  # the answer comes after the question
                    said += run.stdout.read(1) or b"<3>: the program ended"
                pipe.write(b"1\n\xe4\n")
            expect(b"UCSICON = 1\n" in run.stdout.read(), "the answer was not taken")
            expect(b"pipe: line 3: expected UTF-8" in run.stderr.read(), "the line is not named")
            expect_equal(run.wait(20), 1, "exit status after a line that is no UTF-8")


@check
def saving_over_the_opened_drawing_works():
    with Desk() as desk:
        desk.bring(PLAN)
        run = desk.run("drawing.dxf", "--save", "drawing.dxf", script=GRID)
        expect_equal((run.status, run.errors), (0, ""), "result")
        expect((desk / "drawing.dxf").stat().st_size > PLAN.stat().st_size, "the grid is not in it")
        expect_equal(sorted(p.name for p in desk.folder.iterdir()),
                     ["drawing.dxf", "netrax.arx", "properties.ini"], "files left")
        again = desk.run("drawing.dxf", "--save", "again.dxf", script="")
        expect_equal((again.status, again.errors), (0, ""), "second run")
        expect((desk / "again.dxf").read_bytes() == (desk / "drawing.dxf").read_bytes(),
               "opening and saving changed the file")


@check
def without_save_nothing_is_written():
    with Desk() as desk:
        desk.bring(PLAN)
        expect_equal(desk.run("drawing.dxf", script=CORNERS + "^C\n").status, 0, "exit status")
        expect((desk / "drawing.dxf").read_bytes() == PLAN.read_bytes(), "the drawing changed")
        expect_equal(sorted(p.name for p in desk.folder.iterdir()), ["drawing.dxf", "netrax.arx"], "files")


@check
def a_refused_run_leaves_the_existing_file_alone():
    with Desk() as desk:
        (desk / "kept.dxf").write_text("precious")
        (desk / "bad.dxf").write_text("0\nSECTION\n2\nHEADER\n9\n")
        refused(desk, "bad.dxf", "--save", "kept.dxf")
        refused(desk, "--save", "kept.dxf", module="nowhere.arx")
        expect_equal((desk / "kept.dxf").read_text(), "precious", "the existing file")


@check
def a_full_disk_leaves_the_existing_file_alone():
    if not os.path.exists("/dev/full"):
        return
    with Desk() as desk:
        (desk / "full.dxf").symlink_to("/dev/full")
        run = desk.run("--save", "full.dxf", script="")
        expect(run.status == 1 or not (desk / "full.dxf").is_symlink(), "writing to a full device succeeded")


@check
def a_new_drawing_is_empty_metric_R2013():
    with Desk() as desk:
        expect_equal(desk.run("--save", "new.dxf", script="").status, 0, "exit status")
        text = (desk / "new.dxf").read_text()
        for name, value in (("ACADVER", "AC1027"), ("CLAYER", "0"), ("TEXTSTYLE", "Standard"),
                            ("MEASUREMENT", "1"), ("CELTYPE", "ByLayer")):
            found = re.search(rf"\${name}\n *\d+\n *(.*)\n", text)
            expect(found and found[1].strip().lower() == value.lower(), f"${name} is {found and found[1]}")
