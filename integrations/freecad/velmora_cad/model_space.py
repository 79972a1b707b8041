"""The model spaces of the open documents, kept until something in a document changes."""
from typing import NamedTuple

import FreeCAD

from .beginning import begin_at, places_of
from .entities import entities_of
from .faults import REFUSED, Fault
from .plane import GROUND, Plane, plane_of
from .seen import seen
from .words import count_of, say


class Drawing(NamedTuple):
    entities: list
    plane: Plane
    remarks: str  # for its user, after a capture


class Terms(NamedTuple):
    """What holds for one reading: from its count of entities to the next count."""

    picked: tuple = None  # the place in the drawing where it shall begin
    chosen: tuple = None  # the names of the only objects that count


class ModelSpaces:
    def __init__(self):
        self._kept = {}
        self._terms = {}
        self._next_terms = {}
        FreeCAD.addDocumentObserver(self)

    def begin(self, document):
        """A reading begins, on the terms that were said since the last one began."""
        terms = self._next_terms.pop(document.Name, Terms())
        if terms != self._terms.get(document.Name, Terms()):
            self._forget(document)
        self._terms[document.Name] = terms
        return self.of(document)

    def of(self, document):
        """The entities of a document in the order of its objects. Refused where it has none, or
        no plane."""
        if document.Name not in self._kept:
            self._kept[document.Name] = _read(document, self._terms.get(document.Name, Terms()))
        return self._kept[document.Name]

    def take_point(self, document, point):
        """A point of the space as a place in the drawing, at which the next reading begins. Where
        nothing can be captured the ground is the drawing, and the capture says why."""
        try:
            place = self._plane(document).place(point)
        except Fault:
            place = GROUND.place(point)
        return self.take_place(document, place)

    def take_place(self, document, place):
        self._say(document, picked=place)
        return place

    def choose(self, document, names):
        """These objects alone are the next reading."""
        self._say(document, chosen=tuple(names))

    def ends(self, document):
        """The points of the space at which the next reading can begin; none where it will be
        refused."""
        try:
            drawing = _read(document, self._next_terms.get(document.Name, Terms()))
        except Fault:
            return []
        return [drawing.plane.space(place) for one in drawing.entities for place in places_of(one)]

    def _plane(self, document):
        return _plane_of(document, self._next_terms.get(document.Name, Terms()))

    def _say(self, document, **terms):
        said = self._next_terms.get(document.Name, Terms())
        self._next_terms[document.Name] = said._replace(**terms)

    def _forget(self, document):
        self._kept.pop(document.Name, None)

    # What FreeCAD tells its observers.

    def slotCreatedObject(self, obj):
        self._forget(obj.Document)

    def slotDeletedObject(self, obj):
        self._forget(obj.Document)

    def slotChangedObject(self, obj, prop):
        self._forget(obj.Document)

    def slotDeletedDocument(self, document):
        self._forget(document)
        self._terms.pop(document.Name, None)
        self._next_terms.pop(document.Name, None)


def _plane_of(document, terms):
    return plane_of(seen(_objects(document, terms))[0])


def _objects(document, terms):
    if terms.chosen is None:
        return document.Objects
    return [obj for obj in document.Objects if obj.Name in terms.chosen]


def _read(document, terms):
    shapes, passed_over = seen(_objects(document, terms))
    losses = _losses(passed_over)
    plane = plane_of(shapes)
    entities = [entity for obj, shape in shapes for entity in entities_of(obj, shape, plane)]
    if not entities:
        nothing = say("{document} holds no lines to capture.", document=document.Label)
        raise Fault(REFUSED, " ".join(filter(None, (nothing, losses))))
    if terms.picked:
        begin_at(entities, terms.picked)
    where = say("{document}, in mm", document=document.Label)
    return Drawing(entities, plane, "; ".join(filter(None, (where, plane.describe(), losses))))


def _losses(passed_over):
    """"2 solids passed over: Pad, Box; 1 text passed over: Label"."""
    names = {}
    for kind, name in passed_over:
        names.setdefault(kind, []).append(name)
    return "; ".join(
        say("{count} passed over: {names}", count=count_of(kind, len(some)), names=_some_of(some))
        for kind, some in names.items()
    )


_NAMES = 5


def _some_of(names):
    return ", ".join(names[:_NAMES]) + (" ..." if len(names) > _NAMES else "")
