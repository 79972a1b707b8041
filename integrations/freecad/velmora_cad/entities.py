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
    if not obj.Visibility or _is_holder(obj):
        return []
    shape = _placed_shape(obj)
    if shape is None or _is_spatial(shape):
        return [_other(obj.Name, obj.TypeId)]
    edges = _EdgeNames(shape)
    if obj.isDerivedFrom("Sketcher::SketchObject"):
        found = [_edge(obj.Name, edge, edges) for edge in shape.Edges]
    else:
        found = [entity for piece in _pieces(shape) for entity in _piece(obj.Name, piece, edges)]
    if len(found) == 1:
        found[0] = found[0]._replace(handle=obj.Name)
    return found


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


def _is_spatial(shape):
    if shape.ShapeType in ("Edge", "Wire", "Vertex"):
        return False
    return bool(shape.Shells) or any(not _lies_flat(face) for face in shape.Faces)


def _lies_flat(face):
    return face.Surface.TypeId == "Part::GeomPlane" and abs(face.Surface.Axis.z) >= UPRIGHT


def _other(handle, type_id):
    return Entity(handle, "FreeCAD." + type_id.replace("::", "."), False, [])


class _EdgeNames:
    """The names of a shape's edges, by which one of them is painted."""

    def __init__(self, shape):
        self._shape = shape
        self._names = None

    def handle(self, name, edges):
        if self._names is None:
            self._names = {
                edge.hashCode(): f"Edge{number}"
                for number, edge in enumerate(self._shape.Edges, 1)
            }
        return name + "." + "+".join(self._names[edge.hashCode()] for edge in edges)


def _pieces(shape):
    if shape.ShapeType == "Compound":
        for child in shape.SubShapes:
            yield from _pieces(child)
    elif shape.ShapeType == "Face":
        yield from shape.Wires
    else:
        yield shape


def _piece(name, piece, edges):
    if piece.ShapeType == "Vertex":
        return [Entity(name, "AcDbPoint", False, [piece.X, piece.Y])]
    if piece.ShapeType == "Edge" or len(piece.Edges) == 1:
        return [_edge(name, piece.Edges[0], edges)]
    if all(_is_straight(edge) for edge in piece.Edges):
        numbers = [number for v in piece.OrderedVertexes for number in (v.X, v.Y)]
        handle = edges.handle(name, piece.Edges)
        return [Entity(handle, "AcDbPolyline", piece.isClosed(), numbers)]
    return [_edge(name, edge, edges) for edge in piece.OrderedEdges]


def _is_straight(edge):
    return edge.Curve.TypeId in ("Part::GeomLine", "Part::GeomLineSegment")


def _edge(name, edge, edges):
    class_name, numbers = _curve(edge)
    return Entity(edges.handle(name, [edge]), class_name, False, numbers)


def _curve(edge):
    kind = edge.Curve.TypeId
    if _is_straight(edge):
        start, end = edge.firstVertex(True), edge.lastVertex(True)
        return "AcDbLine", [start.X, start.Y, end.X, end.Y]
    if kind == "Part::GeomCircle" and abs(edge.Curve.Axis.z) >= UPRIGHT:
        return _circle(edge)
    if kind in ("Part::GeomBSplineCurve", "Part::GeomBezierCurve"):
        return "AcDbSpline", _control_points(edge)
    if kind == "Part::GeomEllipse":
        return "AcDbEllipse", []
    return "FreeCAD." + kind.replace("::", "."), []


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
