#include "formats/recovery.h"

#include "document/session.h"
#include "formats/load.h"
#include "support/recording_platform.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

void put_triangle() {
    Forma.Pto.redim(2);
    Forma.Pto[0] = {0, 0, 1, 0};
    Forma.Pto[1] = {4.5, 0, 0, 0};
    Forma.Pto[2] = {2, -3.125, 1, 0};
}

TEST(Recovery, writes_the_outline_as_a_sync_dat_that_loads_again) {
    test::RecordingPlatform machine;
    put_triangle();
    session.Velmora.TxtDescDat = "costilla";

    const std::string path = save_recovery();

    EXPECT_EQ(path, machine.path("recuperado.dat"));
    const Array<Pto> before = Forma.Pto;
    Forma.Pto.redim(0);
    session.Velmora.TxtDat_File = path;
    std::int16_t result = 0;
    CargaFichero(0, result);
    EXPECT_EQ(result, -1);
    ASSERT_EQ(Forma.Pto.upper(), 2);
    for (std::int32_t i = 0; i <= 2; ++i)
        EXPECT_EQ(Forma.Pto[i], before[i]) << i;
}

TEST(Recovery, keeps_older_files_under_numbers) {
    test::RecordingPlatform machine;
    put_triangle();
    machine.write("recuperado.dat", "older");
    machine.write("recuperado1.dat", "oldest");

    EXPECT_FALSE(save_recovery().empty());

    EXPECT_EQ(test::RecordingPlatform::read(machine.path("recuperado1.dat")), "oldest");
    EXPECT_EQ(test::RecordingPlatform::read(machine.path("recuperado2.dat")), "older");
    EXPECT_EQ(test::RecordingPlatform::read(machine.path("recuperado.dat")).substr(0, 7),
              "Fichero");
}

TEST(Recovery, works_while_file_1_is_open) {
    test::RecordingPlatform machine;
    put_triangle();
    session.files.open_input(1, machine.write("other.dat", "text"));
    EXPECT_FALSE(save_recovery().empty());
    EXPECT_TRUE(session.files.is_open(1));
}

TEST(Recovery, without_a_shape_or_a_folder_writes_nothing) {
    test::RecordingPlatform machine;
    EXPECT_EQ(save_recovery(), "");
    EXPECT_FALSE(std::filesystem::exists(machine.folder / "recuperado.dat"));
    put_triangle();
    session.program_folder = machine.path("missing");
    EXPECT_EQ(save_recovery(), "");
}

} // namespace
} // namespace velmora
