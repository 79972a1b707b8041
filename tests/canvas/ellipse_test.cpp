#include "canvas/raster.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace velmora {
namespace {

constexpr Pixel kPaper = 0xFFFFFFFF;
constexpr Pixel kInk = 0xFF0000FF;

/// A drawing of the raster: '#' drawn on, '.' paper.
std::vector<std::string> picture_of(const PixelBox& box, std::int32_t width, std::int32_t height) {
    std::vector<Pixel> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                              kPaper);
    Raster raster(pixels, width);
    raster.ellipse(box, kInk);
    std::vector<std::string> rows(static_cast<std::size_t>(height));
    for (std::size_t at = 0; at < pixels.size(); ++at)
        rows[at / static_cast<std::size_t>(width)] += pixels[at] == kPaper ? '.' : '#';
    return rows;
}

using Rows = std::vector<std::string>;

TEST(Ellipse, the_glyph_of_a_point) {
    EXPECT_EQ(picture_of({1, 1, 7, 7}, 8, 8), (Rows{
                                                  "........",
                                                  "..####..",
                                                  ".#....#.",
                                                  ".#....#.",
                                                  ".#....#.",
                                                  ".#....#.",
                                                  "..####..",
                                                  "........",
                                              }));
}

TEST(Ellipse, the_glyph_of_a_sync_point) {
    EXPECT_EQ(picture_of({0, 0, 10, 10}, 10, 10), (Rows{
                                                      "...####...",
                                                      ".##....##.",
                                                      ".#......#.",
                                                      "#........#",
                                                      "#........#",
                                                      "#........#",
                                                      "#........#",
                                                      ".#......#.",
                                                      ".##....##.",
                                                      "...####...",
                                                  }));
}

/// Paper that can be reached from the corner by steps along the axes.
void flood(Rows& rows, std::size_t x, std::size_t y) {
    if (rows[y][x] != '.')
        return;
    rows[y][x] = ' ';
    if (x > 0)
        flood(rows, x - 1, y);
    if (y > 0)
        flood(rows, x, y - 1);
    if (x + 1 < rows[y].size())
        flood(rows, x + 1, y);
    if (y + 1 < rows.size())
        flood(rows, x, y + 1);
}

TEST(Ellipse, is_closed_and_symmetric_in_every_size) {
    for (std::int32_t width = 1; width <= 48; ++width)
        for (std::int32_t height = 1; height <= 48; ++height) {
            Rows rows = picture_of({1, 1, width + 1, height + 1}, width + 2, height + 2);
            Rows upside_down(rows.rbegin(), rows.rend());
            Rows mirrored;
            for (const std::string& row : rows)
                mirrored.emplace_back(row.rbegin(), row.rend());
            ASSERT_EQ(rows, upside_down) << width << ' ' << height;
            ASSERT_EQ(rows, mirrored) << width << ' ' << height;
            ASSERT_EQ(rows[0].find('#'), std::string::npos);
            ASSERT_NE(rows[1].find('#'), std::string::npos) << width << ' ' << height;
            const auto middle_row = static_cast<std::size_t>(height + 1) / 2;
            ASSERT_EQ(rows[middle_row][1], '#') << width << ' ' << height;
            flood(rows, 0, 0);
            if (width > 4 && height > 4) {
                ASSERT_EQ(rows[middle_row][static_cast<std::size_t>(width + 1) / 2], '.')
                    << width << ' ' << height;
            }
        }
}

TEST(Ellipse, at_the_edge_is_the_part_that_falls_on_the_raster) {
    for (const std::int32_t size : {6, 10, 33, 40})
        for (std::int32_t x = -size; x <= 20; ++x)
            for (std::int32_t y = -size; y <= 20; y += 3) {
                const Rows whole =
                    picture_of({x + 50, y + 50, x + 50 + size, y + 50 + size}, 120, 120);
                Rows cut;
                for (std::size_t row = 50; row < 70; ++row)
                    cut.push_back(whole[row].substr(50, 20));
                ASSERT_EQ(picture_of({x, y, x + size, y + size}, 20, 20), cut) << x << ' ' << y;
            }
}

TEST(Ellipse, without_width_or_height_draws_nothing) {
    const Rows blank(6, "......");
    EXPECT_EQ(picture_of({2, 2, 2, 5}, 6, 6), blank);
    EXPECT_EQ(picture_of({2, 2, 5, 2}, 6, 6), blank);
}

TEST(Ellipse, takes_its_corners_in_any_order) {
    EXPECT_EQ(picture_of({7, 7, 1, 1}, 8, 8), picture_of({1, 1, 7, 7}, 8, 8));
}

TEST(Ellipse, spans_the_whole_range_of_coordinates) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    const Rows rows = picture_of({least, 2, most, 8}, 12, 12);
    EXPECT_EQ(rows[2], "############");
    EXPECT_EQ(rows[7], "############");
    EXPECT_EQ(rows[4], "............");
    EXPECT_EQ(picture_of({least, least, most, most}, 12, 12), Rows(12, "............"));
}

} // namespace
} // namespace velmora
