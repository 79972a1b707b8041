"""A drawing for the tests, offered to Velmora from a FreeCAD of its own. The outline runs round a
plate: lines, one drawn backwards, an arc of a sketch, a wire and a spline, a circle that
touches the corner at the start, and two strays far away, of which the second is the last one left."""
import math
import os
import runpy

import Draft
import FreeCAD
import Part

V = FreeCAD.Vector
document = FreeCAD.newDocument("pieza")
Draft.make_line(V(0.5, 0.5), V(40.5, 0.5))
backwards = document.addObject("Part::Line", "Backwards")
backwards.X1, backwards.Y1, backwards.X2, backwards.Y2 = 40.5, 20.5, 40.5, 0.5
sketch = document.addObject("Sketcher::SketchObject", "Sketch")
circle = Part.Circle(V(35.5, 20.5), V(0, 0, 1), 5)
sketch.addGeometry(Part.ArcOfCircle(circle, 0, math.pi / 2), False)
sketch.addGeometry(Part.LineSegment(V(1, 1), V(2, 2)), True)
Draft.make_wire([V(35.5, 25.5), V(30.5, 22.5), V(20.5, 25.5)], closed=False, face=False)
spline = Part.BSplineCurve()
spline.buildFromPolesMultsKnots(
    [V(0.5, 25.5), V(5.5, 30.5), V(15.5, 20.5), V(20.5, 25.5)], [4, 4], [0.0, 1.0], False, 3
)
document.addObject("Part::Feature", "Curve").Shape = spline.toShape()
Draft.make_text(["no outline"], V(0, 0))
Draft.make_line(V(0.5, 25.5), V(0.5, 0.5))
round_hole = document.addObject("Part::Circle", "Hole")
round_hole.Radius = 2
round_hole.Placement.Base = V(-1.5, 0.75)
Draft.make_line(V(500, 500), V(600, 600))
Draft.make_line(V(700, 700), V(800, 800))
hidden = Draft.make_line(V(0.5, 0.5), V(99, 99))
hidden.Visibility = False
document.recompute()

runpy.run_path(os.environ["VELMORA_SERVE"])
