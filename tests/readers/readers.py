"""Drawings as independent programs read them: lines and texts of model space, in one form."""
import re
import subprocess
import sys
from collections import Counter
from dataclasses import dataclass, field
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import ROOT  # noqa: E402
from dxftags import read_records  # noqa: E402

BUILD = ROOT / "build"


@dataclass
class Content:
    lines: Counter = field(default_factory=Counter)  # of end points in the plane, to 4 decimals
    texts: Counter = field(default_factory=Counter)

    def lacks(self, other):
        """What of the other content is not in this one; None when all of it is."""
        missing = [*(other.lines - self.lines)][:2] + [*(other.texts - self.texts)][:2]
        return f"{missing} among others" if missing else None


def rounded(*numbers):
    return tuple(round(float(n), 4) + 0.0 for n in numbers)


def plain(text):
    """The text with its escapes read."""
    return re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda m: chr(int(m[1], 16)), text)


def of_tags(path, encoding, handles=None):
    """Lines and texts in ENTITIES; of `handles` only, when they are given."""
    content = Content()
    for record in read_records(path):
        if record.section != "ENTITIES" or (handles is not None and record.handle not in handles):
            continue
        value = {tag.code: tag.value for tag in reversed(record.tags)}
        if record.kind == "LINE":
            content.lines[rounded(*(value[c] for c in (10, 20, 11, 21)))] += 1
        elif record.kind == "TEXT":
            content.texts[plain(value[1].decode(encoding))] += 1
    return content


def run(*command, timeout=120):
    return subprocess.run([str(part) for part in command], capture_output=True, timeout=timeout, check=False)


def of_gdal(path, encoding):
    # It knows the code pages of older drawings, but not that those from R2007 on are UTF-8.
    told = ("--config", "DXF_ENCODING", "UTF-8") if encoding == "utf-8" else ()
    said = run("ogrinfo", *told, "-al", path)
    content = Content()
    for feature in said.stdout.decode("utf-8", "replace").split("OGRFeature(")[1:]:
        line = re.search(r"^ +LINESTRING(?: Z)? \(([^)]*)\)$", feature, re.M)
        if line and line[1].count(",") == 1:
            first, last = (point.split() for point in line[1].split(","))
            content.lines[rounded(*first[:2], *last[:2])] += 1
        text = re.search(r"^ +Text \(String\) = (.*)$", feature, re.M)
        if text:
            content.texts[plain(text[1])] += 1
    return content


def of_dxflib(path, encoding):
    said = run(BUILD / "dxflib_reader", path)
    content = Content()
    for line in said.stdout.decode(encoding, "replace").splitlines():
        kind, _, rest = line.partition(" ")
        if kind == "LINE":
            content.lines[rounded(*rest.split())] += 1
        else:
            content.texts[plain(rest)] += 1
    return content


def librecad_draws(path, folder):
    """Whether LibreCAD turns the drawing into a PDF that is more than an empty page."""
    run("xvfb-run", "-a", "-s", "-screen 0 1280x1024x24 -nolisten unix", "librecad", "dxf2pdf", "-a", "-t", folder, path)
    pdf = Path(folder) / (Path(path).stem + ".pdf")
    return pdf.exists() and pdf.stat().st_size > 2000
