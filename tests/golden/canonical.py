"""One writing for equal drawings: numbers in a fixed form, handles renumbered in order of appearance,
no time stamps. The result is still a DXF file that any program opens."""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from dxftags import Tag, records  # noqa: E402

# What differs from run to run, or (the seed, the extents' cache) says nothing about the drawing.
DROPPED = {b"$HANDSEED", b"$TDCREATE", b"$TDUCREATE", b"$TDUPDATE", b"$TDUUPDATE", b"$TDINDWG",
           b"$TDUSRTIMER", b"$FINGERPRINTGUID", b"$VERSIONGUID"}
REALS = [range(10, 60), range(110, 150), range(210, 240), range(460, 470), range(1010, 1060)]
WHOLE = [range(60, 100), range(160, 180), range(270, 290), range(370, 390), range(400, 410),
         range(420, 430), range(440, 460), range(1060, 1072)]
HANDLES = [range(5, 6), range(105, 106), range(320, 370), range(390, 400), range(480, 482),
           range(1005, 1006)]


def _in(ranges, code):
    return any(code in part for part in ranges)


def _real(value):
    text = f"{float(value):.6f}".rstrip("0").rstrip(".")
    return b"0" if text == "-0" else text.encode()


def _no_turn(tag):
    """A text's rotation that may as well be left out: rounding decides between a hair below and above 0."""
    return tag.code == 50 and tag.value in (b"0", b"360")


class Canonical:
    def __init__(self):
        self._numbers = {b"0": b"0"}

    def handle(self, value):
        key = value.strip().upper()
        return self._numbers.setdefault(key, b"%X" % len(self._numbers))

    def tag(self, tag):
        if _in(HANDLES, tag.code):
            return Tag(tag.code, self.handle(tag.value))
        if _in(REALS, tag.code):
            return Tag(tag.code, _real(tag.value))
        if _in(WHOLE, tag.code):
            return Tag(tag.code, b"%d" % int(tag.value))
        return tag

    def records(self, tags):
        kept = [r for r in records(tags) if r.tags[0].value.strip() not in DROPPED]
        for record in kept:
            record.tags = [self.tag(tag) for tag in record.tags]
            if record.kind == "TEXT":
                record.tags = [tag for tag in record.tags if not _no_turn(tag)]
        return kept


def canonical(tags):
    return Canonical().records(tags)


def written(kept):
    """The canonical records as the bytes of a DXF file."""
    return b"".join(b"%d\n%s\n" % (tag.code, tag.value) for record in kept for tag in record.tags)


def first_difference(got, wanted):
    """One line naming the first record that differs, or None."""
    for number, (a, b) in enumerate(zip(got, wanted), 1):
        if a.tags == b.tags:
            continue
        for x, y in zip(a.tags, b.tags):
            if x != y:
                return f"record {number}, {a}: {x} where {y} is expected"
        return f"record {number}, {a}: {len(a.tags)} tags where {len(b.tags)} are expected"
    if len(got) == len(wanted):
        return None
    longer = got if len(got) > len(wanted) else wanted
    what = "not expected" if longer is got else "missing"
    return f"record {min(len(got), len(wanted)) + 1}, {longer[min(len(got), len(wanted))]}: {what}"
