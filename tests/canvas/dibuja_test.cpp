#include "canvas/drawing.h"
#include "canvas/view.h"
#include "document/refresh.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::Operations;
using test::set_shape;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

Operations joined(std::initializer_list<Operations> parts) {
    Operations all;
    for (const Operations& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

const Operations kAxes{"cls", "pen 2", "line 30 0 30 2000", "line 0 1970 2000 1970"};
const Operations kQuietEnd{"pen 3", "pen 2", "present"};

void set_triangle() {
    set_shape({{0, 0}, {10, 0}, {10, 20}});
}

void set_square() {
    set_shape({{0, 0}, {10, 0}, {10, 20}, {0, 20}});
}

TEST(Dibuja, of_four_points_goes_through_its_steps_in_order) {
    Canvas canvas;
    set_square();
    Forma.Pto[3].Sinc = 1;
    session.PtoSel = 1;
    Dibuja();
    EXPECT_EQ(canvas.operations(), joined({kAxes,
                                           {"pen 4",
                                            "move 30 1970",
                                            "lineto 80 1970",
                                            "pen 5",
                                            "lineto 80 1870",
                                            "pen 3",
                                            "polyline 80 1870 30 1870",
                                            "pen 3",
                                            "move 30 1870",
                                            "lineto 30 1970",
                                            "pen 6",
                                            "arc 27 1967 33 1973",
                                            "arc 77 1967 83 1973",
                                            "arc 77 1867 83 1873",
                                            "arc 27 1867 33 1873",
                                            "pen 7",
                                            "arc 25 1865 35 1875",
                                            "pen 6",
                                            "pen 3",
                                            "box 78 1968 82 1972 8",
                                            "present"}}));
    EXPECT_THAT(canvas.dialogs.boxes, ElementsAre());
}

TEST(Dibuja, of_three_points_gives_polyline_one_point) {
    Canvas canvas;
    set_triangle();
    Dibuja();
    EXPECT_EQ(canvas.operations(),
              joined({kAxes,
                      {"pen 4", "move 30 1970", "lineto 80 1970", "pen 5", "lineto 80 1870",
                       "pen 3", "polyline 80 1870", "pen 3", "move 80 1870", "lineto 30 1970",
                       "pen 6", "arc 27 1967 33 1973", "arc 77 1967 83 1973", "arc 77 1867 83 1873",
                       "pen 3", "present"}}));
}

TEST(Dibuja, of_two_points_ends_quietly_behind_the_first_segment) {
    Canvas canvas;
    set_shape({{0, 0, 1, 0}, {10, 0}});
    session.PtoSel = 0;
    Dibuja();
    EXPECT_EQ(canvas.operations(),
              joined({kAxes, {"pen 4", "move 30 1970", "lineto 80 1970", "pen 5", "present"}}));
    EXPECT_THAT(canvas.dialogs.boxes, ElementsAre());
}

TEST(Dibuja, of_one_point_in_insertion_mode_draws_the_axes) {
    Canvas canvas;
    session.PtosToInsertMode = True;
    session.PtoSel = 0;
    Dibuja();
    EXPECT_EQ(canvas.operations(), joined({kAxes, {"pen 4", "move 30 1970", "present"}}));
}

TEST(Dibuja, in_insertion_mode_leaves_out_the_closing_segment_and_the_selection) {
    Canvas canvas;
    set_triangle();
    session.PtosToInsertMode = True;
    session.PtoSel = 2;
    session.ShowPtos = False;
    session.ShowPtosCtrl = False;
    Dibuja();
    EXPECT_EQ(canvas.operations(),
              joined({kAxes,
                      {"pen 4", "move 30 1970", "lineto 80 1970", "pen 5", "lineto 80 1870",
                       "pen 3", "polyline 80 1870", "pen 3", "pen 3", "present"}}));
}

TEST(Dibuja, while_a_point_is_dragged_stops_before_the_glyphs) {
    Canvas canvas;
    set_triangle();
    Forma.Paralela = Forma.Pto;
    session.DragPto = True;
    session.PtoSel = 1;
    Dibuja();
    EXPECT_EQ(canvas.operations(), joined({kAxes,
                                           {"pen 4", "move 30 1970", "lineto 80 1970", "pen 5",
                                            "lineto 80 1870", "pen 3", "polyline 80 1870", "pen 3",
                                            "move 80 1870", "lineto 30 1970", "present"}}));
}

TEST(Dibuja, draws_the_glyphs_that_are_on) {
    struct Case {
        Flag points, sync;
        Operations glyphs;
    };
    const std::vector<Case> cases{
        {True,
         False,
         {"pen 6", "arc 27 1967 33 1973", "arc 77 1967 83 1973", "arc 77 1867 83 1873"}},
        {False, True, {"pen 6", "pen 7", "arc 75 1965 85 1975", "pen 6"}},
        {False, False, {}},
    };
    for (const Case& one : cases) {
        Canvas canvas;
        set_triangle();
        Forma.Pto[1].Sinc = 1;
        Forma.Pto[2].Sinc = -1; // the value 1 alone is a sync point here
        session.ShowPtos = one.points;
        session.ShowPtosCtrl = one.sync;
        Dibuja();
        const Operations glyphs(canvas.operations().begin() + 14, canvas.operations().end() - 2);
        EXPECT_EQ(glyphs, one.glyphs);
    }
}

TEST(Dibuja, paints_the_first_segments_by_index) {
    Canvas canvas;
    set_square();
    std::swap(Forma.Pto[1], Forma.Pto[3]);
    Dibuja();
    const Operations lines(canvas.operations().begin() + 4, canvas.operations().begin() + 9);
    EXPECT_THAT(lines,
                ElementsAre("pen 4", "move 30 1970", "lineto 30 1870", "pen 5", "lineto 80 1870"));
}

TEST(Dibuja, the_origin_goes_by_the_extents_of_the_last_layout) {
    struct Case {
        double min_x, min_y;
        std::string vertical, horizontal;
        double x, y; ///< pixel of (10, 20)
    };
    for (const Case& one :
         {Case{0, 0, "line 30 0 30 2000", "line 0 1970 2000 1970", 80, 1870},
          Case{-1, -1, "line 1000 0 1000 2000", "line 0 1000 2000 1000", 1050, 900},
          Case{-1, 0, "line 1000 0 1000 2000", "line 0 1970 2000 1970", 1050, 1870},
          Case{0, -1, "line 30 0 30 2000", "line 0 1000 2000 1000", 80, 900}}) {
        Canvas canvas;
        set_shape({{-50, -60}, {10, 0}, {10, 20}}); // the points of now have no say
        session.MinXForma = one.min_x;
        session.MinYForma = one.min_y;
        Dibuja();
        EXPECT_EQ(canvas.operations()[2], one.vertical);
        EXPECT_EQ(canvas.operations()[3], one.horizontal);
        EXPECT_EQ(canvas_x(10), one.x);
        EXPECT_EQ(canvas_y(20), one.y);
    }
}

TEST(Dibuja, rounds_to_nearest_with_ties_to_even) {
    Canvas canvas;
    session.ZoomFactor = 1;
    set_shape({{0.5, 0.5}, {1.5, 1.5}, {0.4999, 2.5001}});
    session.ShowPtos = False;
    Dibuja();
    EXPECT_THAT(canvas.operations(), Contains("move 30 1970"));
    EXPECT_THAT(canvas.operations(), Contains("lineto 32 1968"));
    EXPECT_THAT(canvas.operations(), Contains("lineto 30 1967"));
}

TEST(Dibuja, the_selection_box_is_not_rounded) {
    Canvas canvas;
    session.ZoomFactor = 1;
    set_shape({{0.25, 0.5}, {1, 1}, {2, 3}});
    session.PtoSel = 0;
    Dibuja();
    EXPECT_THAT(canvas.operations(), Contains("box 28.25 1967.5 32.25 1971.5 8"));
}

TEST(Dibuja, a_selection_beyond_the_array_is_none) {
    Canvas canvas;
    set_triangle();
    Forma.Paralela = Forma.Pto;
    session.PtoSel = 3;
    Dibuja();
    EXPECT_THAT(canvas.operations(), Not(Contains(testing::StartsWith("box"))));
    EXPECT_THAT(canvas.operations(), Contains("polyline 30 1970 80 1970 80 1870"));
}

TEST(Dibuja, ends_with_the_compensated_outline) {
    Canvas canvas;
    set_triangle();
    Forma.Paralela.redim(1);
    Forma.Paralela[1] = {4, 2};
    Dibuja();
    const Operations end(canvas.operations().end() - 4, canvas.operations().end());
    EXPECT_THAT(end, ElementsAre("pen 3", "pen 2", "polyline 30 1970 50 1960", "present"));
}

TEST(Dibuja, clears_no_redraw) {
    Canvas canvas;
    set_triangle();
    session.NoRedraw = True;
    Dibuja_unless_NoRedraw();
    EXPECT_THAT(canvas.operations(), ElementsAre());
    EXPECT_EQ(session.NoRedraw, True);
    Dibuja();
    EXPECT_EQ(session.NoRedraw, False);
    canvas.operations().clear();
    Dibuja_unless_NoRedraw();
    EXPECT_EQ(canvas.operations().front(), "cls");
}

TEST(Dibuja, after_set00_the_origin_stays_where_it_was) {
    Canvas canvas;
    set_shape({{5, 5}, {10, 5}, {10, 20}});
    Dibuja();
    for (Pto& point : Forma.Pto.all())
        point = {point.X - 10, point.Y - 20};
    canvas.operations().clear();
    Dibuja();
    EXPECT_EQ(canvas.operations()[2], "line 30 0 30 2000");
    EXPECT_EQ(canvas.operations()[5], "move 5 2045");
}

TEST(ClearCanvas, leaves_the_background_alone) {
    Canvas canvas;
    clear_canvas();
    EXPECT_THAT(canvas.operations(), ElementsAre("cls", "present"));
}

} // namespace
} // namespace velmora
