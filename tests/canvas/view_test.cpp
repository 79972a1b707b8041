#include "canvas/drawing.h"
#include "canvas/paralela.h"
#include "canvas/view.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace velmora {
namespace {

using test::Canvas;
using test::number_of;

TEST(View, maps_there_and_back) {
    Canvas canvas;
    EXPECT_EQ(canvas_x(10), 80);
    EXPECT_EQ(canvas_y(20), 1870);
    EXPECT_EQ(world_x(80), 10);
    EXPECT_EQ(world_y(1870), 20);
    session.ZoomFactor = 3;
    EXPECT_EQ(world_x(31), 1.0 / 3);
    EXPECT_EQ(world_y(1971), -1.0 / 3);
}

TEST(View, raises_beyond_F64_and_without_a_zoom) {
    Canvas canvas;
    EXPECT_EQ(number_of([] { return canvas_x(1e308); }), error::overflow);
    EXPECT_EQ(number_of([] { return canvas_y(-1e308); }), error::overflow);
    session.ZoomFactor = 0;
    EXPECT_EQ(number_of([] { return world_x(80); }), error::division_by_zero);
    EXPECT_EQ(number_of([] { return world_y(80); }), error::division_by_zero);
}

TEST(ToPixel, rounds_ties_to_even_up_to_the_ends_of32_bits) {
    struct Case {
        double position;
        std::optional<std::int32_t> pixel;
    };
    constexpr double inf = std::numeric_limits<double>::infinity();
    for (const Case& one : {
             Case{0.5, 0},
             Case{1.5, 2},
             Case{2.5, 2},
             Case{-0.5, 0},
             Case{-1.5, -2},
             Case{0.49999999999999994, 0},
             Case{0.50000000000000011, 1},
             Case{-2.4, -2},
             Case{2147483647.0, 2147483647},
             Case{2147483647.4, 2147483647},
             Case{2147483647.5, {}},
             Case{2147483646.5, 2147483646},
             Case{-2147483648.5, -2147483647 - 1},
             Case{-2147483648.6, {}},
             Case{1e300, {}},
             Case{inf, {}},
             Case{-inf, {}},
             Case{std::numeric_limits<double>::quiet_NaN(), {}},
         }) {
        if (one.pixel)
            EXPECT_EQ(to_pixel(one.position), *one.pixel) << one.position;
        else
            EXPECT_EQ(number_of([&] { return to_pixel(one.position); }), error::overflow)
                << one.position;
    }
}

TEST(ToSingle, narrows_and_raises_beyond_a_float) {
    EXPECT_EQ(to_single(0.1), 0.1F);
    EXPECT_EQ(to_single(-3.4e38), -3.4e38F);
    EXPECT_EQ(number_of([] { return to_single(3.5e38); }), error::overflow);
    EXPECT_EQ(number_of([] { return to_single(std::numeric_limits<double>::quiet_NaN()); }),
              error::overflow);
}

TEST(ParalelaPixel, takes_the_product_with15_digits_and_the_sum_as_decimals) {
    struct Case {
        double product;
        std::int32_t x; ///< with the origin at 30
        std::int32_t y; ///< with the origin at 1970
    };
    for (const Case& one : {
             Case{10, 40, 1960}, Case{0.5, 30, 1970}, // 30.5 and 1969.5: ties
             Case{1.5, 32, 1968},                     // 31.5 and 1968.5
             Case{0.500000000000001, 31, 1969},       // more than a tie, though f64 sums to one
             Case{0.499999999999999, 30, 1970},
             Case{0.50000000000000044, 30, 1970}, // 0.5 with 15 digits
             Case{1.4999999999999998, 32, 1968},  // 1.5 with 15 digits
             Case{-0.500000000000001, 29, 1971}, Case{-0.5, 30, 1970},
             Case{1234567.5, 1234598, -1232598}, // 1234597.5 and -1232597.5
         }) {
        Canvas canvas;
        session.ZoomFactor = 1;
        EXPECT_EQ(paralela_pixel({one.product, 0}).x, one.x) << one.product;
        EXPECT_EQ(paralela_pixel({0, one.product}).y, one.y) << one.product;
    }
}

TEST(ParalelaPixel, is_the_pixel_of_any_other_point_away_from_ties) {
    Canvas canvas;
    session.ZoomFactor = 7.3;
    for (int i = -4000; i < 4000; ++i) {
        const Pto point{i * 0.0371, i * -1.93};
        EXPECT_EQ(paralela_pixel(point), pixel_of(point)) << i;
    }
}

TEST(ParalelaPixel, raises_beyond32_bits) {
    Canvas canvas;
    for (const double far : {1e9, -1e9, 1e20, 1e40, 1e308}) {
        EXPECT_EQ(number_of([&] { return paralela_pixel({far, 0}); }), error::overflow) << far;
        EXPECT_EQ(number_of([&] { return paralela_pixel({0, far}); }), error::overflow) << far;
    }
}

} // namespace
} // namespace velmora
