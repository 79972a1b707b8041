"""A point picked in the 3-D view, with Draft's snapping."""
import inspect

import DraftTools  # noqa: F401  brings the snapper along
import FreeCAD
import FreeCADGui
from PySide import QtCore

from .faults import CANCELLED, GONE, Fault

LOOK_INTERVAL = 200  # milliseconds

# The snapper of FreeCAD 0.20 asks it for the arguments of a callback; Python has it no longer.
if not hasattr(inspect, "getargspec"):
    inspect.getargspec = inspect.getfullargspec


class ViewPick:
    def __init__(self, document, prompt, done):
        self._document = document.Name
        self._done = done
        FreeCAD.setActiveDocument(self._document)
        FreeCADGui.getMainWindow().statusBar().showMessage(prompt)
        self._snapper = FreeCADGui.Snapper
        self._lent = _lend_snaps(self._snapper)
        self._snapper.getPoint(callback=self._take, title=prompt)
        self._click = self._snapper.callbackClick
        self._watch = QtCore.QTimer()
        self._watch.timeout.connect(self._look)
        self._watch.start(LOOK_INTERVAL)

    def give_up(self):
        self._end()
        FreeCADGui.Control.closeDialog()
        self._snapper.getPoint()
        self._snapper.off()

    def _take(self, point, _snapped_object=None):
        self._end()
        if point is None:
            self._done(Fault(CANCELLED, "the point was not picked"))
        else:
            self._done(FreeCAD.Vector(point))

    def _look(self):
        """A document that closes, or another command, takes the question away without a word."""
        if self._document not in FreeCAD.listDocuments():
            self._end()
            self._snapper.callbackClick = self._snapper.callbackMove = None
            self._snapper.off()
            FreeCADGui.Control.closeDialog()
            self._done(Fault(GONE, f"the document {self._document} is closed"))
        elif self._snapper.callbackClick is not self._click:
            self._take(None)

    def _end(self):
        self._watch.stop()
        FreeCADGui.getMainWindow().statusBar().clearMessage()
        for snap in self._lent:
            self._snapper.active_snaps.remove(snap)


def _lend_snaps(snapper):
    """FreeCAD 0.20 comes with snapping switched off: who chose none snaps to ends for this pick."""
    chosen = getattr(snapper, "active_snaps", None)
    if chosen is None or any(snap != "Lock" for snap in chosen):
        return []
    lent = [snap for snap in ("Lock", "Endpoint") if snap not in chosen]
    chosen.extend(lent)
    return lent
