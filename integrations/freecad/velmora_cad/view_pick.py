"""A point picked in the 3-D view, with Draft's snapping."""
import inspect

import Draft
import DraftTools  # noqa: F401  brings the snapper along
import FreeCAD
import FreeCADGui
from pivy import coin
from PySide import QtCore, QtGui

from .faults import CANCELLED, GONE, Fault
from .words import say

_PRESS = coin.SoMouseButtonEvent.getClassTypeId()
LOOK_INTERVAL = 200  # milliseconds
REACH = 12  # pixels

# The snapper of FreeCAD 0.20 asks it for the arguments of a callback; Python has it no longer.
if not hasattr(inspect, "getargspec"):
    inspect.getargspec = inspect.getfullargspec


class ViewPick:
    def __init__(self, document, prompt, ends, done):
        self._document = document.Name
        self._ends = ends
        self._done = done
        FreeCAD.setActiveDocument(self._document)
        FreeCADGui.getMainWindow().statusBar().showMessage(prompt)
        self._snapper = FreeCADGui.Snapper
        self._before = _Snapping(self._snapper)
        _lend_snaps(self._snapper)
        _show_bar(self._snapper)
        self._view = Draft.get3DView()
        self._spot = None
        # Before the snapper hears of the press.
        self._press = self._view.addEventCallbackPivy(_PRESS, self._note_spot)
        self._snapper.getPoint(callback=self._take, title=say("Start of the cut"))
        self._click = self._snapper.callbackClick
        self._watch = QtCore.QTimer()
        self._watch.timeout.connect(self._look)
        self._watch.start(LOOK_INTERVAL)

    def give_up(self):
        FreeCADGui.Control.closeDialog()
        self._snapper.getPoint()
        self._snapper.off()
        self._end()
        _tell("Velmora no longer waits for the point.")

    def _take(self, point, _snapped_object=None):
        self._end()
        if point is None:
            _tell("The pick was given up.")
            self._done(Fault(CANCELLED, "the point was not picked"))
        else:
            self._done(self._end_near(FreeCAD.Vector(point)))

    def _note_spot(self, pressed):
        self._spot = tuple(pressed.getEvent().getPosition().getValue())

    def _end_near(self, point):
        """The end of a line under the pointer. Draft finds none where FreeCAD has lit the vertex
        itself: then it wants its snap to "near" besides, and gives the place of the ray."""
        spot = self._spot or self._view.getPointOnScreen(point)
        near = [(_apart(spot, self._view.getPointOnScreen(end)), number, end)
                for number, end in enumerate(self._ends(self._document))]
        distance, _, end = min(near, default=(REACH + 1, 0, point))
        return end if distance <= REACH else point

    def _look(self):
        """A document that closes, or another command, takes the question away without a word."""
        if self._document not in FreeCAD.listDocuments():
            self._snapper.callbackClick = self._snapper.callbackMove = None
            self._snapper.off()
            FreeCADGui.Control.closeDialog()
            self._end()
            _tell("The document was closed during the pick.")
            self._done(Fault(GONE, f"the document {self._document} is closed"))
        elif self._snapper.callbackClick is not self._click:
            self._take(None)

    def _end(self):
        self._watch.stop()
        if self._document in FreeCAD.listDocuments():
            self._view.removeEventCallbackPivy(_PRESS, self._press)
        FreeCADGui.getMainWindow().statusBar().clearMessage()
        self._before.put_back()


class _Snapping:
    """How Draft's snaps, toolbar and grid were."""

    def __init__(self, snapper):
        self._snapper = snapper
        self._snaps = list(getattr(snapper, "active_snaps", []))
        self._had_bar = _is_shown(_bar())
        self._had_grid = bool(snapper.grid and snapper.grid.Visible)

    def put_back(self):
        if hasattr(self._snapper, "active_snaps"):
            self._snapper.active_snaps[:] = self._snaps
        bar = _bar()
        if bar is not None:
            bar.setVisible(self._had_bar)
        if self._snapper.grid and not self._had_grid:
            self._snapper.grid.off()


def _bar():
    return FreeCADGui.getMainWindow().findChild(QtGui.QToolBar, "Draft Snap")


def _show_bar(snapper):
    """Draft shows its toolbar at the first move of the pointer, and the view would slip away under
    it."""
    if _bar() is None:
        snapper.makeSnapToolBar()
    if Draft.getParam("showSnapBar", True):
        _bar().show()


def _is_shown(bar):
    return bar is not None and bar.isVisible()


def _apart(spot, other):
    return max(abs(spot[0] - other[0]), abs(spot[1] - other[1]))


def _tell(text):
    FreeCAD.Console.PrintMessage(f"Velmora: {say(text)}\n")


def _lend_snaps(snapper):
    """FreeCAD comes with snapping switched off: who chose none snaps to ends for this pick."""
    chosen = getattr(snapper, "active_snaps", None)
    if chosen is not None and all(snap == "Lock" for snap in chosen):
        chosen[:] = ["Lock", "Endpoint"]
