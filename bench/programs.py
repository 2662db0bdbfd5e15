"""The programs that are measured. Each method gives a function that makes ready and returns a command."""
from pathlib import Path

HERE = Path(__file__).resolve().parent
OPTIONS = "[GRID]\r\nHorStep=1.0000\r\nVertStep=1.0000\r\nColor=12\r\nneedText={text}\r\nheightText=0.1000\r\n"
LABELS = "".join(f"b{axis}{edge}Scribe=1\r\n" for axis in "XY" for edge in ("Top", "Bottom", "Left", "Right"))


def lines(columns, rows):
    """How many lines a grid of that many steps each way has."""
    return 2 * columns * rows - 2


def asked_for(columns, rows):
    """What is typed at the prompt for the other corner until the grid is built."""
    return f"{columns},{rows}\n" + ("yes\n" if max(columns, rows) > 50 else "")


class Arxhost:
    """arxhost and the module of one build, which work in a folder of their own."""

    def __init__(self, build, folder):
        self.build, self.folder = build, folder
        folder.mkdir()
        (folder / "netrax.arx").symlink_to(build / "netrax.arx")

    def command(self, *arguments):
        return [self.build / "arxhost", "--module", self.folder / "netrax.arx", *arguments]

    def set_options(self, labels=False):
        text = OPTIONS.format(text=int(labels)) + (LABELS if labels else "")
        (self.folder / "properties.ini").write_bytes(text.encode())

    def script(self, text):
        path = self.folder / "answers.txt"
        path.write_text(text)
        return path

    def drawn(self, columns, rows):
        return self.folder / f"grid{columns}x{rows}.dxf"

    def grid(self, columns, rows, labels=False, replace=False):
        """Draws a grid and saves it as a new drawing, or over an old one."""
        def ready():
            saved = self.drawn(columns, rows)
            saved.write_text("old") if replace else saved.unlink(missing_ok=True)
            self.set_options(labels)
            answers = self.script(f"zv_netrax\n0,0\n{asked_for(columns, rows)}A\n")
            return self.command("--script", answers, "--save", saved)
        return ready

    def opening(self, drawing, saved=None):
        """Opens a drawing and ends, or saves it first."""
        def ready():
            if saved:
                (self.folder / saved).unlink(missing_ok=True)
            save = ("--save", self.folder / saved) if saved else ()
            return self.command(drawing, "--script", self.script("QUIT\n" if not saved else ""), *save)
        return ready


class Others:
    """The floors and the peers of one build; what they write lies in the folder."""

    def __init__(self, build, folder):
        self.tools, self.folder = build / "bench", folder

    def measure(self):
        return self.tools / "bench_measure"

    def reading(self, how, drawing):
        return lambda: [self.tools / "bench_floor", how, drawing]

    def formatting(self, count):
        return self._anew("format.dxf", self.tools / "bench_floor", "format", count)

    def plain_writing(self, size=None):
        """That many bytes, or as many as the formatting floor wrote last."""
        def ready():
            count = size or (self.folder / "format.dxf").stat().st_size
            return self._anew("bytes", self.tools / "bench_floor", "write", count)()
        return ready

    def dime(self, count):
        return self._anew("dime.dxf", self.tools / "dime_lines", "write", count)

    def dxflib(self, count):
        return self._anew("dxflib.dxf", self.tools / "dxflib_lines", "write", count)

    def ezdxf(self, count):
        return self._anew("ezdxf.dxf", "/usr/bin/python3", HERE / "ezdxf_lines.py", "write", count)

    def _anew(self, file, *command):
        """The command, which writes the file; as a new one in every run."""
        def ready():
            (self.folder / file).unlink(missing_ok=True)
            return [*command, self.folder / file]
        return ready
