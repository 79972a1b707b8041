"""What the add-on makes of drawings, in a FreeCAD without windows:

    VELMORA_ADDON=integrations/freecad freecadcmd drawings_test.py
"""
import math
import os
import sys
import unittest

sys.path.insert(0, os.environ["VELMORA_ADDON"])

import Draft  # noqa: E402
import FreeCAD  # noqa: E402
import Mesh  # noqa: E402
import Part  # noqa: E402

from velmora_cad.application import Application  # noqa: E402
from velmora_cad.faults import REFUSED, Fault  # noqa: E402

V = FreeCAD.Vector
UPRIGHT = FreeCAD.Placement(V(0, 0, 0), FreeCAD.Rotation(V(1, 0, 0), 90))
FROM_THE_RIGHT = FreeCAD.Placement(V(0, 0, 0), FreeCAD.Rotation(V(1, 1, 1), 120))
FROM_BEHIND = FreeCAD.Placement(V(0, 0, 0), FreeCAD.Rotation(V(0, 1, 1), 180))


class DrawingTest(unittest.TestCase):
    def setUp(self):
        self.document = FreeCAD.newDocument("prueba")
        self.application = Application()

    def tearDown(self):
        FreeCAD.closeDocument(self.document.Name)

    def sketch(self, *geometry, placement=FreeCAD.Placement()):
        made = self.document.addObject("Sketcher::SketchObject", "Sketch")
        for one in geometry:
            made.addGeometry(one, False)
        made.Placement = placement
        return made

    def feature(self, shape, label="Feature"):
        made = self.document.addObject("Part::Feature", label)
        made.Shape = shape
        return made

    def read(self):
        self.document.recompute()
        count = self.application.EntityCount(self.document.Name)
        return self.application.ReadEntities(self.document.Name, 0, count)

    def remarks(self):
        return self.application.Remarks(self.document.Name)

    def refusal(self):
        with self.assertRaises(Fault) as raised:
            self.read()
        self.assertEqual(raised.exception.number, REFUSED)
        return str(raised.exception)

    def assert_read(self, *expected):
        found = self.read()
        self.assertEqual([one.class_name for one in found], [one[0] for one in expected])
        for entity, (_, *numbers) in zip(found, expected):
            self.assertEqual(len(entity.numbers), len(numbers), entity)
            for number, wanted in zip(entity.numbers, numbers):
                self.assertAlmostEqual(number, wanted, 12, entity)


def points_of(entity):
    flat = iter(entity.numbers)
    return list(zip(flat, flat))


def farthest(points, way):
    """How far the worst of the points is from the straight sides of the way."""
    sides = list(zip(way, way[1:]))
    return max(min(_off(point, *side) for side in sides) for point in points)


def _off(point, start, end):
    across, up = end[0] - start[0], end[1] - start[1]
    x, y = point[0] - start[0], point[1] - start[1]
    square = across * across + up * up
    part = max(0, min(1, (x * across + y * up) / square)) if square else 0
    return math.hypot(x - part * across, y - part * up)


def _off_curve(point, edge):
    return edge.Curve.value(edge.Curve.parameter(point)).distanceToPoint(point)


class PlaneTest(DrawingTest):
    SECTION = (
        Part.LineSegment(V(1.1, 2.3), V(10.7, 2.3)),
        Part.ArcOfCircle(Part.Circle(V(10.7, 4.3), V(0, 0, 1), 2), -math.pi / 2, math.pi / 2),
    )
    AS_DRAWN = (
        ("AcDbLine", 1.1, 2.3, 10.7, 2.3),
        ("AcDbArc", 10.7, 4.3, 2, 3 * math.pi / 2, math.pi / 2),
    )

    def test_a_section_in_xz_is_seen_from_the_front(self):
        self.sketch(*self.SECTION, placement=UPRIGHT)
        self.assert_read(*self.AS_DRAWN)
        self.assertIn("X to the right, Z up", self.remarks())

    def test_a_section_in_yz_is_seen_from_the_right(self):
        self.sketch(*self.SECTION, placement=FROM_THE_RIGHT)
        self.assert_read(*self.AS_DRAWN)
        self.assertIn("Y to the right, Z up", self.remarks())

    def test_a_section_seen_from_behind_is_not_mirrored(self):
        self.sketch(*self.SECTION, placement=FROM_BEHIND)
        self.assert_read(*self.AS_DRAWN)
        self.assertIn("-X to the right, Z up", self.remarks())

    def test_a_tilted_section_is_seen_as_its_sketch_shows_it(self):
        tilt = FreeCAD.Placement(V(5, 6, 7), FreeCAD.Rotation(V(1, 2, 3), 40))
        sketch = self.sketch(*self.SECTION, placement=tilt)
        (line, arc) = self.read()
        start, end = points_of(line)
        self.assertAlmostEqual(end[0] - start[0], 9.6, 12)
        self.assertAlmostEqual(end[1] - start[1], 0, 12)
        self.assertAlmostEqual(arc.numbers[0] - end[0], 0, 12)
        self.assertAlmostEqual(arc.numbers[1] - end[1], 2, 12)
        self.assertAlmostEqual(arc.numbers[3], 3 * math.pi / 2, 9)
        self.assertNotIn(sketch.Label, self.remarks())
        self.assertIn("to the right", self.remarks())

    def test_numbers_in_an_upright_plane_keep_their_last_digit(self):
        places = [(0.1, 1 / 3), (7.7, 0.123456789012345), (3.3, -4.1)]
        for points in ([V(x, 2.5, z) for x, z in places], [V(2.5, x, z) for x, z in places]):
            wire = Draft.make_wire(points, closed=True, face=False)
            (outline,) = self.read()
            self.assertEqual(points_of(outline), places)
            self.document.removeObject(wire.Name)

    def test_lines_of_their_own_in_one_tilted_plane_are_one_drawing(self):
        corners = [V(0, 0, 0), V(8, 0, 6), V(8, 5, 6), V(0, 5, 0)]
        for start, end in zip(corners, corners[1:] + corners[:1]):
            Draft.make_line(start, end)
        self.assert_read(
            ("AcDbLine", 0, 0, 10, 0),
            ("AcDbLine", 10, 0, 10, 5),
            ("AcDbLine", 10, 5, 0, 5),
            ("AcDbLine", 0, 5, 0, 0),
        )

    def test_on_the_ground_it_is_seen_from_above_at_any_height(self):
        self.sketch(*self.SECTION, placement=FreeCAD.Placement(V(0, 0, 30), FreeCAD.Rotation()))
        self.assert_read(*self.AS_DRAWN)
        self.assertEqual(self.remarks(), "prueba, in mm")

    def test_two_heights_are_two_planes(self):
        Draft.make_line(V(0, 0, 0), V(1, 0, 0)).Label = "Root"
        Draft.make_line(V(0, 1, 0), V(1, 0, 0))
        Draft.make_line(V(0, 0, 50), V(1, 0, 50)).Label = "Middle"
        Draft.make_line(V(0, 3, 50), V(1, 0, 50)).Label = "Tip"
        self.assertEqual(self.refusal(), "Middle lies in another plane than Root. "
                                         "Hide one of them, or send a selection.")

    def test_ground_and_upright_are_two_planes(self):
        self.sketch(*self.SECTION).Label = "Floor"
        self.sketch(*self.SECTION, placement=UPRIGHT).Label = "Wall"
        self.assertIn("Wall lies in another plane than Floor", self.refusal())

    def test_what_is_not_flat_is_named(self):
        self.feature(Part.makeHelix(2, 10, 5), "Spring")
        self.assertEqual(self.refusal(), "Spring is not flat, so it is no outline to cut.")

    def test_a_spline_that_leaves_its_plane_between_its_ends_is_not_flat(self):
        spline = Part.BSplineCurve([V(0, 0, 0), V(1, 1, 0), V(2, -1, 3), V(3, 0, 0), V(4, 2, 0)])
        self.feature(spline.toShape(), "Bent")
        self.assertIn("Bent is not flat", self.refusal())

    def test_hidden_objects_have_no_say(self):
        self.sketch(*self.SECTION)
        self.sketch(*self.SECTION, placement=UPRIGHT).Visibility = False
        self.assert_read(*self.AS_DRAWN)


class PassedOverTest(DrawingTest):
    def outline(self):
        return Draft.make_rectangle(4, 3, face=False)

    def test_each_kind_is_counted_and_named(self):
        self.outline()
        self.feature(Part.makeBox(1, 1, 1), "Pad")
        self.feature(Part.makeBox(2, 1, 1), "Box")
        self.feature(Part.makeCylinder(1, 2).Faces[0], "Skin")
        self.document.addObject("Mesh::Feature", "Scan").Mesh = Mesh.createBox(1, 1, 1)
        Draft.make_text(["a"], V(0, 0)).Label = "Note"
        Draft.make_linear_dimension(V(0, 0), V(4, 0), V(2, 5)).Label = "Width"
        self.assert_read(("AcDbPolyline", 0, 0, 4, 0, 4, 3, 0, 3))
        told = self.remarks()
        for part in ("prueba, in mm", "2 solids passed over: Pad, Box",
                     "1 surface passed over: Skin", "1 mesh passed over: Scan",
                     "1 text passed over: Note", "1 dimension passed over: Width"):
            self.assertIn(part, told)

    def test_solids_alone_are_refused_by_what_they_are(self):
        self.feature(Part.makeBox(1, 1, 1), "Pad")
        self.assertEqual(self.refusal(),
                         "prueba holds no lines to capture. 1 solid passed over: Pad")

    def test_an_empty_document_is_refused(self):
        self.assertEqual(self.refusal(), "prueba holds no lines to capture.")

    def test_hidden_things_and_holders_are_not_passed_over(self):
        self.outline()
        self.feature(Part.makeBox(1, 1, 1)).Visibility = False
        part = self.document.addObject("App::Part", "Part")
        part.addObject(Draft.make_line(V(0, 0), V(1, 0)))
        self.document.addObject("App::DocumentObjectGroup", "Group")
        self.document.addObject("Spreadsheet::Sheet", "Sheet")
        self.document.addObject("PartDesign::Body", "Body")
        self.read()
        self.assertEqual(self.remarks(), "prueba, in mm")

    def test_a_body_is_one_solid(self):
        body = self.document.addObject("PartDesign::Body", "Body")
        base = body.newObject("PartDesign::AdditiveBox", "Base")
        base.Length = 5
        self.document.recompute()
        self.assertEqual(self.refusal(),
                         "prueba holds no lines to capture. 1 solid passed over: Base")

    def test_the_place_in_the_list_is_the_place_in_the_drawing(self):
        self.feature(Part.makeBox(1, 1, 1))
        line = Draft.make_line(V(0, 0), V(1, 0))
        (entity,) = self.read()
        self.assertEqual(entity.handle, line.Name)

    def test_it_is_said_in_the_language_of_freecad(self):
        self.outline()
        self.feature(Part.makeBox(1, 1, 1), "Pad")
        general = FreeCAD.ParamGet("User parameter:BaseApp/Preferences/General")
        self.addCleanup(general.RemString, "Language")
        self.document.recompute()
        for language, told in (
            ("Spanish", "prueba, en mm; 1 sólido sin capturar: Pad"),
            ("French", "prueba, en mm; 1 solide hors capture : Pad"),
            ("Italian", "prueba, in mm; 1 solido fuori dalla cattura: Pad"),
            ("Portuguese, Brazilian", "prueba, em mm; 1 sólido fora da captura: Pad"),
            ("Polish", "prueba, in mm; 1 solid passed over: Pad"),
        ):
            general.SetString("Language", language)
            self.application = Application()
            self.assertEqual(self.remarks(), told)


class SplineTest(DrawingTest):
    # A thin section with a sharp nose, its trailing edge open by less than a millimetre.
    AIRFOIL = [V(100, 0.4), V(70, 4), V(40, 8), V(15, 7), V(4, 4), V(0.8, 1.9), V(0, 0),
               V(0.9, -1.6), V(4, -2.8), V(15, -3.5), V(40, -3), V(70, -1), V(100, -0.4)]

    def assert_follows(self, entity, curve):
        """Each point on the curve, and the curve never farther from the points than 0.001."""
        points = points_of(entity)
        if entity.closed:
            points.append(points[0])
        drawn = [(p.x, p.y) for edge in curve.Edges for p in edge.discretize(Number=700)]
        self.assertLess(farthest(drawn, points), 0.001)
        for x, y in points:
            self.assertLess(min(_off_curve(V(x, y), edge) for edge in curve.Edges), 0.001)
        self.assertLess(len(points), 800)

    def test_an_airfoil_keeps_its_nose(self):
        spline = Draft.make_bspline(self.AIRFOIL, closed=False, face=False)
        (outline,) = self.read()
        self.assertEqual((outline.class_name, outline.closed), ("AcDbPolyline", False))
        points = points_of(outline)
        self.assertEqual((points[0], points[-1]), ((100, 0.4), (100, -0.4)))
        self.assert_follows(outline, spline.Shape)

    def test_a_closed_one_comes_back_to_its_start(self):
        spline = Draft.make_bspline(self.AIRFOIL, closed=True, face=False)
        (outline,) = self.read()
        self.assertTrue(outline.closed)
        self.assertEqual(len(set(points_of(outline))), len(points_of(outline)))
        self.assert_follows(outline, spline.Shape)

    def test_a_bezier_curve_and_an_ellipse_are_followed_too(self):
        arc = Part.ArcOfEllipse(Part.Ellipse(V(0, 0), 30, 5), 1, 4).toShape()
        for make in (lambda: Draft.make_bezcurve([V(0, 0), V(10, 10), V(20, 0), V(30, 15)]),
                     lambda: Draft.make_ellipse(30, 20, face=False),
                     lambda: self.feature(arc)):
            made = make()
            (outline,) = self.read()
            self.assert_follows(outline, made.Shape)
            self.document.removeObject(made.Name)

    def test_a_corner_between_two_knots_stays(self):
        spline = Part.BSplineCurve()
        spline.buildFromPolesMultsKnots(
            [V(0, 0), V(10, 0), V(10, 10), V(0, 10)], [2, 1, 1, 2], [0, 1, 1.001, 2], False, 1)
        self.feature(spline.toShape())
        (outline,) = self.read()
        self.assertLessEqual({(0, 0), (10, 0), (10, 10), (0, 10)}, set(points_of(outline)))

    def test_a_wire_of_splines_and_lines_is_one_outline_in_order(self):
        upper = Part.BSplineCurve()
        upper.interpolate(self.AIRFOIL[:7])
        lower = Part.BSplineCurve()
        lower.interpolate(self.AIRFOIL[6:])
        back = Part.makeLine(self.AIRFOIL[-1], self.AIRFOIL[0])
        for edges in ((upper.toShape(), lower.toShape(), back),
                      (lower.toShape(), back, upper.toShape()),
                      (back.reversed(), lower.toShape(), upper.toShape())):
            wire = Part.Wire(Part.__sortEdges__(list(edges)))
            made = self.feature(wire)
            (outline,) = self.read()
            self.assertTrue(outline.closed)
            self.assert_follows(outline, wire)
            self.document.removeObject(made.Name)

    def test_turned_round_by_velmora_no_two_points_cross(self):
        sizes = set()
        for bulge in range(1, 40):
            spline = Draft.make_bspline([V(0, 0), V(10, bulge), V(30, 0)], face=False)
            (outline,) = self.read()
            sizes.add(len(points_of(outline)) % 4)
            self.document.removeObject(spline.Name)
        self.assertEqual(sizes, {1, 2, 3})

    def test_arcs_stay_arcs_beside_a_spline(self):
        spline = Part.BSplineCurve()
        spline.interpolate([V(0, 0), V(5, 3), V(10, 0)])
        arc = Part.makeCircle(5, V(5, 0), V(0, 0, 1), 180, 360)
        self.feature(Part.Wire([spline.toShape(), arc]))
        self.assertEqual([one.class_name for one in self.read()], ["AcDbPolyline", "AcDbArc"])


class BeginningTest(DrawingTest):
    CORNERS = [V(0, 0), V(30, 0), V(30, 20), V(12.5, 9), V(0, 20)]

    def wire(self, closed=True, **others):
        return Draft.make_wire(self.CORNERS, closed=closed, face=False, **others)

    def pick(self, x, y, z=0):
        return self.application.take_point(self.document.Name, V(x, y, z))

    def begins(self):
        return points_of(self.read()[0])

    def test_a_closed_wire_begins_at_the_picked_corner(self):
        self.wire()
        for number, corner in enumerate(self.CORNERS):
            self.assertEqual(self.pick(corner.x, corner.y), (corner.x, corner.y))
            drawn = [(one.x, one.y) for one in self.CORNERS]
            self.assertEqual(self.begins(), drawn[number:] + drawn[:number])

    def test_the_nearest_corner_counts(self):
        self.wire()
        self.pick(12.9, 9.4)
        self.assertEqual(self.begins()[0], (12.5, 9))

    def test_without_a_pick_it_begins_as_drawn_again(self):
        self.wire()
        self.pick(30, 20)
        self.assertEqual(self.begins()[0], (30, 20))
        self.assertEqual(self.begins()[0], (0, 0))

    def test_a_change_of_the_drawing_meanwhile_keeps_the_beginning(self):
        self.wire()
        self.pick(30, 20)
        self.read()
        Draft.make_line(V(50, 50), V(60, 50))
        self.document.recompute()
        (first, _) = self.application.ReadEntities(self.document.Name, 0, 9)
        self.assertEqual(points_of(first)[0], (30, 20))

    def test_an_open_wire_and_another_outline_keep_their_order(self):
        self.wire(closed=False)
        self.pick(30, 20)
        self.assertEqual(self.begins()[0], (0, 0))
        Draft.make_wire([V(100, 0), V(110, 0), V(110, 9)], closed=True, face=False)
        self.pick(30, 20)
        self.assertEqual([points_of(one)[0] for one in self.read()], [(0, 0), (100, 0)])

    def test_an_upright_wire_is_picked_in_its_plane(self):
        Draft.make_wire([V(c.x, 7, c.y) for c in self.CORNERS], closed=True, face=False)
        self.document.recompute()
        self.assertEqual(self.pick(30, 7, 20), (30, 20))
        self.assertEqual(self.begins()[0], (30, 20))

    def test_an_airfoil_begins_at_its_nose(self):
        Draft.make_bspline(SplineTest.AIRFOIL, closed=True, face=False)
        self.pick(0, 0)
        x, y = self.begins()[0]
        self.assertLess(math.hypot(x, y), 1e-9)


class SelectionTest(DrawingTest):
    def test_the_selected_objects_alone_are_the_next_reading(self):
        Draft.make_line(V(0, 0), V(1, 0))
        chosen = Draft.make_line(V(5, 0), V(6, 0))
        self.feature(Part.makeHelix(2, 10, 5), "Spring")
        self.application.choose(self.document.Name, [chosen.Name])
        self.assert_read(("AcDbLine", 5, 0, 6, 0))
        self.assertIn("Spring is not flat", self.refusal())


def run():
    result = unittest.TextTestRunner(verbosity=0).run(
        unittest.defaultTestLoader.loadTestsFromModule(sys.modules[__name__])
    )
    sys.stderr.flush()
    os._exit(0 if result.wasSuccessful() and result.testsRun else 1)


run()
