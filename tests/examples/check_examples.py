#!/usr/bin/python3
"""Checks the example: that its drawing is what its script draws, and what `scripts/run` makes of it."""
import re
import subprocess
import sys
import tempfile
from collections import Counter
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "support"))
import ezdxf  # noqa: E402
from arxhost import ROOT, need_built  # noqa: E402
from report import check, expect, expect_equal, run_all  # noqa: E402

SITE = ROOT / "examples" / "site.dxf"


def draw_example():
    return subprocess.run([ROOT / "scripts" / "run"], cwd="/", capture_output=True, text=True, check=False)


@check
def the_site_plan_is_what_its_script_draws():
    with tempfile.TemporaryDirectory() as folder:
        drawn = Path(folder) / "site.dxf"
        subprocess.run([ROOT / "examples" / "make_site.py", drawn], check=True)
        expect(drawn.read_bytes() == SITE.read_bytes(), "make_site.py draws another plan")


@check
def the_site_plan_is_sound():
    audit = ezdxf.readfile(SITE).audit()
    expect_equal((len(audit.errors), len(audit.fixes)), (0, 0), "the auditor's errors and fixes")


@check
def the_example_draws_two_grids_and_says_where():
    run = draw_example()
    expect_equal((run.returncode, run.stderr), (0, ""), "result")
    results = re.findall(r"^saved: (.*)$", run.stdout, re.M)
    wanted = [str(ROOT / "out" / name) for name in ("site-lines.dxf", "site-grid.dxf")]
    expect_equal(results, wanted, "results")
    plots = re.findall(r"^plotted: (.*)$", run.stdout, re.M)
    expect_equal(plots, [result.replace(".dxf", ".png") for result in results], "plots")
    for plot in plots:
        expect(Path(plot).read_bytes().startswith(b"\x89PNG"), plot)
    doc = ezdxf.readfile(results[1])
    audit = doc.audit()
    expect_equal((len(audit.errors), len(audit.fixes)), (0, 0), "the auditor's errors and fixes")
    grids = [Counter(member.dxftype() for member in group) for _, group in doc.groups]
    expect_equal(len(grids), 2, "groups")
    expect(grids[0]["LINE"] > 50 and grids[0]["TEXT"] > 20, f"the first grid: {grids[0]}")
    expect(grids[1]["LINE"] > 50 and grids[1]["TEXT"] == 0, f"the second grid: {grids[1]}")
    expect_equal({member.dxf.layer for _, group in doc.groups for member in group}, {"Сетка"}, "layers")


if __name__ == "__main__":
    need_built()
    run_all()
