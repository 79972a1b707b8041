#include "forms/ajuste.h"

#include "cutprep/workbench.h"
#include "fakes/watching.h"
#include "formats/sample_files.h"
#include "support/error_number.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::Points;
using test::points_of;
using test::RecordingPlatform;
using test::ShownBox;
using test::sync_file;

const std::string kDiffer = "El número de Puntos de Sincronismo es distinto en los dos ficheros!";

struct AjusteTest : testing::Test, test::Workbench {
    AjusteWindow& window = session.ajuste;
    std::string one = machine.write(
        "uno.dat", sync_file({{"1", "1"}, {"5", "1"}, {"5", "4"}, {"1", "1"}}, {{"1", "1"}}));
    std::string two =
        machine.write("dos.dat", sync_file({{"1", "1"}, {"5", "1"}}, {{"1", "1"}, {"5", "1"}}));
    std::string other_one =
        machine.write("otro.dat", sync_file({{"2", "1"}, {"5", "1"}, {"6", "6"}}, {{"6", "6"}}));

    AjusteTest() {
        machine.open_database();
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

TEST_F(AjusteTest, the_load_puts_the_window_back_to_its_design_and_keeps_earlier_results) {
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

TEST_F(AjusteTest, each_activation_shows_the_notice) {
    ajuste_Activate();
    ajuste_Activate();
    const ShownBox notice = {
        "Tened en cuenta que esta funcionalidad, todavia está en fase de pruebas y desarrolo, "
        "podeis jugar con ella, y de paso podeis ir comentando cosillas.",
        64, "Velmora"};
    EXPECT_EQ(machine.dialogs.boxes, (std::vector<ShownBox>{notice, notice}));
}

TEST_F(AjusteTest, the_dialog_starts_in_the_last_folder_or_in_the_programs) {
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

TEST_F(AjusteTest, an_empty_LastDir_becomes_the_programs_folder_and_a_pick_does_not_change_it) {
    select_A(one);
    EXPECT_EQ(session.LastDir, session.program_folder);
}

TEST_F(AjusteTest, a_side_is_loaded_drawn_and_not_compared_with_an_empty_one) {
    select_A(one);
    EXPECT_EQ(window.txt_fileA, one);
    EXPECT_EQ(session.PtosA.upper(), 2);
    EXPECT_EQ(window.TxtTotalPtos_A + " " + window.TxtTotalCtrlPtos_A, "3 1");
    EXPECT_EQ(previews.Pic_A.operations.size(), 8U);
    EXPECT_TRUE(previews.Pic_B.operations.empty());
    EXPECT_FALSE(window.cmd_opt_enabled);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(AjusteTest, equal_sync_totals_open_the_options_whatever_the_points) {
    select_B(other_one);
    EXPECT_EQ(window.Txt_FileB, other_one);
    EXPECT_FALSE(window.cmd_opt_enabled);
    select_A(one);
    EXPECT_TRUE(window.cmd_opt_enabled);
    EXPECT_FALSE(window.Cmd_Ajuste_enabled);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(AjusteTest, different_sync_totals_show_message_91_and_keep_the_options_shut) {
    select_A(one);
    select_B(two);
    EXPECT_FALSE(window.cmd_opt_enabled);
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text, kDiffer);
    EXPECT_FALSE(previews.Pic_B.operations.empty());
}

TEST_F(AjusteTest, the_totals_compared_are_the_numbers_in_the_boxes) {
    select_A(one);
    window.TxtTotalCtrlPtos_A = "2.0 puntos";
    select_B(two);
    EXPECT_TRUE(window.cmd_opt_enabled);
}

TEST_F(AjusteTest, a_load_disables_the_options_but_not_the_adjustment) {
    select_A(one);
    select_B(other_one);
    window.Cmd_Ajuste_enabled = true;
    select_B(two);
    EXPECT_FALSE(window.cmd_opt_enabled);
    EXPECT_TRUE(window.Cmd_Ajuste_enabled);
}

TEST_F(AjusteTest, a_cancelled_dialog_keeps_the_side_and_disables_the_options_until_the_next_load) {
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

TEST_F(AjusteTest, a_file_of_another_dialect_leaves_its_path_and_the_old_points) {
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

TEST_F(AjusteTest, a_file_of_too_few_lines_shows_both_boxes_the_first_with_capitals) {
    const std::string brief = machine.write("breve.dat", "uno\ndos\n");
    select_B(brief);
    ASSERT_EQ(machine.dialogs.boxes.size(), 2U);
    EXPECT_NE(machine.dialogs.boxes[0].text.find("BREVE.DAT"), std::string::npos);
    EXPECT_NE(machine.dialogs.boxes[0].text.find("nº:62"), std::string::npos);
    EXPECT_NE(machine.dialogs.boxes[1].text.find(brief), std::string::npos);
    EXPECT_EQ(machine.dialogs.boxes[1].buttons, 16);
}

TEST_F(AjusteTest, a_MERIDOL_file_goes_to_its_reader) {
    test::set_shape(Points(3));
    select_B(other_one);
    const std::string path =
        machine.write("lado.dat", "MERIDOL\n\n1 1\n5 1\n5 4\n1 1\nPuntos Sincronismo\n\n5 4\n");
    select_A(path);
    EXPECT_EQ(points_of(session.PtosA), (Points{{1, 1}, {5, 1}, {5, 4, 1}}));
    EXPECT_TRUE(window.cmd_opt_enabled);
}

TEST_F(AjusteTest, a_side_that_fails_is_neither_drawn_nor_compared) {
    select_A(one);
    const std::string bad =
        machine.write("malo.dat", sync_file({{"1", "1"}, {"x", "1"}, {"2", "2"}}, {}));
    select_B(bad);
    EXPECT_TRUE(previews.Pic_B.operations.empty());
    EXPECT_FALSE(window.cmd_opt_enabled);
    EXPECT_EQ(machine.dialogs.boxes.size(), 1U);
}

TEST_F(AjusteTest, the_document_is_never_touched) {
    test::set_shape({{7, 7}, {8, 8}, {9, 9}});
    session.FileName = "forma.dat";
    session.Velmora.TxtDat_File = "forma.dat";
    select_A(one);
    select_B(two);
    EXPECT_EQ(test::shape(), (Points{{7, 7}, {8, 8}, {9, 9}}));
    EXPECT_EQ(session.FileName + session.Velmora.TxtDat_File, "forma.datforma.dat");
}

TEST_F(AjusteTest, the_options_enable_the_adjustment_once_they_return) {
    machine.windows.on_show_modal = [&](std::string_view name) {
        EXPECT_EQ(name, "ajuste_opt");
        EXPECT_FALSE(window.Cmd_Ajuste_enabled);
    };
    cmd_opt_Click();
    EXPECT_EQ(machine.windows.calls, std::vector<std::string>{"show_modal ajuste_opt"});
    EXPECT_TRUE(window.Cmd_Ajuste_enabled);
}

TEST_F(AjusteTest, the_exit_button_closes_the_window) {
    ajuste_cmd_exit_Click();
    EXPECT_EQ(machine.windows.calls, std::vector<std::string>{"unload ajuste"});
}

// The adjustment.

struct AdjustPressTest : testing::Test, test::Workbench {
    AdjustPressTest() { machine.open_database(); }
};

const Points kThree = {{0, 0, 1}, {4, 0}, {10, 0, 1}, {10, 3}};
const Points kFive = {{0, 0, 1}, {2, 0}, {5, 0}, {7, 0}, {10, 0, 1}, {10, 5}};

TEST_F(AdjustPressTest, a_press_starts_over_and_leaves_the_loaded_sides_alone) {
    set_sides(kThree, kFive);
    Cmd_Ajuste_Click();
    const Points first = points_of(session.PtosA2);
    Cmd_Ajuste_Click();
    EXPECT_EQ(points_of(session.PtosA2), first);
    EXPECT_EQ(points_of(session.PtosA), kThree);
    EXPECT_EQ(points_of(session.PtosB), kFive);
    EXPECT_EQ(points_of(session.TrabajoB), kFive);
}

TEST_F(AdjustPressTest, the_run_count_is_the_number_in_the_box_of_side_A) {
    set_sides(kThree, kFive);
    session.ajuste.TxtTotalCtrlPtos_A = "1";
    Cmd_Ajuste_Click();
    // Run 1 is the last one then, and the last element follows it.
    EXPECT_EQ(session.PtosA2.upper(), 5);
    EXPECT_EQ(session.PtosA2[5], (Pto{10, 3}));

    session.ajuste.TxtTotalCtrlPtos_A = "3";
    EXPECT_EQ(number_of(Cmd_Ajuste_Click), error::subscript);
}

TEST_F(AdjustPressTest, a_distance_OptZ_of_0_raises_11_where_the_sides_differ_and_6_where_not) {
    set_sides({{0, 0, 1}, {4, 0}}, {{1, 1, 1}, {4, 4}});
    session.OptX = 0;
    session.OptY = 3;
    session.OptZ = 0;
    EXPECT_EQ(number_of(Cmd_Ajuste_Click), error::overflow);
    session.OptX = 2;
    EXPECT_EQ(number_of(Cmd_Ajuste_Click), error::division_by_zero);
    // The merged outlines stay as they were before the projection.
    EXPECT_EQ(points_of(session.PtosA2), (Points{{0, 0}, {4, 0}, {0, 0}}));
    EXPECT_EQ(session.Velmora.MousePointer, 11);
}

TEST_F(AdjustPressTest, the_results_take_the_loaded_names_with_2_behind) {
    set_sides(kThree, kFive);
    session.ajuste.txt_fileA = "/trabajo/ala 2.DAT";
    session.ajuste.Txt_FileB = "c:\\año\\x";
    EXPECT_EQ(number_of(Cmd_Ajuste_Click), 0);
    EXPECT_EQ(session.ajuste.Txt_File_A2, "/trabajo/ala 22.DAT");
    EXPECT_EQ(session.ajuste.Txt_File_B2, "c:\\a2.DAT");
    session.ajuste.Txt_FileB = "x.d";
    EXPECT_EQ(number_of(Cmd_Ajuste_Click), error::invalid_call);
}

TEST_F(AdjustPressTest, a_press_tells_its_runs_and_ends_with_the_save_button) {
    std::vector<std::string> told;
    const test::WatchingTurns windows([&] {
        if (told.empty() || told.back() != session.ajuste.lbl_estado)
            told.push_back(session.ajuste.lbl_estado);
    });
    set_sides(kThree, kFive);
    Cmd_Ajuste_Click();
    // Empty again while the pictures are drawn. The main window's panel is left alone.
    EXPECT_EQ(told, (std::vector<std::string>{"1 / 2", "2 / 2", ""}));
    EXPECT_TRUE(machine.windows.statuses.empty());
    EXPECT_TRUE(session.ajuste.Cmd_save_enabled);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(AdjustPressTest, a_press_shows_the_hourglass_and_lets_the_windows_run) {
    set_sides(kThree, kFive);
    Cmd_Ajuste_Click();
    EXPECT_EQ(machine.windows.pointers, (std::vector<int>{11, 0}));
    EXPECT_GT(machine.windows.yields, 6);
}

TEST_F(AdjustPressTest, the_merged_outlines_show_before_the_projected_ones) {
    set_sides({{0, 0, 1}, {10, 5}}, {{0, 0, 1}, {20, 10}});
    session.OptX = session.OptY = session.OptZ = 1;
    Cmd_Ajuste_Click();
    // Before: 10 twentieths of the width; behind: A at -10, B at 40, and 0.
    EXPECT_EQ(previews.Pic_A.operations.at(1), "line 100 2100 300 2000 255");
    EXPECT_EQ(previews.Pic_B.operations.at(1), "line 100 2100 200 2050 255");
    EXPECT_EQ(previews.New_Pic_B.operations.at(1), "line 100 2100 150 2075 255");
    EXPECT_EQ(machine.dialogs.boxes.size(), 1U); // no positive X or Y is left on side A
}

TEST_F(AdjustPressTest, a_fault_leaves_the_hourglass_the_run_and_the_save_button_shut) {
    set_sides(kThree, {{0, 0, 1}, {2, 0}, {5, 5}});
    EXPECT_EQ(number_of(Cmd_Ajuste_Click), error::subscript);
    EXPECT_EQ(session.Velmora.MousePointer, 11);
    EXPECT_EQ(session.ajuste.lbl_estado, "2 / 2");
    EXPECT_FALSE(session.ajuste.Cmd_save_enabled);
}

TEST_F(AdjustPressTest, a_missing_table_stops_the_press) {
    set_sides(kThree, kFive);
    platform().database.execute("DROP TABLE TEMP_AJUSTE");
    EXPECT_EQ(number_of(Cmd_Ajuste_Click), error::table_not_found);
    EXPECT_EQ(session.Velmora.MousePointer, 11);
    EXPECT_FALSE(session.ajuste.Cmd_save_enabled);
}

TEST_F(AdjustPressTest, a_number_of_runs_beyond_32_bits_leaves_the_work_copies) {
    set_sides(kThree, kFive);
    session.ajuste.TxtTotalCtrlPtos_A = "1e10";
    EXPECT_EQ(number_of(Cmd_Ajuste_Click), error::overflow);
    EXPECT_EQ(points_of(session.PtosA2), Points{Pto{}});
    EXPECT_FALSE(session.TrabajoA.dimensioned());
    EXPECT_EQ(session.Velmora.MousePointer, 11);
}

TEST_F(AdjustPressTest, without_sync_points_it_ends_all_the_same) {
    set_sides({{1, 1}, {2, 1}, {2, 2}}, {{1, 1}, {3, 3}});
    Cmd_Ajuste_Click();
    EXPECT_TRUE(session.ajuste.Cmd_save_enabled);
}

// Saving.

struct SavePressTest : testing::Test, test::Workbench {
    std::string path_A = machine.path("raiz2.DAT");
    std::string path_B = machine.path("punta2.DAT");

    SavePressTest() {
        machine.open_database();
        session.ajuste.Txt_File_A2 = path_A;
        session.ajuste.Txt_File_B2 = path_B;
        test::fill(session.PtosA2, {{0, 0}, {10, 0}, {10, 5}});
        test::fill(session.PtosB2, {{1, 1}, {2, 2}, {3, 3}});
    }
    std::string written_A() const { return RecordingPlatform::read(path_A); }
    std::string written_B() const { return RecordingPlatform::read(path_B); }
};

TEST_F(SavePressTest, the_box_makes_every_point_a_sync_point_on_both_sides) {
    session.ajuste.ChkPtosCtrl = true;
    Cmd_save_Click();
    EXPECT_EQ(written_A().size(), 11U * 44);
    EXPECT_EQ(written_B().size(), 11U * 44);
}

TEST_F(SavePressTest, earlier_files_go_to_the_recycle_bin_before_either_is_written) {
    machine.write("raiz2.DAT", std::string(5000, 'x'));
    machine.write("punta2.DAT", "y");
    Cmd_save_Click();
    EXPECT_EQ(machine.shell.recycled, (std::vector<std::string>{path_A, path_B}));
    EXPECT_EQ(written_A().size(), 8U * 44);
}

TEST_F(SavePressTest, neither_side_is_written_before_both_earlier_files_are_gone) {
    machine.write("raiz2.DAT", "x");
    machine.write("punta2.DAT", "y");
    std::vector<bool> side_A_stood;
    const test::WatchingShell shell([&](std::string_view) {
        side_A_stood.push_back(std::filesystem::exists(machine.folder / "raiz2.DAT"));
    });
    Cmd_save_Click();
    EXPECT_EQ(side_A_stood, (std::vector{true, false}));
}

TEST_F(SavePressTest, the_exit_button_comes_back_with_the_pointer) {
    session.ajuste.Cmd_save_enabled = true;
    Cmd_save_Click();
    EXPECT_EQ(machine.windows.pointers, (std::vector<int>{11, 0}));
    EXPECT_TRUE(session.ajuste.cmd_exit_enabled);
    EXPECT_TRUE(session.ajuste.Cmd_save_enabled);
}

TEST_F(SavePressTest, a_fault_of_the_file_raises_and_leaves_hourglass_and_button) {
    session.ajuste.Txt_File_B2 = machine.path("no/such/folder2.DAT");
    EXPECT_EQ(number_of(Cmd_save_Click), error::path_not_found);
    EXPECT_EQ(session.Velmora.MousePointer, 11);
    EXPECT_FALSE(session.ajuste.cmd_exit_enabled);
    EXPECT_FALSE(written_A().empty());
}

} // namespace
} // namespace velmora
