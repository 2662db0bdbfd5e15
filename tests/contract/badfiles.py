"""Saving on disks that fail and in runs that are killed: the old drawing is whole afterwards."""
import os
import resource
import shutil
import signal
import subprocess
import time

from arxhost import program
from common import GRID, PLAN, Desk, check, expect, expect_equal, not_on_windows, one_line, only_on_windows

LINE = "  0\nLINE\n  5\n%X\n330\n1F\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n" \
       " 10\n%d.5\n 20\n0.0\n 30\n0.0\n 11\n1.0\n 21\n1.0\n 31\n0.0\n"


ENDING = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGQUIT)


def large_drawing(megabytes):
    """The plan with enough more lines in it that saving takes a while."""
    before, mark, after = PLAN.read_text().partition("  2\nENTITIES\n")
    count = megabytes * 1000000 // len(LINE)
    return before + mark + "".join(LINE % (0x100000 + i, i) for i in range(count)) + after


def temporary_files(desk):
    return list(desk.folder.glob(".arxhost-*.tmp"))


def kill_when_written(desk, process, size, number=signal.SIGKILL):
    """Sends the run the signal as soon as it has written that much beside the drawing."""
    deadline = time.monotonic() + 60
    while process.poll() is None and time.monotonic() < deadline:
        if any(path.stat().st_size >= size for path in temporary_files(desk)):
            break
    process.send_signal(number)
    process.wait(60)


def heed_signals():
    """Whoever started the tests in the background has told them to ignore some."""
    for number in ENDING:
        signal.signal(number, signal.SIG_DFL)
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def start(desk, *arguments, prepare=heed_signals):
    """Starts a run that is not waited for."""
    (desk / "script.txt").write_text(GRID)
    return subprocess.Popen([*program(desk.build), *arguments, "--module", "netrax.arx", "--script", "script.txt"],
                            cwd=desk.folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, preexec_fn=prepare)


@check
@not_on_windows("signals and mounts of Unix")
def a_run_killed_while_it_saves_leaves_a_whole_drawing():
    old = large_drawing(20).encode()
    save = ("drawing.dxf", "--save", "drawing.dxf")
    with Desk() as desk:
        (desk / "drawing.dxf").write_bytes(old)
        start(desk, "drawing.dxf", "--save", "new.dxf").wait()
        new = (desk / "new.dxf").read_bytes()
        expect(len(new) > len(old), "the grid is not in the new drawing")
        for size in (0, 1, len(old) // 4, len(old) // 2, len(old) * 9 // 10):
            (desk / "drawing.dxf").write_bytes(old)
            kill_when_written(desk, start(desk, *save), size)
            found = (desk / "drawing.dxf").read_bytes()
            expect(found in (old, new), f"killed after {size} bytes: {len(found)} bytes are neither drawing")
        expect(temporary_files(desk), "no run was killed while it saved")


@check
@not_on_windows("signals and mounts of Unix")
def a_run_that_a_signal_ends_while_it_saves_takes_its_unfinished_file_with_it():
    old = large_drawing(20).encode()
    with Desk() as desk:
        (desk / "drawing.dxf").write_bytes(old)
        start(desk, "drawing.dxf", "--save", "new.dxf").wait()
        drawings = (old, (desk / "new.dxf").read_bytes())
        ended = 0
        for number in ENDING:
            for size in (0, len(old) // 4, len(old) * 9 // 10):
                (desk / "drawing.dxf").write_bytes(old)
                process = start(desk, "drawing.dxf", "--save", "drawing.dxf")
                kill_when_written(desk, process, size, number)
                expect(process.returncode in (0, -number), f"signal {number}: status {process.returncode}")
                expect((desk / "drawing.dxf").read_bytes() in drawings, f"signal {number}: neither drawing")
                expect_equal(temporary_files(desk), [], f"files left after signal {number} and {size} bytes")
                ended += process.returncode == -number
        expect(ended > 6, f"only {ended} runs were ended while they saved")


@check
@only_on_windows("a system that takes the files of an ended program away")
def a_run_that_is_ended_while_it_saves_leaves_no_unfinished_file_on_windows():
    old = large_drawing(20).encode()
    with Desk() as desk:
        (desk / "drawing.dxf").write_bytes(old)
        ended = 0
        for size in (1, len(old) // 4, len(old) * 9 // 10):
            process = start(desk, "drawing.dxf", "--save", "drawing.dxf")
            kill_when_written(desk, process, size)
            ended += process.returncode == -signal.SIGKILL and (desk / "drawing.dxf").read_bytes() == old
            deadline = time.monotonic() + 60
            while temporary_files(desk) and time.monotonic() < deadline:
                time.sleep(0.05)
            expect_equal(temporary_files(desk), [], f"files left after {size} bytes")
        expect(ended > 0, "no run was ended while it saved")


@check
@not_on_windows("signals and mounts of Unix")
def a_signal_that_is_to_be_ignored_does_not_end_the_run():
    with Desk() as desk:
        (desk / "drawing.dxf").write_bytes(large_drawing(20).encode())
        process = start(desk, "drawing.dxf", "--save", "drawing.dxf",
                        prepare=lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN))  # as nohup does
        kill_when_written(desk, process, 1, signal.SIGHUP)
        expect_equal((process.returncode, temporary_files(desk)), (0, []), "status and files left")


@check
@not_on_windows("signals and mounts of Unix")
def what_killed_runs_left_behind_is_not_in_the_way():
    with Desk() as desk:
        (desk / "drawing.dxf").write_bytes(large_drawing(20).encode())
        kill_when_written(desk, start(desk, "drawing.dxf", "--save", "drawing.dxf"), 1)
        left = temporary_files(desk)
        desk.bring(PLAN)
        run = desk.run("drawing.dxf", "--save", "drawing.dxf", script=GRID)
        expect_equal((run.status, run.errors), (0, ""), "the run after it")
        expect((desk / "drawing.dxf").stat().st_size > PLAN.stat().st_size, "the grid is not in it")
        expect_equal(temporary_files(desk), left, "temporary files")


def can_mount():
    return shutil.which("unshare") and subprocess.run(
        ["unshare", "--map-root-user", "--mount", "mount", "-t", "tmpfs", "tmpfs", "/mnt"],
        capture_output=True, check=False).returncode == 0


def on_a_small_disk(desk, kilobytes, commands):
    """Runs shell commands in a folder of the desk that is a disk of that size."""
    (desk / "disk").mkdir()
    mount = f"mount -t tmpfs -o size={kilobytes}k tmpfs disk && cd disk"
    return subprocess.run(["unshare", "--map-root-user", "--mount", "sh", "-c", f"{mount} && {commands}"],
                          cwd=desk.folder, capture_output=True, text=True, check=False,
                          env=os.environ | {"ARXHOST": str(desk.build / "arxhost"), "PLAN": str(PLAN)})


@check
@not_on_windows("signals and mounts of Unix")
def on_a_full_disk_the_old_drawing_is_whole_and_nothing_else_is_left():
    if not can_mount():
        print("skipped: a full disk, because nothing can be mounted here")
        return
    with Desk() as desk:
        (desk / "script.txt").write_text(GRID)
        run = on_a_small_disk(desk, 28, 'cp "$PLAN" old.dxf && '
                              '"$ARXHOST" old.dxf --module ../netrax.arx --script ../script.txt --save old.dxf '
                              '>/dev/null; status=$?; cmp old.dxf "$PLAN" && ls -A; exit $status')
        expect_equal((run.returncode, run.stdout), (1, "old.dxf\n"), f"status and files ({run.stderr})")
        expect(one_line(run.stderr) and "No space left on device" in run.stderr, f"said: {run.stderr!r}")


def as_nobody(command):
    """The administrator may write everywhere, so permissions are for somebody else to test."""
    return ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", *command] if os.geteuid() == 0 else command


@check
def without_permission_the_old_drawing_is_whole():
    with Desk() as desk:
        program = as_nobody([desk.build / "arxhost"])
        if not shutil.which(program[0]) or subprocess.run([*program, "--version"], capture_output=True,
                                                          check=False).returncode != 0:
            print("skipped: permissions, because nobody but the administrator can run the program")
            return
        desk.bring(PLAN)
        (desk / "drawing.dxf").chmod(0o444)
        desk.folder.chmod(0o555)
        for name in ("drawing.dxf", "new.dxf"):
            run = subprocess.run([*program, "drawing.dxf", "--save", name], cwd=desk.folder,
                                 input="", capture_output=True, text=True, check=False)
            expect_equal((run.returncode, run.stderr), (1, f"arxhost: {name}: cannot be saved: Permission denied\n"),
                         name)
        desk.folder.chmod(0o755)
        expect((desk / "drawing.dxf").read_bytes() == PLAN.read_bytes(), "the old drawing changed")
        expect(not temporary_files(desk) and not (desk / "new.dxf").exists(), "something was left behind")
