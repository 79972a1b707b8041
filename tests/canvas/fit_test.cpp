#include "canvas/fit.h"

#include "canvas/drawing.h"
#include "commands/handlers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::set_shape;

// A canvas of 2000 by 2000 pixels: without negatives the origin is at (30, 1970), with them at
// (1000, 1000).
constexpr CanvasReach kPositive{
    .x0 = 30, .y0 = 1970, .left = 30, .top = 30, .right = 1970, .bottom = 1970};
constexpr CanvasReach kCentred{
    .x0 = 1000, .y0 = 1000, .left = 30, .top = 30, .right = 1970, .bottom = 1970};

TEST(FittingZoom, is_the_largest_that_window_and_canvas_allow) {
    struct Case {
        const char* name;
        WorldBox box;
        double width, height;
        CanvasReach reach;
        double zoom;
    };
    for (const Case& one : {
             Case{"the height decides: (600 / 2 - 30) / 10",
                  {0, 0, 10, 20},
                  800,
                  600,
                  kPositive,
                  27},
             Case{"the width decides: (800 / 2 - 30) / 10", {0, 0, 20, 2}, 800, 600, kPositive, 37},
             Case{"flat: the other axis decides", {0, 5, 10, 5}, 800, 600, kPositive, 74},
             Case{"upright", {5, 0, 5, 10}, 800, 600, kPositive, 54},
             Case{"far from the origin the canvas ends: 1940 / 110 = 17.6363...",
                  {100, 0, 110, 1},
                  800,
                  600,
                  kPositive,
                  17.63},
             Case{"far above it", {0, 1000, 1, 1003}, 800, 600, kPositive, 1.934},
             Case{"round the middle: 370 / 10", {-10, -5, 10, 5}, 800, 600, kCentred, 37},
             Case{"left of the middle the canvas ends: 970 / 50",
                  {-50, -1, 1, 1},
                  4000,
                  4000,
                  kCentred,
                  19.4},
             Case{"large: 370 / 15000 = 0.024666...",
                  {0, 0, 30000, 1},
                  800,
                  600,
                  kPositive,
                  0.02466},
             Case{"small: 370 / 0.0005", {0, 0, 0.001, 0.0005}, 800, 600, kPositive, 740000},
             Case{"a window of no size", {0, 0, 10, 1}, 40, 600, kPositive, 0.2},
         }) {
        SCOPED_TRACE(one.name);
        const Spot middle{(one.box.left + one.box.right) / 2, (one.box.bottom + one.box.top) / 2};
        EXPECT_EQ(fitting_zoom(one.box, middle, {0, 0, one.width, one.height}, one.reach),
                  one.zoom);
    }
}

TEST(FittingZoom, keeps_a_middle_that_is_not_the_boxes) {
    EXPECT_EQ(fitting_zoom({0, 0, 10, 1}, {0, 0}, {0, 0, 800, 600}, kPositive), 37);
    EXPECT_EQ(fitting_zoom({0, 0, 10, 1}, {10, 0}, {0, 0, 800, 600}, kPositive), 37);
}

TEST(FittingZoom, is_none_for_what_has_no_extent_or_too_much) {
    EXPECT_EQ(fitting_zoom({3, 4, 3, 4}, {3, 4}, {0, 0, 800, 600}, kPositive), std::nullopt);
    EXPECT_EQ(fitting_zoom({0, 0, 1e15, 1}, {5e14, 0}, {0, 0, 800, 600}, kPositive), std::nullopt);
    EXPECT_EQ(fitting_zoom({-1e308, 0, 1e308, 1}, {0, 0}, {0, 0, 800, 600}, kCentred),
              std::nullopt);
    EXPECT_EQ(fitting_zoom({0, 0, 1e-12, 0}, {0, 0}, {0, 0, 800, 600}, kPositive), 1e9);
}

TEST(FitShape, zooms_refreshes_and_brings_the_middle_to_the_middle) {
    Canvas canvas;
    set_shape({{0, 0}, {10, 0}, {10, 20}});
    mnu_fit_shape();
    EXPECT_EQ(session.ZoomFactor, 27);
    EXPECT_EQ(session.winoptions.Txt_zoom, "27");
    EXPECT_EQ(session.Altura, 20) << "the refresh of a zoom lays out";
    EXPECT_EQ(canvas.operations().front(), "cls");
    EXPECT_EQ(session.Velmora.SSScroll_middle, (Spot{30 + 27 * 5, 1970 - 27 * 10}));
    EXPECT_EQ(session.Velmora.SSScroll_moves, 2U);
}

TEST(FitShape, sees_the_shape_as_it_is_not_as_it_was_laid_out) {
    Canvas canvas;
    set_shape({{0, 0}, {10, 0}, {10, 20}});
    mnu_fit_shape();
    set_shape({{-30, -25}, {-10, -25}, {-10, -15}});
    mnu_fit_shape();
    EXPECT_EQ(session.ZoomFactor, 32.33) << "970 / 30";
    EXPECT_EQ(session.Velmora.SSScroll_middle, (Spot{1000 - 32.33 * 20, 1000 + 32.33 * 20}));
}

TEST(FitShape, goes_by_the_part_that_is_seen) {
    Canvas canvas;
    set_shape({{0, 0}, {10, 0}, {10, 20}});
    session.Velmora.SSScroll_visible = {0, 0, 800, 260};
    mnu_fit_shape();
    EXPECT_EQ(session.ZoomFactor, 10);
}

TEST(FitShape, without_extent_keeps_the_zoom) {
    Canvas canvas;
    set_shape({{4, 2}, {4, 2}});
    mnu_fit_shape();
    EXPECT_EQ(session.ZoomFactor, 5);
    EXPECT_EQ(session.Velmora.SSScroll_middle, (Spot{50, 1960}));
}

TEST(FitShape, needs_a_shape) {
    for (auto* command : {mnu_fit_shape, mnu_fit_point}) {
        Canvas canvas{test::with_database};
        command();
        ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
        EXPECT_EQ(canvas.dialogs.boxes[0].text, "No hay ninguna forma cargada!");
        EXPECT_EQ(session.ZoomFactor, 5);
        EXPECT_TRUE(canvas.operations().empty());
    }
}

TEST(FitShape, the_next_layout_places_the_bars_as_ever) {
    Canvas canvas;
    set_shape({{0, 0}, {10, 0}, {10, 20}});
    mnu_fit_shape();
    mnu_zoom_up();
    EXPECT_EQ(session.Velmora.SSScroll_middle, std::nullopt);
    EXPECT_EQ(session.Velmora.SSScroll_y, 1);
}

struct FitPoint : testing::Test {
    FitPoint() {
        test::Points line;
        for (int x = 0; x < 20; ++x)
            line.push_back({static_cast<double>(x), 0});
        set_shape(line);
    }
    Canvas canvas;
};

TEST_F(FitPoint, shows_five_points_on_each_side) {
    session.PtoSel = 10;
    mnu_fit_point();
    EXPECT_EQ(session.ZoomFactor, 74) << "370 / 5";
    EXPECT_EQ(session.winoptions.Txt_zoom, "74");
    EXPECT_EQ(session.Velmora.SSScroll_middle, (Spot{30 + 740, 1970}));
}

TEST_F(FitPoint, goes_round_the_end_of_the_outline) {
    session.PtoSel = 0;
    mnu_fit_point();
    EXPECT_EQ(session.ZoomFactor, 19.47) << "370 / 19";
    EXPECT_EQ(session.Velmora.SSScroll_middle, (Spot{30, 1970}));
}

TEST_F(FitPoint, takes_what_a_short_outline_has) {
    set_shape({{0, 0}, {2, 0}, {2, 2}});
    session.PtoSel = 1;
    mnu_fit_point();
    EXPECT_EQ(session.ZoomFactor, 135) << "270 / 2";
}

TEST_F(FitPoint, without_a_selection_is_the_whole_shape) {
    for (const std::int32_t none : {-1, 20}) {
        session.PtoSel = none;
        mnu_fit_point();
        EXPECT_EQ(session.ZoomFactor, 38.94) << "370 / 9.5";
    }
}

} // namespace
} // namespace velmora
