#include "forms/seltexto.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/error_number.h"
#include "support/outline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {

inline void PrintTo(const SeltextoWindow::Segment& segment, std::ostream* out) {
    *out << "(" << segment.from.X << "," << segment.from.Y << ")-(" << segment.to.X << ","
         << segment.to.Y << ")";
}

namespace {

using test::Points;
using test::set_shape;
using test::shape;
using testing::ElementsAre;
using testing::IsEmpty;

using Segment = SeltextoWindow::Segment;

const Figure kBox = {{20, 20}, {30, 20}, {30, 40}, {20, 40}};
const Figure kWedge = {{40, 20}, {60, 40}, {40, 40}};
/// kBox as an outline: maxima 30 and 40, so by 40 down, mirrored, and up again.
const Points kBoxShape = {{0.5, 0.5}, {0.75, 0.5}, {0.75, 0}, {0.5, 0}};

class Seltexto : public testing::Test {
  protected:
    Seltexto() : window_(session.seltexto) {
        machine_.outlines.letters = {{"b", {kBox}}, {"bw", {kBox, kWedge}}, {" ", {}}};
        seltexto_Load();
    }
    void type(const std::string& text) {
        window_.char_ = text;
        seltexto_char_Change();
    }
    void choose(const FontChoice& font) {
        machine_.dialogs.fonts.emplace_back(font);
        seltexto_cmd_font_Click();
    }
    /// A text of one figure with so many entries.
    void type_long(int entries) {
        Figure figure;
        for (int i = 0; i < entries; ++i)
            figure.push_back({20.0 + i, 20.0 + i % 2});
        machine_.outlines.letters["long"] = {figure};
        type("long");
    }

    test::RecordingPlatform machine_{test::with_database};
    SeltextoWindow& window_;
};

TEST_F(Seltexto, opens_without_text_and_picture) {
    EXPECT_EQ(window_.char_, "");
    EXPECT_THAT(window_.Pictext, IsEmpty());
    EXPECT_EQ(window_.last_index, 0);
    EXPECT_THAT(machine_.outlines.calls, IsEmpty());
}

TEST_F(Seltexto, its_menu_entry_opens_it_and_does_no_more) {
    set_shape({{3, 3}, {4, 4}});
    mnu_seltexto();
    EXPECT_THAT(machine_.windows.calls, ElementsAre("show_modal seltexto"));
    EXPECT_EQ(shape(), (Points{{3, 3}, {4, 4}}));
    EXPECT_THAT(machine_.pic.operations, IsEmpty());
}

TEST_F(Seltexto, prints_the_text_at_20_20_in_the_pictures_font) {
    window_.Pictext_Font = {"Arial", 10.5, true, true};
    type("b");
    EXPECT_THAT(machine_.outlines.calls, ElementsAre("b Arial 10.5 bold italic 20 20"));
}

TEST_F(Seltexto, the_preview_keeps_the_list_and_its_last_index) {
    type("bw");
    EXPECT_EQ(window_.last_index, 6);
    EXPECT_EQ(window_.points[0], (SeltextoWindow::PathPoint{20, 20}));
    EXPECT_EQ(window_.points[6], (SeltextoWindow::PathPoint{40, 40}));
    EXPECT_EQ(window_.types[3], 3);
    EXPECT_EQ(window_.types[4], 6);
}

TEST_F(Seltexto, the_preview_draws_a_dot_the_lines_and_the_way_back_of_each_figure) {
    type("bw");
    EXPECT_THAT(window_.Pictext,
                ElementsAre(Segment{{20, 20}, {20, 20}}, Segment{{20, 20}, {30, 20}},
                            Segment{{30, 20}, {30, 40}}, Segment{{30, 40}, {20, 40}},
                            Segment{{20, 40}, {20, 20}}, Segment{{40, 20}, {40, 20}},
                            Segment{{40, 20}, {60, 40}}, Segment{{60, 40}, {40, 40}},
                            Segment{{40, 40}, {40, 20}}));
}

TEST_F(Seltexto, each_preview_begins_with_an_empty_picture) {
    type("bw");
    const auto before = window_.Pictext_draws;
    type("b");
    EXPECT_EQ(window_.Pictext.size(), 5U);
    EXPECT_GT(window_.Pictext_draws, before);
}

TEST_F(Seltexto, an_emptied_box_leaves_the_last_preview_and_load_takes_it) {
    type("b");
    type("");
    EXPECT_EQ(window_.Pictext.size(), 5U);
    EXPECT_EQ(machine_.outlines.calls.size(), 1U);
    seltexto_cmd_load_Click();
    EXPECT_EQ(shape(), kBoxShape);
}

TEST_F(Seltexto, a_text_of_blanks_draws_nothing_and_counts_as_no_text) {
    type("b");
    type(" ");
    EXPECT_THAT(window_.Pictext, IsEmpty());
    EXPECT_EQ(window_.last_index, 0);
    seltexto_cmd_load_Click();
    EXPECT_EQ(shape(), (Points{{0, 0}}));
}

TEST_F(Seltexto, a_text_of_1000_entries_is_shown_and_loads) {
    type_long(1000);
    EXPECT_EQ(window_.last_index, 999);
    EXPECT_EQ(window_.Pictext.size(), 1001U);
    seltexto_cmd_load_Click();
    EXPECT_EQ(Forma.Pto.upper(), 999);
}

TEST_F(Seltexto, a_text_of_1001_entries_shows_nothing_and_its_load_is_an_error) {
    set_shape({{3, 3}, {4, 4}});
    type_long(1001);
    EXPECT_EQ(window_.last_index, -2);
    EXPECT_THAT(window_.Pictext, IsEmpty());
    EXPECT_EQ(test::number_of(seltexto_cmd_load_Click), error::subscript);
    EXPECT_EQ(shape(), (Points{{3, 3}, {4, 4}}));
    EXPECT_THAT(machine_.windows.calls, IsEmpty());
    EXPECT_THAT(machine_.dialogs.boxes, IsEmpty());
}

TEST_F(Seltexto, a_shorter_text_mends_one_that_was_too_long) {
    type_long(1001);
    type("b");
    EXPECT_EQ(window_.last_index, 3);
}

TEST_F(Seltexto, a_chosen_font_goes_to_the_picture_and_shows_the_text_in_it) {
    type("b");
    choose({"Courier", 12, true, false});
    choose({" Times ", 30, false, true});
    EXPECT_EQ(window_.Pictext_Font.name, "Times");
    EXPECT_EQ(window_.Pictext_Font.size, 30);
    EXPECT_THAT(machine_.outlines.calls,
                ElementsAre("b  72 20 20", "b Courier 12 bold 20 20", "b Times 30 italic 20 20"));
}

TEST_F(Seltexto, a_chosen_font_without_a_text_shows_nothing) {
    choose({"Courier", 12, false, false});
    EXPECT_THAT(machine_.outlines.calls, IsEmpty());
    type("b");
    EXPECT_THAT(machine_.outlines.calls, ElementsAre("b Courier 12 20 20"));
}

TEST_F(Seltexto, a_cancelled_font_dialog_or_a_blank_name_changes_nothing) {
    type("b");
    const auto draws = window_.Pictext_draws;
    seltexto_cmd_font_Click();
    choose({"", 12, true, true});
    choose({"  ", 12, true, true});
    EXPECT_EQ(window_.Pictext_draws, draws);
    EXPECT_EQ(window_.Pictext_Font.size, 72);
    EXPECT_FALSE(window_.Pictext_Font.bold);
}

TEST_F(Seltexto, a_size_that_no_picture_takes_leaves_the_one_that_it_has) {
    choose({"Courier", 12, false, false});
    for (const double size : {0.0, -5.0, 0.5, 2161.0, 1e300}) {
        choose({"Times", size, true, false});
        EXPECT_EQ(window_.Pictext_Font.size, 12) << size;
    }
    EXPECT_EQ(window_.Pictext_Font.name, "Times");
    EXPECT_TRUE(window_.Pictext_Font.bold);
}

TEST_F(Seltexto, errors_of_the_font_are_ignored) {
    type("b");
    machine_.outlines.failure = error::invalid_call;
    choose({"Courier", 12, false, false});
    EXPECT_THAT(machine_.dialogs.boxes, IsEmpty());
    EXPECT_EQ(window_.Pictext_Font.name, "Courier");
    EXPECT_EQ(test::number_of([this] { type("bw"); }), error::invalid_call);
}

TEST_F(Seltexto, load_scales_to_the_unit_turns_upright_and_makes_positive) {
    type("b");
    seltexto_cmd_load_Click();
    EXPECT_EQ(shape(), kBoxShape);
}

TEST_F(Seltexto, load_joins_the_figures_by_straight_moves_and_comes_back_to_none) {
    type("bw");
    seltexto_cmd_load_Click();
    // The largest place, 60, is the unit; 20 and 40 are a third and two thirds of it.
    constexpr double third = 0.333333;
    constexpr double two_thirds = 0.666667;
    EXPECT_EQ(shape(), (Points{{third, third},
                               {0.5, third},
                               {0.5, 0},
                               {third, 0},
                               {two_thirds, third},
                               {1, 0},
                               {two_thirds, 0}}));
}

TEST_F(Seltexto, load_transforms_in_its_order_and_rounds_last) {
    session.Precision = 1;
    type("b");
    machine_.windows.statuses.clear();
    seltexto_cmd_load_Click();
    EXPECT_THAT(machine_.windows.statuses,
                ElementsAre("Escalando a la Unidad...", "Forma Escalada!",
                            "Realizando Mirror Vertical...", "Mirror Vertical Realizado!",
                            "Positivando Forma...", "Forma Positivada!", "Aplicando Precisión ...",
                            "Precisión Aplicada!"));
    EXPECT_EQ(shape(), (Points{{0.5, 0.5}, {0.8, 0.5}, {0.8, 0}, {0.5, 0}}));
}

TEST_F(Seltexto, load_refreshes_list_layout_and_canvas_and_closes) {
    session.Velmora.Lst_Coords.clear();
    type("b");
    seltexto_cmd_load_Click();
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 4U);
    EXPECT_EQ(session.Longitud, 0.25);
    EXPECT_EQ(session.TotalPtos, 4);
    EXPECT_EQ(machine_.pic.operations.back(), "present");
    EXPECT_THAT(machine_.windows.calls, ElementsAre("unload seltexto"));
    EXPECT_THAT(machine_.dialogs.boxes, IsEmpty());
}

TEST_F(Seltexto, load_leaves_name_description_selection_and_the_shown_sync_total) {
    set_shape({{0, 0, 1, 5}, {1, 1, 1, 5}});
    session.FileName = "ala.dat";
    session.Velmora.TxtDat_File = "ala.dat";
    session.Velmora.TxtDescDat = "Ala";
    session.TotalSinc = 2;
    session.PtoSel = 1;
    type("b");
    seltexto_cmd_load_Click();
    EXPECT_EQ(session.FileName, "ala.dat");
    EXPECT_EQ(session.Velmora.TxtDat_File, "ala.dat");
    EXPECT_EQ(session.Velmora.TxtDescDat, "Ala");
    EXPECT_EQ(session.TotalSinc, 2);
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(shape(), kBoxShape);
}

TEST_F(Seltexto, load_at_the_first_opening_makes_one_point_which_is_no_shape) {
    set_shape({{3, 3}, {4, 4}});
    seltexto_cmd_load_Click();
    EXPECT_EQ(shape(), (Points{{0, 0}}));
    ASSERT_EQ(machine_.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine_.dialogs.boxes[0].text, "No hay ninguna forma cargada!");
    EXPECT_THAT(machine_.windows.calls, ElementsAre("unload seltexto"));
}

TEST_F(Seltexto, the_list_outlives_the_window_and_nothing_else_does) {
    choose({"Courier", 12, true, true});
    type("b");
    seltexto_cmd_exit_Click();
    seltexto_Load();
    EXPECT_EQ(window_.char_, "");
    EXPECT_EQ(window_.Pictext_Font.name, "");
    EXPECT_THAT(window_.Pictext, IsEmpty());
    seltexto_cmd_load_Click();
    EXPECT_EQ(shape(), kBoxShape);
}

TEST_F(Seltexto, exit_leaves_the_document) {
    set_shape({{3, 3}, {4, 4}});
    type("b");
    seltexto_cmd_exit_Click();
    EXPECT_EQ(shape(), (Points{{3, 3}, {4, 4}}));
    EXPECT_THAT(machine_.windows.calls, ElementsAre("unload seltexto"));
}

} // namespace
} // namespace velmora
