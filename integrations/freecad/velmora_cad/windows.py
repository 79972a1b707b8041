"""The application's window. Without windows there is nothing to bring to the front."""
import FreeCAD

from .faults import INVALID_CALL, Fault


def activate():
    if not FreeCAD.GuiUp:
        return
    from PySide import QtCore

    window = _main_window()
    window.setWindowState(window.windowState() & ~QtCore.Qt.WindowMinimized)
    window.show()
    window.raise_()
    window.activateWindow()


def zoom_extents():
    if FreeCAD.GuiUp:
        import FreeCADGui

        FreeCADGui.SendMsgToActiveView("ViewFit")


def look_from_above():
    if FreeCAD.GuiUp:
        import FreeCADGui

        FreeCADGui.SendMsgToActiveView("ViewTop")


def set_state(state):
    """1 normal, 2 minimised, 3 maximised."""
    if state not in (1, 2, 3):
        raise Fault(INVALID_CALL, f"no window state {state}")
    if not FreeCAD.GuiUp:
        return
    window = _main_window()
    (window.showNormal, window.showMinimized, window.showMaximized)[state - 1]()


def _main_window():
    import FreeCADGui

    return FreeCADGui.getMainWindow()
