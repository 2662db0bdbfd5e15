#!/usr/bin/python3
"""Draws a saved drawing as an SVG picture: make_picture.py DRAWING.dxf PICTURE.svg

For the README only: plan view, lines, curves, block references and single-line texts.
"""
import sys
from html import escape
from math import cos, radians, sin

import ezdxf
from ezdxf.colors import DXF_DEFAULT_COLORS, int2rgb
from ezdxf.math import Vec2

MARGIN = 6.0
INK = {7: "#2b2b2b", 250: "#555555"}
FILLS = {"Здания": "#efe6d2"}
ANCHORS = {0: "start", 1: "middle", 2: "end", 4: "middle"}
DROP = {0: 0.0, 1: -0.15, 2: 0.36, 3: 0.75}  # of the height, from the alignment point to the baseline


class Picture:
    def __init__(self, doc):
        self.doc = doc
        self.paths = {}  # style -> list of path data
        self.texts = []
        self.low = Vec2(1e99, 1e99)
        self.high = Vec2(-1e99, -1e99)

    def point(self, p):
        self.low = Vec2(min(self.low.x, p[0]), min(self.low.y, p[1]))
        self.high = Vec2(max(self.high.x, p[0]), max(self.high.y, p[1]))
        return Vec2(p[0] - self.origin.x, self.origin.y - p[1])

    def style(self, entity, layer_name):
        layer = self.doc.layers.get(layer_name)
        index = entity.dxf.color if 0 < entity.dxf.color < 256 else layer.color
        red, green, blue = int2rgb(DXF_DEFAULT_COLORS[index])
        ink = INK.get(index, f"#{red:02x}{green:02x}{blue:02x}")
        weight = layer.dxf.get("lineweight", 18)
        name = entity.dxf.linetype if entity.dxf.linetype.upper() != "BYLAYER" else layer.dxf.linetype
        return ink, max(weight, 13) / 100, name, layer_name

    def add(self, entity, layer=None):
        kind = entity.dxftype()
        own = entity.dxf.layer
        layer = layer if layer and own == "0" else own
        if kind == "INSERT":
            for part in entity.virtual_entities():
                self.add(part, layer)
        elif kind == "TEXT":
            self.add_text(entity, self.style(entity, layer)[0])
        elif kind == "POINT":
            self.add_path(entity, layer, self.arc(entity.dxf.location, 0.12, 0, 360))
        else:
            data = self.outline(entity, kind)
            if data:
                self.add_path(entity, layer, data)

    def add_path(self, entity, layer, data):
        self.paths.setdefault(self.style(entity, layer), []).append(data)

    def outline(self, entity, kind):
        if kind == "LINE":
            return self.run([entity.dxf.start, entity.dxf.end])
        if kind == "CIRCLE":
            return self.arc(entity.dxf.center, entity.dxf.radius, 0, 360)
        if kind == "ARC":
            start = entity.dxf.start_angle
            return self.arc(entity.dxf.center, entity.dxf.radius, start,
                            start + (entity.dxf.end_angle - start) % 360)
        if kind == "LWPOLYLINE":
            return self.run(entity.get_points("xy"), entity.closed)
        if kind == "POLYLINE":
            return self.run([v.dxf.location for v in entity.vertices], entity.is_closed)
        return ""

    def run(self, points, closed=False):
        places = [self.point(p) for p in points]
        return "M" + "L".join(f"{p.x:.2f} {p.y:.2f}" for p in places) + ("Z" if closed else "")

    def arc(self, centre, radius, start, end):
        steps = round((end - start) / (5 if radius > 3 else 30)) + 1
        angles = [radians(start + (end - start) * k / steps) for k in range(steps + 1)]
        return self.run([(centre.x + radius * cos(a), centre.y + radius * sin(a)) for a in angles])

    def add_text(self, text, ink):
        d = text.dxf
        aligned = d.halign or d.valign
        at = self.point(d.align_point if aligned and d.hasattr("align_point") else d.insert)
        drop = 0.36 if d.halign == 4 else DROP[d.valign]
        where = (f"translate({at.x:.2f} {at.y:.2f}) rotate({-d.rotation:.2f}) "
                 f"skewX({-d.oblique:.4g}) scale({d.width:.4g} 1)")
        self.texts.append(f'<text transform="{where}" y="{drop * d.height:.3g}" fill="{ink}" '
                          f'font-size="{d.height * 1.35:.3g}" text-anchor="{ANCHORS[d.halign]}">'
                          f"{escape(d.text)}</text>")

    def dashes(self, name):
        linetype = self.doc.linetypes.get(name) if self.doc.linetypes.has_entry(name) else None
        parts = [abs(t.value) for t in linetype.pattern_tags.tags if t.code == 49] if linetype else []
        return f' stroke-dasharray="{" ".join(f"{p:g}" for p in parts)}"' if parts else ""

    def write(self, path):
        corner = Vec2(self.low.x - self.origin.x, self.origin.y - self.high.y) - Vec2(MARGIN, MARGIN)
        size = self.high - self.low + Vec2(2 * MARGIN, 2 * MARGIN)
        frame = f'x="{corner.x:.2f}" y="{corner.y:.2f}" width="{size.x:.2f}" height="{size.y:.2f}"'
        lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="1200" viewBox="{corner.x:.2f} '
                 f'{corner.y:.2f} {size.x:.2f} {size.y:.2f}" font-family="DejaVu Sans, sans-serif">',
                 f'<rect {frame} fill="#fffdf8"/>']
        for (ink, weight, linetype, layer), data in self.paths.items():
            fill = FILLS.get(layer, "none")
            lines.append(f'<path fill="{fill}" stroke="{ink}" stroke-width="{weight:g}"'
                         f'{self.dashes(linetype)} d="{"".join(data)}"/>')
        with open(path, "w", encoding="utf-8") as out:
            out.write("\n".join(lines + self.texts + ["</svg>", ""]))


def main():
    doc = ezdxf.readfile(sys.argv[1])
    picture = Picture(doc)
    entities = list(doc.modelspace())
    first = entities[0]
    picture.origin = Vec2(next(iter(first.get_points("xy"))) if first.dxftype() == "LWPOLYLINE" else (0, 0))
    for entity in entities:
        picture.add(entity)
    picture.write(sys.argv[2])


if __name__ == "__main__":
    main()
