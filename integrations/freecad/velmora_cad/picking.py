"""A point of the user's: picked in the 3-D view, or typed where there are no windows."""
import FreeCAD

from .faults import INVALID_CALL, Fault


class Picks:
    """One pick at a time. `done` gets a point of the space, a place (x, y) in the drawing or a
    Fault, once."""

    def __init__(self):
        self._done = None
        self._pick = None

    def ask(self, document, prompt, ends, done):
        """`ends` gives the points of a document, by its name, at which an outline can begin."""
        if self._done is not None:
            done(Fault(INVALID_CALL, "another point is being picked"))
            return
        self._done = done
        try:
            self._pick = _kind_of_pick()(document, prompt, ends, self._finish)
        except Exception as failure:
            self._finish(Fault(INVALID_CALL, str(failure)))

    def give_up(self):
        """Nobody waits for the point any more."""
        if self._done is None:
            return
        self._done = None
        self._pick.give_up()

    def _finish(self, answer):
        done, self._done = self._done, None
        if done is not None:
            done(answer)


def _kind_of_pick():
    if FreeCAD.GuiUp:
        from .view_pick import ViewPick

        return ViewPick
    from .terminal_pick import TerminalPick

    return TerminalPick
