#include "cutprep/sides.h"

#include "formats/sample_files.h"
#include "workbench.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Points;
using test::points_of;
using test::ShownBox;
using test::sync_file;

const std::string kDiffer = "El número de Puntos de Sincronismo es distinto en los dos ficheros!";

struct SidesTest : testing::Test, test::Workbench {
    AjusteWindow& window = session.ajuste;
    std::string one = machine.write(
        "uno.dat", sync_file({{"1", "1"}, {"5", "1"}, {"5", "4"}, {"1", "1"}}, {{"1", "1"}}));
    std::string two =
        machine.write("dos.dat", sync_file({{"1", "1"}, {"5", "1"}}, {{"1", "1"}, {"5", "1"}}));
    std::string other_one =
        machine.write("otro.dat", sync_file({{"2", "1"}, {"5", "1"}, {"6", "6"}}, {{"6", "6"}}));

    SidesTest() {
        ajuste_Load();
        session.Velmora.MousePointer = 0;
    }
    void select_A(const std::string& path) {
        machine.dialogs.paths = {path};
        cmd_selA_Click();
    }
    void select_B(const std::string& path) {
        machine.dialogs.paths = {path};
        cmd_selB_Click();
    }
};

TEST_F(SidesTest, the_load_puts_the_window_back_to_its_design_and_keeps_earlier_results) {
    window.cmd_opt_enabled = window.Cmd_Ajuste_enabled = window.Cmd_save_enabled = true;
    window.ChkPtosCtrl = true;
    window.TxtTotalCtrlPtosNew_A = "4";
    test::fill(session.PtosA, {{1, 1}, {2, 2}});
    test::fill(session.PtosA2, {{3, 3}, {4, 4}});
    session.OptX = 100;
    ajuste_Load();
    EXPECT_EQ(points_of(session.PtosA), Points{Pto{}});
    EXPECT_EQ(points_of(session.PtosB), Points{Pto{}});
    EXPECT_EQ(points_of(session.PtosA2), (Points{{3, 3}, {4, 4}}));
    EXPECT_FALSE(session.TrabajoA.dimensioned());
    EXPECT_FALSE(window.cmd_opt_enabled || window.Cmd_Ajuste_enabled || window.Cmd_save_enabled);
    EXPECT_TRUE(window.cmd_exit_enabled);
    EXPECT_FALSE(window.ChkPtosCtrl);
    EXPECT_EQ(window.TxtTotalCtrlPtosNew_A, "");
    EXPECT_EQ(session.OptX, 100);
}

TEST_F(SidesTest, each_activation_shows_the_notice) {
    ajuste_Activate();
    ajuste_Activate();
    const ShownBox notice = {
        "Tened en cuenta que esta funcionalidad, todavia está en fase de pruebas y desarrolo, "
        "podeis jugar con ella, y de paso podeis ir comentando cosillas.",
        64, "Velmora"};
    EXPECT_EQ(machine.dialogs.boxes, (std::vector<ShownBox>{notice, notice}));
}

TEST_F(SidesTest, the_dialog_starts_in_the_last_folder_or_in_the_programs) {
    cmd_selA_Click();
    session.LastDir = "/trabajo";
    cmd_selB_Click();
    ASSERT_EQ(machine.dialogs.open_calls.size(), 2U);
    const FileRequest& first = machine.dialogs.open_calls[0];
    EXPECT_EQ(first.title, "Seleccione Fichero a Abrir");
    EXPECT_EQ(first.filter, "DAT Files |*.DAT");
    EXPECT_EQ(first.folder, session.program_folder);
    EXPECT_EQ(first.name, "");
    EXPECT_EQ(machine.dialogs.open_calls[1].folder, "/trabajo");
}

TEST_F(SidesTest, an_empty_LastDir_becomes_the_programs_folder_and_a_pick_does_not_change_it) {
    select_A(one);
    EXPECT_EQ(session.LastDir, session.program_folder);
}

TEST_F(SidesTest, a_side_is_loaded_drawn_and_not_compared_with_an_empty_one) {
    select_A(one);
    EXPECT_EQ(window.txt_fileA, one);
    EXPECT_EQ(session.PtosA.upper(), 2);
    EXPECT_EQ(window.TxtTotalPtos_A + " " + window.TxtTotalCtrlPtos_A, "3 1");
    EXPECT_EQ(previews.Pic_A.operations.size(), 8U);
    EXPECT_TRUE(previews.Pic_B.operations.empty());
    EXPECT_FALSE(window.cmd_opt_enabled);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(SidesTest, equal_sync_totals_open_the_options_whatever_the_points) {
    select_B(other_one);
    EXPECT_EQ(window.Txt_FileB, other_one);
    EXPECT_FALSE(window.cmd_opt_enabled);
    select_A(one);
    EXPECT_TRUE(window.cmd_opt_enabled);
    EXPECT_FALSE(window.Cmd_Ajuste_enabled);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(SidesTest, different_sync_totals_show_message_91_and_keep_the_options_shut) {
    select_A(one);
    select_B(two);
    EXPECT_FALSE(window.cmd_opt_enabled);
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text, kDiffer);
    EXPECT_FALSE(previews.Pic_B.operations.empty());
}

TEST_F(SidesTest, the_totals_compared_are_the_numbers_in_the_boxes) {
    select_A(one);
    window.TxtTotalCtrlPtos_A = "2.0 puntos";
    select_B(two);
    EXPECT_TRUE(window.cmd_opt_enabled);
}

TEST_F(SidesTest, a_load_disables_the_options_but_not_the_adjustment) {
    select_A(one);
    select_B(other_one);
    window.Cmd_Ajuste_enabled = true;
    select_B(two);
    EXPECT_FALSE(window.cmd_opt_enabled);
    EXPECT_TRUE(window.Cmd_Ajuste_enabled);
}

TEST_F(SidesTest, a_cancelled_dialog_keeps_the_side_and_disables_the_options_until_the_next_load) {
    select_A(one);
    select_B(other_one);
    ASSERT_TRUE(window.cmd_opt_enabled);
    const Points before = points_of(session.PtosB);
    cmd_selB_Click();
    EXPECT_EQ(points_of(session.PtosB), before);
    EXPECT_EQ(window.Txt_FileB, other_one);
    EXPECT_FALSE(window.cmd_opt_enabled);
    select_A(one);
    EXPECT_TRUE(window.cmd_opt_enabled);
}

TEST_F(SidesTest, a_file_of_another_dialect_leaves_its_path_and_the_old_points) {
    select_A(one);
    const std::string plain = machine.write("perfil.DAT", "perfil\n1 2\n3 4\n");
    previews.Pic_A.operations.clear();
    session.Velmora.MousePointer = 11;
    select_A(plain);
    EXPECT_EQ(window.txt_fileA, plain);
    EXPECT_EQ(session.PtosA.upper(), 2);
    EXPECT_TRUE(previews.Pic_A.operations.empty());
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    const ShownBox box = {"El fichero : " + plain +
                              " no ha sido cargado, contiene errores, o no es un formato "
                              "soportado! Formato detectado:",
                          16, "Velmora 1.0"};
    EXPECT_EQ(machine.dialogs.boxes, std::vector<ShownBox>{box});
}

TEST_F(SidesTest, a_file_of_too_few_lines_shows_both_boxes_the_first_with_capitals) {
    const std::string brief = machine.write("breve.dat", "uno\ndos\n");
    select_B(brief);
    ASSERT_EQ(machine.dialogs.boxes.size(), 2U);
    EXPECT_NE(machine.dialogs.boxes[0].text.find("BREVE.DAT"), std::string::npos);
    EXPECT_NE(machine.dialogs.boxes[0].text.find("nº:62"), std::string::npos);
    EXPECT_NE(machine.dialogs.boxes[1].text.find(brief), std::string::npos);
    EXPECT_EQ(machine.dialogs.boxes[1].buttons, 16);
}

TEST_F(SidesTest, a_MERIDOL_file_goes_to_its_reader) {
    test::set_shape(Points(3));
    select_B(other_one);
    const std::string path =
        machine.write("lado.dat", "MERIDOL\n\n1 1\n5 1\n5 4\n1 1\nPuntos Sincronismo\n\n5 4\n");
    select_A(path);
    EXPECT_EQ(points_of(session.PtosA), (Points{{1, 1}, {5, 1}, {5, 4, 1}}));
    EXPECT_TRUE(window.cmd_opt_enabled);
}

TEST_F(SidesTest, a_side_that_fails_is_neither_drawn_nor_compared) {
    select_A(one);
    const std::string bad =
        machine.write("malo.dat", sync_file({{"1", "1"}, {"x", "1"}, {"2", "2"}}, {}));
    select_B(bad);
    EXPECT_TRUE(previews.Pic_B.operations.empty());
    EXPECT_FALSE(window.cmd_opt_enabled);
    EXPECT_EQ(machine.dialogs.boxes.size(), 1U);
}

TEST_F(SidesTest, the_document_is_never_touched) {
    test::set_shape({{7, 7}, {8, 8}, {9, 9}});
    session.FileName = "forma.dat";
    session.Velmora.TxtDat_File = "forma.dat";
    select_A(one);
    select_B(two);
    EXPECT_EQ(test::shape(), (Points{{7, 7}, {8, 8}, {9, 9}}));
    EXPECT_EQ(session.FileName + session.Velmora.TxtDat_File, "forma.datforma.dat");
}

TEST_F(SidesTest, the_options_enable_the_adjustment_once_they_return) {
    machine.windows.on_show_modal = [&](std::string_view name) {
        EXPECT_EQ(name, "ajuste_opt");
        EXPECT_FALSE(window.Cmd_Ajuste_enabled);
    };
    cmd_opt_Click();
    EXPECT_EQ(machine.windows.calls, std::vector<std::string>{"show_modal ajuste_opt"});
    EXPECT_TRUE(window.Cmd_Ajuste_enabled);
}

TEST_F(SidesTest, the_exit_button_closes_the_window) {
    ajuste_cmd_exit_Click();
    EXPECT_EQ(machine.windows.calls, std::vector<std::string>{"unload ajuste"});
}

} // namespace
} // namespace velmora
