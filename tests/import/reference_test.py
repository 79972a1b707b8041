#!/usr/bin/env python3
"""Drawings made at random, read by velmora-import and by two readers of the distribution.

reference_test.py TOOL

Every vertex of one lies within the tolerance of the curves of the other. Ends with 77, which means
"skipped", where no other reader is installed.
"""

import json
import math
import random
import subprocess
import sys
import tempfile
from pathlib import Path

SKIPPED = 77
TOLERANCE = 0.02
FINE = 0.001
# Arcs come from ezdxf as cubic curves, off by 3 of 10,000 of the radius.
REACH = TOLERANCE + 0.05

try:
    import ezdxf
    import ezdxf.path
except ImportError:
    ezdxf = None
try:
    from osgeo import gdal, ogr
except ImportError:
    ogr = None


def place(spread=100):
    return (random.uniform(-spread, spread), random.uniform(-spread, spread))


def add_curves(target, below, bulge):
    """One of each kind; some drawn from below, as mirrored ones are."""
    turned = {"extrusion": (0, 0, -1)} if below else {}
    target.add_line(place(), place())
    target.add_circle(place(), random.uniform(1, 50), dxfattribs=turned)
    target.add_arc(place(), random.uniform(1, 50), random.uniform(0, 360), random.uniform(0, 360),
                   dxfattribs=turned)
    target.add_ellipse(place(), place(40) + (0,), random.uniform(0.1, 1), random.uniform(0, 3),
                       random.uniform(3.5, 6))
    bulged = [place() + (random.choice([0, random.uniform(-bulge, bulge)]),) for _ in range(6)]
    target.add_lwpolyline(bulged, format="xyb", close=random.random() < 0.5, dxfattribs=turned)
    target.add_polyline2d(bulged, format="xyb", close=random.random() < 0.5, dxfattribs=turned)
    target.add_open_spline([place() for _ in range(7)], degree=random.choice([2, 3, 4]))
    target.add_rational_spline([place() for _ in range(6)],
                               [random.uniform(0.3, 3) for _ in range(6)], degree=3)


def make_drawing(version, bulge):
    drawing = ezdxf.new(version, units=4)
    part = drawing.blocks.new("PART", base_point=place(20))
    add_curves(part, False, bulge)
    nest = drawing.blocks.new("NEST")
    nest.add_blockref("PART", place(), dxfattribs={"xscale": 0.5, "yscale": 0.5, "rotation": 30})
    space = drawing.modelspace()
    add_curves(space, False, bulge)
    add_curves(space, True, bulge)
    space.add_blockref("PART", place(), dxfattribs={
        "xscale": -1.5, "yscale": 1.5, "rotation": random.uniform(0, 360)})
    space.add_blockref("NEST", place(), dxfattribs={
        "xscale": 2, "yscale": 2, "column_count": 2, "row_count": 2, "column_spacing": 300,
        "row_spacing": 200, "rotation": 45})
    return drawing


def single_curves(entities):
    for entity in entities:
        if entity.dxftype() != "INSERT":
            yield entity
        elif entity.mcount > 1:
            for one in entity.multi_insert():
                yield from single_curves([one])
        else:
            yield from single_curves(entity.virtual_entities())


def by_ezdxf(drawing):
    for entity in single_curves(drawing.modelspace()):
        # A path holds cubic curves alone, which other splines are not.
        is_spline = entity.dxftype() == "SPLINE"
        curve = entity.construction_tool() if is_spline else ezdxf.path.make_path(entity)
        yield [(p.x, p.y) for p in curve.flattening(FINE, segments=16)]


def by_gdal(file):
    gdal.SetConfigOption("OGR_ARC_STEPSIZE", "0.5")
    source = ogr.Open(str(file))
    for feature in source.GetLayer(0):
        yield from lines_of(feature.GetGeometryRef())


def lines_of(geometry):
    if geometry is None:
        return
    if geometry.GetGeometryCount() > 0:
        for i in range(geometry.GetGeometryCount()):
            yield from lines_of(geometry.GetGeometryRef(i))
    elif geometry.GetPointCount() > 1:
        yield [point[:2] for point in geometry.GetPoints()]


def by_tool(tool, file):
    run = subprocess.run([tool, "--check", "--json", "--points", "--tolerance", str(TOLERANCE),
                          str(file)], capture_output=True, text=True, check=True)
    result = json.loads(run.stdout)
    for chain in result["chains"]:
        points = [tuple(point) for point in chain["at"]]
        yield points + points[:1] if chain["closed"] else points


class Curves:
    """Segments in cells, so that the nearest one is found among few."""

    def __init__(self, runs, reach):
        self.reach = reach
        self.cell = 4.0
        self.cells = {}
        for run in runs:
            for a, b in zip(run, run[1:]):
                self.put(a, b)

    def put(self, a, b):
        steps = max(1, math.ceil(math.dist(a, b) / self.cell * 2))
        for i in range(steps + 1):
            x = a[0] + (b[0] - a[0]) * i / steps
            y = a[1] + (b[1] - a[1]) * i / steps
            column, row = math.floor(x / self.cell), math.floor(y / self.cell)
            for right in (-1, 0, 1):
                for up in (-1, 0, 1):
                    self.cells.setdefault((column + right, row + up), set()).add((a, b))

    def holds(self, p):
        near = self.cells.get((math.floor(p[0] / self.cell), math.floor(p[1] / self.cell)), ())
        return any(distance(p, a, b) <= self.reach for a, b in near)


def distance(p, a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    square = dx * dx + dy * dy
    part = ((p[0] - a[0]) * dx + (p[1] - a[1]) * dy) / square if square else 0
    part = min(1, max(0, part))
    return math.dist(p, (a[0] + part * dx, a[1] + part * dy))


def lost(runs, curves, reach, what):
    """1 where a vertex of the runs lies on none of the curves."""
    held = Curves(curves, reach)
    off = [p for run in runs for p in run if not held.holds(p)]
    if off:
        print(f"{what}: {len(off)} of {sum(map(len, runs))} lie on no curve, the first {off[0]}")
    return 1 if off else 0


def compare_with_ezdxf(tool, file, drawing):
    ours, theirs = list(by_tool(tool, file)), list(by_ezdxf(drawing))
    print(f"{file.name}: {sum(map(len, ours))} vertices against {sum(map(len, theirs))}")
    return (lost(ours, theirs, REACH, f"{file.name}, ours") +
            lost(theirs, ours, REACH, f"{file.name}, those of ezdxf"))


def compare_with_gdal(tool, file):
    """One way alone: it takes a few points of each spline. Bulges beyond 1 it reads wrongly."""
    ours, theirs = list(by_tool(tool, file)), list(by_gdal(file))
    print(f"{file.name}: {sum(map(len, theirs))} vertices of GDAL")
    return lost(theirs, ours, TOLERANCE + FINE, f"{file.name}, those of GDAL")


def main():
    if ezdxf is None:
        print("skipped: python3-ezdxf is not installed")
        return SKIPPED
    if ogr is None:
        print("python3-gdal is not installed: compared with one reader alone")
    tool = sys.argv[1]
    random.seed(20)
    faults = 0
    with tempfile.TemporaryDirectory() as folder:
        for version in ("R2000", "R2004", "R2007", "R2010", "R2013", "R2018"):
            drawing = make_drawing(version, 2)
            for form in ("asc", "bin"):
                file = Path(folder) / f"{version}-{form}.dxf"
                drawing.saveas(file, fmt=form)
                faults += compare_with_ezdxf(tool, file, drawing)
            if ogr is not None:
                file = Path(folder) / f"{version}-gdal.dxf"
                make_drawing(version, 1).saveas(file)
                faults += compare_with_gdal(tool, file)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
