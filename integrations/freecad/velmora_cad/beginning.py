"""Where a closed outline begins."""
import math


def places_of(entity):
    """The places of an entity at which an outline can begin."""
    numbers = entity.numbers
    if entity.class_name == "AcDbCircle":
        x, y, radius = numbers
        return [(x + radius, y)]
    if entity.class_name == "AcDbArc":
        x, y, radius, *angles = numbers
        return [(x + radius * math.cos(a), y + radius * math.sin(a)) for a in angles]
    return list(zip(numbers[::2], numbers[1::2]))


def begin_at(entities, place):
    """Velmora begins a closed polyline at its first point, wherever its user has picked: the one
    whose point is nearest gets that point as its first. Nothing else changes its order."""
    ways = [(math.dist(place, one), number, corner)
            for number, entity in enumerate(entities)
            for corner, one in enumerate(places_of(entity))]
    _, number, corner = min(ways)
    entity = entities[number]
    if entity.class_name == "AcDbPolyline" and entity.closed:
        turned = entity.numbers[2 * corner:] + entity.numbers[: 2 * corner]
        entities[number] = entity._replace(numbers=turned)
