#include "canvas/drawing.h"
#include "document/refresh.h"
#include "fakes/watching.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::set_shape;

TEST(DefineLayout, takes_the_extents_and_shows_the_figures) {
    Canvas canvas;
    set_shape({{1.5, 2}, {11.25, 2}, {4, 9.75}});
    Define_Layout();
    EXPECT_EQ(session.MinXForma, 1.5);
    EXPECT_EQ(session.MinYForma, 2);
    EXPECT_EQ(session.Longitud, 9.75);
    EXPECT_EQ(session.Altura, 7.75);
    EXPECT_EQ(session.OrigX, 1.5);
    EXPECT_EQ(session.OrigY, 2);
    EXPECT_EQ(session.TotalPtos, 3);
    EXPECT_EQ(session.wininfo.Txt_longitud, "9.75");
    EXPECT_EQ(session.wininfo.Txt_Altura, "7.75");
    EXPECT_EQ(session.wininfo.TxtOrigX, "1.5");
    EXPECT_EQ(session.wininfo.TxtOrigY, "2");
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "3");
    EXPECT_EQ(session.ZoomFactor, 5);
    EXPECT_EQ(canvas.windows.yields, 1);
    EXPECT_TRUE(canvas.operations().empty());
}

TEST(DefineLayout, sees_the_clamped_extents) {
    Canvas canvas;
    set_shape({{-5, -3}, {-2, -3}, {-2, -1}});
    Define_Layout();
    EXPECT_EQ(session.MinXForma, -5);
    EXPECT_EQ(session.Longitud, 5);
    EXPECT_EQ(session.Altura, 3);
}

TEST(DefineLayout, writes_the_figures_with_the_machines_separator) {
    Canvas canvas;
    session.SepDecimal = ',';
    set_shape({{0, 0}, {0.5, 0}, {0, 1}});
    Define_Layout();
    EXPECT_EQ(session.wininfo.Txt_longitud, "0,5");
}

TEST(DefineLayout, replaces_a_zoom_of_zero_or_below) {
    for (const double zoom : {0.0, -4.0}) {
        Canvas canvas;
        session.ZoomFactor = zoom;
        Define_Layout();
        EXPECT_EQ(session.ZoomFactor, 1) << zoom;
    }
}

TEST(DefineLayout, the_windows_run_between_the_figures_and_the_scroll_bars) {
    Canvas canvas;
    set_shape({{-1, 0}, {10, 0}, {10, 20}});
    const auto moves = session.Velmora.SSScroll_moves;
    const test::WatchingTurns turns([&] {
        EXPECT_EQ(session.TotalPtos, 3);
        EXPECT_EQ(session.Velmora.SSScroll_moves, moves);
    });
    Define_Layout();
    EXPECT_EQ(turns.yields, 1);
}

TEST(DefineLayout, places_the_scroll_bars) {
    struct Case {
        double x, y, scroll_x, scroll_y;
    };
    for (const Case& one : {Case{0, 0, 0, 1}, Case{-1, 0, 0.2, 1}, Case{0, -1, 0, 1.0 / 3},
                            Case{-1, -1, 0.2, 1.0 / 3}}) {
        Canvas canvas;
        set_shape({{one.x, one.y}, {10, 0}, {10, 20}});
        const auto moves = session.Velmora.SSScroll_moves;
        Define_Layout();
        EXPECT_EQ(session.Velmora.SSScroll_x, one.scroll_x);
        EXPECT_EQ(session.Velmora.SSScroll_y, one.scroll_y);
        EXPECT_EQ(session.Velmora.SSScroll_moves, moves + 1);
    }
}

} // namespace
} // namespace velmora
