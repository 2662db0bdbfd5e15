"""What the checks of the command line share."""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
from arxhost import BUILD, ROOT, Desk, need_built, options_text  # noqa: E402,F401
from report import check, expect, expect_equal, not_on_windows, only_on_windows, run_all  # noqa: E402,F401

PLAN = ROOT / "tests" / "golden" / "drawings" / "plan.dxf"
CORNERS = "zv_netrax\n10,20\n260,170\n"
GRID = CORNERS + "A\n"
SUMMARY = "*** horizontal dist: 100.00; vertical dist: 100.00; color: 12; appearance: continuous line ***"


def one_line(text):
    return text.count("\n") == 1 and text.endswith("\n") and len(text) > 1
