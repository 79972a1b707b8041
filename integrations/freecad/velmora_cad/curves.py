"""Curves that are neither lines nor circles, as points: no place of them is farther from the drawn
curve than can be cut."""

TOLERANCE = 0.001  # millimetres
# Between three looks a curve may bulge a little more than at them.
_AT_A_LOOK = TOLERANCE / 2
_MOST_HALVINGS = 20
_PARTS = 16  # of a curve without knots


def points_along(edge):
    """From the edge's start to its end, both included; a closed one ends where it starts."""
    curve = edge.Curve
    stops = _stops(curve, *edge.ParameterRange)
    points = [curve.value(stops[0])]
    for first, last in zip(stops, stops[1:]):
        _follow(curve, first, last, points, _MOST_HALVINGS)
    if edge.Orientation == "Reversed":
        points.reverse()
    return points


def without_crossing(points):
    """Velmora turns some outlines round with their two middle points left as they are: those of 4,
    8, 12 ... points. One point more, on the longest side, keeps them in order."""
    if len(points) % 4 != 0:
        return points
    sides = [first.distanceToPoint(last) for first, last in zip(points, points[1:])]
    place = sides.index(max(sides))
    middle = (points[place] + points[place + 1]) * 0.5
    return points[: place + 1] + [middle] + points[place + 1 :]


def _stops(curve, first, last):
    """Where the curve may have a corner, and enough between for no bend to be missed."""
    spans = [first, *_knots_between(curve, first, last), last]
    parts = max(2, curve.Degree) if hasattr(curve, "Degree") else _PARTS
    return [
        start + (end - start) * part / parts
        for start, end in zip(spans, spans[1:])
        for part in range(parts)
    ] + [last]


def _knots_between(curve, first, last):
    if not hasattr(curve, "getKnots"):
        return []
    knots = curve.getKnots()
    period = knots[-1] - knots[0] if curve.isPeriodic() else 0
    turned = {knot + turn * period for knot in knots for turn in (-1, 0, 1)}
    margin = (last - first) * 1e-9
    return sorted(knot for knot in turned if first + margin < knot < last - margin)


def _follow(curve, first, last, points, halvings):
    start, end = points[-1], curve.value(last)
    looks = (curve.value(first + (last - first) * part / 4) for part in (1, 2, 3))
    if halvings == 0 or all(_off(look, start, end) <= _AT_A_LOOK for look in looks):
        points.append(end)
        return
    middle = (first + last) / 2
    _follow(curve, first, middle, points, halvings - 1)
    _follow(curve, middle, last, points, halvings - 1)


def _off(point, start, end):
    """How far a point is from the straight way between two others."""
    way, along = end - start, point - start
    length = way.Length
    return along.cross(way).Length / length if length > 0 else along.Length
