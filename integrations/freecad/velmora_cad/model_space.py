"""The model spaces of the open documents, kept until something in a document changes."""
import FreeCAD

from .entities import entities_of


class ModelSpaces:
    def __init__(self):
        self._kept = {}
        FreeCAD.addDocumentObserver(self)

    def of(self, document):
        """The entities of a document in the order of its objects."""
        if document.Name not in self._kept:
            self._kept[document.Name] = [
                entity for obj in document.Objects for entity in entities_of(obj)
            ]
        return self._kept[document.Name]

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
