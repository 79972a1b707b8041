#include "commands/command_table.h"

#include <gtest/gtest.h>
#include <set>

namespace velmora {
namespace {

struct Row {
    const char *menu, *name, *caption, *shortcut;
    bool visible = true;
    int index = 0;
};

// Every caption to the blank, in the order of the menus.
constexpr Row kRows[] = {
    {"", "mnu_Archivo", "&Archivo", ""},
    {"mnu_Archivo", "mnu_newfile", "&Nuevo ", "Ctrl+N"},
    {"mnu_Archivo", "mnu_openfile", "Abrir", "Ctrl+A"},
    {"mnu_Archivo", "", "-", ""},
    {"mnu_Archivo", "mnu_savefile", "Guardar", "Ctrl+S"},
    {"mnu_Archivo", "mnu_savefileas", "Guardar Como... ", "F12"},
    {"mnu_Archivo", "", "-", ""},
    {"mnu_Archivo", "mnu_closefile", "Cerrar", "Ctrl+O"},
    {"mnu_Archivo", "", "-", ""},
    {"mnu_Archivo", "mnu_edit", "Editar Fichero", "Ctrl+E"},
    {"mnu_Archivo", "mnu_print", "Imprimir", ""},
    {"mnu_Archivo", "mnuRecentFileSep", "-", ""},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 1},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 2},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 3},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 4},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 5},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 6},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 7},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 8},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 9},
    {"mnu_Archivo", "mnuRecentFile", "", "", false, 10},
    {"mnu_Archivo", "", "-", ""},
    {"mnu_Archivo", "mnu_exit", "Salir", ""},
    {"mnu_Archivo", "", "-", ""},
    {"mnu_Archivo", "mnu_importar", "Importar...", ""},
    {"mnu_Archivo", "mnu_save_view", "Guardar la Vista como Imagen...", ""},
    {"", "mnu_config", "&Configuración", ""},
    {"mnu_config", "mnu_paramgenerales", "Parámetros Generales", ""},
    {"", "mnu_funcs", "&Funciones", ""},
    {"mnu_funcs", "Delete_All_Pto_Sinc", "Eliminar todos los Ptos Sinc.", ""},
    {"mnu_funcs", "Insert_All_Pto_Sinc", "Insertar todos los Ptos Sinc.", ""},
    {"mnu_funcs", "", "-", ""},
    {"mnu_funcs", "Mult_Points_Shape", "Aumentar el Nº de puntos de la forma", ""},
    {"mnu_funcs", "", "-", ""},
    {"mnu_funcs", "mnu_loadimg", "Cargar Imagen de Fondo", ""},
    {"mnu_funcs", "mnu_delimg", "Quitar Imagen de Fondo", ""},
    {"mnu_funcs", "", "-", ""},
    {"mnu_funcs", "mnu_positiva", "Positivar Forma", "F6"},
    {"mnu_funcs", "mnu_scale", "Escalar a la Unidad", "F7"},
    {"mnu_funcs", "mnu_scale_xy", "Escalar a X,Y", ""},
    {"mnu_funcs", "mnu_invert", "Invertir Sentido de Corte", "F8"},
    {"mnu_funcs", "mnu_mirrorh", "Espejo Horizontal", "F9"},
    {"mnu_funcs", "mnu_mirrorv", "Espejo Vertical", "F11"},
    {"mnu_funcs", "", "-", ""},
    {"mnu_funcs", "mnu_zoom_up", "Aumentar Zoom", "Ctrl+F12"},
    {"mnu_funcs", "mnu_zoom_down", "Disminuir Zoom", "Ctrl+F11"},
    {"mnu_funcs", "", "-", ""},
    {"mnu_funcs", "mnu_update_coords", "Actualizar Lista de Coordenadas", "F5"},
    {"", "mnuherra", "Herramientas", ""},
    {"mnuherra", "mnu_seltexto", "Dat from text", ""},
    {"mnuherra", "mnu_corrpoltrap", "Ajustar Ficheros (CorrPolTrap)", ""},
    {"mnuherra", "mnu_paralela", "Compensación de Corte", "", false},
    {"", "mnuacad", "Autocad", ""},
    {"mnuacad", "mnu_capture", "Capturar Acad", "F2"},
    {"mnuacad", "mnu_Reconect", "Reconectar Acad", ""},
    {"mnuacad", "menu_select_orig", "Seleccionar Origen", "F3"},
    {"mnuacad", "", "-", ""},
    {"mnuacad", "mnu_SendToCad", "Pasar Forma a Autocad", "F4"},
    {"", "mnu_ver", "&Ver", ""},
    {"mnu_ver", "mnu_wininfo", "Ventana &Info", ""},
    {"mnu_ver", "mnu_winoptgen", "Ventana Opciones Generales", ""},
    {"mnu_ver", "", "-", ""},
    {"mnu_ver", "mnu_fit_shape", "Encuadrar la Forma", "Ctrl+0"},
    {"mnu_ver", "mnu_fit_point", "Encuadrar el Punto Seleccionado", "Ctrl+9"},
    {"mnu_ver", "", "-", ""},
    {"mnu_ver", "mnu_rulers", "Reglas", ""},
    {"mnu_ver", "mnu_position", "Posición del Puntero", ""},
    {"", "mnu_hlp", "Ay&uda", ""},
    {"mnu_hlp", "mnu_contenido", "Contenido", ""},
    {"mnu_hlp", "mnu_Shortkeys", "Teclas Rápìdas", ""},
    {"mnu_hlp", "", "-", ""},
    {"mnu_hlp", "mnu_mail", "Soporte via E-Mail", ""},
    {"mnu_hlp", "mnu_web", "Velmora en la Web", ""},
    {"mnu_hlp", "", "-", ""},
    {"mnu_hlp", "mnu_about", "Acerca de Velmora", ""},
    {"", "OPT_PTO", "Puntos", "", false},
    {"OPT_PTO", "ptss", "Puntos", "", false},
    {"OPT_PTO", "", "-", ""},
    {"OPT_PTO", "Delete_Pto", "Eliminar Punto", ""},
    {"OPT_PTO", "Delete_N_Ptos", "Eliminar N Puntos", ""},
    {"OPT_PTO", "", "-", ""},
    {"OPT_PTO", "Insert_Pto", "Insertar Nuevo Punto", ""},
    {"OPT_PTO", "insert_ini", "Insertar Linea Inicial", ""},
    {"OPT_PTO", "Insert_N_Ptos", "Insertar N Puntos", ""},
    {"OPT_PTO", "", "-", ""},
    {"OPT_PTO", "Delete_Pto_Sinc", "Eliminar Punto Sincronismo", ""},
    {"OPT_PTO", "Insert_Pto_Sinc", "Insertar Nuevo Punto Sincronismo", ""},
    {"OPT_PTO", "Pts_To_Next_Sinc", "Nº de ptos hasta Siguiente Sinc.", ""},
    {"OPT_PTO", "", "-", ""},
    {"OPT_PTO", "Set_CutStart", "Definir como Punto de Inicio de Corte", ""},
    {"OPT_PTO", "Set_00", "Definir como coordenada 0.0", ""},
    {"OPT_PTO", "set_10", "Mover coordenada  a 1,0", ""},
    {"OPT_PTO", "set_x0", "Mover coordenada  a x,0", ""},
    {"OPT_PTO", "", "-", ""},
    {"OPT_PTO", "Move_Shape", "Mover forma ", ""},
    {"OPT_PTO", "Rotate", "Punto de Rotación", ""},
};

struct Key {
    const char *bar, *key, *tip;
};

constexpr Key kKeys[] = {
    {"TBar2", "K_EXIT", "Salir de Velmora"},
    {"TBar2", "K_NEWDAT", "Archivo Nuevo"},
    {"TBar2", "K_OPEN", "Abrir Archivo"},
    {"TBar2", "K_SAVE", "Guardar Archivo"},
    {"TBar2", "K_PRINT", "Imprimir Forma"},
    {"TBar2", "K_EDIT", "Editar Fichero en modo texto"},
    {"TBar2", "K_LOADIMG", "Cargar Imagen de Fondo"},
    {"TBar3", "K_CONNECT", "Reconecta con Autocad"},
    {"TBar3", "K_ORIG", "Selecciona Punto Origen en Autocad"},
    {"TBar4", "K_HLP", "Ayuda de Velmora"},
    {"TBar4", "K_POSITIVE", "Positivar Forma (F6)"},
    {"TBar4", "K_SCALE", "Escalar Forma a la Unidad (F7)"},
    {"TBar4", "K_SCALEXY", "Escalar la forma a X,Y"},
    {"TBar4", "K_INVERT", "Invierte el Sentido decorte (F8)"},
    {"TBar4", "K_MIRRORH", "Aplica un Espejo Horizontal (F9)"},
    {"TBar4", "K_MIRRORV", "Aplica un Espejo Vertical (F11)"},
    {"TBar4", "K_ZOOMUP", "Aumentar Zoom (CTRL+F12)"},
    {"TBar4", "K_ZOOMDWN", "Disminuir Zoom (CTRL+F11)"},
    {"TBar4", "K_FIT", "Encuadrar la Forma (CTRL+0)"},
};

TEST(CommandTable, holds_the_menus_in_their_order) {
    const auto entries = menu_entries();
    ASSERT_EQ(entries.size(), std::size(kRows));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        SCOPED_TRACE(kRows[i].name);
        EXPECT_EQ(entries[i].menu, kRows[i].menu);
        EXPECT_EQ(entries[i].name, kRows[i].name);
        EXPECT_EQ(entries[i].caption, kRows[i].caption);
        EXPECT_EQ(entries[i].shortcut, kRows[i].shortcut);
        EXPECT_EQ(entries[i].visible, kRows[i].visible);
        EXPECT_EQ(entries[i].index, kRows[i].index);
    }
}

TEST(CommandTable, every_line_of_a_menu_has_its_handler) {
    for (const MenuEntry& entry : menu_entries()) {
        const bool command = !entry.menu.empty() && entry.caption != "-" && entry.name != "ptss";
        EXPECT_EQ(entry.handler != nullptr, command) << entry.name;
    }
}

TEST(CommandTable, holds_the_keys_of_the_bars_with_their_tips) {
    const auto keys = tool_keys();
    ASSERT_EQ(keys.size(), std::size(kKeys));
    for (std::size_t i = 0; i < keys.size(); ++i) {
        SCOPED_TRACE(kKeys[i].key);
        EXPECT_EQ(keys[i].bar, kKeys[i].bar);
        EXPECT_EQ(keys[i].key, kKeys[i].key);
        EXPECT_EQ(keys[i].tip, kKeys[i].tip);
        EXPECT_NE(keys[i].handler, nullptr);
    }
}

// These differ from the menu's entry on purpose: all others run it.
TEST(CommandTable, three_keys_have_ways_of_their_own) {
    std::set<void (*)()> of_menus;
    for (const MenuEntry& entry : menu_entries())
        of_menus.insert(entry.handler);
    std::set<std::string_view> own;
    for (const ToolKey& key : tool_keys())
        if (!of_menus.contains(key.handler))
            own.insert(key.key);
    EXPECT_EQ(own, (std::set<std::string_view>{"K_EXIT", "K_INVERT", "K_SCALE"}));
}

TEST(CommandTable, finds_an_entry_by_name_and_place) {
    ASSERT_NE(find_menu_entry("mnu_scale"), nullptr);
    EXPECT_EQ(find_menu_entry("mnu_scale")->shortcut, "F7");
    ASSERT_NE(find_menu_entry("mnuRecentFile", 10), nullptr);
    EXPECT_EQ(find_menu_entry("mnuRecentFile", 10)->index, 10);
    EXPECT_EQ(find_menu_entry("mnuRecentFile", 11), nullptr);
    EXPECT_EQ(find_menu_entry("mnuRecentFile"), nullptr);
    EXPECT_EQ(find_menu_entry(""), nullptr);
    EXPECT_EQ(find_menu_entry("mnu_otro"), nullptr);
    ASSERT_NE(find_tool_key("K_SCALE"), nullptr);
    EXPECT_EQ(find_tool_key("K_SCALE")->bar, "TBar4");
    EXPECT_EQ(find_tool_key("k_scale"), nullptr);
}

} // namespace
} // namespace velmora
