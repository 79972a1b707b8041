#include "canvas/wheel_zoom.h"

#include "canvas/drawing.h"
#include "document/refresh.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::set_shape;

TEST(ZoomBySteps, goes_by_a_tenth_each_with_six_digits) {
    struct Case {
        double zoom;
        int steps;
        double result;
    };
    for (const Case& one : {
             Case{10, 1, 11},
             Case{10, -1, 9.09091},
             Case{9.09091, 1, 10},
             Case{4, 3, 5.324},
             Case{30000, 2, 36300},
             Case{1, 10, 2.59374},
             Case{0.001, -1, 0.000909091},
         })
        EXPECT_EQ(zoom_by_steps(one.zoom, one.steps), one.result) << one.zoom << ' ' << one.steps;
}

/// A shape drawn at 5 pixels a unit, its origin at (30, 1970); seen is what lies round (400, 1700).
struct ZoomAround : testing::Test {
    ZoomAround() { draw({{0, 0}, {10, 0}, {10, 20}}); }
    void draw(const test::Points& points) {
        set_shape(points);
        Define_Layout();
        Dibuja();
        canvas.operations().clear();
        moves = session.Velmora.SSScroll_moves;
    }
    Canvas canvas{test::with_database};
    std::uint64_t moves = 0;
};

TEST_F(ZoomAround, what_is_under_the_pointer_stays_there) {
    zoom_around({80, 1870}, 1); // (10, 20)
    EXPECT_EQ(session.ZoomFactor, 5.5);
    EXPECT_EQ(session.winoptions.Txt_zoom, "5.5");
    EXPECT_EQ(canvas.operations().front(), "cls");
    // It is at (85, 1860) now: 5 to the right and 10 up, and the middle with it.
    EXPECT_EQ(session.Velmora.SSScroll_middle, (Spot{405, 1690}));
    EXPECT_EQ(session.Velmora.SSScroll_moves, moves + 2);
}

TEST_F(ZoomAround, goes_out_as_it_goes_in) {
    zoom_around({130, 1870}, -1); // (20, 20), beside the shape
    EXPECT_EQ(session.ZoomFactor, 4.54545);
    EXPECT_EQ(session.Velmora.SSScroll_middle,
              (Spot{30 + 4.54545 * 20 + 400 - 130, 1970 - 4.54545 * 20 + 1700 - 1870}));
}

TEST_F(ZoomAround, round_an_origin_in_the_middle_too) {
    draw({{-10, -10}, {10, -10}, {10, 10}});
    zoom_around({1050, 900}, 1);
    EXPECT_EQ(session.Velmora.SSScroll_middle, (Spot{1055 + 400 - 1050, 890 + 1700 - 900}));
}

// Printing leaves the paper's origin behind.
TEST_F(ZoomAround, goes_by_the_picture_and_not_by_the_paper) {
    session.CanvasX0 = 500;
    session.CanvasY0 = 16000;
    zoom_around({80, 1870}, 1);
    EXPECT_EQ(session.Velmora.SSScroll_middle, (Spot{405, 1690}));
}

TEST_F(ZoomAround, ends_where_the_place_would_leave_the_canvas) {
    draw({{0, 0}, {370, 0}, {370, 20}});
    zoom_around({1800, 1970}, 3); // 1770 from the origin: 1947 at 5.5, 2141.7 at 6.05
    EXPECT_EQ(session.ZoomFactor, 5.5);
    canvas.operations().clear();
    zoom_around({1977, 1970}, 1);
    EXPECT_EQ(session.ZoomFactor, 5.5);
    EXPECT_TRUE(canvas.operations().empty());
    EXPECT_EQ(session.Velmora.StatusBar1,
              "Aquí termina el lienzo: con más zoom este lugar quedaría fuera.");
    zoom_around({1977, 1970}, -1);
    EXPECT_EQ(session.ZoomFactor, 5);
}

TEST_F(ZoomAround, ends_upwards_too) {
    draw({{-1, -1}, {1, 1}, {1, 0}});
    zoom_around({1000, 50}, 1); // 950 above the origin, 1045 then
    EXPECT_EQ(session.ZoomFactor, 5);
}

TEST_F(ZoomAround, leaves_the_shape_ten_pixels) {
    session.ZoomFactor = 0.6;
    zoom_around({30, 1970}, -5); // 20 units: 10.909 pixels, then 9.917
    EXPECT_EQ(session.ZoomFactor, 0.545455);
    canvas.operations().clear();
    zoom_around({30, 1970}, -1);
    EXPECT_EQ(session.ZoomFactor, 0.545455);
    EXPECT_TRUE(canvas.operations().empty());
}

TEST_F(ZoomAround, takes_a_zoom_of_zero_or_below_as_one) {
    session.ZoomFactor = 0;
    zoom_around({30, 1970}, 1);
    EXPECT_EQ(session.ZoomFactor, 1.1);
}

TEST_F(ZoomAround, needs_a_picture) {
    session.NoRedraw = True;
    zoom_around({80, 1870}, 1);
    session.NoRedraw = False;
    Forma.Pto.redim(0);
    zoom_around({80, 1870}, 1);
    zoom_around({80, 1870}, 0);
    EXPECT_EQ(session.ZoomFactor, 5);
    EXPECT_TRUE(canvas.operations().empty());
    EXPECT_TRUE(canvas.dialogs.boxes.empty());
}

TEST_F(ZoomAround, serves_the_first_points_put_in_by_hand) {
    draw({{0, 0}, {1, 1}});
    Forma.Pto.redim(0);
    session.PtosToInsertMode = True;
    session.PtoSel = 0;
    session.BandaX = session.BandaY = 7;
    zoom_around({30, 1970}, -2);
    EXPECT_EQ(session.ZoomFactor, 4.13223);
    EXPECT_EQ(session.BandaX, 0) << "the band went with the picture";
    EXPECT_EQ(session.BandaY, 0);
}

} // namespace
} // namespace velmora
