"""The bus is served from GLib's main loop, which most builds of FreeCAD run in their own."""
from PySide import QtCore

PUMP_INTERVAL = 20  # milliseconds

_pump = None


def keep_running():
    """Turns GLib's loop from a timer where the windows don't run on it."""
    global _pump
    dispatcher = QtCore.QAbstractEventDispatcher.instance()
    if dispatcher and "Glib" in dispatcher.metaObject().className():
        return
    _pump = QtCore.QTimer()
    _pump.timeout.connect(_turn)
    _pump.start(PUMP_INTERVAL)


def _turn():
    from gi.repository import GLib

    context = GLib.MainContext.default()
    while context.iteration(False):
        pass
