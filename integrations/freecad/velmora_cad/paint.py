"""Colours of entities."""
from .faults import INVALID_CALL, Fault

# The standard colours of a drawing, by index.
PALETTE = {
    1: (1.0, 0.0, 0.0),
    2: (1.0, 1.0, 0.0),
    3: (0.0, 1.0, 0.0),
    4: (0.0, 1.0, 1.0),
    5: (0.0, 0.0, 1.0),
    6: (1.0, 0.0, 1.0),
    7: (1.0, 1.0, 1.0),
}
# Without windows an object has no looks: what was painted is noted here.
NOTE = "VelmoraPaint"


def paint(obj, edges, index):
    """Paints an object, or of its edges those with these numbers, from 1."""
    if index not in PALETTE:
        raise Fault(INVALID_CALL, f"no colour has the index {index}")
    if obj.ViewObject is None:
        _note(obj, edges, index)
    elif edges and hasattr(obj.ViewObject, "LineColorArray"):
        _paint_edges(obj.ViewObject, len(obj.Shape.Edges), edges, PALETTE[index])
    else:
        _paint_whole(obj.ViewObject, PALETTE[index])


def _paint_whole(view, colour):
    for name in ("LineColor", "PointColor", "TextColor"):
        if hasattr(view, name):
            setattr(view, name, colour)


def _paint_edges(view, count, edges, colour):
    colours = list(view.LineColorArray)
    if len(colours) != count:
        colours = [view.LineColor] * count
    for number in edges:
        colours[number - 1] = colour
    view.LineColorArray = colours


def _note(obj, edges, index):
    if not hasattr(obj, NOTE):
        obj.addProperty("App::PropertyMap", NOTE, "Velmora", "Colours by edge, 0 for the whole")
    notes = dict(getattr(obj, NOTE))
    for number in edges or [0]:
        notes[str(number)] = str(index)
    setattr(obj, NOTE, notes)
