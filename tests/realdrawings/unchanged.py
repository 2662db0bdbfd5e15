"""Tells whether a saved drawing is the opened one, tag for tag, plus an accepted grid and nothing else.

Allowed, each only where it belongs: another $HANDSEED; others of $EXTMIN and $EXTMAX; new LINE, TEXT,
POLYLINE, VERTEX and SEQEND records at the end of ENTITIES; new GROUP records in OBJECTS; one more pair of
tags for each new group in the group dictionary; and, where the drawing had none, that dictionary with its
pair in the root dictionary.
"""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from dxftags import Tag, read_records  # noqa: E402

DRAWN = {"LINE", "TEXT", "POLYLINE", "VERTEX", "SEQEND"}


def changed_as_expected(old, new, fresh):
    """True when `new` is `old` with no more changed than a grid has to change."""
    if old.kind == "$HANDSEED" == new.kind:
        return [t.code for t in new.tags] == [9, 5]
    if old.kind in ("$EXTMIN", "$EXTMAX") and old.kind == new.kind:
        return [t.code for t in new.tags] == [9, 10, 20, 30]
    if old.kind != "DICTIONARY" or old.handle != new.handle:
        return False
    kept = []
    for tag in new.tags:
        if tag.code in (350, 360) and tag.value.strip().upper() in fresh and kept[-1].code == 3:
            kept.pop()  # the pair of a new entry
        else:
            kept.append(tag)
    return kept == old.tags


class Comparison:
    def __init__(self, before, after):
        self.old = read_records(before)
        self.new = read_records(after)
        known = {r.handle for r in self.old}
        self.added = [r for r in self.new if r.handle and r.handle not in known]
        self.fresh = {r.handle for r in self.added}
        self.seed_is_above = self._seed_is_above()

    def _seed_is_above(self):
        """Whether $HANDSEED of the saved drawing lies above every handle in it."""
        seed = next((r.tags[1].value for r in self.new if r.kind == "$HANDSEED"), None)
        return seed is None or all(int(seed, 16) > int(h, 16) for h in self.fresh)

    def problem(self):
        """The first difference that a grid does not explain, as one line; None when there is none."""
        rest = iter(self.new)
        for old in self.old:
            new = next(rest, None)
            while new is not None and new.handle in self.fresh and new.tags[0].code == 0:
                misplaced = self._misplaced(new, old)
                if misplaced:
                    return misplaced
                new = next(rest, None)
            if new is None:
                return f"{old} is gone"
            if new.tags != old.tags and not changed_as_expected(old, new, self.fresh):
                return f"{old} became {new}: {_first_change(old, new)}"
        extra = next(rest, None)
        return f"{extra} stands after the end" if extra else None

    def _misplaced(self, new, before):
        if new.section == "ENTITIES" and new.kind in DRAWN:
            return None if before.kind == "ENDSEC" else f"new {new} does not stand at the end of its section"
        if new.section == "OBJECTS" and new.kind in ("GROUP", "DICTIONARY"):
            return None
        return f"new {new} is not expected"


def _first_change(old, new):
    none = Tag(0, b"nothing")
    size = max(len(old.tags), len(new.tags))
    pairs = zip(old.tags + [none] * (size - len(old.tags)), new.tags + [none] * (size - len(new.tags)))
    return next((f"{a} became {b}" for a, b in pairs if a != b), "no tag differs")
