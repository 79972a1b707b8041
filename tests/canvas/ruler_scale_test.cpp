#include "canvas/ruler_scale.h"

#include "canvas/drawing.h"
#include "canvas/position.h"
#include "canvas/view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using testing::ElementsAre;

TEST(RulerScale, has_numbers_at_least60_pixels_apart) {
    struct Case {
        double zoom, step;
        int parts, decimals;
    };
    for (const Case& one : {
             Case{60, 1, 5, 0},
             Case{59, 2, 4, 0}, // 1 would be 59 pixels
             Case{30, 2, 4, 0},
             Case{29, 5, 5, 0},
             Case{12, 5, 5, 0},
             Case{11, 10, 5, 0},
             Case{4, 20, 4, 0},
             Case{0.01, 10000, 5, 0},
             Case{120, 0.5, 5, 1},
             Case{1000, 0.1, 5, 2},
             Case{30000, 0.002, 4, 3},
         }) {
        const RulerScale scale = ruler_scale(one.zoom);
        EXPECT_DOUBLE_EQ(scale.step, one.step) << one.zoom;
        EXPECT_EQ(scale.parts, one.parts) << one.zoom;
        EXPECT_EQ(scale.decimals, one.decimals) << one.zoom;
    }
}

TEST(RulerMarks, stand_from_the_origin_to_both_sides) {
    // A number each 100 pixels, a mark each 20; the origin 30 pixels in.
    EXPECT_THAT(ruler_marks(100, 30, 150, 1),
                ElementsAre(RulerMark{10, ""}, RulerMark{30, "0"}, RulerMark{50, ""},
                            RulerMark{70, ""}, RulerMark{90, ""}, RulerMark{110, ""},
                            RulerMark{130, "1"}, RulerMark{150, ""}));
}

TEST(RulerMarks, grow_upward_on_the_upright_one) {
    EXPECT_THAT(ruler_marks(100, 90, 100, -1),
                ElementsAre(RulerMark{10, ""}, RulerMark{30, ""}, RulerMark{50, ""},
                            RulerMark{70, ""}, RulerMark{90, "0"}));
    EXPECT_EQ(ruler_marks(100, 250, 60, -1).back(), (RulerMark{50, "2"}));
}

TEST(RulerMarks, far_from_the_origin_are_few_and_exact) {
    const auto marks = ruler_marks(1000, -123400, 100, 1);
    ASSERT_EQ(marks.size(), 6U);
    EXPECT_EQ(marks.front().label, "123.4");
    EXPECT_EQ(marks.back().label, "123.5");
}

TEST(RulerMarks, use_the_machines_separator) {
    const test::Canvas canvas;
    session.SepDecimal = ',';
    EXPECT_EQ(ruler_marks(1000, 0, 100, 1).back().label, "0,1");
}

TEST(Position, is_told_with_the_decimals_that_the_zoom_tells_apart) {
    const test::Canvas canvas; // zoom 5, origin at (30, 1970)
    test::set_shape({{0, 0}, {10, 0}, {10, 20}});
    EXPECT_EQ(position_text({80, 1870}), "X 10  Y 20");
    EXPECT_EQ(position_text({81, 1871}), "X 10.2  Y 19.8");
    session.ZoomFactor = 300;
    EXPECT_EQ(position_text({130, 1870}), "X 0.333  Y 0.333");
    session.ZoomFactor = 0.5;
    EXPECT_EQ(position_text({130, 1971}), "X 200  Y -2");
}

TEST(Position, goes_by_the_picture_that_is_seen) {
    const test::Canvas canvas;
    test::set_shape({{-10, -10}, {10, 0}, {10, 20}});
    session.MinXForma = session.MinYForma = -10;
    EXPECT_EQ(position_text({1050, 900}), "X 10  Y 20");
}

TEST(Position, is_none_without_a_picture) {
    const test::Canvas canvas;
    EXPECT_EQ(position_text({80, 1870}), "");
    test::set_shape({{0, 0}, {10, 0}, {10, 20}});
    session.NoRedraw = True;
    EXPECT_EQ(position_text({80, 1870}), "");
    session.NoRedraw = False;
    session.ZoomFactor = 0;
    EXPECT_EQ(position_text({80, 1870}), "");
}

} // namespace
} // namespace velmora
