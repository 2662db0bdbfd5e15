#!/usr/bin/python3
"""ezdxf writing or reading lines: `ezdxf_lines.py write LINES FILE`, `ezdxf_lines.py read FILE`."""
import math
import sys

import ezdxf


def write(lines, path):
    doc = ezdxf.new("R2013")
    space, side = doc.modelspace(), int(math.sqrt(lines / 2))
    attributes, drawn = {"color": 12, "linetype": "Continuous"}, []
    for i in range(lines):
        row, column = i // 2 // side + 1.0, i // 2 % side + 0.5
        first, last = ((column, row), (column + 1, row)) if i % 2 == 0 else ((row, column), (row, column + 1))
        drawn.append(space.add_line(first, last, dxfattribs=attributes))
    doc.groups.new().extend(drawn)
    doc.saveas(path)


if sys.argv[1] == "write":
    write(int(sys.argv[2]), sys.argv[3])
else:
    print(len(ezdxf.readfile(sys.argv[2]).modelspace()), "entities")
