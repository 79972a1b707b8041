# FreeCAD with windows offers itself to Velmora from its start on.
import velmora_cad

velmora_cad.start()
