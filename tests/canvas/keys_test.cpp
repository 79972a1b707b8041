#include "canvas/keys.h"

#include "canvas/drawing.h"
#include "canvas/pointer.h"
#include "commands/handlers.h"
#include "document/feedback.h"
#include "document/shown.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace velmora {
namespace {

using test::Canvas;
using test::set_shape;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Value;

struct Keys : Canvas {
    Keys() {
        set_shape({{0, 0}, {10, 0, 1, 0}, {20, 10}, {10, 20}});
        session.Longitud = 20;
        session.Altura = 30;
        shown::TotalSinc().put(1);
        session.PtoSel = 2;
        set_status("Forma");
    }
    bool repainted() { return Value(operations(), Contains("cls")); }
};

std::vector<double> abscissas() {
    std::vector<double> result;
    for (const Pto& point : Forma.Pto.all())
        result.push_back(point.X);
    return result;
}

TEST(Keys, arrows_nudge_by_a_hundredth_of_the_extent) {
    struct Case {
        int key;
        double x, y;
    };
    for (const Case& one :
         {Case{38, 20, 10.3}, Case{40, 20, 9.7}, Case{39, 20.2, 10}, Case{37, 19.8, 10}}) {
        Keys canvas;
        session.Velmora.Lst_Coords = {{0, 7, 7}};
        pic_KeyDown(one.key, 0);
        EXPECT_EQ(Forma.Pto[2].X, one.x);
        EXPECT_EQ(Forma.Pto[2].Y, one.y);
        EXPECT_TRUE(canvas.repainted());
        EXPECT_EQ(session.Velmora.Lst_Coords.size(), 1U);
        EXPECT_EQ(session.Velmora.SSScroll_moves, 0U);
    }
}

TEST(Keys, s_flips_the_sync_mark) {
    Keys canvas;
    pic_KeyDown(83, 0);
    EXPECT_EQ(Forma.Pto[2].Sinc, 1);
    EXPECT_EQ(session.TotalSinc, 2);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "2");
    pic_KeyDown(83, 0);
    EXPECT_EQ(Forma.Pto[2].Sinc, 0);
    EXPECT_EQ(session.TotalSinc, 1);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "1");
    Forma.Pto[2].Sinc = 5; // any mark is taken away
    pic_KeyDown(83, 0);
    EXPECT_EQ(Forma.Pto[2].Sinc, 0);
    EXPECT_EQ(session.TotalSinc, 0);
}

TEST(Keys, m_and_n_go_round_the_outline) {
    struct Case {
        int key;
        std::int32_t from, to;
    };
    for (const Case& one : {Case{77, 2, 1}, Case{77, 1, 0}, Case{77, 0, 3}, Case{78, 2, 3},
                            Case{78, 3, 0}, Case{78, 0, 1}, Case{77, 9, 8}, Case{78, 9, 0}}) {
        Keys canvas;
        session.PtoSel = one.from;
        pic_KeyDown(one.key, 0);
        EXPECT_EQ(session.PtoSel, one.to) << one.key << ' ' << one.from;
        EXPECT_TRUE(canvas.repainted());
    }
}

TEST(Keys, without_a_selection_nothing_happens_but_ctrl_is_noted) {
    for (const int code : {27, 37, 38, 45, 46, 77, 78, 83, 65}) {
        Keys canvas;
        session.PtoSel = -1;
        session.MoveShapeMode = True;
        pic_KeyDown(code, 2);
        EXPECT_EQ(session.PtoSel, -1);
        EXPECT_EQ(session.MoveShapeMode, True);
        EXPECT_EQ(session.CtrlDown, True);
        EXPECT_EQ(Forma.Pto.upper(), 3);
        EXPECT_THAT(canvas.operations(), IsEmpty());
        EXPECT_EQ(session.Velmora.StatusBar1, "Forma");
    }
}

TEST(Keys, with_a_selection_beyond_the_array_change_nothing_and_repaint) {
    for (const int code : {37, 38, 39, 40, 45, 46, 83}) {
        Keys canvas;
        session.PtoSel = 4;
        const auto before = std::vector<Pto>(Forma.Pto.all().begin(), Forma.Pto.all().end());
        pic_KeyDown(code, 0);
        EXPECT_TRUE(std::ranges::equal(Forma.Pto.all(), before)) << code;
        EXPECT_EQ(session.PtoSel, 4);
        EXPECT_EQ(session.TotalSinc, 1);
        EXPECT_TRUE(canvas.repainted()) << code;
    }
}

TEST(Keys, any_other_key_repaints) {
    for (const int code : {0, 65, 13}) {
        Keys canvas;
        pic_KeyDown(code, 0);
        EXPECT_TRUE(canvas.repainted());
        EXPECT_EQ(session.Velmora.StatusBar1, "Forma");
    }
}

TEST(Keys, ctrl_shift_and_alt_alone_are_none_and_ctrl_is_noted) {
    struct Case {
        int key, shift;
        Flag ctrl;
    };
    for (const Case& one : {Case{16, 1, False}, Case{16, 3, True}, Case{17, 2, True},
                            Case{18, 4, False}, Case{18, 6, True}}) {
        for (const bool shape : {true, false}) {
            Keys canvas;
            if (!shape)
                Forma.Pto.redim(0);
            pic_KeyDown(one.key, one.shift);
            EXPECT_THAT(canvas.operations(), IsEmpty()) << one.key;
            EXPECT_THAT(canvas.dialogs.boxes, IsEmpty()) << one.key;
            EXPECT_EQ(session.CtrlDown, one.ctrl) << one.key << ' ' << one.shift;
        }
    }
}

TEST(Keys, without_a_shape_every_other_key_tells_so) {
    Keys canvas;
    canvas.open_database();
    Forma.Pto.redim(0);
    pic_KeyDown(65, 0);
    EXPECT_EQ(canvas.dialogs.boxes.size(), 1U);
}

TEST(Keys, with_no_redraw_are_carried_out_without_a_repaint) {
    Keys canvas;
    session.NoRedraw = True;
    pic_KeyDown(39, 0);
    EXPECT_EQ(Forma.Pto[2].X, 20.2);
    EXPECT_THAT(canvas.operations(), IsEmpty());
}

TEST(Keys, ctrl_is_the_second_bit_of_the_shift_state) {
    Keys canvas;
    struct Case {
        int shift;
        Flag down;
    };
    for (const Case& one : {Case{2, True}, Case{0, False}, Case{3, True}, Case{5, False}}) {
        pic_KeyDown(65, one.shift);
        EXPECT_EQ(session.CtrlDown, one.down) << one.shift;
        session.CtrlDown = flag(!one.down);
        pic_KeyUp(65, one.shift);
        EXPECT_EQ(session.CtrlDown, one.down) << one.shift;
    }
}

TEST(Esc, with_nothing_armed_empties_the_panel_and_repaints) {
    Keys canvas;
    session.PtoSelAnt = 1;
    pic_KeyDown(27, 0);
    EXPECT_EQ(session.Velmora.StatusBar1, "");
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.PtoSelAnt, 1);
    EXPECT_TRUE(canvas.repainted());
}

TEST(Esc, calls_off_the_move_of_the_shape) {
    Keys canvas;
    session.MoveShapeMode = True;
    session.Velmora.pic_MousePointer = 10;
    pic_KeyDown(27, 0);
    EXPECT_EQ(session.MoveShapeMode, False);
    EXPECT_EQ(session.Velmora.pic_MousePointer, 0);
    EXPECT_EQ(session.Velmora.StatusBar1, "");
    EXPECT_EQ(Forma.Pto[2].X, 20);
}

TEST(Esc, ends_the_insertion_of_a_new_shape_at_point0) {
    Keys canvas;
    session.PtosToInsertMode = True;
    session.PtoSelAnt = -1;
    session.PtoSel = 3;
    pic_KeyDown(27, 0);
    EXPECT_EQ(session.PtosToInsertMode, False);
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_EQ(Forma.Pto[0].X, 0);
}

TEST(Keys, delete_and_insert_are_the_point_commands) {
    Keys canvas;
    pic_KeyDown(46, 0);
    EXPECT_THAT(abscissas(), ElementsAre(0, 10, 10));
    EXPECT_EQ(session.PtoSel, 1);
    pic_KeyDown(45, 0);
    EXPECT_THAT(abscissas(), ElementsAre(0, 5, 10, 10));
    EXPECT_TRUE(canvas.repainted());
}

TEST(Keys, delete_with_a_selection_beyond_the_array_still_shows_the_commands_messages) {
    Keys canvas;
    canvas.open_database();
    Forma.Pto.redim_keep(2);
    session.PtoSel = 3;
    pic_KeyDown(46, 0);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
    EXPECT_EQ(canvas.dialogs.boxes[0].text, "No se pueden eliminar más puntos!");
}

TEST(Esc, puts_inserted_points_before_the_one_that_was_selected) {
    Keys canvas;
    Insert_N_Ptos();
    EXPECT_EQ(session.PtosToInsertMode, True);
    pic_MouseUp(1, 0, 205, 1970);
    pic_MouseUp(1, 0, 210, 1970);
    pic_KeyDown(27, 0);
    EXPECT_THAT(abscissas(), ElementsAre(0, 10, 35, 36, 20, 10));
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(session.PtoSelAnt, -1);
    EXPECT_EQ(session.PtosToInsertMode, False);
}

TEST(Esc, of_an_insertion_before_the_first_point_selects_the_last) {
    Keys canvas;
    session.PtoSel = 0;
    Insert_N_Ptos();
    pic_MouseUp(1, 0, 205, 1970);
    pic_KeyDown(27, 0);
    EXPECT_THAT(abscissas(), ElementsAre(0, 10, 20, 10, 35));
    EXPECT_EQ(session.PtoSel, 4);
}

TEST(Esc, without_a_marked_point_takes_the_last_for_the_first) {
    Keys canvas;
    session.PtosToInsertMode = True;
    session.PtoSelAnt = 2;
    pic_KeyDown(27, 0);
    EXPECT_THAT(abscissas(), ElementsAre(10, 0, 10, 20));
    EXPECT_EQ(session.PtoSel, 1);
}

} // namespace
} // namespace velmora
