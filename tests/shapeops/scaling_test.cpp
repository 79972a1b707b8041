#include "document/session.h"
#include "fakes/recording_platform.h"
#include "runtime/error.h"
#include "shapeops/scaling.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <limits>

namespace velmora {
namespace {

using test::Points;
using test::RecordingPlatform;
using test::set_shape;
using test::shape;

constexpr double kHuge = std::numeric_limits<double>::max();

std::string box_text(const std::string& prefix, int number) {
    return prefix + std::to_string(number) + "  - Desc: " + error_description(number, 'E');
}

struct ScaleCase {
    const char* what;
    Points before, after;
};

TEST(ScaleToUnit, by_the_larger_maximum) {
    const ScaleCase cases[] = {
        {"maxima 2 and 5 divide by 5", {{2, 5, 1, -1}, {-1, 0}}, {{0.4, 1, 1, -1}, {-0.2, 0}}},
        {"X the larger", {{8, 2}, {0, -4}}, {{1, 0.25}, {0, -0.5}}},
        {"maxima 0.5 and 0.25 multiply by 2", {{0.5, 0.25}, {-0.1, 0}}, {{1, 0.5}, {-0.2, 0}}},
        {"maxima 1 and 0.3 stay", {{1, 0.3}, {1.0 / 3, 0}}, {{1, 0.3}, {1.0 / 3, 0}}},
        {"maxima 0.3 and 1 stay", {{0.3, 1}, {0, 1.0 / 3}}, {{0.3, 1}, {0, 1.0 / 3}}},
        {"maxima 1 and 2 divide by 2", {{1, 2}, {0, 0}}, {{0.5, 1}, {0, 0}}},
        {"maxima 0 and 0 keep 15 digits",
         {{-1.0 / 3, 0}, {0, -2}},
         {{-0.333333333333333, 0}, {0, -2}}},
        {"division",
         {{7, 5}, {2.2, -3.3}},
         {{1, 0.714285714285714}, {0.314285714285714, -0.471428571428571}}},
        // Where a reciprocal would give another last digit than a division, and the reverse.
        {"division is no reciprocal", {{61.02, 0}, {-25.69, 0}}, {{1, 0}, {-0.421009505080302, 0}}},
        {"reciprocal is no division", {{0.936, 0}, {-0.256, 0}}, {{1, 0}, {-0.273504273504274, 0}}},
    };
    RecordingPlatform platform{test::with_database};
    for (const ScaleCase& c : cases) {
        SCOPED_TRACE(c.what);
        set_shape(c.before);
        ScaleToUnit();
        EXPECT_EQ(shape(), c.after);
    }
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(ScaleToUnit, has_no_limit_of_16_bits) {
    RecordingPlatform platform{test::with_database};
    Forma.Pto.redim(40000);
    Forma.Pto[40000] = {4, 2};
    ScaleToUnit();
    EXPECT_EQ(Forma.Pto[40000], (Pto{1, 0.5}));
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(ScaleXY, by_size_measures_from_the_origin) {
    struct Case {
        const char* what;
        double xval, yval;
        Points before, after;
    };
    const Case cases[] = {
        {"GetMaxX 5 to 10 doubles", 10, 1, {{5, 1}, {-2, 1}}, {{10, 1}, {-4, 1}}},
        {"GetMaxX 0, GetMinX -5 to 10 doubles", 10, 3, {{-5, 1}, {0, 3}}, {{-10, 1}, {0, 3}}},
        {"GetMaxY 0, GetMinY -4 to 2 halves",
         3,
         2,
         {{3, -4, 1, -1}, {0, 0}},
         {{3, -2, 1, -1}, {0, 0}}},
        {"a shape off the origin does not end up that wide",
         10,
         10,
         {{2, 2}, {4, 5}},
         {{5, 4}, {10, 10}}},
        {"15 digits", 10, 3, {{3, 3}, {0.7, -1.1}}, {{10, 3}, {2.33333333333333, -1.1}}},
        {"a negative target mirrors", -3, 3, {{3, 3}, {1, 1}}, {{-3, 3}, {-1, 1}}},
    };
    RecordingPlatform platform{test::with_database};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        set_shape(c.before);
        ScaleXY(c.xval, c.yval, 1);
        EXPECT_EQ(shape(), c.after);
        set_shape(c.before);
        ScaleXY(c.xval, c.yval, -1);
        EXPECT_EQ(shape(), c.after);
    }
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(ScaleXY, by_percent_multiplies_first) {
    RecordingPlatform platform{test::with_database};
    set_shape({{3, 0.7, 1, -1}, {-1, 10}});
    ScaleXY(50, 200, 0);
    EXPECT_EQ(shape(), (Points{{1.5, 1.4, 1, -1}, {-0.5, 20}}));
    set_shape({{42.6, 0}, {0, 0}});
    ScaleXY(226.44721742390976, 100, 0);
    EXPECT_EQ(Forma.Pto[0].X, 96.4665146225856);
}

TEST(ScaleXY, a_shape_without_extent_shows_the_box) {
    struct Case {
        double xval, yval;
        int number;
    };
    const Case cases[] = {{10, 10, 11}, {0, 10, 6}};
    RecordingPlatform platform{test::with_database};
    for (const Case& c : cases) {
        platform.dialogs.boxes.clear();
        set_shape({{0, 0}, {0, 0}});
        ScaleXY(c.xval, c.yval, 1);
        ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
        EXPECT_EQ(platform.dialogs.boxes[0].text, box_text("Error ScaleXY nº: ", c.number));
        EXPECT_EQ(shape(), (Points{{0, 0}, {0, 0}}));
    }
}

TEST(ScaleXY, an_overflow_keeps_the_points_before_it) {
    RecordingPlatform platform{test::with_database};
    set_shape({{1, 1}, {kHuge, 1}, {1, 1}});
    ScaleXY(200, 200, 0);
    EXPECT_EQ(shape(), (Points{{2, 2}, {kHuge, 1}, {1, 1}}));
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0].text, box_text("Error ScaleXY nº: ", 6));
}

TEST(ScaleXY, beyond_28_digits_the_conversion_overflows) {
    RecordingPlatform platform{test::with_database};
    set_shape({{1, 1}, {1e29, 1}, {1, 1}});
    ScaleXY(200, 200, 0);
    EXPECT_EQ(shape(), (Points{{2, 2}, {1e29, 1}, {1, 1}}));
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0].text, box_text("Error ScaleXY nº: ", 6));
}

TEST(ScaleXY, counts_in_16_bits) {
    struct Case {
        std::int32_t points;
        std::int32_t scaled;
        bool overflow;
    };
    const Case cases[] = {
        {32767, 32767, false}, {32768, 32768, true}, {32769, 32768, true}, {40000, 32768, true}};
    RecordingPlatform platform{test::with_database};
    for (const std::int16_t by_size : {std::int16_t{0}, std::int16_t{1}}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.points);
            platform.dialogs.boxes.clear();
            Forma.Pto.redim(c.points - 1);
            for (Pto& point : Forma.Pto.all())
                point = {1, 1};
            by_size == 0 ? ScaleXY(300, 500, 0) : ScaleXY(3, 5, by_size);
            std::int32_t scaled = 0;
            while (scaled < c.points && Forma.Pto[scaled] == Pto{3, 5})
                ++scaled;
            EXPECT_EQ(scaled, c.scaled);
            EXPECT_EQ(Forma.Pto[c.points - 1], (scaled < c.points ? Pto{1, 1} : Pto{3, 5}));
            std::vector<std::string> boxes;
            for (const auto& box : platform.dialogs.boxes)
                boxes.push_back(box.text);
            EXPECT_EQ(boxes, c.overflow ? std::vector{box_text("Error ScaleXY nº: ", 6)}
                                        : std::vector<std::string>{});
        }
    }
}

} // namespace
} // namespace velmora
