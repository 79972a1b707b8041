"""The objects of a document as entities of a flat drawing: class name, numbers, X and Y alone."""
import math
from typing import NamedTuple

FULL_TURN = 2 * math.pi
UPRIGHT = 1 - 1e-9


class Entity(NamedTuple):
    handle: str  # object's name; for a part of it ".Edge3" or ".Edge3+Edge4" behind
    class_name: str
    closed: bool
    numbers: list


def entities_of(obj):
    """The entities of one object, none for what only holds others or can't be seen."""
    if not _is_seen(obj) or _is_holder(obj):
        return []
    shape = _placed_shape(obj)
    if shape is None:
        return [_other(obj)]
    only_edge = _only_edge(shape)
    if only_edge is not None:
        return [_edge(obj.Name, only_edge)]
    if _is_spatial(shape):
        return [_other(obj)]
    found = _parts(obj, shape)
    if len(found) == 1:
        found[0] = found[0]._replace(handle=obj.Name)
    return found


def _parts(obj, shape):
    names = _EdgeNames(obj.Name, shape)
    if obj.isDerivedFrom("Sketcher::SketchObject"):
        return [_edge(names.handle([edge]), edge) for edge in shape.Edges]
    return [entity for piece in _pieces(shape) for entity in _piece(piece, names)]


def _is_seen(obj):
    while obj is not None and obj.Visibility:
        obj = obj.getParentGeoFeatureGroup()
    return obj is None


def _is_holder(obj):
    return (
        obj.hasExtension("App::GroupExtension")
        or obj.isDerivedFrom("App::OriginFeature")
        or obj.isDerivedFrom("App::Origin")
        or getattr(getattr(obj, "Proxy", None), "Type", None) in ("Layer", "LayerContainer")
    )


def _placed_shape(obj):
    shape = getattr(obj, "Shape", None)
    if shape is None or not hasattr(shape, "isNull") or shape.isNull():
        return None
    if obj.getParentGeoFeatureGroup() is not None:
        shape = shape.copy()
        shape.Placement = obj.getGlobalPlacement()
    return shape


def _only_edge(shape):
    """Looked for first, as large drawings are made of lines."""
    if shape.ShapeType == "Edge":
        return shape
    if shape.ShapeType == "Wire" and len(shape.Edges) == 1:
        return shape.Edges[0]
    return None


def _is_spatial(shape):
    if shape.ShapeType in ("Wire", "Vertex"):
        return False
    return bool(shape.Shells) or any(not _lies_flat(face) for face in shape.Faces)


def _lies_flat(face):
    return face.Surface.TypeId == "Part::GeomPlane" and abs(face.Surface.Axis.z) >= UPRIGHT


def _other(obj):
    return Entity(obj.Name, _own_class(obj), False, [])


def _own_class(thing):
    return "FreeCAD." + thing.TypeId.replace("::", ".")


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


def _piece(piece, names):
    if piece.ShapeType == "Vertex":
        return [Entity(names.object_name, "AcDbPoint", False, [piece.X, piece.Y])]
    if piece.ShapeType != "Edge" and len(piece.Edges) > 1:
        return _wire(piece, names)
    edge = piece.Edges[0]
    return [_edge(names.handle([edge]), edge)]


def _wire(wire, names):
    if all(_is_straight(edge.Curve) for edge in wire.Edges):
        numbers = [number for v in wire.OrderedVertexes for number in (v.X, v.Y)]
        return [Entity(names.handle(wire.Edges), "AcDbPolyline", wire.isClosed(), numbers)]
    return [_edge(names.handle([edge]), edge) for edge in wire.OrderedEdges]


def _is_straight(curve):
    return curve.TypeId in ("Part::GeomLine", "Part::GeomLineSegment")


def _edge(handle, edge):
    class_name, numbers = _curve(edge, edge.Curve)
    return Entity(handle, class_name, False, numbers)


def _curve(edge, curve):
    if _is_straight(curve):
        start, end = edge.firstVertex(True), edge.lastVertex(True)
        return "AcDbLine", [start.X, start.Y, end.X, end.Y]
    if curve.TypeId == "Part::GeomCircle" and abs(curve.Axis.z) >= UPRIGHT:
        return _circle(edge)
    if curve.TypeId in ("Part::GeomBSplineCurve", "Part::GeomBezierCurve"):
        return "AcDbSpline", _control_points(edge)
    if curve.TypeId == "Part::GeomEllipse":
        return "AcDbEllipse", []
    return _own_class(curve), []


def _circle(edge):
    circle = edge.Curve
    measures = [circle.Center.x, circle.Center.y, circle.Radius]
    first, last = edge.ParameterRange
    if edge.isClosed() or last - first >= FULL_TURN:
        return "AcDbCircle", measures
    # Counter-clockwise as seen from above, whichever side the circle was drawn from.
    zero = math.atan2(circle.XAxis.y, circle.XAxis.x)
    angles = (zero + first, zero + last) if circle.Axis.z > 0 else (zero - last, zero - first)
    return "AcDbArc", measures + [angle % FULL_TURN for angle in angles]


def _control_points(edge):
    curve = edge.Curve.copy()
    first, last = edge.ParameterRange
    if curve.TypeId == "Part::GeomBSplineCurve" and curve.isPeriodic():
        curve.setNotPeriodic()
    if (first, last) != (curve.FirstParameter, curve.LastParameter):
        curve.segment(first, last)
    poles = curve.getPoles()
    if edge.Orientation == "Reversed":
        poles.reverse()
    return [number for pole in poles for number in (pole.x, pole.y)]
