#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::Points;
using test::RecordingPlatform;
using test::set_shape;
using test::shape;

struct CommandCase {
    const char* name;
    void (*command)();
    Points after; ///< of kBefore, with Precision 1
};

const Points kBefore = {{-1.26, 2, 1}, {4, -2.04}, {2, 3}};

const CommandCase kCommands[] = {
    {"mnu_positiva", mnu_positiva, {{0, 4, 1}, {5.3, 0}, {3.3, 5}}},
    {"mnu_scale", mnu_scale, {{-0.3, 0.5, 1}, {1, -0.5}, {0.5, 0.8}}}, // -2.04 / 4 first
    {"K_SCALE", K_SCALE, {{-0.3, 0.5, 1}, {1, -0.5}, {0.5, 0.8}}},
    {"mnu_invert", mnu_invert, {{-1.3, 2, 1}, {2, 3}, {4, -2}}},
    {"K_INVERT", K_INVERT, {{-1.3, 2, 1}, {2, 3}, {4, -2}}},
    {"mnu_mirrorh", mnu_mirrorh, {{1.3, 2, 1}, {-4, -2}, {-2, 3}}},
    {"mnu_mirrorv", mnu_mirrorv, {{-1.3, -2, 1}, {4, 2}, {2, -3}}},
};

TEST(ShapeCommands, transform_round_and_refresh_the_list) {
    RecordingPlatform platform{test::with_database};
    session.Precision = 1;
    session.PtoSel = 2;
    for (const CommandCase& c : kCommands) {
        SCOPED_TRACE(c.name);
        set_shape(kBefore);
        c.command();
        EXPECT_EQ(shape(), c.after);
        ASSERT_EQ(session.Velmora.Lst_Coords.size(), 3U);
        EXPECT_EQ(session.Velmora.Lst_Coords[1].X, c.after[1].X);
        EXPECT_EQ(session.PtoSel, 2);
    }
}

// The scale comes before the rounding: rounded first, 0.04 would be gone.
TEST(ShapeCommands, mnu_scale_rounds_last) {
    RecordingPlatform platform{test::with_database};
    session.Precision = 1;
    for (void (*command)() : {mnu_scale, K_SCALE}) {
        set_shape({{0.04, 0}, {0, 0.02}});
        command();
        EXPECT_EQ(shape(), (Points{{1, 0}, {0, 0.5}}));
    }
}

TEST(ShapeCommands, mnu_scale_xy_opens_its_window) {
    RecordingPlatform platform;
    set_shape(kBefore);
    mnu_scale_xy();
    EXPECT_EQ(platform.windows.calls, std::vector<std::string>{"show_modal Scale_xy"});
    EXPECT_EQ(shape(), kBefore);
}

TEST(ShapeCommands, a_single_point_is_no_shape) {
    RecordingPlatform platform{test::with_database};
    const Points before = {{-1.23456789, -1}};
    set_shape(before);
    for (const CommandCase& c : kCommands)
        c.command();
    mnu_scale_xy();
    EXPECT_EQ(shape(), before);
    EXPECT_TRUE(platform.windows.calls.empty());
    EXPECT_TRUE(platform.windows.statuses.empty());
    EXPECT_TRUE(platform.pic.operations.empty());
    EXPECT_TRUE(session.Velmora.Lst_Coords.empty());
    ASSERT_EQ(platform.dialogs.boxes.size(), std::size(kCommands) + 1);
    for (const auto& box : platform.dialogs.boxes)
        EXPECT_EQ(box.text, "No hay ninguna forma cargada!");
}

TEST(ShapeCommands, the_order_of_their_steps) {
    struct Case {
        const char* name;
        void (*command)();
        const char* start;
        bool precision_first;
    };
    const Case cases[] = {
        {"mnu_positiva", mnu_positiva, "Positivando Forma...", true},
        {"mnu_scale", mnu_scale, "Escalando a la Unidad...", false},
        {"K_SCALE", K_SCALE, "Escalando a la Unidad...", false},
        {"mnu_invert", mnu_invert, "Invirtiendo Sentido de Corte...", true},
        {"K_INVERT", K_INVERT, "Invirtiendo Sentido de Corte...", true},
        {"mnu_mirrorh", mnu_mirrorh, "Realizando Mirror Horizontal...", true},
        {"mnu_mirrorv", mnu_mirrorv, "Realizando Mirror Vertical...", true},
    };
    RecordingPlatform platform{test::with_database};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        set_shape(kBefore);
        platform.windows.statuses.clear();
        platform.pic.operations.clear();
        c.command();
        const auto& statuses = platform.windows.statuses;
        ASSERT_EQ(statuses.size(), 4U);
        EXPECT_EQ(statuses[c.precision_first ? 0 : 2], "Aplicando Precisión ...");
        EXPECT_EQ(statuses[c.precision_first ? 2 : 0], c.start);
        EXPECT_EQ(std::ranges::count(platform.pic.operations, "cls"), 1);
    }
}

// mnu_invert and K_SCALE leave the figures and the canvas's origin as they were.
TEST(ShapeCommands, who_calls_Define_Layout) {
    struct Case {
        const char* name;
        void (*command)();
        bool lays_out;
    };
    const Case cases[] = {
        {"mnu_positiva", mnu_positiva, true}, {"mnu_scale", mnu_scale, true},
        {"K_SCALE", K_SCALE, false},          {"mnu_invert", mnu_invert, false},
        {"K_INVERT", K_INVERT, true},         {"mnu_mirrorh", mnu_mirrorh, true},
        {"mnu_mirrorv", mnu_mirrorv, true},
    };
    RecordingPlatform platform;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        set_shape(kBefore);
        session.Longitud = 777;
        c.command();
        EXPECT_EQ(session.Longitud != 777, c.lays_out);
    }
}

TEST(ShapeCommands, the_layout_comes_before_the_repaint) {
    RecordingPlatform platform{test::with_database};
    set_shape({{0, 0}, {2, 1}, {1, 3}});
    mnu_mirrorh();
    EXPECT_EQ(session.CanvasX0, 1000);
    EXPECT_EQ(session.CanvasY0, 1970);
    mnu_mirrorv();
    EXPECT_EQ(session.CanvasY0, 1000);
}

} // namespace
} // namespace velmora
