#!/usr/bin/python3
"""Draws the small drawings that the golden cases open (their before.dxf are links to them)."""
from pathlib import Path

import ezdxf

HERE = Path(__file__).resolve().parent
ezdxf.options.write_fixed_meta_data_for_testing = True


def save(doc, name):
    # Left to itself the library lists the classes in the order of a set, another one each time.
    for kind in sorted(doc.entitydb.dxf_types_in_use()):
        doc.classes.add_class(kind)
    doc.saveas(HERE / name)


def plan(name, locked):
    """A room, a named group, layers in every state; a layer, a linetype and a style of its own are current."""
    doc = ezdxf.new("R2013")
    doc.linetypes.add("DASHED", [6.0, 4.0, -2.0], description="__ __ __ ")
    doc.styles.add("Notes", font="isocpeur.ttf", dxfattribs={"width": 0.8, "oblique": 10})
    for layer, colour in (("Walls", 7), ("Grid", 3), ("Asleep", 5), ("Shut", 1), ("Dark", 6)):
        doc.layers.add(layer, color=colour)
    doc.layers.get("Asleep").freeze()
    doc.layers.get("Shut").lock()
    doc.layers.get("Dark").off()
    if locked:
        doc.layers.get("Grid").lock()
    doc.header["$CLAYER"] = "Grid"
    doc.header["$CELTYPE"] = "DASHED"
    doc.header["$TEXTSTYLE"] = "Notes"
    msp = doc.modelspace()
    msp.add_lwpolyline([(20, 30), (280, 30), (280, 180), (20, 180)], close=True,
                       dxfattribs={"layer": "Walls"})
    for layer, y in (("Asleep", 60), ("Shut", 90), ("Dark", 120)):
        msp.add_line((40, y), (90, y), dxfattribs={"layer": layer})
    desk = [msp.add_line((150, 80), (210, 80)), msp.add_circle((180, 95), 12)]
    doc.groups.new("DESK", "a table and a chair").extend(desk)
    doc.appids.add("NOTES_APP")
    desk[0].set_xdata("NOTES_APP", [(1000, "oak"), (1040, 1.5)])
    doc.set_modelspace_vport(height=220, center=(150, 100))
    save(doc, name)


def survey():
    """A plot in survey coordinates, its names in raw cp1251 bytes."""
    doc = ezdxf.new("R2000")
    doc.encoding = "cp1251"
    doc.styles.add("ГОСТ", font="isocpeur.ttf", dxfattribs={"width": 0.85, "oblique": 15})
    doc.layers.add("Граница", color=1)
    doc.layers.add("Сетка", color=8)
    doc.header["$CLAYER"] = "Сетка"
    doc.header["$TEXTSTYLE"] = "ГОСТ"
    msp = doc.modelspace()
    corners = [(2178212.345, 447106.872), (2178431.018, 447121.644), (2178420.77, 447259.301),
               (2178225.4, 447248.006)]
    msp.add_lwpolyline(corners, close=True, dxfattribs={"layer": "Граница"})
    for number, place in enumerate(corners, 1):
        name = msp.add_text(f"т.{number}", height=3, dxfattribs={"layer": "Граница", "style": "ГОСТ"})
        name.set_placement(place)
    doc.set_modelspace_vport(height=220, center=(2178320, 447180))
    save(doc, "survey.dxf")


plan("plan.dxf", locked=False)
plan("plan-locked.dxf", locked=True)
survey()
