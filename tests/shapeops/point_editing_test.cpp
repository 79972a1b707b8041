#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/error_number.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::number_of;
using test::Points;
using test::set_shape;
using test::shape;

class PointEditing : public ::testing::Test {
  protected:
    PointEditing() {
        session.TotalSinc = 5;
        session.wininfo.TxtTotalCtrlPtos = std::string("7");
        session.TotalPtos = -9;
    }
    [[nodiscard]] static bool list_refreshed() { return session.Velmora.Lst_Coords_fill != 0; }
    [[nodiscard]] std::ptrdiff_t repaints() const {
        return std::ranges::count(platform_.pic.operations, "cls");
    }
    [[nodiscard]] std::vector<std::string> boxes() const {
        std::vector<std::string> texts;
        for (const auto& box : platform_.dialogs.boxes)
            texts.push_back(box.text);
        return texts;
    }
    static void expect_points_shown(int count) {
        EXPECT_EQ(session.TotalPtos, count);
        EXPECT_EQ(session.wininfo.TxtTotalPtos, std::to_string(count));
    }
    static void expect_syncs_shown(int text, int total) {
        EXPECT_EQ(session.TotalSinc, total);
        EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, std::to_string(text));
    }
    test::RecordingPlatform platform_{test::with_database};
};

TEST_F(PointEditing, Insert_Pto_puts_the_midpoint_before_the_selected_point) {
    struct Case {
        const char* what;
        Points before;
        int selected;
        Points after;
    };
    const Case cases[] = {
        {"X rising", {{0, 0}, {2, 0}, {4, 0}, {6, 0}}, 3, {{0, 0}, {2, 0}, {4, 0}, {5, 0}, {6, 0}}},
        {"Y rising", {{0, 0}, {0, 1}, {0, 4}}, 2, {{0, 0}, {0, 1}, {0, 2.5}, {0, 4}}},
        {"both falling", {{9, 8}, {3, -2}, {0, 0}}, 1, {{9, 8}, {6, 3}, {3, -2}, {0, 0}}},
        {"the mark of the selected point stays with it",
         {{0, 0}, {2, 2, 1, 1}, {0, 4}},
         1,
         {{0, 0}, {1, 1, 0, 1}, {2, 2, 1, 1}, {0, 4}}},
        // Half the difference on top of the lower end, not half the sum.
        {"to the last bit",
         {{-2.3, 6.1}, {1.9, -0.4}, {0, 0}},
         1,
         {{-2.3, 6.1}, {-0.20000000000000018, 2.85}, {1.9, -0.4}, {0, 0}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        set_shape(c.before);
        session.PtoSel = c.selected;
        Insert_Pto();
        EXPECT_EQ(shape(), c.after);
        EXPECT_EQ(session.PtoSel, c.selected);
        expect_points_shown(static_cast<int>(c.after.size()));
    }
    expect_syncs_shown(7, 5);
    EXPECT_FALSE(list_refreshed());
    EXPECT_EQ(repaints(), std::ssize(cases));
}

// a is the last point, b the first; the new point goes to the end.
TEST_F(PointEditing, Insert_Pto_before_the_first_point_goes_by_its_table) {
    struct Case {
        const char* what;
        Pto last, first, inserted;
    };
    const Case cases[] = {
        {"X a > b, b = 0", {5, 1}, {0, 1}, {2.5, 1}},
        {"X a > b, b not 0", {5, 1}, {2, 1}, {5, 1}},
        {"X a < b, Y of the last 0", {2, 0}, {5, 0}, {2.5, 0}},
        {"X a < b, Y of the last not 0", {2, 1}, {5, 1}, {2, 1}},
        {"X a < b, a = 0 but Y of the last not 0", {0, 1}, {5, 1}, {0, 1}},
        {"X a = b", {3, 1}, {3, 1}, {3, 1}},
        {"Y a > b, b = 0", {1, 5}, {1, 0}, {1, 2.5}},
        {"Y a > b, b not 0", {1, 5}, {1, 2}, {1, 5}},
        {"Y a < b, a = 0", {1, 0}, {1, 5}, {1, 2.5}},
        {"Y a < b, a not 0", {1, 2}, {1, 5}, {1, 2}},
        {"Y a = b", {1, 3}, {1, 3}, {1, 3}},
        {"negative a > b", {-1, 1}, {-4, 1}, {-1, 1}},
        {"0.7 from 0.1 and back", {0.7, 1}, {0.1, 1}, {0.7, 1}},
        {"(a - b) + b in its last bit", {0.3, 1}, {-0.1, 1}, {0.30000000000000004, 1}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        set_shape({c.first, {1, 1}, c.last});
        session.PtoSel = 0;
        Insert_Pto();
        EXPECT_EQ(shape(), (Points{c.first, {1, 1}, c.last, c.inserted}));
        EXPECT_EQ(session.PtoSel, 0);
    }
}

TEST_F(PointEditing, Insert_Pto_before_the_first_of_a_square) {
    set_shape({{0, 0}, {4, 0}, {4, 4}, {0, 4}});
    session.PtoSel = 0;
    Insert_Pto();
    EXPECT_EQ(shape(), (Points{{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 2}}));
    expect_points_shown(5);
    EXPECT_EQ(repaints(), 1);
}

TEST_F(PointEditing, Insert_Pto_before_the_first_takes_its_sync_mark_uncounted) {
    set_shape({{0, 0, 1}, {4, 0, 1}, {4, 4, 1}});
    session.PtoSel = 0;
    Insert_Pto();
    EXPECT_EQ(shape(), (Points{{0, 0, 0}, {4, 0, 1}, {4, 4, 1}, {2, 2, 0}}));
    expect_syncs_shown(7, 5);
}

TEST_F(PointEditing, Insert_Pto_works_on_the_empty_document) {
    session.PtoSel = 0;
    Insert_Pto();
    EXPECT_EQ(shape(), (Points{{0, 0}, {0, 0}}));
}

TEST_F(PointEditing, Insert_Pto_and_insert_ini_without_a_selection_raise_9) {
    const Points before = {{0, 0}, {1, 1}, {2, 0}};
    for (const int selected : {-1, 3, 4}) {
        set_shape(before);
        session.PtoSel = selected;
        EXPECT_EQ(number_of(Insert_Pto), 9);
        EXPECT_EQ(number_of(insert_ini), 9);
    }
}

TEST_F(PointEditing, Delete_Pto_moves_the_selection_back) {
    struct Case {
        int selected;
        Points after;
        int then_selected;
    };
    const Case cases[] = {
        {1, {{0, 0}, {2, 0}, {3, 0, 1}}, 0},
        {0, {{1, 0}, {2, 0}, {3, 0, 1}}, 2}, // the last point is selected
        {2, {{0, 0}, {1, 0}, {3, 0, 1}}, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.selected);
        set_shape({{0, 0}, {1, 0}, {2, 0}, {3, 0, 1}});
        session.PtoSel = c.selected;
        Delete_Pto();
        EXPECT_EQ(shape(), c.after);
        EXPECT_EQ(session.PtoSel, c.then_selected);
        expect_points_shown(3);
        expect_syncs_shown(7, 5);
    }
    EXPECT_EQ(repaints(), 3);
    EXPECT_FALSE(list_refreshed());
    EXPECT_TRUE(boxes().empty());
}

TEST_F(PointEditing, Delete_Pto_counts_a_sync_point_down) {
    set_shape({{0, 0}, {1, 0}, {2, 0}, {3, 0, 1}});
    session.PtoSel = 3;
    Delete_Pto();
    EXPECT_EQ(shape(), (Points{{0, 0}, {1, 0}, {2, 0}}));
    EXPECT_EQ(session.PtoSel, 2);
    expect_syncs_shown(6, 4);
    expect_points_shown(3);
}

TEST_F(PointEditing, Delete_Pto_keeps_three_points) {
    const std::pair<Points, const char*> cases[] = {
        {{{0, 0}}, "No hay ninguna forma cargada!"},
        {{{0, 0}, {1, 1}}, "No se pueden eliminar más puntos!"},
        {{{0, 0}, {1, 1}, {2, 0, 1}}, "No se pueden eliminar más puntos!"},
    };
    for (const auto& [points, message] : cases) {
        for (const int selected : {0, -1}) {
            platform_.dialogs.boxes.clear();
            set_shape(points);
            session.PtoSel = selected;
            Delete_Pto();
            EXPECT_EQ(shape(), points);
            EXPECT_EQ(boxes(), std::vector<std::string>{message});
        }
    }
    EXPECT_EQ(repaints(), 0);
}

TEST_F(PointEditing, without_a_selection_nothing_happens) {
    const Points before = {{0, 0, 1}, {1, 0, 1}, {2, 0, 1}, {3, 0, 1, 1}};
    for (void (*command)() : {Delete_Pto, Set_CutStart, Insert_N_Ptos}) {
        for (const int selected : {-1, 4}) {
            set_shape(before);
            session.PtoSel = selected;
            command();
            EXPECT_EQ(shape(), before);
            EXPECT_EQ(session.PtoSel, selected);
        }
    }
    EXPECT_EQ(session.PtoSelAnt, -1);
    EXPECT_EQ(session.PtosToInsertMode, False);
    EXPECT_EQ(session.TotalPtos, -9);
    EXPECT_EQ(repaints(), 0);
    EXPECT_FALSE(list_refreshed());
    EXPECT_TRUE(boxes().empty());
}

TEST_F(PointEditing, Set_CutStart_at_0_does_nothing) {
    const Points before = {{0, 0, 1}, {1, 0}, {2, 0}};
    set_shape(before);
    session.PtoSel = 0;
    Set_CutStart();
    EXPECT_EQ(shape(), before);
    EXPECT_EQ(repaints(), 0);
    EXPECT_FALSE(list_refreshed());
}

TEST_F(PointEditing, Set_CutStart_at_1_clears_the_old_first_mark_and_refreshes_nothing) {
    set_shape({{0, 0, 1, 1}, {1, 0, 1}, {2, 0}});
    session.PtoSel = 1;
    Set_CutStart();
    EXPECT_EQ(shape(), (Points{{1, 0, 1}, {2, 0}, {0, 0, 0, 1}}));
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(repaints(), 0);
    EXPECT_FALSE(list_refreshed());
    expect_syncs_shown(7, 5);
}

TEST_F(PointEditing, Set_CutStart_further_on_turns_the_array_with_its_marks) {
    set_shape({{0, 0, 1, 1}, {1, 0}, {2, 0, 1}, {3, 0}});
    session.PtoSel = 2;
    Set_CutStart();
    EXPECT_EQ(shape(), (Points{{2, 0, 1}, {3, 0}, {0, 0, 1, 1}, {1, 0}}));
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(repaints(), 1);
    EXPECT_TRUE(list_refreshed());
    session.PtoSel = 3;
    Set_CutStart();
    EXPECT_EQ(shape(), (Points{{1, 0}, {2, 0, 1}, {3, 0}, {0, 0, 1, 1}}));
}

TEST_F(PointEditing, insert_ini_leads_in_along_zero_and_out_the_same_way) {
    set_shape({{5, 5}, {6, 7, 1}, {8, 5}});
    session.PtoSel = 1;
    insert_ini();
    EXPECT_EQ(shape(), (Points{{1, 0, 1}, {6, 0}, {6, 7}, {8, 5}, {5, 5}, {6, 7, 1}, {6, 0}}));
    EXPECT_EQ(session.PtoSel, 3);
    expect_points_shown(5); // the upper bound less one
    expect_syncs_shown(7, 5);
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 7U);
    EXPECT_EQ(session.Velmora.Lst_Coords[1].X, 6);
}

TEST_F(PointEditing, insert_ini_at_the_ends) {
    set_shape({{5, 5}, {6, 7}, {8, 9}});
    session.PtoSel = 0;
    insert_ini();
    EXPECT_EQ(shape(), (Points{{1, 0, 1}, {5, 0}, {5, 5}, {6, 7}, {8, 9}, {5, 5}, {5, 0}}));
    set_shape({{5, 5}, {6, 7}, {8, 9}});
    session.PtoSel = 2;
    insert_ini();
    EXPECT_EQ(shape(), (Points{{1, 0, 1}, {8, 0}, {8, 9}, {5, 5}, {6, 7}, {8, 9}, {8, 0}}));
}

TEST_F(PointEditing, Insert_N_Ptos_turns_the_selected_point_first_and_waits) {
    struct Case {
        int selected;
        Points after;
    };
    const Case cases[] = {
        {0, {{0, 0, 1, 1}, {1, 0}, {2, 0, 1}, {3, 0}}},
        {1, {{1, 0}, {2, 0, 1}, {3, 0}, {0, 0, 0, 1}}},
        {2, {{2, 0, 1}, {3, 0}, {0, 0, 1, 1}, {1, 0}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.selected);
        set_shape({{0, 0, 1}, {1, 0, 0, -1}, {2, 0, 1, 1}, {3, 0}});
        session.PtoSel = c.selected;
        session.PtosToInsertMode = False;
        Insert_N_Ptos();
        EXPECT_EQ(shape(), c.after);
        EXPECT_EQ(session.PtoSelAnt, c.selected);
        EXPECT_EQ(session.PtoSel, 0);
        EXPECT_EQ(session.PtosToInsertMode, True);
    }
}

TEST_F(PointEditing, no_repaint_while_NoRedraw_is_set) {
    session.NoRedraw = True;
    set_shape({{0, 0}, {1, 0}, {2, 0}, {3, 0}});
    for (void (*command)() : {Insert_Pto, Delete_Pto, Set_CutStart, insert_ini}) {
        session.PtoSel = 2;
        command();
    }
    EXPECT_EQ(repaints(), 0);
    EXPECT_EQ(session.NoRedraw, True);
}

} // namespace
} // namespace velmora
