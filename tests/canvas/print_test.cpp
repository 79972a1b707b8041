#include "canvas/print.h"

#include "canvas/drawing.h"
#include "document/refresh.h"
#include "support/error_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::Operations;
using test::set_shape;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

/// Zoom 5: a unit is five twips.
struct PrintTest : testing::Test {
    Canvas machine;
    Operations& printed() { return machine.printer.operations; }
    /// What was drawn without the turning of the sheet, the axes and the end.
    Operations shape_alone() { return {printed().begin() + 3, printed().end() - 1}; }
};

TEST_F(PrintTest, a_tall_shape_without_negatives_stands_in_the_lower_left_corner) {
    set_shape({{10, 20}, {30, 20}, {30, 400}});
    session.ShowPtosCtrl = False;
    PrintPic();
    EXPECT_THAT(printed(),
                ElementsAre("orientation 1", "line 500 0 500 16840", "line 0 16340 11900 16340",
                            "line 550 16240 650 16240", "line 650 16240 650 14340",
                            "line 650 14340 550 16240", "end"));
    EXPECT_EQ(session.CanvasX0, 500);
    EXPECT_EQ(session.CanvasY0, 16340);
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(PrintTest, a_wide_shape_turns_the_sheet) {
    set_shape({{0, 0}, {401, 0}, {30, 400}});
    session.ShowPtosCtrl = False;
    PrintPic();
    EXPECT_THAT(printed(),
                ElementsAre("orientation 2", "line 500 0 500 11900", "line 0 11400 16840 11400",
                            "line 500 11400 2505 11400", "line 2505 11400 650 9400",
                            "line 650 9400 500 11400", "end"));
}

TEST_F(PrintTest, equal_maxima_stay_upright_and_widths_do_not_count) {
    set_shape({{-900, 0}, {7, 0}, {7, 7}});
    PrintPic();
    EXPECT_EQ(printed()[0], "orientation 1");
}

// No maximum is below 0, so a shape in the third quadrant has both at 0.
TEST_F(PrintTest, a_shape_without_positives_stays_upright) {
    set_shape({{-900, -1}, {-7, -1}, {-7, -2}});
    PrintPic();
    EXPECT_EQ(printed()[0], "orientation 1");
}

TEST_F(PrintTest, negative_x_puts_the_vertical_axis_in_the_middle) {
    set_shape({{-2, 0}, {0, 300}});
    session.ShowPtosCtrl = False;
    PrintPic();
    EXPECT_THAT(printed(),
                ElementsAre("orientation 1", "line 5950 0 5950 16840", "line 0 16340 11900 16340",
                            "line 5940 16340 5950 14840", "line 5950 14840 5940 16340", "end"));
}

TEST_F(PrintTest, negative_y_puts_the_horizontal_axis_in_the_middle) {
    set_shape({{0, -2}, {300, 0}});
    session.ShowPtosCtrl = False;
    PrintPic();
    EXPECT_THAT(printed(),
                ElementsAre("orientation 2", "line 500 0 500 11900", "line 0 5950 16840 5950",
                            "line 500 5960 2000 5950", "line 2000 5950 500 5960", "end"));
}

TEST_F(PrintTest, two_points_are_a_shape_there_and_back) {
    set_shape({{0, 0}, {0, 1}});
    session.ShowPtosCtrl = False;
    PrintPic();
    EXPECT_THAT(shape_alone(), ElementsAre("line 500 16340 500 16335", "line 500 16335 500 16340"));
}

TEST_F(PrintTest, every_point_has_a_red_circle_and_not_the_sync_points_alone) {
    set_shape({{0, 0, 1}, {0, 100, 0}, {20, 100, 0}});
    session.ShowPtosCtrl = True;
    PrintPic();
    EXPECT_THAT(Operations(printed().end() - 4, printed().end()),
                ElementsAre("circle 500 16340 30 255", "circle 500 15840 30 255",
                            "circle 600 15840 30 255", "end"));
}

TEST_F(PrintTest, a_point_below_0_in_its_sync_mark_has_no_circle) {
    set_shape({{0, 0, -1}, {0, 100, 2}});
    session.ShowPtosCtrl = True;
    PrintPic();
    EXPECT_THAT(Operations(printed().end() - 2, printed().end()),
                ElementsAre("circle 500 15840 30 255", "end"));
}

TEST_F(PrintTest, without_ShowPtosCtrl_no_point_has_a_mark) {
    set_shape({{0, 0, 1}, {0, 100, 1}});
    session.ShowPtosCtrl = False;
    session.ShowPtos = True;
    PrintPic();
    EXPECT_THAT(printed(), Not(Contains(StartsWith("circle"))));
}

// The printer keeps its current place as a 32-bit float.
TEST_F(PrintTest, the_origin_has_the_precision_of_the_printer) {
    machine.printer.width = 11905.2;
    machine.printer.height = 16837.9;
    set_shape({{-1, -1}, {0, 3}});
    PrintPic();
    EXPECT_EQ(session.CanvasX0, static_cast<double>(5952.6F));
    EXPECT_EQ(session.CanvasY0, static_cast<double>(8418.95F));
    EXPECT_NE(session.CanvasX0, 5952.6);
}

TEST_F(PrintTest, it_goes_by_the_present_extents_not_by_those_of_the_last_layout) {
    session.MinXForma = -5;
    session.MinYForma = -5;
    set_shape({{0, 0}, {0, 3}});
    PrintPic();
    EXPECT_EQ(session.CanvasX0, 500);
    EXPECT_EQ(session.CanvasY0, 16340);
}

TEST_F(PrintTest, the_canvas_gets_a_black_pen_and_NoRedraw_is_cleared) {
    session.NoRedraw = True;
    set_shape({{0, 0}, {0, 3}});
    PrintPic();
    EXPECT_THAT(machine.operations(), ElementsAre("pen 0"));
    EXPECT_EQ(session.NoRedraw, False);
}

TEST_F(PrintTest, the_next_repaint_has_its_own_origin_again) {
    set_shape({{0, 0}, {10, 0}, {10, 20}});
    Define_Layout();
    Dibuja();
    const Operations before = machine.operations();
    PrintPic();
    EXPECT_EQ(session.CanvasY0, 16340);
    machine.operations().clear();
    Dibuja();
    EXPECT_EQ(machine.operations(), before);
    EXPECT_EQ(session.CanvasX0, 30);
    EXPECT_EQ(session.CanvasY0, 1970);
}

TEST_F(PrintTest, one_point_shows_message_37_and_touches_nothing) {
    machine.open_database();
    session.NoRedraw = True;
    PrintPic();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0],
              (test::ShownBox{"No hay ninguna forma cargada!", 0, "Velmora"}));
    EXPECT_THAT(printed(), IsEmpty());
    EXPECT_EQ(session.CanvasX0, 30);
    EXPECT_EQ(session.NoRedraw, True);
}

TEST_F(PrintTest, the_windows_run_behind_the_outline_the_circles_and_the_end) {
    set_shape({{0, 0}, {0, 3}});
    session.ShowPtosCtrl = True;
    PrintPic();
    EXPECT_EQ(machine.windows.yields, 3);
    session.ShowPtosCtrl = False;
    PrintPic();
    EXPECT_EQ(machine.windows.yields, 5);
}

TEST_F(PrintTest, without_a_printer_its_own_box_tells_of_it) {
    machine.printer.end_error = error::printer;
    set_shape({{0, 0}, {0, 3}});
    PrintPic();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0],
              (test::ShownBox{"Error PrintPic nº: 482  - Desc: Error de impresora", 0, "Velmora"}));
    EXPECT_EQ(session.CanvasX0, 500);
}

TEST_F(PrintTest, a_place_beyond_32_bit_floats_leaves_the_sheet_open) {
    set_shape({{0, 0}, {1, 0}, {1e300, 0}});
    PrintPic();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_THAT(machine.dialogs.boxes[0].text, StartsWith("Error PrintPic nº: 6  - Desc: "));
    EXPECT_EQ(printed().back(), "line 500 11400 505 11400");
}

// The route begins with the outline: what fails before it is no concern of its box.
TEST_F(PrintTest, an_axis_that_fails_is_not_trapped) {
    machine.printer.width = 1e300;
    set_shape({{-1, 0}, {0, 3}});
    EXPECT_EQ(test::number_of([] { PrintPic(); }), error::overflow);
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(PrintTest, each_axis_fails_where_it_stands) {
    machine.printer.height = 1e300;
    set_shape({{0, 0}, {0, 3}});
    EXPECT_EQ(test::number_of([] { PrintPic(); }), error::overflow);
    EXPECT_THAT(printed(), ElementsAre("orientation 1"));
    machine.printer.width = 1e300;
    machine.printer.height = 16840;
    printed().clear();
    EXPECT_EQ(test::number_of([] { PrintPic(); }), error::overflow);
    EXPECT_THAT(printed(), ElementsAre("orientation 1", "line 500 0 500 16840"));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

} // namespace
} // namespace velmora
