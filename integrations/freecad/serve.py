"""Offers a FreeCAD without windows to Velmora until it is ended:

    freecadcmd drawing.dxf ~/.local/share/FreeCAD/Mod/Velmora/serve.py

GetPoint asks in the terminal, where the point is typed as X,Y; an empty line cancels.
"""
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import velmora_cad  # noqa: E402

velmora_cad.serve()
