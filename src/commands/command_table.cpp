#include "commands/command_table.h"

#include "commands/handlers.h"
#include "document/state/view_choices.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr MenuEntry top(std::string_view name, std::string_view caption, bool visible = true) {
    return {"", name, caption, "", nullptr, visible, 0};
}

constexpr MenuEntry separator(std::string_view menu, std::string_view name = "") {
    return {menu, name, "-", "", nullptr, true, 0};
}

template <int Index>
void recent_file() {
    mnuRecentFile(Index);
}

template <int Index>
constexpr MenuEntry recent() {
    return {"mnu_Archivo", "mnuRecentFile", "", "", recent_file<Index>, false, Index};
}

template <Flag ViewChoiceState::*Choice>
bool chosen() {
    return state::view_choices.*Choice != False;
}

constexpr MenuEntry choice(std::string_view menu, std::string_view name, std::string_view caption,
                           void (*handler)(), bool (*checked)()) {
    return {menu, name, caption, "", handler, true, 0, checked};
}

constexpr auto kMenus = std::to_array<MenuEntry>({
    top("mnu_Archivo", "&Archivo"),
    {"mnu_Archivo", "mnu_newfile", "&Nuevo ", "Ctrl+N", mnu_newfile},
    {"mnu_Archivo", "mnu_openfile", "Abrir", "Ctrl+A", mnu_openfile},
    separator("mnu_Archivo"),
    {"mnu_Archivo", "mnu_savefile", "Guardar", "Ctrl+S", mnu_savefile},
    {"mnu_Archivo", "mnu_savefileas", "Guardar Como... ", "F12", mnu_savefileas},
    separator("mnu_Archivo"),
    {"mnu_Archivo", "mnu_closefile", "Cerrar", "Ctrl+O", mnu_closefile},
    separator("mnu_Archivo"),
    {"mnu_Archivo", "mnu_edit", "Editar Fichero", "Ctrl+E", mnu_edit},
    {"mnu_Archivo", "mnu_print", "Imprimir", "", mnu_print},
    separator("mnu_Archivo", "mnuRecentFileSep"),
    recent<1>(),
    recent<2>(),
    recent<3>(),
    recent<4>(),
    recent<5>(),
    recent<6>(),
    recent<7>(),
    recent<8>(),
    recent<9>(),
    recent<10>(),
    separator("mnu_Archivo"),
    {"mnu_Archivo", "mnu_exit", "Salir", "", mnu_exit},
    separator("mnu_Archivo"),
    {"mnu_Archivo", "mnu_importar", "Importar...", "", mnu_importar},
    {"mnu_Archivo", "mnu_save_view", "Guardar la Vista como Imagen...", "", mnu_save_view},

    top("mnu_config", "&Configuración"),
    {"mnu_config", "mnu_paramgenerales", "Parámetros Generales", "", mnu_paramgenerales},

    top("mnu_funcs", "&Funciones"),
    {"mnu_funcs", "Delete_All_Pto_Sinc", "Eliminar todos los Ptos Sinc.", "", Delete_All_Pto_Sinc},
    {"mnu_funcs", "Insert_All_Pto_Sinc", "Insertar todos los Ptos Sinc.", "", Insert_All_Pto_Sinc},
    separator("mnu_funcs"),
    {"mnu_funcs", "Mult_Points_Shape", "Aumentar el Nº de puntos de la forma", "",
     Mult_Points_Shape},
    separator("mnu_funcs"),
    {"mnu_funcs", "mnu_loadimg", "Cargar Imagen de Fondo", "", mnu_loadimg},
    {"mnu_funcs", "mnu_delimg", "Quitar Imagen de Fondo", "", mnu_delimg},
    separator("mnu_funcs"),
    {"mnu_funcs", "mnu_positiva", "Positivar Forma", "F6", mnu_positiva},
    {"mnu_funcs", "mnu_scale", "Escalar a la Unidad", "F7", mnu_scale},
    {"mnu_funcs", "mnu_scale_xy", "Escalar a X,Y", "", mnu_scale_xy},
    {"mnu_funcs", "mnu_invert", "Invertir Sentido de Corte", "F8", mnu_invert},
    {"mnu_funcs", "mnu_mirrorh", "Espejo Horizontal", "F9", mnu_mirrorh},
    {"mnu_funcs", "mnu_mirrorv", "Espejo Vertical", "F11", mnu_mirrorv},
    separator("mnu_funcs"),
    {"mnu_funcs", "mnu_zoom_up", "Aumentar Zoom", "Ctrl+F12", mnu_zoom_up},
    {"mnu_funcs", "mnu_zoom_down", "Disminuir Zoom", "Ctrl+F11", mnu_zoom_down},
    separator("mnu_funcs"),
    {"mnu_funcs", "mnu_update_coords", "Actualizar Lista de Coordenadas", "F5", mnu_update_coords},

    top("mnuherra", "Herramientas"),
    {"mnuherra", "mnu_seltexto", "Dat from text", "", mnu_seltexto},
    {"mnuherra", "mnu_corrpoltrap", "Ajustar Ficheros (CorrPolTrap)", "", mnu_corrpoltrap},
    {"mnuherra", "mnu_paralela", "Compensación de Corte", "", mnu_paralela, false},

    top("mnuacad", "Autocad"),
    {"mnuacad", "mnu_capture", "Capturar Acad", "F2", mnu_capture},
    {"mnuacad", "mnu_Reconect", "Reconectar Acad", "", mnu_Reconect},
    {"mnuacad", "menu_select_orig", "Seleccionar Origen", "F3", menu_select_orig},
    separator("mnuacad"),
    {"mnuacad", "mnu_SendToCad", "Pasar Forma a Autocad", "F4", mnu_SendToCad},

    top("mnu_ver", "&Ver"),
    {"mnu_ver", "mnu_wininfo", "Ventana &Info", "", mnu_wininfo},
    {"mnu_ver", "mnu_winoptgen", "Ventana Opciones Generales", "", mnu_winoptgen},
    separator("mnu_ver"),
    {"mnu_ver", "mnu_fit_shape", "Encuadrar la Forma", "Ctrl+0", mnu_fit_shape},
    {"mnu_ver", "mnu_fit_point", "Encuadrar el Punto Seleccionado", "Ctrl+9", mnu_fit_point},
    separator("mnu_ver"),
    choice("mnu_ver", "mnu_rulers", "Reglas", mnu_rulers, chosen<&ViewChoiceState::ShowRulers>),
    choice("mnu_ver", "mnu_position", "Posición del Puntero", mnu_position,
           chosen<&ViewChoiceState::ShowPosition>),

    top("mnu_hlp", "Ay&uda"),
    {"mnu_hlp", "mnu_contenido", "Contenido", "", mnu_contenido},
    {"mnu_hlp", "mnu_Shortkeys", "Teclas Rápìdas", "", mnu_Shortkeys},
    separator("mnu_hlp"),
    {"mnu_hlp", "mnu_mail", "Soporte via E-Mail", "", mnu_mail},
    {"mnu_hlp", "mnu_web", "Velmora en la Web", "", mnu_web},
    separator("mnu_hlp"),
    {"mnu_hlp", "mnu_about", "Acerca de Velmora", "", mnu_about},

    top("OPT_PTO", "Puntos", false),
    {"OPT_PTO", "ptss", "Puntos", "", nullptr, false},
    separator("OPT_PTO"),
    {"OPT_PTO", "Delete_Pto", "Eliminar Punto", "", Delete_Pto},
    {"OPT_PTO", "Delete_N_Ptos", "Eliminar N Puntos", "", Delete_N_Ptos},
    separator("OPT_PTO"),
    {"OPT_PTO", "Insert_Pto", "Insertar Nuevo Punto", "", Insert_Pto},
    {"OPT_PTO", "insert_ini", "Insertar Linea Inicial", "", insert_ini},
    {"OPT_PTO", "Insert_N_Ptos", "Insertar N Puntos", "", Insert_N_Ptos},
    separator("OPT_PTO"),
    {"OPT_PTO", "Delete_Pto_Sinc", "Eliminar Punto Sincronismo", "", Delete_Pto_Sinc},
    {"OPT_PTO", "Insert_Pto_Sinc", "Insertar Nuevo Punto Sincronismo", "", Insert_Pto_Sinc},
    {"OPT_PTO", "Pts_To_Next_Sinc", "Nº de ptos hasta Siguiente Sinc.", "", Pts_To_Next_Sinc},
    separator("OPT_PTO"),
    {"OPT_PTO", "Set_CutStart", "Definir como Punto de Inicio de Corte", "", Set_CutStart},
    {"OPT_PTO", "Set_00", "Definir como coordenada 0.0", "", Set_00},
    {"OPT_PTO", "set_10", "Mover coordenada  a 1,0", "", set_10},
    {"OPT_PTO", "set_x0", "Mover coordenada  a x,0", "", set_x0},
    separator("OPT_PTO"),
    {"OPT_PTO", "Move_Shape", "Mover forma ", "", Move_Shape},
    {"OPT_PTO", "Rotate", "Punto de Rotación", "", Rotate},
});

constexpr auto kTools = std::to_array<ToolKey>({
    {"TBar2", "K_EXIT", "Salir de Velmora", K_EXIT},
    {"TBar2", "K_NEWDAT", "Archivo Nuevo", mnu_newfile},
    {"TBar2", "K_OPEN", "Abrir Archivo", mnu_openfile},
    {"TBar2", "K_SAVE", "Guardar Archivo", mnu_savefile},
    {"TBar2", "K_PRINT", "Imprimir Forma", mnu_print},
    {"TBar2", "K_EDIT", "Editar Fichero en modo texto", mnu_edit},
    {"TBar2", "K_LOADIMG", "Cargar Imagen de Fondo", mnu_loadimg},
    {"TBar3", "K_CONNECT", "Reconecta con Autocad", mnu_Reconect},
    {"TBar3", "K_ORIG", "Selecciona Punto Origen en Autocad", menu_select_orig},
    {"TBar4", "K_HLP", "Ayuda de Velmora", mnu_contenido},
    {"TBar4", "K_POSITIVE", "Positivar Forma (F6)", mnu_positiva},
    {"TBar4", "K_SCALE", "Escalar Forma a la Unidad (F7)", K_SCALE},
    {"TBar4", "K_SCALEXY", "Escalar la forma a X,Y", mnu_scale_xy},
    {"TBar4", "K_INVERT", "Invierte el Sentido decorte (F8)", K_INVERT},
    {"TBar4", "K_MIRRORH", "Aplica un Espejo Horizontal (F9)", mnu_mirrorh},
    {"TBar4", "K_MIRRORV", "Aplica un Espejo Vertical (F11)", mnu_mirrorv},
    {"TBar4", "K_ZOOMUP", "Aumentar Zoom (CTRL+F12)", mnu_zoom_up},
    {"TBar4", "K_ZOOMDWN", "Disminuir Zoom (CTRL+F11)", mnu_zoom_down},
    {"TBar4", "K_FIT", "Encuadrar la Forma (CTRL+0)", mnu_fit_shape},
});

} // namespace

std::span<const MenuEntry> menu_entries() {
    return kMenus;
}

std::span<const ToolKey> tool_keys() {
    return kTools;
}

const MenuEntry* find_menu_entry(std::string_view name, int index) {
    const auto found = std::ranges::find_if(kMenus, [&](const MenuEntry& entry) {
        return !name.empty() && entry.name == name && entry.index == index;
    });
    return found == kMenus.end() ? nullptr : &*found;
}

const ToolKey* find_tool_key(std::string_view key) {
    const auto found = std::ranges::find(kTools, key, &ToolKey::key);
    return found == kTools.end() ? nullptr : &*found;
}

} // namespace velmora
