#include "forms/new_dat.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/error_number.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace velmora {
namespace {

using test::Points;
using test::set_shape;
using test::shape;
using Texts = std::vector<std::string>;
using Calls = std::vector<Texts>;

constexpr int kSquare = 0;
constexpr int kTriangle = 1;
constexpr int kCircle = 2;

const std::string kAsk = "Número de puntos para el círculo a generar : ";
const std::string kTooFew = "Los puntos de un círculo no pueden ser inferiores a 4!  Puntos: ";

class NewDat : public ::testing::Test {
  protected:
    NewDat() : window_(session.New_Dat) { New_Dat_Load(); }
    void circle_of(const std::string& points) {
        platform_.dialogs.inputs = {points};
        New_Dat_Picture1_Click(kCircle);
        New_Dat_cmd_ok_Click();
    }
    test::RecordingPlatform platform_{test::with_database};
    NewDatWindow& window_;
};

TEST_F(NewDat, opens_with_the_figures_and_no_way_to_accept) {
    EXPECT_TRUE(window_.SSOpt_predef);
    EXPECT_TRUE(window_.frm_shapes_enabled);
    EXPECT_FALSE(window_.Frm_Create_enabled);
    EXPECT_FALSE(window_.cmd_ok_enabled);
    EXPECT_EQ(window_.Txt_Shape, "");
}

TEST_F(NewDat, drawing_by_hand_can_be_accepted_at_once) {
    New_Dat_Picture1_Click(kSquare);
    SSOpt_create_Click();
    EXPECT_FALSE(window_.SSOpt_predef);
    EXPECT_FALSE(window_.frm_shapes_enabled);
    EXPECT_TRUE(window_.Frm_Create_enabled);
    EXPECT_TRUE(window_.cmd_ok_enabled);
    EXPECT_EQ(window_.Txt_Shape, "");
}

TEST_F(NewDat, back_at_the_figures_a_tile_has_to_be_picked_again) {
    New_Dat_Picture1_Click(kTriangle);
    SSOpt_create_Click();
    SSOpt_predef_Click();
    EXPECT_TRUE(window_.frm_shapes_enabled);
    EXPECT_FALSE(window_.Frm_Create_enabled);
    EXPECT_FALSE(window_.cmd_ok_enabled);
    EXPECT_EQ(window_.Txt_Shape, "");
    EXPECT_EQ(window_.Picture1, (std::array{false, false, false}));
}

TEST_F(NewDat, a_tile_names_its_figure) {
    New_Dat_Picture1_Click(kSquare);
    EXPECT_EQ(window_.Txt_Shape, "Cuadrado");
    EXPECT_TRUE(window_.cmd_ok_enabled);
    New_Dat_Picture1_Click(kTriangle);
    EXPECT_EQ(window_.Txt_Shape, "Triángulo");
    EXPECT_EQ(window_.Picture1, (std::array{false, true, false}));
    EXPECT_TRUE(platform_.dialogs.input_calls.empty());
}

TEST_F(NewDat, the_circle_asks_for_its_points) {
    session.Ver = "1.0";
    platform_.dialogs.inputs = {"12"};
    New_Dat_Picture1_Click(kCircle);
    EXPECT_EQ(platform_.dialogs.input_calls, (Calls{{kAsk, "Velmora 1.0", "0"}}));
    EXPECT_EQ(window_.Txt_Shape, "Círculo (12 pts.)");
}

TEST_F(NewDat, too_few_points_are_asked_for_until_there_are_4) {
    platform_.dialogs.inputs = {"3", "-7", "4"};
    New_Dat_Picture1_Click(kCircle);
    EXPECT_EQ(platform_.dialogs.input_calls, (Calls{{kAsk, "Velmora 1.0", "0"},
                                                    {kTooFew, "Velmora 1.0", "4"},
                                                    {kTooFew, "Velmora 1.0", "4"}}));
    EXPECT_EQ(window_.Txt_Shape, "Círculo (4 pts.)");
}

TEST_F(NewDat, what_is_no_whole_number_leaves_the_number_and_asks_again) {
    const std::optional<std::string> cancelled;
    platform_.dialogs.inputs = {cancelled, "", "ocho", "5.5", "99999999999", "6"};
    New_Dat_Picture1_Click(kCircle);
    EXPECT_EQ(platform_.dialogs.input_calls.size(), 6U);
    EXPECT_EQ(window_.circle_points, 6);
}

TEST_F(NewDat, a_cancelled_box_keeps_a_number_of_4_or_more) {
    platform_.dialogs.inputs = {"9", std::nullopt};
    New_Dat_Picture1_Click(kCircle);
    New_Dat_Picture1_Click(kCircle);
    EXPECT_EQ(platform_.dialogs.input_calls.back(), (Texts{kAsk, "Velmora 1.0", "9"}));
    EXPECT_EQ(platform_.dialogs.input_calls.size(), 2U);
    EXPECT_EQ(window_.Txt_Shape, "Círculo (9 pts.)");
}

TEST_F(NewDat, the_last_number_is_proposed_by_the_next_window_too) {
    circle_of("7");
    New_Dat_Load();
    EXPECT_EQ(window_.Txt_Shape, "");
    platform_.dialogs.inputs = {"8"};
    New_Dat_Picture1_Click(kCircle);
    EXPECT_EQ(platform_.dialogs.input_calls.back(), (Texts{kAsk, "Velmora 1.0", "7"}));
}

TEST_F(NewDat, a_circle_that_no_memory_holds_raises_7_and_the_outline_stays) {
    set_shape({{0, 0}, {4, 0}, {4, 3}});
    EXPECT_EQ(test::number_of([this] { circle_of("1000000000"); }), error::out_of_memory);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_EQ(Forma.Pto[2], (Pto{4, 3}));
}

TEST(NewDatWithoutTexts, a_tile_is_picked_all_the_same) {
    const test::RecordingPlatform platform;
    New_Dat_Load();
    New_Dat_Picture1_Click(kSquare);
    EXPECT_EQ(session.New_Dat.Txt_Shape, "");
    EXPECT_TRUE(session.New_Dat.cmd_ok_enabled);
}

TEST(NewDatWithoutTexts, the_circle_cannot_ask_for_its_points) {
    const test::RecordingPlatform platform;
    New_Dat_Load();
    EXPECT_EQ(test::number_of([] { New_Dat_Picture1_Click(kCircle); }), 91);
    EXPECT_TRUE(platform.dialogs.input_calls.empty());
}

TEST_F(NewDat, the_square_runs_from_the_origin) {
    New_Dat_Picture1_Click(kSquare);
    New_Dat_cmd_ok_Click();
    EXPECT_EQ(shape(), (Points{{0, 0, 1}, {1, 0}, {1, 1}, {0, 1}}));
    EXPECT_EQ(session.TotalPtos, 4);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "4");
    EXPECT_EQ(session.TotalSinc, 1);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "1");
}

TEST_F(NewDat, the_triangle_runs_from_the_origin) {
    New_Dat_Picture1_Click(kTriangle);
    New_Dat_cmd_ok_Click();
    EXPECT_EQ(shape(), (Points{{0, 0, 1}, {1, 0}, {1, 1}}));
    EXPECT_EQ(session.TotalPtos, 3);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "3");
    EXPECT_EQ(session.TotalSinc, 1);
}

// Pi has 15 digits, so that the quarters miss the axes by some 1E-15: the texts of 15 significant
// digits keep that where the coordinate is small, and drop it elsewhere.
TEST_F(NewDat, the_circle_of_4_points_to_the_last_bit) {
    circle_of("4");
    EXPECT_EQ(
        shape(),
        (Points{
            {1, 0.5, 1}, {0.500000000000001, 1}, {0, 0.500000000000002}, {0.499999999999998, 0}}));
    EXPECT_EQ(session.TotalSinc, 1);
}

TEST_F(NewDat, the_circle_counts_its_closing_point_until_it_is_laid_out) {
    circle_of("10");
    EXPECT_EQ(shape().size(), 10U);
    EXPECT_EQ(session.TotalPtos, 11);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "11");
}

TEST_F(NewDat, a_figure_takes_leave_of_the_old_file) {
    platform_.settings.values[{"Values", "Def_Zoom"}] = "250";
    session.ZoomFactor = 7;
    session.FileName = "ala.dat";
    session.Velmora.TxtDat_File = "ala.dat";
    session.Velmora.TxtDescDat = "ala";
    session.PtoSel = 3;
    New_Dat_Picture1_Click(kSquare);
    New_Dat_cmd_ok_Click();
    EXPECT_EQ(session.ZoomFactor, 250);
    EXPECT_EQ(session.winoptions.Txt_zoom, "250");
    EXPECT_EQ(session.FileName, "");
    EXPECT_EQ(session.Velmora.TxtDat_File, "");
    EXPECT_EQ(session.Velmora.TxtDescDat, "");
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(session.PtosToInsertMode, False);
    EXPECT_EQ(platform_.windows.calls.back(), "unload New_Dat");
}

TEST_F(NewDat, a_figure_leaves_the_insertion_mode_and_the_thinned_points_as_they_were) {
    session.PtosToInsertMode = True;
    session.PtosSuprimidos = 5;
    session.wininfo.TxtPtosSupr = "5";
    session.BandaX = session.BandaY = 9;
    New_Dat_Picture1_Click(kSquare);
    New_Dat_cmd_ok_Click();
    EXPECT_EQ(session.PtosToInsertMode, True);
    EXPECT_EQ(session.PtosSuprimidos, 5);
    EXPECT_EQ(session.wininfo.TxtPtosSupr, "5");
    EXPECT_EQ(session.BandaX, 9);
    EXPECT_EQ(session.BandaY, 9);
}

// Left by an insertion that no Esc ended; the next Esc goes by it.
TEST_F(NewDat, by_hand_the_point_selected_before_an_insertion_stays) {
    session.PtoSelAnt = 3;
    SSOpt_create_Click();
    New_Dat_cmd_ok_Click();
    EXPECT_EQ(session.PtoSelAnt, 3);
}

struct Start {
    std::size_t option;
    double x, y;
};

TEST_F(NewDat, by_hand_the_chosen_button_is_the_first_point) {
    const Start starts[] = {{1, 0, 0},   {2, 0, 1},   {3, 1, 0},   {4, 1, 1},
                            {5, 0, 0.5}, {6, 1, 0.5}, {7, 0.5, 0}, {8, 0.5, 1}};
    for (const Start& start : starts) {
        New_Dat_Load();
        SSOpt_create_Click();
        window_.Option.at(start.option - 1) = true;
        New_Dat_cmd_ok_Click();
        EXPECT_EQ(shape(), (Points{{start.x, start.y, 1}})) << "Option" << start.option;
        EXPECT_EQ(session.BandaX, start.x) << "Option" << start.option;
        EXPECT_EQ(session.BandaY, start.y) << "Option" << start.option;
    }
}

TEST_F(NewDat, by_hand_without_a_button_starts_at_the_origin) {
    set_shape({{3, 3}, {4, 4}});
    session.PtosSuprimidos = 5;
    session.TotalSinc = 2;
    session.PtoSel = 1;
    session.FileName = "ala.dat";
    SSOpt_create_Click();
    New_Dat_cmd_ok_Click();
    EXPECT_EQ(shape(), (Points{{0, 0, 1}}));
    EXPECT_EQ(session.PtosToInsertMode, True);
    EXPECT_EQ(session.PtosSuprimidos, 0);
    EXPECT_EQ(session.wininfo.TxtPtosSupr, "0");
    EXPECT_EQ(session.TotalSinc, 0);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(session.FileName, "");
    EXPECT_EQ(session.ZoomFactor, session.Def_Zoom);
}

TEST_F(NewDat, cancel_leaves_the_document) {
    set_shape({{3, 3}, {4, 4}});
    session.FileName = "ala.dat";
    New_Dat_Picture1_Click(kSquare);
    New_Dat_cmd_cancel_Click();
    EXPECT_EQ(shape(), (Points{{3, 3}, {4, 4}}));
    EXPECT_EQ(session.FileName, "ala.dat");
    EXPECT_EQ(platform_.windows.calls.back(), "unload New_Dat");
}

class NewFile : public NewDat {
  protected:
    NewFile() {
        platform_.windows.on_show_modal = [this](std::string_view) {
            in_window();
        };
    }
    std::function<void()> in_window = [] {
    };
};

TEST_F(NewFile, lays_out_and_lists_the_figure) {
    in_window = [this] {
        circle_of("10");
    };
    mnu_newfile();
    EXPECT_EQ(session.TotalPtos, 10);
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 10U);
    EXPECT_FALSE(platform_.pic.operations.empty());
}

TEST_F(NewFile, rounds_the_figure_to_the_precision) {
    session.Precision = 6;
    in_window = [this] {
        circle_of("4");
    };
    mnu_newfile();
    EXPECT_EQ(shape(), (Points{{1, 0.5, 1}, {0.5, 1}, {0, 0.5}, {0.5, 0}}));
}

TEST_F(NewFile, by_hand_draws_and_lists_the_first_point) {
    in_window = [] {
        SSOpt_create_Click();
        New_Dat_cmd_ok_Click();
    };
    mnu_newfile();
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 1U);
    EXPECT_FALSE(platform_.pic.operations.empty());
}

TEST_F(NewFile, cancelled_without_a_shape_does_nothing) {
    mnu_newfile();
    EXPECT_TRUE(platform_.pic.operations.empty());
    EXPECT_TRUE(platform_.dialogs.boxes.empty());
}

} // namespace
} // namespace velmora
