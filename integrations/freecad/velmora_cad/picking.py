"""A point of the user's: picked in the 3-D view, or typed where there are no windows."""
import math
import os
import sys

import FreeCAD

from .faults import CANCELLED, INVALID_CALL, Fault


class Picks:
    """One pick at a time. `done` gets (x, y) or a Fault, once."""

    def __init__(self):
        self._done = None
        self._terminal_watch = None

    def ask(self, document, prompt, done):
        if self._done is not None:
            done(Fault(INVALID_CALL, "another point is being picked"))
            return
        self._done = done
        try:
            if FreeCAD.GuiUp:
                self._ask_in_view(document, prompt)
            else:
                self._ask_in_terminal(prompt)
        except Exception as failure:
            self._finish(Fault(INVALID_CALL, str(failure)))

    def give_up(self):
        """Nobody waits for the point any more."""
        if self._done is None:
            return
        self._done = None
        if FreeCAD.GuiUp:
            import FreeCADGui

            FreeCADGui.Control.closeDialog()
            FreeCADGui.Snapper.getPoint()
            FreeCADGui.Snapper.off()
        else:
            from gi.repository import GLib

            GLib.source_remove(self._terminal_watch)

    def _finish(self, answer):
        done, self._done = self._done, None
        if done is not None:
            done(answer)

    def _take(self, point):
        if point is None:
            self._finish(Fault(CANCELLED, "the point was not picked"))
        else:
            self._finish((point.x, point.y))

    def _ask_in_view(self, document, prompt):
        import DraftTools  # noqa: F401  brings the snapper along
        import FreeCADGui

        FreeCAD.setActiveDocument(document.Name)
        FreeCADGui.getMainWindow().statusBar().showMessage(prompt)
        FreeCADGui.Snapper.getPoint(callback=self._take, title=prompt)

    def _ask_in_terminal(self, prompt):
        from gi.repository import GLib

        print(prompt + " X,Y: ", end="", flush=True)
        self._terminal_watch = GLib.io_add_watch(
            sys.stdin.fileno(), GLib.IO_IN | GLib.IO_HUP, self._read_terminal
        )

    def _read_terminal(self, terminal, _):
        point = _typed_point(_line_of(terminal))
        if point is None:
            self._finish(Fault(CANCELLED, "the point was not given"))
        else:
            self._finish(point)
        return False


def _line_of(terminal):
    """One line and no more, so that one typed ahead is for the next question."""
    line = b""
    while not line.endswith(b"\n"):
        byte = os.read(terminal, 1)
        if not byte:
            break
        line += byte
    return line.decode(errors="replace")


def _typed_point(line):
    try:
        x, y = (float(text) for text in line.split(","))
    except ValueError:
        return None
    return (x, y) if math.isfinite(x) and math.isfinite(y) else None
