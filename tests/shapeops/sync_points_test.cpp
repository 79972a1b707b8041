#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::Points;
using test::set_shape;
using test::shape;
using test::ShownBox;

class SyncPoints : public ::testing::Test {
  protected:
    SyncPoints() {
        set_shape({{0, 0}, {1, 0}, {2, 0, 1}});
        session.TotalSinc = 5;
        session.wininfo.TxtTotalCtrlPtos = std::string("7");
    }
    [[nodiscard]] std::ptrdiff_t repaints() const {
        return std::ranges::count(platform_.pic.operations, "cls");
    }
    static void expect_shown(int text, int total) {
        EXPECT_EQ(session.TotalSinc, total);
        EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, std::to_string(text));
    }
    static Points with_syncs(int count, std::initializer_list<int> syncs) {
        Points points(static_cast<std::size_t>(count));
        for (const int index : syncs)
            points[static_cast<std::size_t>(index)].Sinc = 1;
        return points;
    }
    static Points five(std::initializer_list<int> syncs) { return with_syncs(5, syncs); }
    test::RecordingPlatform platform_{test::with_database};
};

TEST_F(SyncPoints, Insert_and_Delete_flip_the_selected_point_once) {
    session.PtoSel = 1;
    Insert_Pto_Sinc();
    EXPECT_EQ(Forma.Pto[1].Sinc, 1);
    expect_shown(8, 6);
    EXPECT_EQ(repaints(), 1);
    Insert_Pto_Sinc();
    expect_shown(8, 6);
    EXPECT_EQ(repaints(), 1);
    Delete_Pto_Sinc();
    EXPECT_EQ(Forma.Pto[1].Sinc, 0);
    expect_shown(7, 5);
    EXPECT_EQ(repaints(), 2);
    Delete_Pto_Sinc();
    expect_shown(7, 5);
    EXPECT_EQ(repaints(), 2);
    EXPECT_EQ(shape().size(), 3U);
    EXPECT_EQ(session.Velmora.Lst_Coords_fill, 0U);
}

TEST_F(SyncPoints, without_a_selection_nothing_happens) {
    const Points before = shape();
    for (const int selected : {-1, 3}) {
        session.PtoSel = selected;
        Insert_Pto_Sinc();
        Delete_Pto_Sinc();
    }
    EXPECT_EQ(shape(), before);
    expect_shown(7, 5);
    EXPECT_EQ(repaints(), 0);
    EXPECT_TRUE(platform_.dialogs.boxes.empty());
}

TEST_F(SyncPoints, Insert_All_leaves_point_0_and_shows_one_less) {
    for (const bool first_marked : {false, true}) {
        set_shape(first_marked ? five({0, 3}) : five({3}));
        Insert_All_Pto_Sinc();
        EXPECT_EQ(shape(), first_marked ? five({0, 1, 2, 3, 4}) : five({1, 2, 3, 4}));
        expect_shown(3, 3);
    }
    EXPECT_EQ(repaints(), 2);
}

TEST_F(SyncPoints, Delete_All_clears_every_mark) {
    set_shape(five({0, 1, 4}));
    Delete_All_Pto_Sinc();
    EXPECT_EQ(shape(), five({}));
    expect_shown(0, 0);
    EXPECT_EQ(repaints(), 1);
}

TEST_F(SyncPoints, a_single_point_is_no_shape) {
    set_shape({{0, 0, 1}});
    Insert_All_Pto_Sinc();
    Delete_All_Pto_Sinc();
    ASSERT_EQ(platform_.dialogs.boxes.size(), 2U);
    for (const ShownBox& box : platform_.dialogs.boxes)
        EXPECT_EQ(box.text, "No hay ninguna forma cargada!");
    EXPECT_EQ(shape(), (Points{{0, 0, 1}}));
    expect_shown(7, 5);
}

TEST_F(SyncPoints, no_repaint_while_NoRedraw_is_set) {
    session.NoRedraw = True;
    session.PtoSel = 0;
    for (void (*command)() :
         {Insert_Pto_Sinc, Delete_Pto_Sinc, Insert_All_Pto_Sinc, Delete_All_Pto_Sinc})
        command();
    EXPECT_EQ(repaints(), 0);
}

TEST_F(SyncPoints, Pts_To_Next_Sinc_counts_plain_points_with_one_wrap) {
    struct Case {
        std::initializer_list<int> syncs;
        int selected;
        int shown;
    };
    const Case cases[] = {
        {{2, 5}, 2, 2}, {{2, 5}, 5, 2}, // over 0 and 1 behind the wrap
        {{3}, 3, 5},                    // itself again
        {{0, 1}, 0, 0}, {{0, 5}, 4, 0}, {{0}, 0, 5}, {{5}, 0, 4},
    };
    for (const Case& c : cases) {
        platform_.dialogs.boxes.clear();
        set_shape(with_syncs(6, c.syncs));
        session.PtoSel = c.selected;
        Pts_To_Next_Sinc();
        ASSERT_EQ(platform_.dialogs.boxes.size(), 1U);
        EXPECT_EQ(platform_.dialogs.boxes[0],
                  (ShownBox{"Número de puntos hasta el siguiente punto de sincronismo: " +
                                std::to_string(c.shown),
                            64, "Velmora 1.0"}));
    }
}

TEST_F(SyncPoints, Pts_To_Next_Sinc_without_a_sync_point_says_nothing) {
    set_shape(five({}));
    session.PtoSel = 2;
    Pts_To_Next_Sinc();
    EXPECT_TRUE(platform_.dialogs.boxes.empty());
}

} // namespace
} // namespace velmora
