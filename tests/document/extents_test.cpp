#include "document/extents.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::fill;
using test::Points;
using test::RecordingPlatform;
using test::set_shape;

struct ExtentCase {
    const char* what;
    Points points;
    double min_x, max_x, min_y, max_y;
};

TEST(Extents, of_the_shape) {
    const ExtentCase cases[] = {
        {"first quadrant", {{5, 1}, {7, 2}}, 5, 7, 1, 2},
        {"maxima are never below 0", {{-5, -1}, {-2, -3}}, -5, 0, -3, 0},
        {"minima are never above 100000",
         {{200000, 300000}, {150000, 400000}},
         100000,
         200000,
         100000,
         400000},
        {"the limit itself", {{100000, 100000}, {100001, 100001}}, 100000, 100001, 100000, 100001},
        {"empty document", {{0, 0}}, 0, 0, 0, 0},
    };
    RecordingPlatform platform;
    for (const ExtentCase& c : cases) {
        SCOPED_TRACE(c.what);
        set_shape(c.points);
        EXPECT_EQ(GetMinX("0"), c.min_x);
        EXPECT_EQ(GetMaxX("0"), c.max_x);
        EXPECT_EQ(GetMinY("0"), c.min_y);
        EXPECT_EQ(GetMaxY("0"), c.max_y);
    }
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(Extents, each_selector_names_its_array) {
    RecordingPlatform platform;
    set_shape({{1, -1}});
    fill(session.PtosA, {{2, -2}});
    fill(session.PtosB, {{3, -3}});
    fill(session.PtosA2, {{4, -4}});
    fill(session.PtosB2, {{5, -5}});
    const std::pair<const char*, double> cases[] = {
        {"0", 1}, {"A", 2}, {"B", 3}, {"A2", 4}, {"B2", 5}};
    for (const auto& [selector, value] : cases) {
        SCOPED_TRACE(selector);
        EXPECT_EQ(GetMaxX(selector), value);
        EXPECT_EQ(GetMinX(selector), value);
        EXPECT_EQ(GetMinY(selector), -value);
        EXPECT_EQ(GetMaxY(selector), 0);
    }
}

TEST(Extents, an_unknown_selector_gives_the_start_values_without_a_box) {
    RecordingPlatform platform;
    for (const char* selector : {"C", "", "a", "A3"}) {
        SCOPED_TRACE(selector);
        EXPECT_EQ(GetMinX(selector), 100000.0);
        EXPECT_EQ(GetMaxX(selector), 0.0);
        EXPECT_EQ(GetMinY(selector), 100000.0);
        EXPECT_EQ(GetMaxY(selector), 0.0);
    }
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(Extents, an_array_without_dimensions_shows_the_box_and_gives_0) {
    RecordingPlatform platform;
    EXPECT_EQ(GetMinX("A"), 0.0);
    EXPECT_EQ(GetMaxX("B"), 0.0);
    EXPECT_EQ(GetMinY("A2"), 0.0);
    EXPECT_EQ(GetMaxY("B2"), 0.0);
    const std::string tail = "9  - Desc: " + error_description(9, 'E');
    const char* prefixes[] = {
        "Error GetMinX nº: ", "Error GetMaxX nº: ", "Error GetMinY nº: ", "Error GetMaxY nº: "};
    ASSERT_EQ(platform.dialogs.boxes.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(platform.dialogs.boxes[i], (test::ShownBox{prefixes[i] + tail, 0, "Velmora"}));
}

} // namespace
} // namespace velmora
