"""The objects of a document as entities of a flat drawing: class name and numbers in its plane."""
import math
from typing import NamedTuple

from .curves import points_along, without_crossing

FULL_TURN = 2 * math.pi
_STRAIGHT = ("Part::GeomLine", "Part::GeomLineSegment")


class Entity(NamedTuple):
    handle: str  # object's name; for a part of it ".Edge3" or ".Edge3+Edge4" behind
    class_name: str
    closed: bool
    numbers: list


def entities_of(obj, shape, plane):
    only_edge = _only_edge(shape)
    if only_edge is not None:
        return [_edge(obj.Name, only_edge, plane)]
    found = _parts(obj, shape, plane)
    if len(found) == 1:
        found[0] = found[0]._replace(handle=obj.Name)
    return found


def _only_edge(shape):
    """Looked for first, as large drawings are made of lines."""
    if shape.ShapeType == "Edge":
        return shape
    if shape.ShapeType == "Wire" and len(shape.Edges) == 1:
        return shape.Edges[0]
    return None


def _parts(obj, shape, plane):
    names = _EdgeNames(obj.Name, shape)
    if obj.isDerivedFrom("Sketcher::SketchObject"):
        return [_edge(names.handle([edge]), edge, plane) for edge in shape.Edges]
    return [entity for piece in _pieces(shape) for entity in _piece(piece, names, plane)]


class _EdgeNames:
    """The names of an object's edges, by which one of them is painted."""

    def __init__(self, name, shape):
        self.object_name = name
        self._shape = shape
        self._names = None

    def handle(self, edges):
        if self._names is None:
            self._names = {
                edge.hashCode(): f"Edge{number}"
                for number, edge in enumerate(self._shape.Edges, 1)
            }
        return self.object_name + "." + "+".join(self._names[edge.hashCode()] for edge in edges)


def _pieces(shape):
    if shape.ShapeType == "Compound":
        for child in shape.SubShapes:
            yield from _pieces(child)
    elif shape.ShapeType == "Face":
        yield from shape.Wires
    else:
        yield shape


def _piece(piece, names, plane):
    if piece.ShapeType == "Vertex":
        return [Entity(names.object_name, "AcDbPoint", False, [*plane.place(piece.Point)])]
    if piece.ShapeType != "Edge" and len(piece.Edges) > 1:
        return _wire(piece, names, plane)
    edge = piece.Edges[0]
    return [_edge(names.handle([edge]), edge, plane)]


def _wire(wire, names, plane):
    """Chained here as far as nothing in it is an arc, whose steps are Velmora's to choose."""
    if any(edge.Curve.TypeId == "Part::GeomCircle" for edge in wire.Edges):
        return [_edge(names.handle([edge]), edge, plane) for edge in wire.OrderedEdges]
    if all(_is_straight(edge.Curve) for edge in wire.Edges):
        points = [vertex.Point for vertex in wire.OrderedVertexes]
    else:
        points = _points_round(wire)
    return [_polyline(names.handle(wire.Edges), points, wire.isClosed(), plane)]


def _points_round(wire):
    points = [wire.OrderedVertexes[0].Point]
    for edge in wire.OrderedEdges:
        run = _ends(edge) if _is_straight(edge.Curve) else points_along(edge)
        if run[-1].distanceToPoint(points[-1]) < run[0].distanceToPoint(points[-1]):
            run.reverse()
        points += run[1:]
    points = without_crossing(points)
    return points[:-1] if wire.isClosed() else points


def _polyline(handle, points, closed, plane):
    numbers = [number for point in points for number in plane.place(point)]
    return Entity(handle, "AcDbPolyline", closed, numbers)


def _is_straight(curve):
    return curve.TypeId in _STRAIGHT


def _ends(edge):
    return [edge.firstVertex(True).Point, edge.lastVertex(True).Point]


def _edge(handle, edge, plane):
    if _is_straight(edge.Curve):
        start, end = _ends(edge)
        return Entity(handle, "AcDbLine", False, [*plane.place(start), *plane.place(end)])
    if edge.Curve.TypeId == "Part::GeomCircle":
        return Entity(handle, *_circle(edge, plane))
    closed = edge.isClosed()
    points = without_crossing(points_along(edge))
    return _polyline(handle, points[:-1] if closed else points, closed, plane)


def _circle(edge, plane):
    circle = edge.Curve
    measures = [*plane.place(circle.Center), circle.Radius]
    first, last = edge.ParameterRange
    if edge.isClosed() or last - first >= FULL_TURN:
        return "AcDbCircle", False, measures
    # Counter-clockwise as the plane is seen, whichever side the circle was drawn from.
    across, up = plane.place(circle.XAxis)
    zero = math.atan2(up, across)
    seen_from_front = circle.Axis.dot(plane.normal) > 0
    angles = (zero + first, zero + last) if seen_from_front else (zero - last, zero - first)
    return "AcDbArc", False, measures + [angle % FULL_TURN for angle in angles]
