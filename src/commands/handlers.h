// The click handlers of all commands, by the names of their menu entries and toolbar keys. The
// command table refers to them; a file per menu defines them. The point commands that keys and
// other commands run too are operations of shapeops.
#pragma once

#include "shapeops/point_editing.h"
#include "shapeops/sync_points.h"

#include <string_view>

namespace velmora {

// Archivo
void mnu_newfile();
void mnu_openfile();
void mnu_savefile();
void mnu_savefileas();
void mnu_closefile();
void mnu_edit();
void mnu_print();
void mnuRecentFile(int index);
/// Opens the file at an absolute path, as its entry among the recent files would. For what the
/// desktop names: on the command line, or dropped.
void open_named(std::string_view path);
void mnu_exit();
void mnu_importar();
/// What is seen of the canvas, as a PNG file that a dialog names.
void mnu_save_view();
// Configuración
void mnu_paramgenerales();
// Funciones
void Mult_Points_Shape();
void mnu_loadimg();
void mnu_delimg();
void mnu_positiva();
void mnu_scale();
void mnu_scale_xy();
void mnu_invert();
void mnu_mirrorh();
void mnu_mirrorv();
void mnu_zoom_up();
void mnu_zoom_down();
void mnu_update_coords();
// Herramientas
void mnu_seltexto();
void mnu_corrpoltrap();
void mnu_paralela();
// Autocad
void mnu_capture();
void mnu_Reconect();
void menu_select_orig();
void mnu_SendToCad();
// Ver
void mnu_wininfo();
void mnu_winoptgen();
/// The zoom at which the whole shape, or what lies round the selected point, fills the canvas's
/// visible part; the middle of it is the part's middle then.
void mnu_fit_shape();
void mnu_fit_point();
/// Shows and hides the rulers, the pointer's position in the status bar; the choice is stored.
void mnu_rulers();
void mnu_position();
// Ayuda
void mnu_contenido();
void mnu_Shortkeys();
void mnu_mail();
void mnu_web();
void mnu_about();
// Puntos
void Delete_N_Ptos();
void Set_00();
void set_10();
void set_x0();
void Move_Shape();
void Rotate();
// Toolbar keys that differ from their menu entry
void K_EXIT();
void K_INVERT();
void K_SCALE();

} // namespace velmora
