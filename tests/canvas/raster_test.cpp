#include "canvas/raster.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <random>
#include <set>
#include <utility>

namespace velmora {

void PrintTo(const PixelBox& box, std::ostream* out) {
    *out << box.left << ',' << box.top << " to " << box.right << ',' << box.bottom;
}

namespace {

__extension__ using Wide = __int128;
using Places = std::set<std::pair<std::int32_t, std::int32_t>>;

constexpr Pixel kPaper = 0xFFC8C8C8;
constexpr Pixel kRed = 0xFFFF0000;

struct Sheet {
    std::vector<Pixel> pixels;
    Raster raster;

    Sheet(std::int32_t width, std::int32_t height)
        : pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kPaper),
          raster(pixels, width) {}

    [[nodiscard]] Pixel at(std::int32_t x, std::int32_t y) const {
        return pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(raster.width()) +
                         static_cast<std::size_t>(x));
    }
    [[nodiscard]] Places drawn() const {
        Places result;
        for (std::int32_t y = 0; y < raster.height(); ++y)
            for (std::int32_t x = 0; x < raster.width(); ++x)
                if (at(x, y) != kPaper)
                    result.emplace(x, y);
        return result;
    }
};

Wide floor_divide(Wide a, Wide b) {
    return a / b - (a % b != 0 && (a < 0) != (b < 0) ? 1 : 0);
}

/// The pixel of the line over place `at` of its longer axis: exact line, rounded, a tie down.
std::int64_t across_at(std::int64_t at, std::int64_t from, std::int64_t across_from,
                       std::int64_t to, std::int64_t across_to) {
    const Wide run = Wide{to} - from;
    const Wide doubled =
        2 * (Wide{across_from} * run + (Wide{at} - from) * (across_to - across_from));
    const Wide sign = run < 0 ? -1 : 1;
    return static_cast<std::int64_t>(-floor_divide(-(sign * doubled - sign * run), 2 * sign * run));
}

/// The pixels in 0..width-1, 0..height-1 of the segment without its end, by the definition.
Places expected(PixelPoint from, PixelPoint to, std::int32_t width, std::int32_t height) {
    Places result;
    const bool steep =
        std::abs(std::int64_t{to.y} - from.y) > std::abs(std::int64_t{to.x} - from.x);
    const std::int64_t a = steep ? from.y : from.x, b = steep ? to.y : to.x;
    const std::int64_t c = steep ? from.x : from.y, d = steep ? to.x : to.y;
    for (std::int64_t at = 0; at < (steep ? height : width); ++at) {
        if (at == b || at < std::min(a, b) || at > std::max(a, b))
            continue;
        const std::int64_t across = across_at(at, a, c, b, d);
        if (across < 0 || across >= (steep ? width : height))
            continue;
        const auto along32 = static_cast<std::int32_t>(at);
        const auto across32 = static_cast<std::int32_t>(across);
        result.emplace(steep ? across32 : along32, steep ? along32 : across32);
    }
    return result;
}

Places drawn(PixelPoint from, PixelPoint to, std::int32_t width, std::int32_t height) {
    Sheet sheet(width, height);
    sheet.raster.segment(from, to, {kRed});
    return sheet.drawn();
}

TEST(RasterSegment, leaves_out_the_end_pixel) {
    EXPECT_EQ(drawn({2, 3}, {5, 3}, 10, 10), (Places{{2, 3}, {3, 3}, {4, 3}}));
    EXPECT_EQ(drawn({5, 3}, {2, 3}, 10, 10), (Places{{5, 3}, {4, 3}, {3, 3}}));
    EXPECT_EQ(drawn({4, 7}, {4, 5}, 10, 10), (Places{{4, 7}, {4, 6}}));
    EXPECT_EQ(drawn({4, 4}, {4, 4}, 10, 10), Places{});
}

TEST(RasterSegment, takes_the_smaller_of_two_equally_near_pixels) {
    EXPECT_EQ(drawn({0, 0}, {2, 1}, 5, 5), (Places{{0, 0}, {1, 0}}));
    EXPECT_EQ(drawn({2, 1}, {0, 0}, 5, 5), (Places{{2, 1}, {1, 0}}));
    EXPECT_EQ(drawn({0, 2}, {2, 1}, 5, 5), (Places{{0, 2}, {1, 1}}));
    EXPECT_EQ(drawn({0, 0}, {1, 2}, 5, 5), (Places{{0, 0}, {0, 1}}));
}

TEST(RasterSegment, follows_the_line_in_every_octant) {
    const PixelPoint centre{10, 10};
    for (std::int32_t x = 0; x <= 20; ++x)
        for (std::int32_t y = 0; y <= 20; ++y) {
            EXPECT_EQ(drawn(centre, {x, y}, 21, 21), expected(centre, {x, y}, 21, 21))
                << x << ' ' << y;
            EXPECT_EQ(drawn({x, y}, centre, 21, 21), expected({x, y}, centre, 21, 21))
                << x << ' ' << y;
        }
}

TEST(RasterSegment, clipped_is_what_stands_in_the_window_of_the_whole) {
    std::mt19937 random(5);
    std::uniform_int_distribution<std::int32_t> place(-60, 90);
    for (int i = 0; i < 4000; ++i) {
        const PixelPoint from{place(random), place(random)};
        const PixelPoint to{place(random), place(random)};
        Sheet whole(151, 151);
        whole.raster.segment({from.x + 60, from.y + 60}, {to.x + 60, to.y + 60}, {kRed});
        Places cut;
        for (const auto& [x, y] : whole.drawn())
            if (x >= 60 && x < 100 && y >= 60 && y < 90)
                cut.emplace(x - 60, y - 60);
        ASSERT_EQ(drawn(from, to, 40, 30), cut)
            << from.x << ' ' << from.y << " to " << to.x << ' ' << to.y;
    }
}

TEST(RasterSegment, is_exact_over_the_whole_range_of_coordinates) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    const std::pair<PixelPoint, PixelPoint> cases[] = {
        {{least, least}, {most, most}},
        {{most, most}, {least, least}},
        {{least, most}, {most, least}},
        {{least, 5}, {most, 6}},
        {{5, least}, {6, most}},
        {{least, -3}, {most, 17}},
        {{least, least + 1}, {most, most}},
        {{3, 4}, {most, most - 9}},
        {{most, least}, {-2, 12}},
        {{least, 0}, {most, 0}},
        {{least, least}, {most, least}},
    };
    for (const auto& [from, to] : cases)
        EXPECT_EQ(drawn(from, to, 40, 30), expected(from, to, 40, 30))
            << from.x << ' ' << from.y << " to " << to.x << ' ' << to.y;
    std::mt19937 random(11);
    std::uniform_int_distribution<std::int32_t> far(least, most);
    std::uniform_int_distribution<std::int32_t> inside(0, 29);
    for (int i = 0; i < 2000; ++i) {
        const PixelPoint from{far(random), far(random)};
        const PixelPoint to{inside(random), inside(random)};
        ASSERT_EQ(drawn(from, to, 40, 30), expected(from, to, 40, 30)) << from.x << ' ' << from.y;
        ASSERT_EQ(drawn(to, from, 40, 30), expected(to, from, 40, 30)) << from.x << ' ' << from.y;
    }
}

TEST(RasterSegment, whole_has_its_end_pixel_too) {
    Sheet sheet(8, 8);
    sheet.raster.whole_segment({1, 1}, {4, 4}, {kRed});
    sheet.raster.whole_segment({6, 2}, {6, 2}, {kRed});
    sheet.raster.whole_segment({9, 9}, {9, 9}, {kRed});
    EXPECT_EQ(sheet.drawn(), (Places{{1, 1}, {2, 2}, {3, 3}, {4, 4}, {6, 2}}));
}

TEST(RasterPolyline, joins_the_points_and_leaves_out_the_last) {
    Sheet sheet(8, 8);
    const PixelPoint points[] = {{1, 1}, {3, 1}, {3, 4}};
    sheet.raster.polyline(points, {kRed});
    EXPECT_EQ(sheet.drawn(), (Places{{1, 1}, {2, 1}, {3, 1}, {3, 2}, {3, 3}}));
}

TEST(RasterPolyline, of_fewer_than_two_points_draws_nothing) {
    Sheet sheet(8, 8);
    const PixelPoint points[] = {{1, 1}};
    sheet.raster.polyline(points, {kRed});
    sheet.raster.polyline({}, {kRed});
    EXPECT_EQ(sheet.drawn(), Places{});
    EXPECT_TRUE(sheet.raster.take_changed().empty());
}

TEST(RasterMode, combines_the_pen_with_what_stands) {
    struct Case {
        DrawMode mode;
        Pixel result;
    };
    for (const Case& one :
         {Case{DrawMode::copy_pen, 0xFF0FF055}, //
          Case{DrawMode::mask_pen_not, 0xFF0D3015}, Case{DrawMode::invert, 0xFF3D3B37}}) {
        Sheet sheet(4, 1);
        sheet.raster.fill(0xFFC2C4C8);
        sheet.raster.segment({0, 0}, {1, 0}, {0xFF0FF055, one.mode});
        sheet.raster.box({2, 0}, {3, 0}, {0xFF0FF055, one.mode});
        EXPECT_EQ(sheet.at(0, 0), one.result) << static_cast<int>(one.mode);
        EXPECT_EQ(sheet.at(2, 0), one.result) << static_cast<int>(one.mode);
        EXPECT_EQ(sheet.at(1, 0), 0xFFC2C4C8);
    }
}

TEST(RasterMode, inverted_twice_is_as_before) {
    Sheet sheet(20, 20);
    const std::vector<Pixel> before = sheet.pixels;
    sheet.raster.whole_segment({2, 3}, {17, 9}, {kRed, DrawMode::invert});
    EXPECT_NE(sheet.pixels, before);
    sheet.raster.whole_segment({17, 9}, {2, 3}, {kRed, DrawMode::invert});
    EXPECT_EQ(sheet.pixels, before);
}

TEST(RasterBox, holds_both_corners_in_any_order_and_is_clipped) {
    Sheet sheet(6, 6);
    sheet.raster.box({3, 2}, {1, 1}, {kRed});
    EXPECT_EQ(sheet.drawn(), (Places{{1, 1}, {2, 1}, {3, 1}, {1, 2}, {2, 2}, {3, 2}}));
    Sheet clipped(6, 6);
    clipped.raster.box({std::numeric_limits<std::int32_t>::min(), 5},
                       {0, std::numeric_limits<std::int32_t>::max()}, {kRed});
    EXPECT_EQ(clipped.drawn(), (Places{{0, 5}}));
}

TEST(RasterChanged, is_the_box_of_what_was_drawn_since_the_last_ask) {
    Sheet sheet(50, 40);
    EXPECT_TRUE(sheet.raster.take_changed().empty());
    sheet.raster.segment({5, 30}, {20, 8}, {kRed});
    sheet.raster.box({30, 12}, {32, 14}, {kRed});
    EXPECT_EQ(sheet.raster.take_changed(), (PixelBox{5, 8, 33, 31}));
    EXPECT_TRUE(sheet.raster.take_changed().empty());
    sheet.raster.segment({-100, 5}, {3, 500}, {kRed});
    EXPECT_EQ(sheet.raster.take_changed(), (PixelBox{0, 5, 4, 40}));
    sheet.raster.segment({-100, 5}, {-3, 500}, {kRed});
    EXPECT_TRUE(sheet.raster.take_changed().empty());
    sheet.raster.fill(kRed);
    EXPECT_EQ(sheet.raster.take_changed(), (PixelBox{0, 0, 50, 40}));
}

} // namespace
} // namespace velmora
