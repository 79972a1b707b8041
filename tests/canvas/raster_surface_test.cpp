#include "canvas/colours.h"
#include "canvas/raster_surface.h"
#include "runtime/error.h"

#include <gtest/gtest.h>

#include <ostream>

namespace velmora {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kStoredRed = 255;
constexpr std::uint32_t kRed = 0xFF0000;

class TestSurface : public RasterSurface {
  public:
    TestSurface(std::int32_t width, std::int32_t height) : RasterSurface(width, height) {}
    void set_picture(std::string_view) override {}
    void save_part(std::string_view, PixelPoint, PixelPoint) override {}
    void show(const PixelBox& changed) override { shown.push_back(changed); }
    using RasterSurface::put_picture;

    std::vector<PixelBox> shown;
};

TEST(ScreenRgb, turns_the_bytes_and_knows_the_system_colours) {
    EXPECT_EQ(screen_rgb(0x123456), 0x563412U);
    EXPECT_EQ(screen_rgb(255), 0xFF0000U);
    EXPECT_EQ(screen_rgb(0x80000000), 0xC8C8C8U);
    EXPECT_EQ(screen_rgb(0x80000005), 0xFFFFFFU);
    EXPECT_EQ(screen_rgb(0x8000000F), 0xF0F0F0U);
    EXPECT_EQ(screen_rgb(0x80000018), 0xFFFFE1U);
    EXPECT_EQ(screen_rgb(0x80000099), 0U);
}

TEST(RasterSurface, measures_in_twips) {
    const TestSurface pic(2000, 1000);
    EXPECT_EQ(pic.Width(), 30000);
    EXPECT_EQ(pic.Height(), 15000);
}

TEST(RasterSurface, starts_in_the_system_background_and_clears_to_its_own) {
    TestSurface pic(8, 8);
    EXPECT_EQ(pic.pixel(3, 3), 0xC8C8C8U);
    pic.set_back_color(kWhite);
    pic.set_pen(kStoredRed);
    pic.Line(0, 0, 7, 7);
    EXPECT_EQ(pic.pixel(3, 3), kRed);
    pic.Cls();
    EXPECT_EQ(pic.pixel(3, 3), kWhite);
}

TEST(RasterSurface, line_to_leaves_out_the_end_and_moves_there) {
    TestSurface pic(10, 10);
    pic.set_pen(kStoredRed);
    pic.MoveToEx(1, 1);
    pic.LineTo(4, 1);
    EXPECT_EQ(pic.pixel(3, 1), kRed);
    EXPECT_NE(pic.pixel(4, 1), kRed);
    pic.LineTo(4, 3);
    EXPECT_EQ(pic.pixel(4, 1), kRed);
    EXPECT_NE(pic.pixel(4, 3), kRed);
}

TEST(RasterSurface, line_rounds_its_ends_and_holds_both) {
    TestSurface pic(10, 10);
    pic.set_pen(kStoredRed);
    pic.Line(0.5F, 1.5F, 4.4F, 2.0F);
    EXPECT_EQ(pic.pixel(0, 2), kRed);
    EXPECT_EQ(pic.pixel(4, 2), kRed);
    EXPECT_NE(pic.pixel(5, 2), kRed);
}

TEST(RasterSurface, line_takes_floats_of_any_size) {
    TestSurface pic(10, 10);
    pic.set_pen(kStoredRed);
    pic.Line(-3e38F, 4, 3e38F, 4);
    pic.Line(7, 3e38F, 7, -3e38F);
    for (std::int32_t at = 0; at < 10; ++at) {
        EXPECT_EQ(pic.pixel(at, 4), kRed);
        EXPECT_EQ(pic.pixel(7, at), kRed);
    }
    TestSurface beside(10, 10);
    beside.set_pen(kStoredRed);
    beside.Line(2e9F, 4, 3e38F, 4);
    beside.Line(-3e38F, 3e38F, 3e38F, 3e38F);
    beside.present();
    EXPECT_TRUE(beside.shown.empty());
}

TEST(RasterSurface, only_line_and_fill_box_heed_the_mode) {
    TestSurface pic(20, 20);
    pic.set_back_color(kWhite);
    pic.set_pen(kStoredRed);
    pic.set_draw_mode(DrawMode::invert);
    pic.Line(0, 0, 3, 0);
    pic.FillBox(0, 2, 3, 3, kStoredRed);
    EXPECT_EQ(pic.pixel(0, 0), 0U);
    EXPECT_EQ(pic.pixel(0, 2), 0U);
    pic.MoveToEx(0, 5);
    pic.LineTo(3, 5);
    const PixelPoint points[] = {{0, 7}, {3, 7}};
    pic.Polyline(points);
    pic.Arc(10, 10, 16, 16);
    EXPECT_EQ(pic.pixel(0, 5), kRed);
    EXPECT_EQ(pic.pixel(0, 7), kRed);
    EXPECT_EQ(pic.pixel(12, 10), kRed);
    pic.set_draw_mode(DrawMode::copy_pen);
    pic.Line(0, 0, 3, 0);
    EXPECT_EQ(pic.pixel(0, 0), kRed);
}

TEST(RasterSurface, fill_box_has_its_own_colour) {
    TestSurface pic(10, 10);
    pic.set_pen(0);
    pic.FillBox(1.6F, 2.4F, 5.6F, 6.4F, kStoredRed);
    EXPECT_EQ(pic.pixel(2, 2), kRed);
    EXPECT_EQ(pic.pixel(6, 6), kRed);
    EXPECT_NE(pic.pixel(1, 2), kRed);
    EXPECT_NE(pic.pixel(6, 7), kRed);
    pic.FillBox(-3e38F, 9, 3e38F, 3e38F, kStoredRed);
    EXPECT_EQ(pic.pixel(0, 9), kRed);
}

TEST(RasterSurface, present_shows_what_changed_once) {
    TestSurface pic(30, 30);
    pic.set_pen(kStoredRed);
    pic.Line(3, 4, 10, 6);
    pic.Arc(8, 8, 14, 14);
    EXPECT_TRUE(pic.shown.empty());
    pic.present();
    pic.present();
    ASSERT_EQ(pic.shown.size(), 1U);
    EXPECT_EQ(pic.shown[0].left, 3);
    EXPECT_EQ(pic.shown[0].top, 4);
    EXPECT_LE(14, pic.shown[0].right);
    EXPECT_GE(15, pic.shown[0].right);
}

TEST(RasterSurface, a_picture_stands_at_the_corner_under_the_drawing) {
    TestSurface pic(10, 10);
    pic.set_back_color(kWhite);
    pic.set_pen(kStoredRed);
    pic.Line(0, 0, 9, 0);
    const std::vector<Pixel> picture(6, 0xFF0000FF);
    pic.put_picture(picture, 3);
    EXPECT_EQ(pic.pixel(0, 0), kRed);
    EXPECT_EQ(pic.pixel(2, 1), 0x0000FFU);
    EXPECT_EQ(pic.pixel(3, 1), kWhite);
    EXPECT_EQ(pic.pixel(2, 2), kWhite);
    pic.Cls();
    EXPECT_EQ(pic.pixel(0, 0), 0x0000FFU);
    pic.Line(0, 0, 9, 0);
    pic.put_picture({}, 0);
    EXPECT_EQ(pic.pixel(2, 1), kWhite);
    EXPECT_EQ(pic.pixel(2, 0), kRed);
    pic.Cls();
    EXPECT_EQ(pic.pixel(0, 0), kWhite);
}

TEST(RasterSurface, a_picture_larger_than_the_surface_is_cut) {
    TestSurface pic(4, 3);
    std::vector<Pixel> picture(6 * 5, 0xFF00FF00);
    picture[6 * 2 + 3] = 0xFF000011;
    pic.put_picture(picture, 6);
    EXPECT_EQ(pic.pixel(3, 2), 0x000011U);
    EXPECT_EQ(pic.pixel(0, 0), 0x00FF00U);
}

TEST(RasterSurface, a_transparent_picture_shows_the_background) {
    TestSurface pic(4, 4);
    const std::vector<Pixel> picture{0x00123456, 0x800000FF};
    pic.put_picture(picture, 2);
    pic.set_back_color(kWhite);
    EXPECT_EQ(pic.pixel(0, 0), kWhite);
    EXPECT_EQ(pic.pixel(1, 0), 0x7F7FFFU);
    pic.Cls();
    EXPECT_EQ(pic.pixel(1, 0), 0x7F7FFFU);
}

TEST(RasterSurface, pixel_outside_raises9) {
    const TestSurface pic(4, 4);
    for (const PixelPoint outside : {PixelPoint{4, 0}, PixelPoint{0, 4}, PixelPoint{-1, 0}}) {
        try {
            static_cast<void>(pic.pixel(outside.x, outside.y));
            ADD_FAILURE() << outside.x << ' ' << outside.y;
        } catch (const RuntimeError& failure) {
            EXPECT_EQ(failure.number, error::subscript);
        }
    }
}

} // namespace
} // namespace velmora
