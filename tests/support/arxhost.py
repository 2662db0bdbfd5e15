"""Runs arxhost in a folder of its own, with a private link to the module and its own options."""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ.get("NETRAX_BUILD", ROOT / "build"))
if "NETRAX_ALONE" not in os.environ:  # run by hand: apart from the machine, as scripts/test runs it
    os.execvp("bash", ["bash", "-c", '. "$0"; alone "$@"', str(ROOT / "scripts/alone"), *sys.orig_argv])
# Started by nohup or in the background, a test would hand on that these are ignored.
for number in (signal.SIGHUP, signal.SIGINT, signal.SIGQUIT, signal.SIGTERM):
    if signal.getsignal(number) == signal.SIG_IGN:
        signal.signal(number, signal.SIG_DFL)
KEYS = """bXBottomScribe bXLeftScribe bXRightScribe bXTopScribe bYBottomScribe bYLeftScribe bYRightScribe
bYTopScribe Color crossSize delCont heightText HorStep iCountSigns LookType needText textXScribe
textYScribe VertStep WCSBasePoint""".split()
DEFAULTS = dict.fromkeys(KEYS, "1") | {
    "Color": "12", "crossSize": "50.0000", "delCont": "0", "HorStep": "100.0000", "heightText": "1.0000",
    "iCountSigns": "0", "LookType": "0", "needText": "0", "textXScribe": "", "textYScribe": "",
    "VertStep": "100.0000", "WCSBasePoint": "0"}


def options_text(**changed):
    """A whole properties.ini as the module writes it."""
    return "[GRID]\r\n" + "".join(f"{key}={(DEFAULTS | changed)[key]}\r\n" for key in KEYS)


@dataclass
class Run:
    status: int
    said: str
    errors: str


class Desk:
    """A temporary folder holding the link netrax.arx and, when given, properties.ini."""

    def __init__(self, build=BUILD, options=None):
        self.build = Path(build).resolve()
        self._folder = tempfile.TemporaryDirectory(prefix="netrax-")
        self.folder = Path(self._folder.name)
        (self.folder / "netrax.arx").symlink_to(self.build / "netrax.arx")
        if options is not None:
            (self.folder / "properties.ini").write_bytes(options.encode())

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._folder.cleanup()

    def __truediv__(self, name):
        return self.folder / name

    def bring(self, path, name="drawing.dxf"):
        shutil.copyfile(path, self / name)
        return name

    def run(self, *arguments, script=None, module="netrax.arx", timeout=300, **environment):
        """Runs arxhost in the folder; `script` is the text handed to it on standard input."""
        command = [*program(self.build), *map(str, arguments)]
        if module:
            command += ["--module", module]
        if script is not None:
            command += ["--script", "-"]
        done = subprocess.run(command, cwd=self.folder, input=(script or "").encode(), timeout=timeout,
                              capture_output=True, env=os.environ | environment, check=False)
        return Run(done.returncode, done.stdout.decode("utf-8", "backslashreplace"),
                   done.stderr.decode("utf-8", "backslashreplace"))


def windows(build=BUILD):
    """Whether this is a build for Windows."""
    return (Path(build) / "arxhost.exe").exists()


def program(build):
    """The command that starts arxhost; a build for Windows runs under Wine."""
    build = Path(build)
    return ["wine", str(build / "arxhost.exe")] if windows(build) else [str(build / "arxhost")]


def need_built(build=BUILD):
    for path in (Path(program(build)[-1]), Path(build) / "netrax.arx"):
        if not path.exists():
            raise SystemExit(f"{path} is missing: build first")
