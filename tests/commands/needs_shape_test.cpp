#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/recording_platform.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

struct Command {
    const char* name;
    void (*run)();
};

constexpr Command kNeedAShape[] = {
    {"mnu_savefile", mnu_savefile},
    {"mnu_savefileas", mnu_savefileas},
    {"mnu_print", mnu_print},
    {"Delete_All_Pto_Sinc", Delete_All_Pto_Sinc},
    {"Insert_All_Pto_Sinc", Insert_All_Pto_Sinc},
    {"Mult_Points_Shape", Mult_Points_Shape},
    {"mnu_positiva", mnu_positiva},
    {"mnu_scale", mnu_scale},
    {"mnu_scale_xy", mnu_scale_xy},
    {"mnu_invert", mnu_invert},
    {"mnu_mirrorh", mnu_mirrorh},
    {"mnu_mirrorv", mnu_mirrorv},
    {"K_INVERT", K_INVERT},
    {"K_SCALE", K_SCALE},
    {"Delete_Pto", Delete_Pto},
};

TEST(NeedsShape, one_point_is_none_and_each_command_says_so_and_ends) {
    for (const Command& command : kNeedAShape) {
        SCOPED_TRACE(command.name);
        test::RecordingPlatform platform{test::with_database};
        const Pto point{1.23456789, -2, 1, 0};
        Forma.Pto[0] = point;
        session.Velmora.TxtDat_File = platform.path("wing.dat");
        command.run();
        ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
        EXPECT_EQ(platform.dialogs.boxes[0],
                  (test::ShownBox{"No hay ninguna forma cargada!", 0, "Velmora"}));
        EXPECT_EQ(Forma.Pto[0], point);
        EXPECT_EQ(Forma.Pto.upper(), 0);
        EXPECT_TRUE(platform.windows.calls.empty());
        EXPECT_TRUE(platform.windows.statuses.empty());
        EXPECT_TRUE(platform.pic.operations.empty());
        EXPECT_TRUE(platform.printer.operations.empty());
        EXPECT_TRUE(platform.shell.recycled.empty());
    }
}

} // namespace
} // namespace velmora
