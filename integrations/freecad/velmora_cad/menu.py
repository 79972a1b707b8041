"""The entry "Velmora" in the menu Tools: how the connection stands, and "Send selection". FreeCAD
builds its menus anew with each workbench."""
import FreeCAD
import FreeCADGui
from PySide import QtCore, QtGui

from . import service
from .words import say

_NAME = "Velmora"


def install():
    FreeCADGui.getMainWindow().workbenchActivated.connect(lambda *_: _add_soon())
    _add_soon()


def _add_soon():
    """Once FreeCAD has built its menus, after its start too."""
    for delay in (0, 2000):
        QtCore.QTimer.singleShot(delay, _add)


def send_selection():
    """The selected objects alone are offered for the next capture."""
    chosen = FreeCADGui.Selection.getSelection()
    if not chosen:
        _tell(say("nothing is selected"))
        return
    document = chosen[0].Document
    chosen = [obj for obj in chosen if obj.Document is document]
    service.choose(document.Name, [obj.Name for obj in chosen])
    _tell(say("the next capture takes only: {names}",
              names=", ".join(obj.Label for obj in chosen)))


def _add():
    tools = _tools()
    if tools is None or tools.findChild(QtGui.QMenu, _NAME):
        return
    menu = QtGui.QMenu(_NAME, tools)
    menu.setObjectName(_NAME)
    state = menu.addAction("")
    state.setEnabled(False)
    menu.addAction(say("Send selection")).triggered.connect(lambda *_: send_selection())
    menu.aboutToShow.connect(lambda: state.setText(say(service.state())))
    tools.addMenu(menu)


def _tools():
    for menu in FreeCADGui.getMainWindow().menuBar().findChildren(QtGui.QMenu):
        if menu.objectName() == "&Tools":
            return menu
    return None


def _tell(text):
    FreeCAD.Console.PrintMessage(f"Velmora: {text}\n")
