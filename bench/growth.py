"""What is asked whether it grows faster than its work: lines, Esc, U, a group, drawings, plots, loads, rebuilds."""
from growthtable import MUST, Series, table_head, table_rows
from measuring import Spread, run
from programs import asked_for, lines
from report import head, number, row, say, spread, verdict
from session import APPLY, COMMAND, CORNER, Session, TooLong

# The first size of each is next to nothing.
SQUARES, TIMES = (7, 71, 224, 708), (1, 10, 100, 1000)
STRIPS, LABELLED_STRIPS = (50, 10_000, 100_000, 1_000_000), (50, 10_000, 30_000, 100_000)


class Works:
    """Works of a size; each gives pairs of a row's name and the cost of a step, in a session of its own."""

    def __init__(self, arxhost, others, limit):
        self.arxhost, self.others, self.limit = arxhost, others, limit

    def session(self, *arguments, labels=False):
        self.arxhost.set_options(labels)
        return Session(self.arxhost, self.limit, *arguments)

    def drawing(self, side):
        with self.session() as session:
            yield "draw", preview(session, side, side)
            yield "accept, which makes the group", session.step("A\n")
            yield "save what is new", session.step(f"SAVEAS\n{self._new('new.dxf')}\n")
            yield "U", session.step("U\n")
            yield "REDO", session.step("REDO\n")

    def escape(self, side):
        with self.session() as session:
            preview(session, side, side)
            yield "erase on Esc", session.step("^C\n")

    def rebuild(self, side):
        with self.session() as session:
            preview(session, side, side)
            yield "rebuild in the preview", session.step("x\n", APPLY)

    def labels(self, side):
        with self.session(labels=True) as session:
            yield "draw with labels", preview(session, side, side)

    def strip(self, length):
        with self.session() as session:
            yield "draw N x 1", preview(session, length, 1)

    def strip_with_labels(self, length):
        with self.session(labels=True) as session:
            yield "draw N x 1 with labels", preview(session, length, 1)

    def opening(self, side):
        with self.session(self._drawn(side)) as session:
            yield "open", session.started
            yield "save what was opened", session.step(f"SAVEAS\n{self._new('old.dxf')}\n")

    def plain_writing(self, side):
        """What the system takes for a drawing's bytes, to judge the saving by."""
        size = self._drawn(side).stat().st_size
        yield "(the floor writes as many bytes)", run(self.others.measure(), self.arxhost.folder,
                                                      self.others.plain_writing(size)())

    def plot(self, kind):
        def work(side):
            with self.session(self._drawn(side)) as session:
                yield f"plot to {kind.upper()}", session.step(f"PLOT\n{self._new('plot.' + kind)}\n")
        return work

    def loading(self, times):
        with self.session() as session:
            again = "ARX\nU\nnetrax.arx\nARX\nL\nnetrax.arx\n" * times
            yield "unload and load the module", session.step(again, COMMAND, 2 * times)

    def kept(self, side, rebuilds):
        """Kilobytes held after the first and after the last rebuild, beyond those held before anything was drawn."""
        with self.session() as session:
            empty = session.held()
            preview(session, side, side)
            held = []
            for _ in range(rebuilds):
                session.step("x\n", APPLY)
                held.append(session.held() - empty)
        return held[0], held[-1]

    def _new(self, name):
        """A file that is not there yet."""
        path = self.arxhost.folder / name
        path.unlink(missing_ok=True)
        return path

    def _drawn(self, side):
        path = self.arxhost.drawn(side, side)
        if not path.exists():
            with self.session() as session:
                preview(session, side, side)
                session.step("A\n")
                session.step(f"SAVEAS\n{path}\n")
        return path


def preview(session, columns, rows):
    """What building the preview of a grid costs."""
    session.step("zv_netrax\n0,0\n", CORNER)
    return session.step(asked_for(columns, rows), APPLY)


def all_series(works, quick):
    squares, strips = (SQUARES[:3], STRIPS[:3]) if quick else (SQUARES, STRIPS)
    for work in (works.drawing, works.escape, works.rebuild, works.labels, works.opening,
                 works.plain_writing, *(works.plot(kind) for kind in ("png", "pdf", "svg"))):
        yield Series("lines", squares, lambda side: lines(side, side), work)
    yield Series("steps", strips, int, works.strip)
    yield Series("steps", LABELLED_STRIPS, int, works.strip_with_labels)
    yield Series("times", TIMES, int, works.loading)


def kept_row(works, side, rebuilds, rounds):
    what = f"{lines(side, side):,} lines, {rebuilds} rebuilds"
    try:
        kept = [works.kept(side, rebuilds) for _ in range(rounds)]
    except TooLong:
        row(what, "", "", f"missed: over {works.limit:g} s")
        return
    each = [(last - first) * 1024 / (rebuilds - 1) / lines(side, side) for first, last in kept]
    ratio = Spread.of(last / first for first, last in kept)
    row(what, spread(Spread.of(each)), f"{spread(ratio)} x", verdict(ratio.middle, 1 + MUST))


def measure(arxhost, others, rounds, limit, quick):
    works = Works(arxhost, others, limit)
    table_head()
    for series in all_series(works, quick):
        table_rows(series, rounds, limit)
    head("memory that rebuilds in the preview keep", "B a line and rebuild", "held after the last, against the first",
         f"at most {number(1 + MUST)} x")
    kept_row(works, 71, 100, rounds)
    kept_row(works, *((224, 10) if quick else (708, 4)), rounds)
    say()
