#include "document/coord_list.h"

#include "commands/handlers.h"
#include "document/refresh.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "runtime/error.h"
#include "support/error_number.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;
using test::set_shape;

std::vector<std::string> rows() {
    std::vector<std::string> texts;
    for (const CoordRow& row : session.Velmora.Lst_Coords)
        texts.push_back(row_text(row));
    return texts;
}

using Rows = std::vector<std::string>;

TEST(CoordList, a_row_is_index_colon_X_two_blanks_Y) {
    RecordingPlatform platform;
    EXPECT_EQ(row_text({12, 1.5, -0.25}), "12: 1.5  -0.25");
    EXPECT_EQ(row_text({0, 0.00001, 1500}), "0: 1E-05  1500");
    EXPECT_EQ(row_text({3, 0.1 + 0.2, 0}), "3: 0.3  0");
    session.SepDecimal = ',';
    EXPECT_EQ(row_text({12, 1.5, -0.25}), "12: 1,5  -0,25");
}

TEST(CoordList, NEWFILE_and_UPDATE_rebuild) {
    RecordingPlatform platform;
    for (const char* key : {"NEWFILE", "UPDATE"}) {
        SCOPED_TRACE(key);
        set_shape({{0, 0}, {1, 2}});
        Carga_List_Coords(key);
        EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 1  2"}));
        set_shape({{7, 8}, {9, 10}, {11, 12}});
        Carga_List_Coords(key);
        EXPECT_EQ(rows(), (Rows{"0: 7  8", "1: 9  10", "2: 11  12"}));
    }
}

TEST(CoordList, an_empty_document_shows_its_one_record) {
    RecordingPlatform platform;
    Carga_List_Coords("NEWFILE");
    EXPECT_EQ(rows(), Rows{"0: 0  0"});
}

TEST(CoordList, rows_keep_the_coordinates_of_their_fill) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 2}});
    Carga_List_Coords("UPDATE");
    Forma.Pto[1].X = 5;
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 1  2"}));
    mnu_update_coords();
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 5  2"}));
}

TEST(CoordList, other_keys_do_nothing) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 2}});
    Carga_List_Coords("UPDATE");
    const auto fill = session.Velmora.Lst_Coords_fill;
    set_shape({{7, 8}, {9, 10}, {11, 12}});
    for (const char* key : {"UPDATE_1", "", "update", "DELETE ", "OTHER"}) {
        SCOPED_TRACE(key);
        Carga_List_Coords(key);
        EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 1  2"}));
        EXPECT_EQ(session.Velmora.Lst_Coords_fill, fill);
    }
}

TEST(CoordList, each_fill_has_a_number_of_its_own) {
    RecordingPlatform platform;
    const auto before = session.Velmora.Lst_Coords_fill;
    Carga_List_Coords("UPDATE");
    EXPECT_GT(session.Velmora.Lst_Coords_fill, before);
}

TEST(CoordList, INSERT_puts_the_row_of_the_selected_point_at_its_place) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 1}});
    Carga_List_Coords("UPDATE");
    set_shape({{0, 0}, {5, 5}, {1, 1}});
    session.PtoSel = 1;
    Carga_List_Coords("INSERT");
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 5  5", "1: 1  1"}));
    EXPECT_EQ(session.PtoSel, 1);
}

TEST(CoordList, INSERT_outside_array_or_list_is_an_error) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 1}, {2, 2}});
    session.PtoSel = 3;
    EXPECT_EQ(number_of([] { Carga_List_Coords("INSERT"); }), 9);
    session.PtoSel = 2;
    EXPECT_EQ(number_of([] { Carga_List_Coords("INSERT"); }), 5);
}

TEST(CoordList, DELETE_moves_the_selection_on_and_removes_the_row_there) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 1}, {2, 2}});
    Carga_List_Coords("UPDATE");
    session.PtoSel = 0;
    Carga_List_Coords("DELETE");
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "2: 2  2"}));
    session.PtoSel = 2;
    Carga_List_Coords("DELETE");
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(rows(), Rows{"2: 2  2"});
}

TEST(CoordList, a_click_selects_the_point_named_in_the_row) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 1}, {2, 2}});
    session.PtoSel = 0;
    Lst_Coords_Click("2: 7  8");
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(platform.windows.calls, std::vector<std::string>{"focus Velmora.pic"});
    EXPECT_EQ(session.Velmora.Lst_Coords_fill, 0U);
    EXPECT_EQ(std::ranges::count(platform.pic.operations, "cls"), 1);
}

TEST(CoordList, a_key_selects_as_a_click_and_leaves_the_focus_in_the_list) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 1}, {2, 2}});
    session.PtoSel = 0;
    Lst_Coords_Key("2: 7  8");
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(std::ranges::count(platform.pic.operations, "cls"), 1);
    Lst_Coords_Key("3: 7  8");
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 1  1", "2: 2  2"})) << "stale, and refreshed";
    EXPECT_TRUE(platform.windows.calls.empty());
}

TEST(CoordList, a_new_shape_takes_the_label_of_the_old_one_away) {
    RecordingPlatform platform;
    for (const auto& [key, stays] : {std::pair("UPDATE", true), std::pair("NEWFILE", false)}) {
        session.Velmora.lbl_xyfloat_visible = true;
        Carga_List_Coords(key);
        EXPECT_EQ(session.Velmora.lbl_xyfloat_visible, stays) << key;
    }
}

TEST(CoordList, a_click_on_a_stale_row_refreshes_and_keeps_the_selection) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 1}, {2, 2}});
    Carga_List_Coords("UPDATE");
    set_shape({{0, 0}, {1, 1}});
    session.PtoSel = 0;
    Lst_Coords_Click("2: 2  2");
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 1  1"}));
    EXPECT_TRUE(platform.windows.calls.empty());
}

TEST(CoordList, after_Delete_Pto_the_last_row_is_stale_until_refreshed) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 1}, {2, 2}, {3, 3}});
    Carga_List_Coords("NEWFILE");
    session.PtoSel = 1;
    Delete_Pto();
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 1  1", "2: 2  2", "3: 3  3"}));
    Lst_Coords_Click(rows().back());
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 2  2", "2: 3  3"}));
}

TEST(CoordList, after_Insert_Pto_a_row_selects_by_its_old_number) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {2, 2}, {4, 0}});
    Carga_List_Coords("NEWFILE");
    session.PtoSel = 1;
    Insert_Pto();
    EXPECT_EQ(rows(), (Rows{"0: 0  0", "1: 2  2", "2: 4  0"}));
    Lst_Coords_Click(rows()[2]);
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(Forma.Pto[2].X, 2);
}

TEST(CoordList, a_click_without_a_text_does_nothing) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {1, 1}});
    session.PtoSel = 1;
    Lst_Coords_Click("");
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_TRUE(platform.windows.calls.empty());
}

TEST(CoordList, a_row_without_a_number_raises_13) {
    RecordingPlatform platform;
    EXPECT_EQ(number_of([] { Lst_Coords_Click("x: 1  2"); }), 13);
    EXPECT_EQ(number_of([] { Lst_Coords_Click("99999999999: 1  2"); }), 6);
}

} // namespace
} // namespace velmora
