"""A point typed in the terminal as X,Y."""
import math
import os
import sys

from gi.repository import GLib

from .faults import CANCELLED, Fault


class TerminalPick:
    def __init__(self, document, prompt, ends, done):
        self._done = done
        print(prompt + " X,Y: ", end="", flush=True)
        self._watch = GLib.io_add_watch(
            sys.stdin.fileno(), GLib.IO_IN | GLib.IO_HUP, self._read
        )

    def give_up(self):
        GLib.source_remove(self._watch)

    def _read(self, terminal, _):
        point = _typed_point(_line_of(terminal))
        self._done(point or Fault(CANCELLED, "the point was not given"))
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
