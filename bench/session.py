"""arxhost worked answer by answer: what each step takes, apart from the start of the process."""
import os
import select
import subprocess
import sys
import time

from measuring import Cost

COMMAND, CORNER, APPLY = b"Command: ", b"corner point: ", b"[<Apply>/Settings]: "


class TooLong(Exception):
    """A run did not end within its limit, and was ended."""


class Session:
    """A run with its input and output in our hands; `limit` is in seconds, for the whole run.

    A step lasts from what is typed to the prompt that follows it. Its peak counts from what the process held before.
    The process is ended where it stands when the session is over.
    """

    def __init__(self, arxhost, limit, *arguments):
        self.deadline = time.monotonic() + limit
        begin = time.perf_counter()
        self.process = subprocess.Popen(
            [str(part) for part in arxhost.command(*arguments, "--script", "-")], cwd=arxhost.folder,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        try:
            self._wait_for(COMMAND, 1)
            self.started = Cost(time.perf_counter() - begin, self._cpu(), self._kilobytes("VmHWM"), self._faults())
        except BaseException:
            self._end()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._end()

    def step(self, typed, prompt=COMMAND, times=1):
        """Types the text and waits until the prompt has come that many times."""
        self._forget_peak()
        cpu, faults, held, begin = self._cpu(), self._faults(), self.held(), time.perf_counter()
        self.process.stdin.write(typed.encode())
        self.process.stdin.flush()
        self._wait_for(prompt, times)
        wall = time.perf_counter() - begin
        return Cost(wall, self._cpu() - cpu, self._kilobytes("VmHWM") - held, self._faults() - faults)

    def held(self):
        """Kilobytes that the process has in memory now."""
        return self._kilobytes("VmRSS")

    def _wait_for(self, prompt, times):
        said, output = b"", self.process.stdout.fileno()
        while not said.endswith(prompt) or said.count(prompt) < times:
            if not select.select([output], [], [], max(0, self.deadline - time.monotonic()))[0]:
                raise TooLong
            some = os.read(output, 65536)
            if not some:
                sys.exit(f"arxhost ended instead of asking {prompt.decode()!r}: {said[-500:].decode(errors='replace')}")
            said += some

    def _end(self):
        self.process.kill()
        self.process.wait()
        self.process.stdin.close()
        self.process.stdout.close()

    def _cpu(self):
        return time.clock_gettime((~self.process.pid << 3) | 2)  # as clock_getcpuclockid(3) computes it

    def _faults(self):
        with open(f"/proc/{self.process.pid}/stat", encoding="ascii", errors="replace") as stat:
            return int(stat.read().rpartition(")")[2].split()[7])

    def _kilobytes(self, what):
        with open(f"/proc/{self.process.pid}/status", encoding="ascii", errors="replace") as status:
            return next(int(line.split()[1]) for line in status if line.startswith(what + ":"))

    def _forget_peak(self):
        with open(f"/proc/{self.process.pid}/clear_refs", "w", encoding="ascii") as clear:
            clear.write("5")
