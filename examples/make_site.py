#!/usr/bin/python3
"""Draws examples/site.dxf: the plan of a building site on a river bank, in survey coordinates.

Everything is laid out in the site's own axes (u along the street, v up the slope, metres) and carried
to the survey's easting and northing by `world`. Nothing depends on the clock or on chance: running
it twice gives the same bytes.
"""
import random
import sys
from math import atan2, cos, degrees, hypot, radians, sin
from pathlib import Path

import ezdxf
from ezdxf.enums import TextEntityAlignment as Align

CENTRE = (2178290.37, 447182.64)
TURN = radians(-30)  # the street's direction; a view twist of 30 degrees makes it horizontal
SHEET = (2178120, 447060, 2178460, 447300)
STYLE = "ГОСТ 2.304"

LAYERS = [  # name, colour, linetype, line weight in 1/100 mm
    ("Рельеф", 34, "Continuous", 13), ("Рельеф утолщённый", 34, "Continuous", 30),
    ("Отметки", 36, "Continuous", 13), ("Гидрография", 150, "Continuous", 25),
    ("Дороги", 8, "Continuous", 20), ("Оси дорог", 8, "Осевая", 13),
    ("Здания", 7, "Continuous", 35), ("Заборы", 252, "Continuous", 13),
    ("Деревья", 94, "Continuous", 13), ("Водопровод", 5, "Штриховая", 20),
    ("Границы участка", 1, "Осевая", 50), ("Подписи", 7, "Continuous", 18),
    ("Сетка", 7, "Continuous", 18),
]


def world(u, v):
    return (round(CENTRE[0] + u * cos(TURN) - v * sin(TURN), 3),
            round(CENTRE[1] + u * sin(TURN) + v * cos(TURN), 3))


def on_sheet(u, v, margin=0.0):
    x, y = world(u, v)
    return (SHEET[0] + margin <= x <= SHEET[2] - margin
            and SHEET[1] + margin <= y <= SHEET[3] - margin)


# The ground: each level is one curve v(u); the slope rises from the river to the north.
def contour(level, u):
    return -80 + (level - 148) * 16 + 8 * sin(u / 60 + level * 0.8) + 3 * sin(u / 23 + level)


def height(u, v):
    low, high = 140.0, 170.0
    for _ in range(40):
        middle = (low + high) / 2
        low, high = (middle, high) if contour(middle, u) < v else (low, middle)
    return low


def street(u):
    return 14 + 5 * sin(u / 75)


def lane(v):
    return -66 + 4 * sin(v / 40)


def near_bank(u):
    return -92 + 7 * sin(u / 48)


def far_bank(u):
    return -113 + 9 * sin(u / 55 + 0.6)


def box(u, v, length, width):
    return [(u, v), (u + length, v), (u + length, v + width), (u, v + width)]


def houses():
    """Outline and name of every building."""
    for i in range(10):
        u = -166 + 34 * i
        if abs(u + 8 - lane(40)) < 14:
            continue
        v = street(u + 8) + 20 + 2 * (i % 3)
        wing = 4 + i % 2
        outline = [(u, v), (u + 13, v), (u + 13, v + 7), (u + 13 - wing, v + 7),
                   (u + 13 - wing, v + 11), (u, v + 11)]
        yield (outline if i % 3 else box(u, v, 13, 10)), "КЖ"
        yield box(u + 16, v + 24, 6, 4.5), "Н"
    yield box(-150, -16, 52, 12), "5КЖ"
    yield box(-142, -52, 52, 12), "5КЖ"
    yield [(2, -14), (2, -48), (16, -48), (16, -28), (58, -28), (58, -48), (72, -48), (72, -14)], "3К"
    yield box(80, -50, 12, 24), "2К"
    yield box(118, -24, 30, 14), "2КЖ"
    yield box(122, -58, 30, 14), "2КЖ"


HOUSES = list(houses())
PARCEL = [(-48, -48), (-34, -62), (102, -62), (102, 5), (-48, -3)]


def in_house(u, v, margin=1.0):
    return any(min(p[0] for p in ring) - margin <= u <= max(p[0] for p in ring) + margin
               and min(p[1] for p in ring) - margin <= v <= max(p[1] for p in ring) + margin
               for ring, _ in HOUSES)


def on_road(u, v, margin=0.0):
    return abs(v - street(u)) < 4 + margin or abs(u - lane(v)) < 3 + margin and v > near_bank(u) + 8


def open_ground(u, v):
    named = abs(u + 28) < 15 and -48 < v < -37  # the parcel's name stands there
    paved = hypot(u - 37, v + 48) < 8.5
    return (not in_house(u, v) and not on_road(u, v) and not named and not paved
            and v > near_bank(u) + 1)


class Plan:
    """The drawing under way; every method takes site coordinates."""

    def __init__(self):
        ezdxf.options.write_fixed_meta_data_for_testing = True
        self.doc = ezdxf.new("R2000", units=6)
        self.doc.encoding = "cp1251"
        self.msp = self.doc.modelspace()
        self.doc.styles.add(STYLE, font="isocpeur.ttf", dxfattribs={"width": 0.85, "oblique": 15})
        self.doc.linetypes.add("Осевая", [12.0, 8.0, -1.5, 1.0, -1.5], description="____ _ ____ _ ")
        self.doc.linetypes.add("Штриховая", [6.0, 4.0, -2.0], description="__ __ __ ")
        for name, colour, linetype, weight in LAYERS:
            layer = self.doc.layers.add(name, color=colour, linetype=linetype)
            layer.dxf.lineweight = weight
        self.make_blocks()
        self.doc.header["$CLAYER"] = "Сетка"
        self.doc.header["$TEXTSTYLE"] = STYLE
        centre = ((SHEET[0] + SHEET[2]) / 2, (SHEET[1] + SHEET[3]) / 2)
        self.doc.set_modelspace_vport(height=290, center=centre)

    def make_blocks(self):
        leafy = self.doc.blocks.new("Дерево лиственное")
        for k in range(7):  # a crown of seven arcs
            at = radians(360 / 7 * k)
            leafy.add_arc((1.1 * cos(at), 1.1 * sin(at)), 0.75, degrees(at) - 80, degrees(at) + 80)
        leafy.add_circle((0, 0), 0.2)
        pine = self.doc.blocks.new("Дерево хвойное")
        pine.add_circle((0, 0), 1.4)
        for k in range(8):
            at = radians(45 * k)
            pine.add_line((0.3 * cos(at), 0.3 * sin(at)), (1.4 * cos(at), 1.4 * sin(at)))
        well = self.doc.blocks.new("Колодец")
        well.add_circle((0, 0), 0.9)
        well.add_line((-0.9, 0), (0.9, 0))
        north = self.doc.blocks.new("Стрелка севера")
        north.add_lwpolyline([(0, 14), (-3.2, -4), (0, -1), (3.2, -4)], close=True)
        north.add_line((0, 14), (0, -1))
        north.add_text("С", height=4.5, dxfattribs={"style": STYLE}).set_placement(
            (0, 16), align=Align.BOTTOM_CENTER)

    def ring(self, points, layer):
        self.msp.add_lwpolyline([world(*p) for p in points], close=True, dxfattribs={"layer": layer})

    def curve(self, points, layer, keep=lambda u, v: True, elevation=0.0):
        """An open polyline, cut where it leaves the sheet or where `keep` says no."""
        piece = []
        for u, v in list(points) + [(None, None)]:
            if u is not None and on_sheet(u, v) and keep(u, v):
                piece.append(world(u, v))
                continue
            if len(piece) > 2:
                self.msp.add_lwpolyline(piece, dxfattribs={"layer": layer, "elevation": elevation})
            piece = []

    def text(self, words, u, v, size, layer, turn=TURN, align=Align.MIDDLE_CENTER):
        x, y = world(u, v)
        label = self.msp.add_text(words, height=size, rotation=degrees(turn),
                                  dxfattribs={"layer": layer, "style": STYLE, "width": 0.85,
                                              "oblique": 15})
        label.set_placement((x, y), align=align)

    def block(self, name, u, v, layer, scale=1.0, turn=0.0):
        self.msp.add_blockref(name, world(u, v), dxfattribs={
            "layer": layer, "xscale": scale, "yscale": scale, "rotation": turn})


def draw_relief(plan):
    for step in range(-2, 34):
        level = 148 + step / 2
        thick = step % 5 == 0
        layer = "Рельеф утолщённый" if thick else "Рельеф"
        spots = [k for k in (-120, 30, 150) if thick and open_ground(k, contour(level, k))
                 and on_sheet(k, contour(level, k), 6)]
        apart = lambda u: all(abs(u - k) > 6 for k in spots)
        plan.curve([(u, contour(level, u)) for u in range(-240, 241, 3)], layer,
                   lambda u, v: open_ground(u, v) and apart(u), level)
        for u in spots:
            slope = atan2(contour(level, u + 1) - contour(level, u - 1), 2)
            plan.text(f"{level:g}", u, contour(level, u), 2.0, layer, TURN + slope)


def draw_water(plan):
    plan.curve([(u, near_bank(u)) for u in range(-240, 241, 4)], "Гидрография")
    plan.curve([(u, far_bank(u)) for u in range(-240, 241, 4)], "Гидрография")
    middle = (near_bank(-30) + far_bank(-30)) / 2
    plan.text("р. Берёзовка", -30, middle, 4.5, "Гидрография", TURN - 0.05)


def draw_roads(plan):
    along = range(-240, 241, 3)
    crossing = lambda u, v: abs(u - lane(v)) > 3.2
    for side in (-4, 4):
        plan.curve([(u, street(u) + side) for u in along], "Дороги", crossing)
    for side in (-6.5, 6.5):
        plan.curve([(u, street(u) + side) for u in along], "Дороги",
                   lambda u, v: abs(u - lane(v)) > 5.5)
    plan.curve([(u, street(u)) for u in along], "Оси дорог")
    for side in (-3, 3):
        plan.curve([(lane(v) + side, v) for v in range(-80, 170, 2)], "Дороги",
                   lambda u, v: abs(v - street(u)) > 4.2)
    plan.curve([(lane(v), v) for v in range(-80, 170, 2)], "Оси дорог")
    plan.text("ул. Садовая", 118, street(118), 3.5, "Подписи", TURN - 0.02)
    plan.text("пер. Речной", lane(62), 62, 3.0, "Подписи", TURN + radians(90))
    for k in range(13):  # bays of the car park
        plan.msp.add_line(world(-42 + 2.5 * k, -12), world(-42 + 2.5 * k, -17),
                          dxfattribs={"layer": "Дороги"})
    plan.curve([(-42, -17), (-27, -17), (-12, -17)], "Дороги")
    plan.msp.add_circle(world(37, -48), 8, dxfattribs={"layer": "Дороги"})
    plan.msp.add_circle(world(37, -48), 4, dxfattribs={"layer": "Гидрография"})


def draw_buildings(plan):
    for ring, name in HOUSES:
        u = sum(p[0] for p in ring) / len(ring)
        v = sum(p[1] for p in ring) / len(ring)
        if not all(on_sheet(*p, 2) for p in ring):
            continue
        plan.ring(ring, "Здания")
        if name == "3К":
            v = -21
            plan.text("Школа", u, v + 2.2, 3.0, "Подписи")
            v -= 2.2
        plan.text(name, u, v, 1.8 if name in ("КЖ", "Н") else 3.0, "Подписи")


def draw_fences(plan):
    for i in range(11):
        u = -174 + 34 * i
        if abs(u - lane(40)) > 8:
            plan.curve([(u, street(u) + 9 + 3 * k) for k in range(20)], "Заборы",
                       lambda a, b: not on_road(a, b, 2))
    plan.curve([(u, street(u) + 66) for u in range(-174, 167, 2)], "Заборы",
               lambda a, b: not on_road(a, b, 2))


def draw_trees(plan):
    chance = random.Random(30)

    def tree(kind, u, v):
        if on_sheet(u, v, 3) and not in_house(u, v, 2) and not on_road(u, v, 1.5):
            plan.block(kind, u, v, "Деревья", round(chance.uniform(0.8, 1.35), 2),
                       chance.randrange(0, 360, 15))

    for k in range(-26, 27):
        tree("Дерево лиственное", 9 * k, street(9 * k) + 8.2)
        tree("Дерево лиственное", 9 * k + 4, street(9 * k + 4) - 8.2)
    for _ in range(70):
        u = chance.uniform(-190, 190)
        tree("Дерево хвойное", u, near_bank(u) + chance.uniform(4, 14))
    for i in range(10):
        for _ in range(6):
            u = -166 + 34 * i + chance.uniform(-4, 22)
            tree("Дерево лиственное", u, street(u) + chance.uniform(36, 62))
    for _ in range(60):
        tree("Дерево хвойное", chance.uniform(-160, 120), street(0) + chance.uniform(74, 150))


def draw_heights(plan):
    chance = random.Random(8)
    for row in range(-4, 9):
        for column in range(-9, 10):
            u, v = 21 * column + chance.uniform(-6, 6), 19 * row + chance.uniform(-5, 5)
            if not on_sheet(u, v, 10) or not open_ground(u, v) or chance.random() < 0.25:
                continue
            level = height(u, v)
            plan.msp.add_point((*world(u, v), round(level, 3)), dxfattribs={"layer": "Отметки"})
            plan.text(f"{level:.2f}", u + 0.6, v + 0.8, 1.5, "Отметки", 0.0, Align.LEFT)


def draw_water_main(plan):
    offset = -11
    plan.curve([(u, street(u) + offset) for u in range(-240, 241, 5)], "Водопровод",
               lambda u, v: not in_house(u, v))
    for u in range(-180, 181, 45):
        if on_sheet(u, street(u) + offset, 6) and not in_house(u, street(u) + offset):
            plan.block("Колодец", u, street(u) + offset, "Водопровод")
            plan.text("В1", u + 4, street(u) + offset - 2, 1.8, "Водопровод")


def draw_boundary(plan):
    plan.ring(PARCEL, "Границы участка")
    middle = (27, -30)
    for number, (u, v) in enumerate(PARCEL, 1):
        plan.msp.add_circle(world(u, v), 0.8, dxfattribs={"layer": "Границы участка"})
        away = hypot(u - middle[0], v - middle[1])
        plan.text(f"т.{number}", u + 5 * (u - middle[0]) / away, v + 4 * (v - middle[1]) / away, 2.2,
                  "Границы участка")
    plan.text("Участок 24:17", -28, -40, 3.0, "Подписи")
    plan.text("S = 0,92 га", -28, -45, 2.2, "Подписи")


def draw_title(plan):
    plan.msp.add_blockref("Стрелка севера", (SHEET[2] - 18, SHEET[3] - 30),
                          dxfattribs={"layer": "Подписи"})
    for words, size, lift in (("План участка застройки", 6.0, 21), ("Масштаб 1:1000", 3.0, 13)):
        title = plan.msp.add_text(words, height=size, dxfattribs={
            "layer": "Подписи", "style": STYLE, "width": 0.85, "oblique": 15})
        title.set_placement((SHEET[0] + 14, SHEET[1] + lift))


def main():
    plan = Plan()
    for draw in (draw_relief, draw_water, draw_roads, draw_buildings, draw_fences, draw_trees,
                 draw_heights, draw_water_main, draw_boundary, draw_title):
        draw(plan)
    here = Path(__file__).resolve().parent
    plan.doc.saveas(sys.argv[1] if len(sys.argv) > 1 else here / "site.dxf")


if __name__ == "__main__":
    main()
