#include "cutprep/previews.h"

#include "fakes/watching.h"
#include "workbench.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using Operations = std::vector<std::string>;

struct PreviewsTest : testing::Test, test::Workbench {
    PreviewsTest() {
        session.cl_punto = 7;
        session.cl_puntosinc = 8;
    }
    Operations& operations = previews.Pic_A.operations;
};

TEST_F(PreviewsTest, an_outline_within_one_unit_fills_the_picture_and_tells_its_direction) {
    test::fill(session.PtosA, {{0, 0}, {1, 0, 1}, {1, 0.5}, {0, 0.5}});
    DibujaMini_A();
    EXPECT_EQ(operations, (Operations{
                              "cls",
                              "line 100 2100 2100 2100 255",
                              "line 2100 2100 2100 1100 16711680",
                              "line 2100 1100 100 1100 0",
                              "line 100 1100 100 2100 0",
                              "circle 100 2100 30 7",
                              "circle 2100 2100 30 7",
                              "circle 2100 2100 80 8",
                              "circle 2100 1100 30 7",
                              "circle 100 1100 30 7",
                          }));
    EXPECT_EQ(machine.windows.yields, 2);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(PreviewsTest, one_point_has_its_closing_chord_in_black) {
    test::fill(session.PtosA, {{1, 1}});
    DibujaMini_A();
    // The origin lies GetMinX times the factor to the right, and GetMinY to the top.
    EXPECT_EQ(operations, (Operations{"cls", "line 4100 99 4100 99 0", "circle 4100 99 30 7"}));
}

TEST_F(PreviewsTest, two_points_have_a_red_chord_and_a_black_one) {
    test::fill(session.PtosA, {{0, 0}, {1, 0.5}});
    DibujaMini_A();
    EXPECT_EQ(operations.at(1), "line 100 2100 2100 1100 255");
    EXPECT_EQ(operations.at(2), "line 2100 1100 100 2100 0");
}

TEST_F(PreviewsTest, a_larger_outline_is_normalised_by_the_larger_extent_and_scaled_by_its_own) {
    // Factor: the smaller of 2000 / 10 and 2000 / 40; normaliser 40.
    test::fill(session.PtosA, {{0, 0}, {10, 40}});
    DibujaMini_A();
    EXPECT_EQ(operations.at(1), "line 100 2100 112.5 2050 255");
}

TEST_F(PreviewsTest, an_outline_past_the_picture_takes_the_larger_inverse_ratio) {
    // Factor: the larger of 4000 / 2000 and 500 / 2000.
    test::fill(session.PtosA, {{0, 0}, {4000, 500}});
    DibujaMini_A();
    EXPECT_EQ(operations.at(1), "line 100 2100 102 2099.75 255");
}

TEST_F(PreviewsTest, the_extents_are_the_largest_coordinates_and_not_widths) {
    test::fill(session.PtosA, {{-1, 0.5}, {1, 0.5}});
    DibujaMini_A();
    // GetMinX is -1: the origin lies 2000 to the left of the margin.
    EXPECT_EQ(operations.at(1), "line -3900 1099.5 100 1099.5 255");
}

TEST_F(PreviewsTest, width_and_height_of_the_picture_count_each_for_itself) {
    previews.Pic_A.width = 700;
    previews.Pic_A.height = 1200;
    test::fill(session.PtosA, {{0, 0}, {1, 1}});
    DibujaMini_A();
    EXPECT_EQ(operations.at(1), "line 100 1100 600 600 255");
}

TEST_F(PreviewsTest, a_change_of_colour_shows_at_the_next_drawing) {
    test::fill(session.PtosA, {{1, 1, 1}});
    DibujaMini_A();
    session.cl_punto = 70;
    session.cl_puntosinc = 80;
    operations.clear();
    DibujaMini_A();
    EXPECT_EQ(operations.at(2), "circle 4100 99 30 70");
    EXPECT_EQ(operations.at(3), "circle 4100 99 80 80");
}

TEST_F(PreviewsTest, each_routine_has_its_array_and_its_picture) {
    const auto draws = [&](void (*draw)(), test::RecordingPreview& picture,
                           const Array<Pto>& array) {
        for (auto* one :
             {&previews.Pic_A, &previews.Pic_B, &previews.New_Pic_A, &previews.New_Pic_B})
            one->operations.clear();
        draw();
        // cls, one chord a point, one circle a point
        EXPECT_EQ(picture.operations.size(), 1 + 2 * array.size());
    };
    test::fill(session.PtosA, {{0, 1}});
    test::fill(session.PtosB, {{0, 1}, {1, 1}});
    test::fill(session.PtosA2, {{0, 1}, {1, 1}, {2, 2}});
    test::fill(session.PtosB2, {{0, 1}, {1, 1}, {2, 2}, {3, 3}});
    for (auto* array : {&session.PtosA, &session.PtosB, &session.PtosA2, &session.PtosB2})
        (*array)[0].X = 1;
    draws(DibujaMini_A, previews.Pic_A, session.PtosA);
    draws(DibujaMini_B, previews.Pic_B, session.PtosB);
    draws(DibujaNewMini_A, previews.Pic_A, session.PtosA2);
    draws(DibujaNewMini_B, previews.Pic_B, session.PtosB2);
    draws(DibujaDefMini_A, previews.New_Pic_A, session.PtosA2);
    draws(DibujaDefMini_B, previews.New_Pic_B, session.PtosB2);
}

TEST_F(PreviewsTest, an_outline_without_a_positive_coordinate_shows_the_box_with_11) {
    for (auto* array : {&session.PtosA, &session.PtosB, &session.PtosA2, &session.PtosB2})
        test::fill(*array, {{0, 5}, {-2, 1}});
    const struct {
        void (*draw)();
        std::string prefix;
    } cases[] = {
        {DibujaMini_A, "Error DibujaMini_A nº: "},
        {DibujaMini_B, "Error DibujaMini_B nº: "},
        {DibujaNewMini_A, "Error DibujaNewMini_A nº: "},
        {DibujaNewMini_B, "Error DibujaNewMini_B nº: "},
        {DibujaDefMini_A, "Error DibujaNewMini_A nº: "},
        {DibujaDefMini_B, "Error DibujaDefMini_B nº: "},
    };
    for (const auto& [draw, prefix] : cases) {
        machine.dialogs.boxes.clear();
        draw();
        const std::string text = prefix + "11  - Desc: " + error_description(11, 'E');
        EXPECT_EQ(machine.dialogs.boxes, (std::vector<test::ShownBox>{{text, 0, "Velmora"}}));
    }
    EXPECT_TRUE(operations.empty()); // what stood in the picture stays
}

TEST_F(PreviewsTest, a_picture_of_the_margins_size_shows_the_box_with_11_or_6) {
    previews.Pic_A.width = 200;
    test::fill(session.PtosA, {{1, 1}});
    DibujaMini_A();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(machine.dialogs.boxes[0].text.starts_with("Error DibujaMini_A nº: 11"));
    test::fill(session.PtosA, {{-1, 1}});
    DibujaMini_A();
    EXPECT_TRUE(machine.dialogs.boxes[1].text.starts_with("Error DibujaMini_A nº: 6"));
}

TEST_F(PreviewsTest, a_window_that_closes_under_the_drawing_ends_it) {
    const test::WatchingTurns windows([] { set_previews(nullptr); });
    test::fill(session.PtosA, {{1, 1}});
    DibujaMini_A();
    EXPECT_EQ(operations.size(), 2U); // the points are missing
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(machine.dialogs.boxes[0].text.starts_with("Error DibujaMini_A nº: 91"));
}

TEST_F(PreviewsTest, without_pictures_the_box_says_91) {
    set_previews(nullptr);
    test::fill(session.PtosA, {{1, 1}});
    DibujaMini_A();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_TRUE(machine.dialogs.boxes[0].text.starts_with("Error DibujaMini_A nº: 91"));
}

} // namespace
} // namespace velmora
