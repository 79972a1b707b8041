#include "shapeops/placing.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "services/messages.h"
#include "support/error_number.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace velmora {
namespace {

using test::number_of;
using test::Points;
using test::RecordingPlatform;
using test::set_shape;
using test::shape;

constexpr double kHuge = std::numeric_limits<double>::max();

// Points all round the pivot: each quadrant, above, below, right.
const Points kAround = {{1, 2, 1, -1}, {4, 6}, {-2, 6}, {-2, -2}, {4, -2}, {1, 5}, {1, -1}, {7, 2}};

TEST(RotateAbout, to_the_last_bit) {
    struct Case {
        double angle;
        Points after;
    };
    const Case cases[] = {
        {30,
         {{1, 2, 1, -1},
          {0x1.991b85c84730cp+0, 0x1.bdb3d742c2655p+2},
          {-0x1.cc8dc2e42396ep+1, 0x1.fb67ae8584cd2p+1},
          {0x1.9b91e8dee32d8p-2, -0x1.7b67ae8584ca6p+1},
          {0x1.6646e17211caep+2, 0x1.26145e9ecc080p-5},
          {0x1.cc8dc2e423982p+1, 0x1.bfffffffffffdp+1}, // above: lies at angle 0
          {0x1.cc8dc2e423982p+1, 0x1.bfffffffffffdp+1}, // below: the same
          {0x1.8c8dc2e423982p+2, 0x1.3fffffffffffdp+2}}},
        {-45,
         {{1, 2, 1, -1},
          {0x1.7cc8a99af5452p+2, 0x1.5a827999fcefdp+1},
          {0x1.b504f333f9e1cp+0, 0x1.bcc8a99af5451p+2},
          {-0x1.f9915335ea8a8p+1, 0x1.4afb0ccc0624cp+0},
          {0x1.2bec333018624p-2, -0x1.79915335ea89cp+1},
          {0x1.8f876ccdf6cdep+1, -0x1.f0ed99bed9aa0p-4},
          {0x1.8f876ccdf6cbfp+1, -0x1.f0ed99bed9e80p-4}, // below: 360 more
          {0x1.4f876ccdf6cdep+2, -0x1.1f0ed99bed9aap+1}}},
        {1000, // reduced by one turn only
         {{1, 2, 1, -1},
          {0x1.5d7384211a0c0p+2, -0x1.0a1104eefc590p-2},
          {0x1.1ac534a6f7b6dp+2, 0x1.69897a471d8c7p+2},
          {-0x1.bae708423416cp+1, 0x1.10a1104eefc6bp+2},
          {-0x1.358a694def6eap+1, -0x1.a625e91c76300p+0},
          {0x1.855c9ef444abep+0, -0x1.e8aa2a583547cp-1},
          {0x1.855c9ef444a73p+0, -0x1.e8aa2a5835498p-1},
          {0x1.055c9ef444abep+1, -0x1.f455152c1aa3ep+1}}},
    };
    RecordingPlatform platform;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.angle);
        set_shape(kAround);
        rotate_about(kAround[0], c.angle);
        EXPECT_EQ(shape(), c.after);
    }
}

TEST(RotateAbout, an_overflow_is_raised) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {kHuge, 1}});
    EXPECT_EQ(number_of([] { rotate_about({0, 0}, 90); }), 6);
}

class PlacingCommands : public ::testing::Test {
  protected:
    PlacingCommands() {
        set_shape({{1, 2, 1}, {3, 5}, {4, 2}});
        session.PtoSel = 0;
        session.Precision = 6;
    }
    [[nodiscard]] static bool list_refreshed() { return session.Velmora.Lst_Coords_fill != 0; }
    [[nodiscard]] std::ptrdiff_t repaints() const {
        return std::ranges::count(platform_.pic.operations, "cls");
    }
    RecordingPlatform platform_{test::with_database};
};

TEST_F(PlacingCommands, Rotate_turns_about_the_selected_point_and_rounds) {
    set_shape({{0, 0}, {1, 0, 1}, {0, 1}, {0, -1}, {-1, 0}});
    platform_.dialogs.inputs = {"90"};
    Rotate();
    EXPECT_EQ(shape(), (Points{{0, 0}, {0, 1, 1}, {0, 1}, {0, 1}, {0, -1}}));
    EXPECT_TRUE(list_refreshed());
    ASSERT_EQ(platform_.dialogs.input_calls.size(), 1U);
    EXPECT_EQ(platform_.dialogs.input_calls[0][0], "Angulo de rotación :");
    EXPECT_EQ(platform_.dialogs.input_calls[0][1], GetMensaje(99));
    EXPECT_EQ(platform_.dialogs.input_calls[0][2], "0");
    EXPECT_EQ(session.Longitud, 0);
    EXPECT_EQ(session.Altura, 2);
    EXPECT_EQ(repaints(), 1);
}

TEST_F(PlacingCommands, Rotate_reads_the_answer_with_a_point_and_ignores_the_rest) {
    session.SepDecimal = ',';
    set_shape({{0, 0}, {1, 0}});
    platform_.dialogs.inputs = {" 180.0 grados"};
    Rotate();
    EXPECT_EQ(shape(), (Points{{0, 0}, {-1, 0}}));
}

TEST_F(PlacingCommands, Rotate_by_0_or_cancelled_changes_nothing) {
    Forma.Pto[1].X = 1.0 / 3;
    const Points before = shape();
    for (const auto& answer : std::vector<std::optional<std::string>>{"0", "", "x", std::nullopt}) {
        platform_.dialogs.inputs = {answer};
        Rotate();
        EXPECT_EQ(shape(), before);
    }
    EXPECT_FALSE(list_refreshed());
}

TEST_F(PlacingCommands, Set_00_moves_the_selected_point_to_the_origin_unrounded) {
    set_shape({{1, 2, 1}, {1.0 / 3, 5}, {4, 2}});
    session.PtoSel = 2;
    Set_00();
    EXPECT_EQ(shape(), (Points{{-3, 0, 1}, {1.0 / 3 - 4, 3}, {0, 0}}));
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_FALSE(list_refreshed());
}

TEST_F(PlacingCommands, set_10_and_set_x0_move_the_selected_point_alone) {
    session.PtoSel = 1;
    set_x0();
    EXPECT_EQ(shape(), (Points{{1, 2, 1}, {3, 0}, {4, 2}}));
    session.PtoSel = 0;
    set_10();
    EXPECT_EQ(shape(), (Points{{1, 0, 1}, {3, 0}, {4, 2}}));
    EXPECT_FALSE(list_refreshed());
}

TEST_F(PlacingCommands, none_of_the_three_touches_the_figures) {
    session.Longitud = 77;
    session.Altura = 88;
    session.MinXForma = 99;
    for (void (*command)() : {Set_00, set_10, set_x0})
        command();
    EXPECT_EQ(session.Longitud, 77);
    EXPECT_EQ(session.Altura, 88);
    EXPECT_EQ(session.MinXForma, 99);
    EXPECT_EQ(repaints(), 3);
}

TEST_F(PlacingCommands, no_repaint_while_NoRedraw_is_set) {
    session.NoRedraw = True;
    platform_.dialogs.inputs = {"90"};
    for (void (*command)() : {Rotate, Set_00, set_10, set_x0})
        command();
    EXPECT_EQ(repaints(), 0);
    EXPECT_TRUE(list_refreshed()); // Rotate skips the repaint alone
}

TEST_F(PlacingCommands, Move_Shape_waits_for_its_target) {
    session.DestX = session.DestY = 5;
    Move_Shape();
    EXPECT_EQ(session.MoveShapeMode, True);
    EXPECT_EQ(session.Velmora.pic_MousePointer, 10);
    EXPECT_EQ(session.Velmora.StatusBar1,
              "Selecciona la nueva ubicación de la forma. (pulsa ESC para cancelar)");
    EXPECT_EQ(session.DestX, 0);
    EXPECT_EQ(session.DestY, 0);
    EXPECT_EQ(shape(), (Points{{1, 2, 1}, {3, 5}, {4, 2}}));
}

TEST_F(PlacingCommands, without_a_selection_they_do_and_say_nothing) {
    const Points before = shape();
    for (const int selected : {-1, 3}) {
        session.PtoSel = selected;
        platform_.dialogs.inputs = {"90"};
        for (void (*command)() : {Rotate, Set_00, set_10, set_x0, Move_Shape})
            command();
        EXPECT_EQ(shape(), before);
        EXPECT_EQ(session.MoveShapeMode, False);
        EXPECT_EQ(session.Velmora.pic_MousePointer, 0);
    }
    EXPECT_TRUE(platform_.dialogs.input_calls.empty());
    EXPECT_TRUE(platform_.dialogs.boxes.empty());
    EXPECT_TRUE(platform_.pic.operations.empty());
    EXPECT_FALSE(list_refreshed());
}

} // namespace
} // namespace velmora
