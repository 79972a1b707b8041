"""Drawings for the tests, made in a FreeCAD of their own, and looks at what Velmora did to them.

Without windows FreeCAD offers itself by the add-on's serve.py, whose path stands in VELMORA_SERVE;
with windows it does so by the add-on installed."""
import math
import os
import runpy
import sys

import Draft
import FreeCAD
import Part

V = FreeCAD.Vector
YELLOW = (1.0, 1.0, 0.0)


def plate():
    """The outline runs round a plate: lines, one drawn backwards, an arc of a sketch, a wire and a
    spline, a circle that touches the corner at the start, and two strays far away, of which the
    second is the last one left. Something hidden and a text are no part of it."""
    document = FreeCAD.newDocument("pieza")
    Draft.make_line(V(10.5, 10.5), V(50.5, 10.5))
    backwards = document.addObject("Part::Line", "Backwards")
    backwards.X1, backwards.Y1, backwards.X2, backwards.Y2 = 50.5, 30.5, 50.5, 10.5
    backwards.Z2 = 0
    sketch = document.addObject("Sketcher::SketchObject", "Sketch")
    circle = Part.Circle(V(45.5, 30.5), V(0, 0, 1), 5)
    sketch.addGeometry(Part.ArcOfCircle(circle, 0, math.pi / 2), False)
    sketch.addGeometry(Part.LineSegment(V(11, 11), V(12, 12)), True)
    Draft.make_wire([V(45.5, 35.5), V(40.5, 32.5), V(30.5, 35.5)], closed=False, face=False)
    spline = Part.BSplineCurve()
    spline.buildFromPolesMultsKnots(
        [V(10.5, 35.5), V(15.5, 40.5), V(25.5, 30.5), V(30.5, 35.5)], [4, 4], [0.0, 1.0], False, 3
    )
    document.addObject("Part::Feature", "Curve").Shape = spline.toShape()
    hidden = Draft.make_line(V(10.5, 10.5), V(99, 99))
    hidden.Label, hidden.Visibility = "Hidden", False
    Draft.make_line(V(10.5, 35.5), V(10.5, 10.5)).Label = "Left"
    round_hole = document.addObject("Part::Circle", "Hole")
    round_hole.Radius = 2
    round_hole.Placement.Base = V(8.5, 10.75)
    Draft.make_line(V(70, 20), V(75, 30)).Label = "Stray"
    Draft.make_line(V(80, 20), V(85, 30)).Label = "Last"
    Draft.make_text(["no outline"], V(20, 20))
    document.recompute()
    return document.Name


def curve_points():
    """The spline of the plate, as the add-on follows it."""
    from velmora_cad.curves import points_along, without_crossing

    curve = FreeCAD.ActiveDocument.Curve.Shape
    return [number for point in without_crossing(points_along(curve)) for number in point[:2]]


def sketch(*geometry, at=V(0, 0)):
    made = FreeCAD.ActiveDocument.addObject("Sketcher::SketchObject", "Sketch")
    for one in geometry:
        made.addGeometry(one, False)
    made.Placement.Base = at
    return made


def feature(shape):
    made = FreeCAD.ActiveDocument.addObject("Part::Feature", "Feature")
    made.Shape = shape
    return made


def in_part(obj, at=V(0, 0), visible=True):
    part = FreeCAD.ActiveDocument.addObject("App::Part", "Part")
    part.Placement.Base, part.Visibility = at, visible
    part.addObject(obj)
    return part


def in_group(obj):
    return FreeCAD.ActiveDocument.addObject("App::DocumentObjectGroup", "Group").addObject(obj)


def link_to(obj, at):
    link = FreeCAD.ActiveDocument.addObject("App::Link", "Link")
    link.LinkedObject, link.Placement.Base = obj, at
    return link


def turned(x, y, axis, degrees):
    return FreeCAD.Placement(V(x, y), FreeCAD.Rotation(axis, degrees))


def drawn(*objects):
    FreeCAD.ActiveDocument.recompute()
    return FreeCAD.ActiveDocument.Name


def imported(path):
    """A drawing read from a DXF file."""
    import importDXF

    importDXF.open(path)
    return FreeCAD.ActiveDocument.Name


def many_lines(count):
    """An object each, one behind the other."""
    document = FreeCAD.newDocument("muchas")
    for i in range(count):
        line = document.addObject("Part::Feature", "Line")
        line.Shape = Part.makeLine(V(i, 0), V(i + 1, 0))
    return document.Name


def painted():
    """The labels of what is yellow in the active document."""
    return [obj.Label for obj in FreeCAD.ActiveDocument.Objects if _is_yellow(obj)]


def _is_yellow(obj):
    if obj.ViewObject is None:
        return "2" in getattr(obj, "VelmoraPaint", {}).values()
    colour = getattr(obj.ViewObject, "LineColor", None)
    return colour is not None and colour[:3] == YELLOW


def sent():
    """The closed wire of the active document: X0, Y0, X1, Y1 ... without the closing point."""
    (wire,) = [obj for obj in FreeCAD.ActiveDocument.Objects if hasattr(obj, "Points")]
    assert wire.Closed
    return [number for point in wire.Points for number in (point.x, point.y)]


def save_copy(path):
    """A copy has the ending of FreeCAD's own documents, whatever it is named afterwards."""
    FreeCAD.ActiveDocument.saveCopy(path + ".FCStd")
    os.replace(path + ".FCStd", path)


def closed_wire():
    FreeCAD.newDocument("ala")
    return drawn(Draft.make_wire(_CORNERS, closed=True, face=False))


def upright_wire():
    FreeCAD.newDocument("pie")
    upright = [V(corner.x, 5, corner.y) for corner in _CORNERS]
    return drawn(Draft.make_wire(upright, closed=True, face=False))


_CORNERS = [V(0, 0), V(40, 0), V(7, 7), V(0, 30)]


def begins(name):
    """The first point of the first entity of the next reading."""
    from velmora_cad import service

    application = service._service._application
    application.EntityCount(name)
    return application.ReadEntities(name, 0, 1)[0].numbers[:2]


def draft_state():
    """What Draft shows: its snaps, its toolbar, its grid."""
    import FreeCADGui
    from PySide import QtGui

    snapper = getattr(FreeCADGui, "Snapper", None)
    bar = FreeCADGui.getMainWindow().findChild(QtGui.QToolBar, "Draft Snap")
    grid = getattr(snapper, "grid", None)
    return [list(getattr(snapper, "active_snaps", ["Lock"])), bool(bar and bar.isVisible()),
            bool(grid and grid.Visible)]


def show_all(side="ViewTop"):
    """The whole drawing in view, from above or another side."""
    import FreeCADGui

    FreeCADGui.getMainWindow().showMaximized()
    FreeCADGui.updateGui()
    FreeCADGui.SendMsgToActiveView(side)
    FreeCADGui.SendMsgToActiveView("ViewFit")


def pixel_of(x, y, z=0):
    """Where on the screen a place of the drawing is."""
    import FreeCADGui
    from PySide import QtCore

    view = FreeCADGui.ActiveDocument.ActiveView
    graphics = view.graphicsView()
    across, up = view.getPointOnScreen(V(x, y, z))
    # The view counts the pixels of the screen, the toolkit those of 96 to an inch.
    finer = view.getSize()[1] / graphics.height()
    spot = graphics.mapToGlobal(
        QtCore.QPoint(round(across / finer), round(graphics.height() - 1 - up / finer))
    )
    return f"{round(spot.x() * finer)} {round(spot.y() * finer)}"


def velmora_menu():
    """The texts of the entry in Tools, once it has opened."""
    import FreeCADGui
    from PySide import QtGui

    (menu,) = FreeCADGui.getMainWindow().menuBar().findChildren(QtGui.QMenu, "Velmora")
    menu.aboutToShow.emit()
    return [action.text() for action in menu.actions()]


def send_selected(label):
    import FreeCADGui
    from velmora_cad import menu

    FreeCADGui.Selection.addSelection(*FreeCAD.ActiveDocument.getObjectsByLabel(label))
    menu.send_selection()
    FreeCADGui.Selection.clearSelection()
    return label


def use_workbench(name):
    import FreeCADGui

    FreeCADGui.activateWorkbench(name)
    return name


def is_picking():
    import FreeCADGui

    return getattr(getattr(FreeCADGui, "Snapper", None), "callbackClick", None) is not None


def close(name):
    FreeCAD.closeDocument(name)


def close_all():
    for name in list(FreeCAD.listDocuments()):
        close(name)


def erase(label):
    (obj,) = FreeCAD.ActiveDocument.getObjectsByLabel(label)
    FreeCAD.ActiveDocument.removeObject(obj.Name)


sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import probe  # noqa: E402

probe.publish(globals())
if not FreeCAD.GuiUp:
    runpy.run_path(os.environ["VELMORA_SERVE"])
