#include "forms/importar.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "forms/import_choices.h"
#include "import/dxf_text.h"
#include "platform/dialogs.h"
#include "support/outline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace velmora {
namespace {

using imports::as_text;
using imports::operator+;
using imports::drawing;
using imports::dxf_line;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using Outline = std::vector<ImportarPoint>;

constexpr const char* wedge = "Cuña 12\n1 0.01\n0.75 .06\n0.5 0.1\n0.25 0.09\n0.05 0.04\n0 0\n"
                              "0.1 -0.03\n0.4 -0.04\n0.7 -0.02\n1 -0.01\nend\n";

/// A square of 10, drawn in four lines, and a line of 5 beside it.
std::string square_and_line() {
    return as_text(drawing(dxf_line("0", "0", "10", "0") + dxf_line("10", "0", "10", "10") +
                           dxf_line("10", "10", "0", "10") + dxf_line("0", "10", "0", "0") +
                           dxf_line("20", "0", "25", "0")));
}

class ImportarTest : public testing::Test {
  protected:
    ImportarTest() : window_(session.importar) { importar_Load(); }

    void take(const std::string& name, std::string_view bytes) {
        importar_take_file(platform_.write(name, bytes));
    }
    void choose(ChoiceList& list, const std::string& entry) {
        ASSERT_THAT(list.entries, testing::Contains(entry));
        list.chosen = entry;
        importar_reading_Change();
    }
    void order(ChoiceList& list, const std::string& entry) {
        ASSERT_THAT(list.entries, testing::Contains(entry));
        list.chosen = entry;
        importar_order_Change();
    }
    std::vector<std::string> rows() {
        std::vector<std::string> texts;
        for (const ImportarChain& chain : window_.Lst_Chains)
            texts.push_back(std::to_string(chain.taken) + " " + chain.text);
        return texts;
    }

    test::RecordingPlatform platform_{test::with_database};
    ImportarWindow& window_;
};

TEST_F(ImportarTest, opens_empty_and_asks_for_a_file) {
    EXPECT_EQ(window_.lbl_note, "Elige un fichero, o suéltalo en esta ventana.");
    EXPECT_FALSE(window_.cmd_ok_enabled);
    EXPECT_TRUE(window_.Lst_Chains.empty());
}

TEST_F(ImportarTest, the_file_is_asked_for_where_the_last_one_was) {
    session.LastDir = "/piezas";
    platform_.dialogs.paths = {platform_.write("cuna.dat", wedge)};
    Cmd_File_Click();
    ASSERT_EQ(platform_.dialogs.open_calls.size(), 1U);
    EXPECT_EQ(platform_.dialogs.open_calls[0].title, "Seleccione Fichero a Importar");
    EXPECT_EQ(platform_.dialogs.open_calls[0].filter, "Todos los ficheros|*");
    EXPECT_EQ(platform_.dialogs.open_calls[0].folder, "/piezas");
    EXPECT_EQ(window_.Txt_File, platform_.path("cuna.dat"));
    EXPECT_EQ(window_.Lst_Chains.size(), 1U);
}

TEST_F(ImportarTest, a_cancelled_dialog_leaves_what_was_there) {
    take("cuna.dat", wedge);
    Cmd_File_Click();
    EXPECT_EQ(window_.Lst_Chains.size(), 1U);
}

TEST_F(ImportarTest, an_airfoil_is_told_in_words) {
    take("cuna.dat", wedge);
    EXPECT_EQ(window_.Cmb_Kind.chosen, "Tabla de puntos");
    EXPECT_THAT(window_.Txt_Report, HasSubstr("línea 1: título: Cuña 12\n"));
    EXPECT_THAT(window_.Txt_Report, HasSubstr("10 puntos, orden Selig"));
    EXPECT_THAT(window_.Txt_Report, HasSubstr("línea 12: pasada por alto: end\n"));
    ASSERT_EQ(window_.outline.size(), 10U);
    EXPECT_EQ(window_.outline[1], (ImportarPoint{0.75, 0.06}));
    EXPECT_TRUE(window_.cmd_ok_enabled);
    EXPECT_EQ(window_.lbl_note, "Se toman 10, 1 x 0.14");
}

TEST_F(ImportarTest, numbers_are_told_with_the_programs_separator) {
    session.SepDecimal = ',';
    take("cuna.dat", wedge);
    EXPECT_EQ(window_.lbl_note, "Se toman 10, 1 x 0,14");
}

TEST_F(ImportarTest, each_language_has_its_words) {
    for (const auto& [language, words] : {std::pair("E", "orden Selig"),
                                          {"I", "Selig order"},
                                          {"F", "ordre Selig"},
                                          {"P", "ordem Selig"},
                                          {"T", "ordine Selig"}}) {
        session.Idioma = language;
        take("cuna.dat", wedge);
        EXPECT_THAT(window_.Txt_Report, HasSubstr(words));
    }
}

TEST_F(ImportarTest, without_its_table_the_report_speaks_English) {
    platform_.database->close();
    take("cuna.dat", wedge);
    EXPECT_THAT(window_.Txt_Report, HasSubstr("10 points, Selig order"));
    EXPECT_TRUE(window_.cmd_ok_enabled);
}

TEST_F(ImportarTest, of_many_lines_alike_the_first_are_shown_and_how_many_more_there_are) {
    std::string text = wedge;
    for (int i = 0; i < 20; ++i)
        text += "nada\n";
    take("cuna.dat", text);
    EXPECT_THAT(window_.Txt_Report, HasSubstr("línea 16: pasada por alto: nada\n... y 16 más"));
    EXPECT_THAT(window_.Txt_Report, testing::Not(HasSubstr("línea 17:")));
}

TEST_F(ImportarTest, each_chain_has_a_row_with_its_length_and_whether_it_closes) {
    take("dibujo.dxf", square_and_line());
    EXPECT_THAT(rows(), ElementsAre("1 1: 4 puntos, longitud 40, cerrada - 0",
                                    "0 2: 2 puntos, longitud 5, abierta - 0"));
    EXPECT_EQ(window_.Cmb_Kind.chosen, "DXF");
    EXPECT_THAT(window_.lbl_note, HasSubstr("El fichero no dice su unidad"));
}

TEST_F(ImportarTest, chains_are_joined_in_the_order_of_the_clicks) {
    take("dibujo.dxf", square_and_line());
    importar_chain_Click(0);
    EXPECT_EQ(window_.lbl_note, "Haz clic en los contornos que quieras tomar.");
    EXPECT_FALSE(window_.cmd_ok_enabled);
    importar_chain_Click(1);
    importar_chain_Click(0);
    EXPECT_EQ(window_.Lst_Chains[1].taken, 1U);
    EXPECT_EQ(window_.Lst_Chains[0].taken, 2U);
    order(window_.Cmb_Start, "Como está");
    EXPECT_EQ(window_.outline.size(), 7U); // the line, and the square back to its own start
    EXPECT_EQ(window_.outline.front(), (ImportarPoint{25, 0}));
    EXPECT_FALSE(window_.outline_closed);
}

TEST_F(ImportarTest, a_chain_that_is_left_gives_its_place_to_the_next) {
    take("dibujo.dxf", square_and_line());
    importar_chain_Click(1);
    importar_chain_Click(0);
    EXPECT_EQ(window_.Lst_Chains[0].taken, 0U);
    EXPECT_EQ(window_.Lst_Chains[1].taken, 1U);
    importar_chain_Click(7);
    EXPECT_EQ(window_.outline.size(), 2U);
}

TEST_F(ImportarTest, the_cut_starts_and_runs_as_chosen) {
    take("dibujo.dxf", square_and_line());
    EXPECT_EQ(window_.Cmb_Start.chosen, "Borde de salida");
    order(window_.Cmb_Start, "Lo más a la izquierda");
    order(window_.Cmb_Direction, "Contra el reloj");
    EXPECT_EQ(window_.outline, (Outline{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
    order(window_.Cmb_Direction, "Como el reloj");
    EXPECT_EQ(window_.outline, (Outline{{0, 0}, {0, 10}, {10, 10}, {10, 0}}));
    order(window_.Cmb_Start, "Lo más a la derecha");
    EXPECT_EQ(window_.outline.front(), (ImportarPoint{10, 0}));
}

TEST_F(ImportarTest, an_open_line_can_be_turned_round) {
    take("dibujo.dxf", as_text(drawing(dxf_line("0", "0", "5", "1"))));
    order(window_.Cmb_Start, "Lo más a la izquierda");
    order(window_.Cmb_Direction, "Al revés");
    EXPECT_EQ(window_.outline, (Outline{{5, 1}, {0, 0}}));
}

TEST_F(ImportarTest, a_wider_gap_closes_the_drawing) {
    take("dibujo.dxf",
         as_text(drawing(dxf_line("0", "0", "10", "0") + dxf_line("10.2", "0", "5", "8") +
                         dxf_line("5", "8", "0", "0.1"))));
    EXPECT_EQ(window_.Lst_Chains.size(), 2U);
    window_.Txt_Gap.text = "0,3";
    importar_reading_Change();
    ASSERT_EQ(window_.Lst_Chains.size(), 1U);
    EXPECT_TRUE(window_.Lst_Chains[0].closed);
}

TEST_F(ImportarTest, a_finer_tolerance_gives_more_points_and_keeps_what_is_taken) {
    take("circulo.dxf",
         as_text(
             drawing(imports::DxfPairs{{0, "CIRCLE"}, {8, "0"}, {10, "0"}, {20, "0"}, {40, "50"}} +
                     dxf_line("100", "0", "110", "0"))));
    importar_chain_Click(1);
    importar_chain_Click(0);
    const std::size_t before = window_.Lst_Chains[0].points.size();
    window_.Txt_Tolerance.text = "0.0001";
    importar_reading_Change();
    EXPECT_GT(window_.Lst_Chains[0].points.size(), 2 * before);
    EXPECT_EQ(window_.Lst_Chains[1].taken, 1U);
    EXPECT_EQ(window_.Lst_Chains[0].taken, 0U);
}

TEST_F(ImportarTest, what_is_no_number_is_told_and_changes_nothing) {
    take("dibujo.dxf", square_and_line());
    for (const char* typed : {"x", "-1", "0", "1..2"}) {
        window_.Txt_Tolerance.text = typed;
        importar_reading_Change();
        EXPECT_THAT(window_.lbl_note, StartsWith("Tolerancia, hueco, escala y cuerda")) << typed;
        EXPECT_FALSE(window_.cmd_ok_enabled);
        EXPECT_EQ(window_.Lst_Chains.size(), 2U);
    }
    window_.Txt_Tolerance.text = " ";
    importar_reading_Change();
    EXPECT_TRUE(window_.cmd_ok_enabled);
}

TEST_F(ImportarTest, the_chord_takes_the_place_of_the_factor) {
    take("cuna.dat", wedge);
    window_.Txt_Scale.text = "3";
    Txt_Scale_Change();
    EXPECT_EQ(window_.factor, 3);
    window_.Txt_Chord.text = "200";
    Txt_Chord_Change();
    EXPECT_EQ(window_.factor, 200);
    EXPECT_EQ(window_.Txt_Scale.text, "");
    EXPECT_EQ(window_.lbl_note, "Se toman 10, 200 x 28");
    window_.Txt_Scale.text = "2";
    Txt_Scale_Change();
    EXPECT_EQ(window_.factor, 2);
    EXPECT_EQ(window_.Txt_Chord.text, "");
}

TEST_F(ImportarTest, a_shape_wider_than_the_programs_limit_needs_another_scale) {
    take("cuna.dat", wedge);
    window_.Txt_Scale.text = "25001";
    Txt_Scale_Change();
    EXPECT_EQ(window_.lbl_note, "La forma pasa de 25000: da una escala menor.");
    EXPECT_FALSE(window_.cmd_ok_enabled);
    window_.Txt_Scale.text = "25000";
    Txt_Scale_Change();
    EXPECT_TRUE(window_.cmd_ok_enabled);
}

TEST_F(ImportarTest, the_two_sides_of_a_program_are_two_chains) {
    take("ala.nc", "%\nG21 G90\nG0 X0 Y0 U0 V0\nG1 X10 Y0 U8 V1 F200\nX10 Y10 U8\nX0 U0 V9\n"
                   "X0 Y0 U0 V0\nM2\n");
    EXPECT_EQ(window_.Cmb_Kind.chosen, "Código G");
    ASSERT_EQ(window_.Lst_Chains.size(), 2U);
    EXPECT_THAT(window_.Lst_Chains[1].text, testing::EndsWith("- UV"));
    importar_chain_Click(0);
    importar_chain_Click(1);
    EXPECT_EQ(window_.Cmb_Start.chosen, "Como está");
    EXPECT_EQ(window_.outline, (Outline{{0, 0}, {8, 1}, {8, 1}, {0, 9}}));
}

TEST_F(ImportarTest, a_kind_that_can_not_be_told_is_asked_for_with_the_best_guess_first) {
    std::string text = "palabras y mas palabras\n";
    for (int i = 0; i < 60; ++i)
        text += "nada que leer aqui\n";
    take("cosa.txt", text + "0 0\n1 0\n1 1\n0 1\n");
    EXPECT_EQ(window_.lbl_note, "No se sabe de qué tipo es el fichero: elígelo.");
    EXPECT_FALSE(window_.cmd_ok_enabled);
    ASSERT_EQ(window_.Cmb_Kind.entries.size(), 4U);
    EXPECT_EQ(window_.Cmb_Kind.entries[0], "Tabla de puntos");
    EXPECT_EQ(window_.Cmb_Kind.chosen, "");
    choose(window_.Cmb_Kind, "Tabla de puntos");
    EXPECT_EQ(window_.Lst_Chains.size(), 1U);
    EXPECT_EQ(window_.Cmb_Kind.chosen, "Tabla de puntos");
}

TEST_F(ImportarTest, of_several_elements_one_is_chosen) {
    std::string two = wedge;
    two += "999.0 999.0\n";
    two += "2 0.01\n1.75 .06\n1.5 0.1\n1.25 0.09\n1.05 0.04\n1 0\n1.1 -0.03\n1.4 -0.04\n"
           "1.7 -0.02\n2 -0.01\n";
    take("flap.dat", two);
    EXPECT_EQ(window_.lbl_note, "Hay más de un elemento: elige cuál.");
    EXPECT_THAT(window_.Cmb_Element.entries,
                ElementsAre("Por sí mismo", "1: 10 puntos", "2: 10 puntos"));
    choose(window_.Cmb_Element, "2: 10 puntos");
    EXPECT_EQ(window_.outline[1].X, 1.75);
    EXPECT_TRUE(window_.cmd_ok_enabled);
    EXPECT_EQ(window_.Cmb_Element.chosen, "2: 10 puntos");
}

TEST_F(ImportarTest, what_can_not_be_read_is_told_in_the_window) {
    const std::pair<std::string, const char*> cases[] = {
        {platform_.path("falta.dat"), "El fichero no está."},
        {platform_.path(""), "No es un fichero corriente."},
        {platform_.write("vacio.dat", ""), "El fichero está vacío."},
        {platform_.write("nada.txt", "\n \n"), "No hay ningún contorno en el fichero."},
    };
    for (const auto& [path, told] : cases) {
        take("cuna.dat", wedge);
        importar_take_file(path);
        if (window_.question_needed)
            choose(window_.Cmb_Kind, "Tabla de puntos");
        EXPECT_EQ(window_.lbl_note, told);
        EXPECT_FALSE(window_.cmd_ok_enabled);
        EXPECT_TRUE(window_.Lst_Chains.empty());
        EXPECT_TRUE(platform_.dialogs.boxes.empty());
    }
}

TEST_F(ImportarTest, a_file_beyond_200_MB_is_not_read) {
    const std::string path = platform_.write("grande.dxf", "");
    std::filesystem::resize_file(path, 200'000'001); // without blocks on the disk
    importar_take_file(path);
    EXPECT_EQ(window_.lbl_note, "El fichero pasa de 200 MB.");
    EXPECT_TRUE(window_.bytes.empty());
}

TEST_F(ImportarTest, a_picture_is_named_for_what_it_is) {
    take("foto.dxf", "\x89PNG\r\n");
    EXPECT_THAT(window_.Txt_Report, HasSubstr("imagen PNG: no se lee"));
    EXPECT_EQ(window_.lbl_note, "No hay ningún contorno en el fichero.");
}

TEST_F(ImportarTest, ok_makes_it_the_outline) {
    take("dibujo.dxf", square_and_line());
    window_.Txt_Scale.text = "2";
    Txt_Scale_Change();
    order(window_.Cmb_Start, "Lo más a la izquierda");
    importar_cmd_ok_Click();
    EXPECT_EQ(test::shape(), (test::Points{{0, 0, 1}, {20, 0}, {20, 20}, {0, 20}}));
    EXPECT_TRUE(window_.taken);
    EXPECT_EQ(window_.target, platform_.path("dibujo.dat"));
    EXPECT_EQ(session.Velmora.TxtDescDat, "dibujo");
    EXPECT_THAT(platform_.windows.calls, ElementsAre("unload importar"));
}

TEST_F(ImportarTest, the_name_is_never_one_that_something_has) {
    take("cuna.dat", wedge);
    importar_cmd_ok_Click();
    EXPECT_EQ(window_.target, platform_.path("cuna-2.dat"));
    EXPECT_EQ(session.Velmora.TxtDescDat, "Cuña 12");
    platform_.write("cuna-2.dat", "");
    importar_cmd_ok_Click();
    EXPECT_EQ(window_.target, platform_.path("cuna-3.dat"));
    EXPECT_EQ(test::RecordingPlatform::read(platform_.path("cuna.dat")), wedge);
}

TEST_F(ImportarTest, a_drawing_far_from_the_origin_comes_to_it) {
    take("lejos.dxf", as_text(drawing(dxf_line("400000", "-70000", "400010", "-69990"))));
    order(window_.Cmb_Start, "Lo más a la izquierda");
    importar_cmd_ok_Click();
    EXPECT_EQ(test::shape(), (test::Points{{0, 0, 1}, {10, 10}}));
}

TEST_F(ImportarTest, the_command_shows_the_outline_like_an_opened_file) {
    session.PtoSel = 7;
    platform_.windows.on_show_modal = [this](std::string_view) {
        importar_Load();
        take("dibujo.dxf", square_and_line());
        importar_cmd_ok_Click();
    };
    mnu_importar();
    EXPECT_EQ(session.Velmora.TxtDat_File, platform_.path("dibujo.dat"));
    EXPECT_EQ(session.FileName, platform_.path("dibujo.dat"));
    EXPECT_EQ(session.LastDir, platform_.folder.string());
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(session.TotalPtos, 4);
    EXPECT_EQ(session.TotalSinc, 1);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "4");
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "1");
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 4U);
    EXPECT_THAT(platform_.windows.statuses, testing::Contains("Cargado: DIBUJO.DATTipo: DXF"));
    EXPECT_FALSE(platform_.settings.get("RecentFiles", "RecentFile1").has_value());
    EXPECT_FALSE(std::filesystem::exists(platform_.path("dibujo.dat")));
    EXPECT_TRUE(window_.bytes.empty());
}

TEST_F(ImportarTest, cancel_leaves_the_shape) {
    test::set_shape({{1, 2}, {3, 4}});
    platform_.windows.on_show_modal = [this](std::string_view) {
        importar_Load();
        take("dibujo.dxf", square_and_line());
        importar_cmd_cancel_Click();
    };
    mnu_importar();
    EXPECT_EQ(test::shape(), (test::Points{{1, 2}, {3, 4}}));
    EXPECT_EQ(session.Velmora.TxtDat_File, "");
    EXPECT_TRUE(window_.bytes.empty());
}

} // namespace
} // namespace velmora
