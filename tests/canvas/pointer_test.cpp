#include "canvas/pointer.h"

#include "canvas/drawing.h"
#include "document/shown.h"
#include "runtime/error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Canvas;
using test::set_shape;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// Pixels (30, 1970), (80, 1970), (130, 1920), (80, 1870).
struct Pointer : Canvas {
    Pointer() {
        set_shape({{0, 0}, {10, 0, 1, 0}, {20, 10}, {10, 20}});
        session.Precision = 3;
    }
};

bool repainted(Pointer& canvas) {
    return testing::Value(canvas.operations(), Contains("cls"));
}

TEST(HitPto, takes_less_than_two_pixels_on_both_axes) {
    struct Case {
        float x, y;
        std::int32_t hit;
    };
    for (const Case& one : {
             Case{80, 1970, 1},
             Case{81.9F, 1970, 1},
             Case{82, 1970, -1},
             Case{78, 1970, -1},
             Case{78.1F, 1971.9F, 1},
             Case{80, 1972, -1},
             Case{80, 1968, -1},
             Case{81, 1869, 3},
             Case{0, 0, -1},
         }) {
        Pointer canvas;
        EXPECT_EQ(HitPto(one.x, one.y), one.hit) << one.x << ' ' << one.y;
    }
}

TEST(HitPto, measures_from_the_unrounded_position) {
    Pointer canvas;
    session.ZoomFactor = 1;
    Forma.Pto[2] = {40.5, 0};
    EXPECT_EQ(HitPto(72.4F, 1970), 2);
    EXPECT_EQ(HitPto(72.5F, 1970), -1);
}

TEST(HitPto, takes_the_lowest_index_even_if_another_is_nearer) {
    Pointer canvas;
    Forma.Pto[3] = {10.2, 0};
    EXPECT_EQ(HitPto(81, 1970), 1);
    std::swap(Forma.Pto[1], Forma.Pto[3]);
    EXPECT_EQ(HitPto(80, 1970), 1);
}

TEST(HitPto, reaches_the_same_at_every_zoom) {
    Pointer canvas;
    for (const double zoom : {1.0, 5.0, 30000.0}) {
        session.ZoomFactor = zoom;
        EXPECT_EQ(HitPto(31.9F, 1970), 0) << zoom;
        EXPECT_EQ(HitPto(32, 1970), -1) << zoom;
    }
}

TEST(HitPto, raises_beyond_F64) {
    Pointer canvas;
    Forma.Pto[1].X = 1e308;
    EXPECT_EQ(HitPto(30, 1970), 0);
    EXPECT_THROW(static_cast<void>(HitPto(500, 500)), RuntimeError);
}

TEST(MouseDown, selects_the_point_and_takes_hold_of_it_with_the_left_button) {
    struct Case {
        int button;
        Flag drag;
    };
    for (const Case& one : {Case{1, True}, Case{2, False}, Case{4, False}}) {
        Pointer canvas;
        pic_MouseDown(one.button, 0, 131, 1921);
        EXPECT_EQ(session.HoverPto, 2);
        EXPECT_EQ(session.PtoSel, 2);
        EXPECT_EQ(session.DragPto, one.drag);
        EXPECT_THAT(canvas.operations(), IsEmpty());
    }
}

TEST(MouseDown, on_empty_canvas_keeps_the_selection) {
    Pointer canvas;
    session.PtoSel = 1;
    session.HoverPto = 1;
    pic_MouseDown(1, 0, 500, 500);
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(session.HoverPto, -1);
    EXPECT_EQ(session.DragPto, False);
}

TEST(MouseDown, does_nothing_in_a_mode) {
    for (Flag Session::*mode :
         {&Session::MoveShapeMode, &Session::PtosToInsertMode, &Session::NoRedraw}) {
        Pointer canvas;
        session.*mode = True;
        session.HoverPto = 3;
        pic_MouseDown(1, 0, 131, 1921);
        EXPECT_EQ(session.HoverPto, 3);
        EXPECT_EQ(session.PtoSel, -1);
        EXPECT_EQ(session.DragPto, False);
    }
}

TEST(MouseMove, over_a_point_shows_the_cross_and_the_label) {
    Pointer canvas;
    Forma.Pto[2].X = 20.1234567;
    pic_MouseMove(0, 0, 130, 1920);
    EXPECT_EQ(session.HoverPto, 2);
    EXPECT_THAT(canvas.windows.pointers, ElementsAre(2));
    EXPECT_TRUE(session.Velmora.lbl_xyfloat_visible);
    EXPECT_EQ(session.Velmora.lbl_xyfloat, "  2: (20.1234567 10)");
    EXPECT_EQ(session.Velmora.lbl_xyfloat_Left, 140);
    EXPECT_EQ(session.Velmora.lbl_xyfloat_Top, 1930);
    EXPECT_EQ(session.PtoSel, -1);
}

TEST(MouseMove, the_label_marks_a_sync_point) {
    Pointer canvas;
    session.SepDecimal = ',';
    Forma.Pto[1].X = 10.5;
    pic_MouseMove(0, 0, 82.5F, 1970);
    EXPECT_EQ(session.Velmora.lbl_xyfloat, "  1:  S (10,5 0)");
    Forma.Pto[1].Sinc = -1;
    pic_MouseMove(0, 0, 82.5F, 1970);
    EXPECT_EQ(session.Velmora.lbl_xyfloat, "  1: (10,5 0)");
}

TEST(MouseMove, off_the_points_hides_the_label) {
    Pointer canvas;
    pic_MouseMove(0, 0, 130, 1920);
    pic_MouseMove(0, 0, 200, 200);
    EXPECT_EQ(session.HoverPto, -1);
    EXPECT_THAT(canvas.windows.pointers, ElementsAre(2, 0));
    EXPECT_FALSE(session.Velmora.lbl_xyfloat_visible);
}

TEST(MouseMove, without_show_coords_there_is_no_label) {
    Pointer canvas;
    session.ShowCoords = False;
    pic_MouseMove(0, 0, 130, 1920);
    EXPECT_THAT(canvas.windows.pointers, ElementsAre(2));
    EXPECT_FALSE(session.Velmora.lbl_xyfloat_visible);
    EXPECT_EQ(session.Velmora.lbl_xyfloat, "");
}

TEST(MouseMove, with_no_redraw_hovers_not_but_still_drags) {
    Pointer canvas;
    session.NoRedraw = True;
    session.PtoSel = 2;
    session.DragPto = True;
    pic_MouseMove(1, 0, 80, 1970);
    EXPECT_EQ(session.HoverPto, -1);
    EXPECT_THAT(canvas.windows.pointers, IsEmpty());
    EXPECT_EQ(Forma.Pto[2].X, 10);
}

TEST(MouseMove, drags_the_selected_point_whatever_is_under_the_pointer) {
    Pointer canvas;
    session.PtoSel = 2;
    session.DragPto = True;
    pic_MouseMove(1, 0, 80, 1970);
    EXPECT_EQ(session.HoverPto, 1);
    EXPECT_EQ(Forma.Pto[2].X, 10);
    EXPECT_EQ(Forma.Pto[2].Y, 0);
    EXPECT_THAT(canvas.operations(), Contains("mode 5"));
    pic_MouseMove(1, 0, 82, 1967);
    EXPECT_EQ(Forma.Pto[2].X, 10.4);
    EXPECT_EQ(Forma.Pto[2].Y, 0.6);
    EXPECT_FALSE(repainted(canvas));
}

TEST(MouseMove, while_the_shape_is_moved_does_nothing) {
    Pointer canvas;
    session.MoveShapeMode = True;
    session.DragPto = True;
    session.PtoSel = 2;
    pic_MouseMove(1, 0, 80, 1970);
    EXPECT_EQ(Forma.Pto[2].X, 20);
    EXPECT_EQ(session.HoverPto, -1);
    EXPECT_THAT(canvas.operations(), IsEmpty());
}

TEST(MouseMove, in_insertion_mode_stretches_the_band) {
    Pointer canvas;
    session.PtosToInsertMode = True;
    session.PtoSel = 3;
    pic_MouseMove(0, 0, 81, 1970);
    EXPECT_EQ(session.BandaX, 10.2);
    EXPECT_EQ(session.BandaY, 0);
    EXPECT_EQ(session.HoverPto, -1);
    EXPECT_THAT(canvas.operations(), Contains("line 80 1870 81 1970"));
}

TEST(MouseUp, ends_a_drag_with_a_repaint_and_leaves_the_list_stale) {
    Pointer canvas;
    session.Velmora.Lst_Coords = {{0, 7, 7}};
    pic_MouseDown(1, 0, 130, 1920);
    pic_MouseMove(1, 0, 135, 1915);
    pic_MouseUp(1, 0, 135, 1915);
    EXPECT_EQ(session.DragPto, False);
    EXPECT_EQ(Forma.Pto[2].X, 21);
    EXPECT_EQ(Forma.Pto[2].Y, 11);
    EXPECT_THAT(canvas.operations(), Contains("box 133 1913 137 1917 8"));
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 1U);
    EXPECT_EQ(session.Velmora.SSScroll_moves, 0U);
}

TEST(MouseUp, of_the_left_button_without_a_drag_does_nothing) {
    Pointer canvas;
    pic_MouseUp(1, 0, 130, 1920);
    EXPECT_THAT(canvas.operations(), IsEmpty());
}

TEST(MouseUp, of_the_middle_button_ends_a_drag_too) {
    Pointer canvas;
    session.DragPto = True;
    pic_MouseUp(4, 0, 500, 500);
    EXPECT_EQ(session.DragPto, False);
    EXPECT_TRUE(repainted(canvas));
    EXPECT_THAT(canvas.windows.calls, IsEmpty());
}

TEST(MouseUp, of_the_right_button_leaves_a_drag_on) {
    Pointer canvas;
    session.DragPto = True;
    pic_MouseUp(2, 0, 500, 500);
    EXPECT_EQ(session.DragPto, True);
    EXPECT_THAT(canvas.operations(), IsEmpty());
}

TEST(MouseUp, of_the_right_button_on_a_point_opens_the_menu) {
    Pointer canvas;
    pic_MouseUp(2, 0, 80, 1970);
    EXPECT_EQ(session.PtoSel, 1);
    EXPECT_EQ(session.HoverPto, 1);
    EXPECT_TRUE(session.Velmora.menus["Pts_To_Next_Sinc"].enabled);
    EXPECT_THAT(canvas.windows.calls, ElementsAre("popup OPT_PTO"));
    pic_MouseUp(2, 0, 130, 1920);
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_FALSE(session.Velmora.menus["Pts_To_Next_Sinc"].enabled);
    pic_MouseUp(2, 0, 500, 500);
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.HoverPto, -1);
    EXPECT_EQ(canvas.windows.calls.size(), 2U);
}

TEST(MenuKey, opens_the_menu_of_the_selected_point_where_the_pointer_could_pick_one) {
    Pointer canvas;
    session.PtoSel = 1;
    pic_MenuKey();
    EXPECT_THAT(canvas.windows.calls, ElementsAre("popup OPT_PTO"));
    EXPECT_TRUE(session.Velmora.menus["Pts_To_Next_Sinc"].enabled);
    for (std::int16_t* mode :
         {&session.MoveShapeMode, &session.PtosToInsertMode, &session.NoRedraw}) {
        *mode = True;
        pic_MenuKey();
        *mode = False;
    }
    session.PtoSel = -1;
    pic_MenuKey();
    EXPECT_EQ(canvas.windows.calls.size(), 1U);
}

TEST(MouseUp, with_no_redraw_does_nothing) {
    Pointer canvas;
    session.NoRedraw = True;
    session.DragPto = True;
    pic_MouseUp(1, 0, 80, 1970);
    pic_MouseUp(2, 0, 80, 1970);
    EXPECT_EQ(session.DragPto, True);
    EXPECT_THAT(canvas.windows.calls, IsEmpty());
    EXPECT_THAT(canvas.operations(), IsEmpty());
}

TEST(MoveShape, puts_the_selected_point_under_the_pointer) {
    for (const int button : {1, 2, 4}) {
        Pointer canvas;
        session.MoveShapeMode = True;
        session.Velmora.pic_MousePointer = 10;
        session.PtoSel = 2;
        pic_MouseUp(button, 0, 80, 1970);
        EXPECT_EQ(session.DestX, 10);
        EXPECT_EQ(session.DestY, 0);
        EXPECT_EQ(Forma.Pto[2].X, 10);
        EXPECT_EQ(Forma.Pto[2].Y, 0);
        EXPECT_EQ(Forma.Pto[0].X, -10);
        EXPECT_EQ(Forma.Pto[0].Y, -10);
        EXPECT_EQ(session.MoveShapeMode, False);
        EXPECT_EQ(session.Velmora.pic_MousePointer, 0);
        EXPECT_EQ(session.Velmora.Lst_Coords.size(), 4U);
        EXPECT_EQ(session.Velmora.SSScroll_moves, 1U);
        EXPECT_TRUE(repainted(canvas));
    }
}

TEST(MoveShape, adds_a_thousand_to_both_ends_of_the_way) {
    Pointer canvas;
    session.MoveShapeMode = True;
    session.NoRedraw = True;
    session.PtoSel = 0;
    session.ZoomFactor = 3;
    Forma.Pto[0] = {0.1, 0.7};
    const double target_x = (31 - 30.0) / 3;
    const double target_y = -((1971 - 1970.0) / 3);
    const double dx = (target_x + 1000) - (0.1 + 1000);
    const double dy = (target_y + 1000) - (0.7 + 1000);
    ASSERT_NE(dx, target_x - 0.1);
    pic_MouseUp(1, 0, 31, 1971);
    EXPECT_EQ(Forma.Pto[0].X, 0.1 + dx);
    EXPECT_EQ(Forma.Pto[0].Y, 0.7 + dy);
    EXPECT_EQ(Forma.Pto[2].X, 20 + dx);
}

TEST(MoveShape, with_no_redraw_refreshes_nothing) {
    Pointer canvas;
    session.MoveShapeMode = True;
    session.NoRedraw = True;
    session.PtoSel = 0;
    pic_MouseUp(1, 0, 80, 1970);
    EXPECT_EQ(Forma.Pto[0].X, 10);
    EXPECT_EQ(session.MoveShapeMode, False);
    EXPECT_THAT(canvas.operations(), IsEmpty());
    EXPECT_EQ(session.Velmora.SSScroll_moves, 0U);
}

TEST(MoveShape, without_a_selection_ends_the_mode_and_moves_nothing) {
    for (const std::int32_t selected : {-1, 4}) {
        Pointer canvas;
        session.MoveShapeMode = True;
        session.PtoSel = selected;
        pic_MouseUp(1, 0, 80, 1960);
        EXPECT_EQ(session.MoveShapeMode, False);
        EXPECT_EQ(Forma.Pto[0].X, 0);
        EXPECT_EQ(session.DestX, 10);
        EXPECT_EQ(session.DestY, 2);
    }
}

struct ByHand : Pointer {
    ByHand() {
        session.PtosToInsertMode = True;
        session.PtoSel = 3;
        shown::TotalSinc().put(1);
    }
};

TEST(InsertionMode, the_left_button_appends_a_point) {
    ByHand canvas;
    pic_MouseUp(1, 0, 31, 1869);
    EXPECT_EQ(Forma.Pto.upper(), 4);
    EXPECT_EQ(Forma.Pto[4], (Pto{0.2, 20.2}));
    EXPECT_EQ(session.PtoSel, 4);
    EXPECT_EQ(session.TotalPtos, 5);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "5");
    EXPECT_EQ(session.TotalSinc, 1);
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 5U);
    EXPECT_EQ(session.Velmora.SSScroll_moves, 1U);
    EXPECT_TRUE(repainted(canvas));
}

TEST(InsertionMode, ctrl_makes_it_a_sync_point) {
    ByHand canvas;
    session.CtrlDown = True;
    pic_MouseUp(1, 0, 31, 1869);
    EXPECT_EQ(Forma.Pto[4].Sinc, 1);
    EXPECT_EQ(session.TotalSinc, 2);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "2");
}

TEST(InsertionMode, ctrl_is_what_the_last_key_said_not_the_pointer) {
    ByHand canvas;
    pic_MouseUp(1, 2, 31, 1869);
    EXPECT_EQ(Forma.Pto[4].Sinc, 0);
}

TEST(InsertionMode, the_right_button_removes_the_last_point) {
    ByHand canvas;
    Forma.Pto[3].Sinc = 1;
    pic_MouseUp(2, 0, 500, 500);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.TotalPtos, 3);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "3");
    EXPECT_EQ(session.TotalSinc, 0);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "1"); // stays behind, on purpose
    EXPECT_TRUE(repainted(canvas));
}

TEST(InsertionMode, a_right_click_on_three_points_or_fewer_refuses) {
    for (const std::int32_t upper : {0, 1, 2}) {
        ByHand canvas;
        canvas.open_database();
        Forma.Pto.redim_keep(upper);
        session.PtoSel = upper;
        pic_MouseUp(2, 0, 500, 500);
        EXPECT_EQ(Forma.Pto.upper(), upper);
        ASSERT_EQ(canvas.dialogs.boxes.size(), 1U);
        EXPECT_EQ(canvas.dialogs.boxes[0].text, "No se pueden eliminar más puntos!");
        EXPECT_THAT(canvas.operations(), IsEmpty());
        EXPECT_EQ(session.Velmora.SSScroll_moves, 0U);
    }
}

TEST(InsertionMode, any_other_button_changes_no_point_but_refreshes) {
    ByHand canvas;
    pic_MouseUp(4, 0, 500, 500);
    EXPECT_EQ(Forma.Pto.upper(), 3);
    EXPECT_EQ(session.PtoSel, 3);
    EXPECT_EQ(session.Velmora.SSScroll_moves, 1U);
    EXPECT_TRUE(repainted(canvas));
}

TEST(InsertionMode, refreshes_also_with_no_redraw) {
    ByHand canvas;
    session.NoRedraw = True;
    pic_MouseUp(1, 0, 31, 1869);
    EXPECT_EQ(Forma.Pto.upper(), 4);
    EXPECT_TRUE(repainted(canvas));
}

} // namespace
} // namespace velmora
