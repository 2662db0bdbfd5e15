"""The table of targets: whole runs beside the floors and the peers."""
from measuring import Measures, Spread, in_turn
from programs import asked_for, lines
from report import head, number, row, say, target
from session import APPLY, CORNER, Session

PEERS = {"dime": (6, 9), "dxflib": (40, 70), "ezdxf": (200, 400)}
TABLE = ("measure", "median (quartiles)", "must", "aim", "verdict")


class Whole:
    """`rounds` for runs of a second; short runs take part three times as often, slow peers a third."""

    def __init__(self, arxhost, others, rounds):
        self.arxhost, self.others, self.rounds = arxhost, others, rounds

    def in_turn(self, programs, rounds=None):
        return in_turn(self.others.measure(), self.others.folder, programs, rounds or self.rounds)

    def _runs(self, measures):
        head("medians of the runs", "wall clock, s", "processor, s", "peak, MB", "page faults")
        for name in measures.costs:
            wall, cpu, peak, faults = (measures.spread(name, what).middle for what in ("wall", "cpu", "peak", "faults"))
            row(name, f"{wall:.3f}", f"{cpu:.3f}", f"{peak / 1024:.1f}", f"{faults:.0f}")

    def writing(self, side, peers=()):
        """A square grid drawn, grouped and saved, against the floors; `peers` take part in every round."""
        count = lines(side, side)
        measures = self.in_turn({
            "arxhost": self.arxhost.grid(side, side),
            "arxhost, over an old drawing": self.arxhost.grid(side, side, replace=True),
            "arxhost, 10 x 10": self.arxhost.grid(10, 10),
            "formatting": self.others.formatting(count),
            "writing as many bytes": self.others.plain_writing(),
            **{peer: getattr(self.others, peer)(count) for peer in peers}})
        say(f"\n## {count:,} lines drawn, grouped and saved")
        self._runs(measures)
        head(*TABLE)
        target("against formatting, wall clock", measures.ratio("arxhost", "formatting"), "x", 1.0, 0.6)
        self._beside("against formatting, processor", measures.ratio("arxhost", "formatting", "cpu"))
        self._beside("over an old drawing, which waits for the disk, against formatting",
                     measures.ratio("arxhost, over an old drawing", "formatting"))
        beyond = measures.peak_beyond("arxhost", "arxhost, 10 x 10")
        target("peak memory a line", Spread(*(bytes_ / count for bytes_ in (beyond.low, beyond.middle, beyond.high))),
               "B", 64, 50)
        self._faster(measures, peers)

    def slow_peers(self, side, peers):
        count = lines(side, side)
        measures = self.in_turn({"arxhost": self.arxhost.grid(side, side),
                                 **{peer: getattr(self.others, peer)(count) for peer in peers}},
                                max(1, self.rounds // 3))
        say(f"\n## {count:,} lines beside slow peers")
        self._runs(measures)
        head(*TABLE)
        self._faster(measures, peers)

    def reading(self, side):
        made = self.arxhost.drawn(side, side)
        self.in_turn({"made": self.arxhost.grid(side, side)}, 1)
        measures = self.in_turn({
            "opening": self.arxhost.opening(made),
            "converting the pairs": self.others.reading("convert", made),
            "counting the pairs": self.others.reading("count", made)})
        say(f"\n## A drawing of {lines(side, side):,} lines opened")
        self._runs(measures)
        head(*TABLE)
        target("against converting the pairs", measures.ratio("opening", "converting the pairs"), "x", 1.1, 0.9)
        self._beside("against counting the pairs", measures.ratio("opening", "counting the pairs"))

    def short_runs(self, side):
        """Start to end of a small grid, and rebuilds in the preview of a large one."""
        ends = self.in_turn({"100 x 100": self.arxhost.grid(100, 100)}, 3 * self.rounds)
        first_and_again = self._rebuilds(side)
        say("\n## Short runs")
        self._runs(ends)
        head(*TABLE)
        wall = ends.spread("100 x 100")
        target("start to end, 100 x 100", Spread(*(1000 * time for time in (wall.low, wall.middle, wall.high))),
               "ms", 12, 8)
        what = f"rebuild of {side} x {side} against its first build"
        target(f"{what}, wall clock", first_and_again.ratio("again", "first"), "x", 1.1, 1)
        self._beside(f"{what}, processor", first_and_again.ratio("again", "first", "cpu"))

    def _rebuilds(self, side):
        measures = Measures(("first", "again"))
        self.arxhost.set_options()
        for _ in range(3 * self.rounds):
            with Session(self.arxhost, 60) as session:
                session.step("zv_netrax\n0,0\n", CORNER)
                measures.costs["first"].append(session.step(asked_for(side, side), APPLY))
                again = [session.step("x\n", APPLY) for _ in range(3)]
                measures.costs["again"].append(sorted(again, key=lambda cost: cost.wall)[1])
        return measures

    def _faster(self, measures, peers):
        for peer in peers:
            target(f"faster than {peer}, wall clock", measures.ratio(peer, "arxhost"), "x", *PEERS[peer], more=True)

    def _beside(self, what, values):
        row(what, f"{number(values.middle)} ({number(values.low)} .. {number(values.high)}) x", "", "", "")


def measure(arxhost, others, rounds, quick):
    whole = Whole(arxhost, others, rounds)
    whole.writing(500, ["dime"])
    whole.slow_peers(500, ["dxflib"] if quick else ["dxflib", "ezdxf"])
    if not quick:
        whole.writing(1000)
    whole.reading(500)
    whole.short_runs(500)
