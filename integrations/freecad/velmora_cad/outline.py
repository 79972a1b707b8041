"""Outlines that Velmora sends, as wires."""
import Draft
import FreeCAD

from .faults import INVALID_CALL, Fault


def add_outline(document, coordinates):
    """An open wire through X0, Y0, X1, Y1 ...; a single place gives a wire without a shape."""
    if len(coordinates) < 4 or len(coordinates) % 2 != 0:
        raise Fault(INVALID_CALL, "a polyline needs two points, an X and a Y each")
    FreeCAD.setActiveDocument(document.Name)
    flat = iter(coordinates)
    points = [FreeCAD.Vector(x, y, 0) for x, y in zip(flat, flat)]
    wire = Draft.make_wire(points, closed=False, face=False)
    document.recompute()
    if FreeCAD.GuiUp:
        import FreeCADGui

        # Draft selects what it makes, and a selection hides the colours.
        FreeCADGui.Selection.clearSelection()
    return wire


def set_closed(wire, closed):
    """Closing takes a last point that repeats the first out of the list."""
    if not hasattr(wire, "Closed") or not hasattr(wire, "Points"):
        raise Fault(INVALID_CALL, f"{wire.Label} is no wire that can be closed")
    points = wire.Points
    if closed and len(points) > 2 and points[0] == points[-1]:
        wire.Points = points[:-1]
    wire.Closed = closed
    wire.Document.recompute()
