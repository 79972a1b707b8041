"""A look into the tests' FreeCAD: Evaluate tells what a Python expression gives there, as JSON."""
import json

from gi.repository import Gio, GLib

NAME = "org.velmora.FreeCadTest1"
INTERFACE = """<node><interface name="org.velmora.FreeCadTest1"><method name="Evaluate">
<arg type="s" direction="in"/><arg type="s" direction="out"/></method></interface></node>"""


def publish(names):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)

    def evaluate(bus, sender, path, interface, method, parameters, invocation):
        try:
            answer = json.dumps([eval(parameters.unpack()[0], names)])
        except Exception as failure:
            invocation.return_dbus_error(NAME + ".Failed", repr(failure))
        else:
            invocation.return_value(GLib.Variant("(s)", (answer,)))

    interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).lookup_interface(NAME)
    bus.register_object("/", interface, evaluate, None, None)
    Gio.bus_own_name_on_connection(bus, NAME, Gio.BusNameOwnerFlags.NONE, None, None)
