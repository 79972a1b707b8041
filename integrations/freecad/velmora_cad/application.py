"""The operations of the interface, a method each, under their names there."""
import os

import FreeCAD

from . import outline, templates, windows
from .faults import GONE, INVALID_CALL, OBJECT_REQUIRED, Fault
from .model_space import ModelSpaces
from .paint import paint


class Application:
    def __init__(self):
        self._model_spaces = ModelSpaces()

    @property
    def Name(self):
        return "FreeCAD"

    @property
    def Version(self):
        return ".".join(part for part in FreeCAD.Version()[:3] if part)

    def Activate(self):
        windows.activate()

    def ZoomExtents(self):
        windows.zoom_extents()

    def SetWindowState(self, state):
        windows.set_state(state)

    def Documents(self):
        return list(FreeCAD.listDocuments())

    def ActiveDocument(self):
        if FreeCAD.ActiveDocument is None:
            raise Fault(GONE, "no document is open")
        return FreeCAD.ActiveDocument.Name

    def AddDocument(self, template):
        document = templates.new_document(template)
        windows.look_from_above()
        return document.Name

    def DocumentName(self, document):
        found = _document(document)
        return os.path.basename(found.FileName) or found.Label

    def ActivateDocument(self, document):
        FreeCAD.setActiveDocument(_document(document).Name)

    def EntityCount(self, document):
        return len(self._model_spaces.begin(_document(document)).entities)

    def ReadEntities(self, document, first, count):
        if first < 0 or count < 0:
            raise Fault(INVALID_CALL, "positions are counted from 0")
        entities = self._model_spaces.of(_document(document)).entities
        return entities[first : first + count]

    def Remarks(self, document):
        remarks = self._model_spaces.of(_document(document)).remarks
        FreeCAD.Console.PrintMessage(f"Velmora: {remarks}\n")
        return remarks

    def choose(self, document, names):
        self._model_spaces.choose(_document(document), names)

    def ends(self, document):
        return self._model_spaces.ends(_document(document))

    def take_point(self, document, point):
        """Where in the drawing a picked point of the space is; the next reading begins there."""
        return self._model_spaces.take_point(_document(document), point)

    def take_place(self, document, place):
        """The same of a place that is told in the drawing."""
        return self._model_spaces.take_place(_document(document), place)

    def SetColor(self, document, handle, color):
        obj, edges = _entity(_document(document), handle)
        paint(obj, edges, color)

    def AddPolyline(self, document, coordinates):
        return outline.add_outline(_document(document), coordinates).Name

    def SetClosed(self, document, handle, closed):
        outline.set_closed(_entity(_document(document), handle)[0], closed)


def _document(name):
    if name not in FreeCAD.listDocuments():
        raise Fault(GONE, f"the document {name} is closed")
    return FreeCAD.getDocument(name)


def _entity(document, handle):
    """The object and, where the handle names parts of it, the numbers of their edges."""
    name, _, parts = handle.partition(".")
    obj = document.getObject(name)
    if obj is None:
        raise Fault(OBJECT_REQUIRED, f"{handle} was deleted")
    edges = [int(part.removeprefix("Edge")) for part in parts.split("+") if part]
    shape = getattr(obj, "Shape", None)
    if edges and (shape is None or max(edges) > len(shape.Edges)):
        raise Fault(OBJECT_REQUIRED, f"{handle} was deleted")
    return obj, edges
