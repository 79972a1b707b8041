"""A running FreeCAD as a CAD of Velmora: the interface org.velmora.Cad1 on the session bus."""


def start():
    """Offers the FreeCAD with windows; what is missing is said in the report view."""
    import FreeCAD

    try:
        from . import main_loop, menu, service

        main_loop.keep_running()
        service.publish()
        menu.install()
    except Exception as failure:
        FreeCAD.Console.PrintWarning(f"Velmora can't reach this FreeCAD: {failure}\n")


def serve():
    """Offers the FreeCAD without windows and does not return while its bus is there."""
    from gi.repository import GLib

    from . import service

    service.publish()
    GLib.MainLoop().run()
