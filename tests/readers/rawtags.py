"""What no reader notices: names, handles, groups, reactors, the seed and numbers, checked on the tags themselves."""
import math
import sys
from collections import Counter
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from dxftags import read_records  # noqa: E402

REALS = set(range(10, 60)) | set(range(110, 150)) | set(range(210, 240)) | set(range(1010, 1060))
ALWAYS = {b"BYLAYER", b"BYBLOCK"}


def names(records, table):
    return {r.first(2) for r in records if r.section == "TABLES" and r.kind == table}


def problems(path, before=None):
    """Every rule of the form that the drawing breaks, a line for each; groups of the drawing before are its own."""
    records = read_records(path)
    old = {r.handle for r in read_records(before)} if before else set()
    r12 = next((r.first(1) for r in records if r.kind == "$ACADVER"), b"AC1009") == b"AC1009"
    entities = [r for r in records if r.section in ("ENTITIES", "BLOCKS") and r.tags[0].code == 0]
    return [*unknown_names(records, entities), *wrong_handles(records), *wrong_numbers(records),
            *([] if r12 else wrong_groups(records, old))]


def unknown_names(records, entities):
    for code, table, always in ((8, "LAYER", {b"0"}), (6, "LTYPE", ALWAYS), (7, "STYLE", set())):
        known = names(records, table) | always
        if code == 7:
            entities = [r for r in entities if r.kind in ("TEXT", "ATTRIB", "ATTDEF", "MTEXT")]
        for name in {r.first(code) for r in entities} - known - {None}:
            yield f"{table} {name!r} is named and not there"


def wrong_handles(records):
    handles = Counter(int(r.handle, 16) for r in records if r.handle)
    yield from (f"handle {handle:X} is used {count} times" for handle, count in handles.items() if count > 1)
    seed = next((int(r.first(5), 16) for r in records if r.kind == "$HANDSEED"), None)
    if handles and seed is not None and seed <= max(handles):
        yield f"the seed {seed:X} is not above the highest handle {max(handles):X}"


def wrong_numbers(records):
    for record in records:
        for tag in record.tags:
            if tag.code in REALS and record.kind != "XRECORD" and not math.isfinite(float(tag.value)):
                yield f"{record}: {tag} is not finite"


def reactors(record):
    inside, found = False, set()
    for tag in record.tags:
        if tag.code == 102:
            inside = tag.value.strip() == b"{ACAD_REACTORS"
        elif inside and tag.code == 330:
            found.add(tag.value.strip().upper())
    return found


def wrong_groups(records, old):
    by_handle = {r.handle: r for r in records if r.handle}
    for group in (r for r in records if r.kind == "GROUP" and r.handle not in old):
        for tag in group.tags:
            if tag.code == 340:
                member = tag.value.strip().upper()
                if member not in by_handle:
                    yield f"{group} has a member {member} that is not there"
                elif group.handle not in reactors(by_handle[member]):
                    yield f"{by_handle[member]} does not know that {group} holds it"
