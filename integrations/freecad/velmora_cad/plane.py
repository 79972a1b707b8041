"""The one plane of a drawing, with its right and up: what is captured is seen square to it.

Flat on the ground a drawing is seen from above. In an upright plane Z is up, seen from the side
that its first object with a plane of its own shows, else from the front or the right. In a tilted
plane that object's X is to the right, else what comes nearest to X."""
from typing import NamedTuple

from FreeCAD import Vector

from .curves import TOLERANCE
from .faults import REFUSED, Fault
from .words import say

X, Y, Z = Vector(1, 0, 0), Vector(0, 1, 0), Vector(0, 0, 1)
# As near to an axis as the rotations of FreeCAD come.
_SAME = 1e-9
_SAMPLES = 9


class Plane(NamedTuple):
    right: Vector
    up: Vector
    level: float = 0.0  # how far it is from the origin, along its normal

    def place(self, point):
        return point.dot(self.right), point.dot(self.up)

    def space(self, place):
        """The point of the space at a place."""
        return self.right * place[0] + self.up * place[1] + self.normal * self.level

    @property
    def normal(self):
        return self.right.cross(self.up)

    def describe(self):
        """Nothing of the usual one."""
        if self.right == X and self.up == Y:
            return ""
        return say("{right} to the right, {up} up", right=_axis(self.right), up=_axis(self.up))


GROUND = Plane(X, Y)


def plane_of(shapes):
    """The plane of objects with their shapes. Refused where they have none in common."""
    points = [(obj, _points(shape)) for obj, shape in shapes]
    everything = [point for _, some in points for point in some]
    if not everything:
        return GROUND
    if _is_level(everything):
        return GROUND._replace(level=everything[0].z)
    normal = _normal(everything)
    if normal is None:
        _refuse(points)
    plane = _seen(_tidy(normal), [shape_axes(obj) for obj, _ in shapes])
    return plane._replace(level=everything[0].dot(plane.normal))


def shape_axes(obj):
    placement = obj.getGlobalPlacement() if hasattr(obj, "getGlobalPlacement") else None
    if placement is None:
        return None
    return tuple(_tidy(placement.Rotation.multVec(axis)) for axis in (X, Y, Z))


def _points(shape):
    points = [vertex.Point for vertex in shape.Vertexes]
    for edge in shape.Edges:
        if edge.Degenerated or edge.Curve.TypeId in ("Part::GeomLine", "Part::GeomLineSegment"):
            continue
        if hasattr(edge.Curve, "getPoles"):
            points += edge.Curve.getPoles()
        else:
            points += edge.discretize(Number=_SAMPLES)
    return points


def _is_level(points):
    return all(abs(point.z - points[0].z) <= TOLERANCE for point in points)


def _normal(points):
    """Square to them all; none where they are not flat."""
    start = points[0]
    far = max(points, key=start.distanceToPoint)
    way = far - start
    if way.Length <= TOLERANCE:
        return Z
    way.normalize()
    aside = max(points, key=lambda point: (point - start).cross(way).Length)
    normal = way.cross(aside - start)
    if normal.Length <= TOLERANCE:
        return _beside(way)
    normal.normalize()
    if any(abs((point - start).dot(normal)) > TOLERANCE for point in points):
        return None
    return normal


def _beside(way):
    """One straight line lies in many planes: on the ground, or upright."""
    if abs(way.z) <= _SAME:
        return Z
    normal = way.cross(Z)
    return normal.normalize() if normal.Length > _SAME else Vector(0, -1, 0)


def _refuse(points):
    for obj, some in points:
        if some and _normal(some) is None:
            raise Fault(REFUSED, say("{name} is not flat, so it is no outline to cut.",
                                     name=obj.Label))
    so_far = []
    for obj, some in points:
        so_far += some
        if _normal(so_far) is None:
            raise Fault(REFUSED, say("{name} lies in another plane than {other}. Hide one of them, "
                                     "or send a selection.",
                                     name=obj.Label, other=points[0][0].Label))


def _tidy(vector):
    """Without the dust of a rotation, so that what lies along the axes keeps its last digit."""
    parts = [0.0 if abs(part) <= _SAME else part for part in vector]
    tidy = Vector(*parts)
    tidy.normalize()
    return Vector(*[round(part) if abs(abs(part) - 1) <= _SAME else part for part in tidy])


def _seen(normal, axes):
    shown = next((one for one in axes if one and abs(one[2].dot(normal)) >= 1 - _SAME), None)
    if abs(normal.z) >= 1 - _SAME:
        return GROUND
    if normal.z == 0:
        return _upright(shown[2] if shown else _usual_side(normal))
    if shown:
        return Plane(shown[0], shown[1])
    if normal.z < 0:
        normal = -normal
    nearest = X if abs(normal.x) < 1 - _SAME else Y
    right = _tidy(nearest - normal * nearest.dot(normal))
    return Plane(right, _tidy(normal.cross(right)))


def _upright(normal):
    return Plane(_tidy(Z.cross(normal)), Z)


def _usual_side(normal):
    """The one from which X, else Y, is to the right."""
    right = Z.cross(normal)
    leading = right.x if abs(right.x) >= abs(right.y) else right.y
    return normal if leading > 0 else -normal


def _axis(vector):
    for axis, name in ((X, "X"), (Y, "Y"), (Z, "Z")):
        if abs(vector.dot(axis)) >= 1 - _SAME:
            return name if vector.dot(axis) > 0 else "-" + name
    return "({:.3g}, {:.3g}, {:.3g})".format(*vector)
