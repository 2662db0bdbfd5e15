"""A person at a terminal: arxhost on a pseudo-terminal, with what it shows and what is typed."""
import fcntl
import os
import pty
import re
import select
import signal
import struct
import termios
import time

from report import Skipped

PATIENCE = 60  # seconds; only a broken program lets them pass
SEQUENCE = re.compile(rb"\x1b\[[0-9;?]*[A-Za-z]|\x1b[()][A-Z0-9]")
BLANKS = re.compile(rb"\x1b\[K\x1b\[([0-9]+)C")  # Wine's console steps over them


class Console:
    """Runs a command in a folder on a terminal of its own, 100 columns wide."""

    def __init__(self, command, folder, columns=100, **environment):
        self.raw = b""    # all that was shown
        self._read = 0    # how much of the plain text has been waited for
        self.status = None
        try:
            self._process, self._terminal = pty.fork()
        except OSError as error:
            raise Skipped(f"no pseudo-terminal: {error}") from error
        if self._process == 0:
            try:
                self._terminal = 0
                self.resize(columns)  # before the program can ask
                os.chdir(folder)
                os.execve(command[0], command, {"TERM": "xterm", "PATH": os.environ["PATH"]} | environment)
            finally:
                os._exit(127)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.status is None:
            os.kill(self._process, signal.SIGKILL)
            os.waitpid(self._process, 0)
        if self._terminal is not None:
            os.close(self._terminal)

    @property
    def shown(self):
        """Everything without colours and other sequences, lines ended as usual."""
        raw = BLANKS.sub(lambda step: b" " * int(step[1]), self.raw)
        return re.sub("\r+\n", "\n", SEQUENCE.sub(b"", raw).decode("utf-8", "backslashreplace"))

    def type(self, text):
        os.write(self._terminal, text.encode())

    def send(self, number):
        os.kill(self._process, number)

    def hang_up(self):
        """Takes the terminal away, as the closing of its window does; returns the program's exit status."""
        os.close(self._terminal)
        self._terminal = None
        self.status = os.waitstatus_to_exitcode(os.waitpid(self._process, 0)[1])
        return self.status

    @property
    def echoes(self):
        """Whether the terminal itself shows what is typed, as it does for a shell's ordinary programs."""
        return bool(termios.tcgetattr(self._terminal)[3] & termios.ECHO)

    def resize(self, columns):
        fcntl.ioctl(self._terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 40, columns, 0, 0))

    def wait_for(self, text):
        """Waits until the text has been shown after what was waited for before; returns what came till there."""
        start = self._read
        self._read_until(lambda: text in self.shown[start:], f"waiting for {text!r}")
        self._read = self.shown.index(text, start) + len(text)
        return self.shown[start:self._read]

    def wait_for_end(self):
        """Waits for the program's end and returns its exit status; the rest is in `shown`."""
        self._read_until(lambda: self._ended, "waiting for the end")
        self.status = os.waitstatus_to_exitcode(os.waitpid(self._process, 0)[1])
        return self.status

    _ended = False

    def _read_until(self, done, what):
        deadline = time.monotonic() + PATIENCE
        while not done():
            left = deadline - time.monotonic()
            if self._ended or left <= 0 or not select.select([self._terminal], [], [], left)[0]:
                raise AssertionError(f"{what}: {'the program ended' if self._ended else 'nothing'} "
                                     f"after {self.shown[-600:]!r}")
            self._read_some()

    def _read_some(self):
        try:
            data = os.read(self._terminal, 65536)
        except OSError:  # how Linux tells that nobody holds the other end any more
            data = b""
        self.raw += data
        self._ended = not data
