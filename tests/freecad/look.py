"""look.py EXPRESSION: what it gives in the tests' FreeCAD, a text as it stands, else JSON."""
import json
import sys

from gi.repository import Gio, GLib

NAME = "org.velmora.FreeCadTest1"

bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
answer = bus.call_sync(NAME, "/", NAME, "Evaluate", GLib.Variant("(s)", (sys.argv[1],)), None,
                       Gio.DBusCallFlags.NO_AUTO_START, 60000, None)
(value,) = json.loads(answer.unpack()[0])
print(value if isinstance(value, str) else json.dumps(value))
