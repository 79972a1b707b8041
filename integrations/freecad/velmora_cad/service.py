"""The interface on the session bus, as its introspection file says."""
import os

import FreeCAD
from gi.repository import Gio, GLib

from .application import Application, _document
from .faults import AUTOMATION_ERROR, REFUSED, Fault
from .packing import entities_answer
from .picking import Picks
from .words import say

NAME = "org.velmora.Cad1"
PATH = "/org/velmora/Cad1"

_service = None


def publish():
    """Owns the name, or waits in line for it behind another running CAD."""
    global _service
    if _service is None:
        _service = Service(Gio.bus_get_sync(Gio.BusType.SESSION, None))


def state():
    return _service.state if _service else ""


def choose(document, names):
    _service.choose(document, names)


def interface_text():
    """The published file: beside this one where it is installed, else among Velmora's sources."""
    here = os.path.dirname(os.path.abspath(__file__))
    sources = os.path.join(here, "..", "..", "..", "data", "dbus")
    for folder in (here, sources):
        path = os.path.join(folder, NAME + ".xml")
        if os.path.exists(path):
            with open(path, encoding="utf-8") as file:
                return file.read()
    raise FileNotFoundError(NAME + ".xml")


class Service:
    def __init__(self, bus):
        self._bus = bus
        self._application = Application()
        self._picks = Picks()
        self._interface = Gio.DBusNodeInfo.new_for_xml(interface_text()).lookup_interface(NAME)
        bus.register_object(PATH, self._interface, self._call, self._property, None)
        self.state = ""
        self._callers = set()
        Gio.bus_own_name_on_connection(bus, NAME, Gio.BusNameOwnerFlags.NONE,
                                       lambda *_: self._become("waiting for Velmora"),
                                       lambda *_: self._become(
                                           "another CAD is already the one offered"))

    def choose(self, document, names):
        self._application.choose(document, names)

    def _become(self, state):
        """What the report view and the menu tell of the connection."""
        self.state = state
        FreeCAD.Console.PrintMessage(f"Velmora: {say(state)}\n")

    def _greet(self, caller):
        if caller in self._callers:
            return
        self._callers.add(caller)
        self._become("connected" if FreeCAD.listDocuments() else "connected, no document yet")
        watch = None

        def gone(*_):
            Gio.bus_unwatch_name(watch)
            self._callers.discard(caller)
            self._become("Velmora has left")

        watch = Gio.bus_watch_name_on_connection(
            self._bus, caller, Gio.BusNameWatcherFlags.NONE, None, gone
        )

    def _property(self, bus, sender, path, interface, name):
        self._greet(sender)
        return GLib.Variant("s", getattr(self._application, name))

    def _call(self, bus, sender, path, interface, method, parameters, invocation):
        self._greet(sender)
        arguments = parameters.unpack()
        if method == "GetPoint":
            self._pick(sender, arguments, invocation)
            return
        self._answer(invocation, lambda: getattr(self._application, method)(*arguments))

    def _answer(self, invocation, work):
        """Every call is answered, whatever happens in it."""
        try:
            value = work()
            answer = self._variant(invocation.get_method_name(), value)
        except Fault as fault:
            if fault.number == REFUSED:
                FreeCAD.Console.PrintWarning(f"Velmora: {fault}\n")
            invocation.return_dbus_error(fault.bus_name, str(fault))
        except Exception as failure:
            FreeCAD.Console.PrintError(f"Velmora: {failure}\n")
            fault = Fault(AUTOMATION_ERROR, str(failure))
            invocation.return_dbus_error(fault.bus_name, str(fault))
        else:
            invocation.return_value(answer)

    def _pick(self, sender, arguments, invocation):
        watch = None

        def done(answer):
            Gio.bus_unwatch_name(watch)
            self._answer(invocation, lambda: self._picked(arguments[0], answer))

        def caller_gone(*_):
            Gio.bus_unwatch_name(watch)
            self._picks.give_up()

        watch = Gio.bus_watch_name_on_connection(
            self._bus, sender, Gio.BusNameWatcherFlags.NONE, None, caller_gone
        )
        document, prompt = arguments
        try:
            self._picks.ask(_document(document), prompt, self._application.ends, done)
        except Fault as fault:
            done(fault)

    def _picked(self, document, answer):
        if isinstance(answer, Fault):
            raise answer
        take = self._application.take_place
        if isinstance(answer, FreeCAD.Vector):
            take = self._application.take_point
        return list(take(document, answer))

    def _variant(self, method, value):
        if method == "ReadEntities":
            return entities_answer(value)
        answers = self._interface.lookup_method(method).out_args
        if not answers:
            return None
        return GLib.Variant(f"({answers[0].signature})", (value,))
