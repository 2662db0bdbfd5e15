"""Reads a DXF file as what it is: pairs of a group code and a value, nothing interpreted.

The values of a binary file are given as an ASCII file would hold them.
"""
import struct
from dataclasses import dataclass, field


@dataclass(frozen=True)
class Tag:
    code: int
    value: bytes  # without its line end, blanks kept

    def __str__(self):
        return f"{self.code} {self.value.decode('utf-8', 'backslashreplace')}"


@dataclass
class Record:
    """The tags from one group code 0 (or 9, a header variable) to the next."""

    section: str
    tags: list = field(default_factory=list)

    @property
    def kind(self):
        return self.tags[0].value.strip().decode("ascii", "replace")

    @property
    def handle(self):
        code = 105 if self.kind == "DIMSTYLE" else 5
        return self.first(code) if self.tags[0].code == 0 else None

    @property
    def owner(self):
        """The owner's handle, or that of a record with none that is stated."""
        return next((t.value.strip().upper() for t in reversed(self.tags) if t.code == 330), None)

    def first(self, code):
        """The first value of that code outside of any {...} block, in upper case."""
        inside = False
        for tag in self.tags:
            if tag.code == 102:
                inside = tag.value.strip().startswith(b"{")
            elif tag.code == code and not inside:
                return tag.value.strip().upper()
        return None

    def __str__(self):
        handle = self.handle
        name = self.kind + (f" #{handle.decode()}" if handle else "")
        return f"{name} in {self.section or 'no section'}"


BINARY = b"AutoCAD Binary DXF\r\n\x1a\0"
NUMBERS = [("<d", (range(10, 60), range(110, 150), range(210, 240), range(460, 470), range(1010, 1060))),
           ("<h", (range(60, 80), range(170, 180), range(270, 290), range(370, 390), range(400, 410),
                   range(1060, 1071))),
           ("<i", (range(90, 100), range(420, 430), range(440, 460), range(1071, 1072))),
           ("<q", (range(160, 170),)), ("<B", (range(290, 300),))]
FORMATS = {code: form for form, ranges in NUMBERS for codes in ranges for code in codes}


def binary_tags(data):
    at, short = len(BINARY), data[len(BINARY) + 1] != 0
    while at < len(data):
        code = data[at] if short else struct.unpack_from("<h", data, at)[0]
        at += 1 if short else 2
        if short and code == 255:
            code = struct.unpack_from("<h", data, at)[0]
            at += 2
        if code in FORMATS:
            number, = struct.unpack_from(FORMATS[code], data, at)
            at += struct.calcsize(FORMATS[code])
            yield Tag(code, repr(number).encode())
        elif code in range(310, 320) or code == 1004:
            yield Tag(code, data[at + 1:at + 1 + data[at]].hex().encode())
            at += 1 + data[at]
        else:
            end = data.index(b"\0", at)
            yield Tag(code, data[at:end])
            at = end + 1


def read_tags(path):
    with open(path, "rb") as file:
        data = file.read()
    if data.startswith(BINARY):
        return list(binary_tags(data))
    lines = data.split(b"\n")
    if lines and not lines[-1].strip():
        lines.pop()
    if len(lines) % 2:
        raise ValueError(f"{path}: an odd number of lines")
    return [Tag(int(code), value.rstrip(b"\r")) for code, value in zip(lines[::2], lines[1::2])]


def records(tags):
    section, result, naming = "", [], False
    for tag in tags:
        word = tag.value.strip()
        if naming and tag.code == 2:
            section = word.decode("ascii", "replace")
            result[-1].section = section
        naming = tag.code == 0 and word == b"SECTION"
        if tag.code in (0, 9) or not result:
            result.append(Record(section))
        result[-1].tags.append(tag)
        if tag.code == 0 and word == b"ENDSEC":
            section = ""
    return result


def read_records(path):
    return records(read_tags(path))
