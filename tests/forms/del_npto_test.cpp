#include "forms/del_npto.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::numbered;
using test::Points;
using test::set_shape;
using test::shape;

class DelNpto : public ::testing::Test {
  protected:
    DelNpto() : window_(session.del_Npto) {
        set_shape(numbered(6));
        session.PtoSel = 0;
    }
    void type_jump(const std::string& text) {
        window_.Txt_JumpPoints = text;
        Txt_JumpPoints_Change();
    }
    [[nodiscard]] std::vector<std::string> boxes() const {
        std::vector<std::string> texts;
        for (const auto& box : platform_.dialogs.boxes)
            texts.push_back(box.text);
        return texts;
    }
    static std::vector<double> places() { return test::places(Forma.Pto); }
    test::RecordingPlatform platform_{test::with_database};
    DelNptoWindow& window_;
};

using Calls = std::vector<std::string>;

TEST_F(DelNpto, the_command_needs_four_points) {
    set_shape(numbered(3));
    Delete_N_Ptos();
    EXPECT_EQ(boxes(), Calls{"No se pueden eliminar más puntos!"});
    EXPECT_TRUE(platform_.windows.calls.empty());
    set_shape(numbered(4));
    Delete_N_Ptos();
    EXPECT_EQ(platform_.windows.calls, Calls{"show_modal del_Npto"});
    EXPECT_EQ(boxes().size(), 1U);
}

TEST_F(DelNpto, load_shows_how_many_may_go) {
    session.Velmora.MousePointer = 11;
    window_.Txt_Numpoints2del = std::string("3");
    del_Npto_Load();
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    EXPECT_EQ(window_.MaxDel, 3);
    EXPECT_EQ(window_.Txt_JumpPoints, "0");
    EXPECT_EQ(window_.Txt_Numpoints2del, "");
    EXPECT_EQ(window_.Lbl_Maxpoints, "(3)");
}

TEST_F(DelNpto, a_jump_with_a_fraction_goes_to_the_nearest_point) {
    set_shape(numbered(9));
    session.PtoSel = 0;
    del_Npto_Load();
    window_.Txt_Numpoints2del = std::string("3");
    window_.Txt_JumpPoints = std::string("0.9"); // 0, 1.9 and 3.8
    del_Npto_cmd_ok_Click();
    EXPECT_EQ(places(), (std::vector<double>{1, 3, 5, 6, 7, 8}));
}

TEST_F(DelNpto, a_jump_changes_the_maximum) {
    struct Case {
        const char* jump;
        const char* count;
        const char* label;
        const char* jump_then;
        bool refused;
    };
    const Case cases[] = {
        {"1", "1", "(1.5)", "1", false}, {"2", "1", "(1)", "2", false},
        {"0", "9", "(3)", "0", false},   {"-1", "9", "(3)", "-1", false},
        {"", "1", "(3)", "", false},     {"3", "1", "(3)", "0", true}, // 4 exceeds 3
        {"1", "2", "(3)", "0", true},    {"5", "", "(0.5)", "5", false},
    };
    del_Npto_Load();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.jump);
        platform_.dialogs.boxes.clear();
        window_.Txt_Numpoints2del = c.count;
        type_jump(c.jump);
        EXPECT_EQ(window_.Lbl_Maxpoints, c.label);
        EXPECT_EQ(window_.Txt_JumpPoints, c.jump_then);
        EXPECT_EQ(boxes(), c.refused ? Calls{"No se pueden eliminar tantos puntos!"} : Calls{});
    }
}

TEST_F(DelNpto, the_maximum_has_the_separator_of_the_machine) {
    session.SepDecimal = ',';
    del_Npto_Load();
    type_jump("1");
    EXPECT_EQ(window_.Lbl_Maxpoints, "(1,5)");
}

TEST_F(DelNpto, a_point_is_refused_in_both_boxes) {
    del_Npto_Load();
    window_.Txt_Numpoints2del = std::string("1");
    type_jump("1");
    EXPECT_EQ(Txt_JumpPoints_KeyPress('5'), '5');
    EXPECT_EQ(Txt_Numpoints2del_KeyPress(8), 8);
    EXPECT_EQ(Txt_Numpoints2del_KeyPress(13), 13);
    EXPECT_EQ(window_.Txt_JumpPoints, "1");
    EXPECT_EQ(Txt_JumpPoints_KeyPress('.'), 0);
    EXPECT_EQ(window_.Txt_JumpPoints, "0");
    EXPECT_EQ(window_.Lbl_Maxpoints, "(3)"); // the reset is a change
    EXPECT_EQ(window_.Txt_Numpoints2del, "1");
    EXPECT_EQ(Txt_Numpoints2del_KeyPress('.'), 0);
    EXPECT_EQ(window_.Txt_Numpoints2del, "0");
    EXPECT_EQ(platform_.windows.calls,
              (Calls{"focus del_Npto.Txt_JumpPoints", "focus del_Npto.Txt_Numpoints2del"}));
    EXPECT_EQ(boxes(), (Calls{"Sólo se permiten números!", "Sólo se permiten números!"}));
}

TEST_F(DelNpto, a_lost_focus_checks_the_count) {
    struct Case {
        const char* typed;
        const char* then;
        Calls boxes;
    };
    const Case cases[] = {
        {"3", "3", {}},  {"0", "0", {}},
        {"", "", {}},    {"4", "0", {"No se pueden eliminar tantos puntos!"}},
        {"-1", "0", {}},
    };
    del_Npto_Load();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        platform_.dialogs.boxes.clear();
        platform_.windows.calls.clear();
        window_.Txt_Numpoints2del = c.typed;
        Txt_Numpoints2del_LostFocus();
        EXPECT_EQ(window_.Txt_Numpoints2del, c.then);
        EXPECT_EQ(boxes(), c.boxes);
        EXPECT_EQ(platform_.windows.calls, std::string(c.typed) == c.then
                                               ? Calls{}
                                               : Calls{"focus del_Npto.Txt_Numpoints2del"});
    }
}

TEST_F(DelNpto, ok_removes_at_the_interval) {
    struct Case {
        const char* count;
        const char* jump;
        int selected;
        std::vector<double> left;
        int then_selected;
    };
    const Case cases[] = {
        {"2", "1", 4, {1, 2, 3, 5}, 3}, // 4, and 6 wraps to 0
        {"1", "0", 0, {1, 2, 3, 4, 5}, 0},
        {"3", "0", 2, {0, 1, 5}, 1},
        {"2", "2", 5, {0, 1, 3, 4}, 0}, // 5, and 8 wraps to 2; 4 is beyond the new end
        {"2", "0", 5, {1, 2, 3, 4}, 0},
        {"2", "5", 1, {0, 2, 3, 4, 5}, 0}, // 1, and 7 wraps to 1 again
        {"6", "0", 3, {0}, 0},             // nothing left: one zeroed record
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.count << " " << c.jump << " " << c.selected);
        platform_.windows.calls.clear();
        platform_.pic.operations.clear();
        set_shape(numbered(6));
        session.PtoSel = c.selected;
        session.TotalSinc = 2;
        window_ = {};
        window_.MaxDel = 3;
        window_.Txt_Numpoints2del = c.count;
        window_.Txt_JumpPoints = c.jump;
        del_Npto_cmd_ok_Click();
        EXPECT_EQ(places(), c.left);
        EXPECT_EQ(session.PtoSel, c.then_selected);
        EXPECT_EQ(session.TotalPtos, static_cast<int>(c.left.size()) - 2); // upper bound less one
        EXPECT_EQ(session.wininfo.TxtTotalPtos, std::to_string(session.TotalPtos));
        EXPECT_EQ(session.TotalSinc, 2);
        EXPECT_EQ(session.Velmora.Lst_Coords_fill, 0U);
        EXPECT_EQ(platform_.windows.calls, Calls{"unload del_Npto"});
        EXPECT_EQ(std::ranges::count(platform_.pic.operations, "cls"), c.left.size() > 1 ? 1 : 0);
    }
}

TEST_F(DelNpto, ok_without_a_count_stays_open) {
    for (const char* count : {"0", "", "-2"}) {
        platform_.windows.calls.clear();
        window_.Txt_Numpoints2del = count;
        del_Npto_cmd_ok_Click();
        EXPECT_EQ(window_.Txt_Numpoints2del, "0");
        EXPECT_EQ(platform_.windows.calls, Calls{"focus del_Npto.Txt_Numpoints2del"});
        EXPECT_EQ(shape(), numbered(6));
    }
}

// An interval put in before the number is checked against no number; only one wrap is made.
TEST_F(DelNpto, positions_beyond_the_array_are_too_many_and_change_nothing) {
    struct Case {
        const char* count;
        const char* jump;
        int selected;
        bool refused;
    };
    const Case cases[] = {
        {"2", "6", 5, true},  // 5, and 12 wraps to 6: beyond the array
        {"2", "5", 5, false}, // 11 wraps to 5
        {"2", "99999999999", 0, true}, {"99999999999", "0", 0, true}, {"13", "0", 0, true},
        {"1", "0", 12, true},          {"1", "0", -1, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.count << " " << c.jump << " " << c.selected);
        platform_.dialogs.boxes.clear();
        platform_.windows.calls.clear();
        set_shape(numbered(6));
        session.PtoSel = c.selected;
        window_.Txt_Numpoints2del = c.count;
        window_.Txt_JumpPoints = c.jump;
        del_Npto_cmd_ok_Click();
        EXPECT_EQ(boxes(), c.refused ? Calls{"No se pueden eliminar tantos puntos!"} : Calls{});
        EXPECT_EQ(platform_.windows.calls, c.refused ? Calls{} : Calls{"unload del_Npto"});
        EXPECT_EQ(shape() == numbered(6), c.refused);
        EXPECT_EQ(session.PtoSel == c.selected, c.refused);
    }
}

TEST_F(DelNpto, cancel_unloads) {
    del_Npto_cmd_cancel_Click();
    EXPECT_EQ(platform_.windows.calls, Calls{"unload del_Npto"});
    EXPECT_EQ(shape(), numbered(6));
}

} // namespace
} // namespace velmora
