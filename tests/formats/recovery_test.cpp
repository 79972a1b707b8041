#include "formats/recovery.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/load.h"
#include "formats/outline_writer.h"
#include "support/error_number.h"
#include "support/unprivileged.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>

namespace velmora {
namespace {

void put_triangle() {
    Forma.Pto.redim(2);
    Forma.Pto[0] = {0, 0, 1, 0};
    Forma.Pto[1] = {4.5, 0, 0, 0};
    Forma.Pto[2] = {2, -3.125, 1, 0};
}

TEST(Recovery, writes_the_outline_as_a_sync_dat_that_loads_again) {
    test::RecordingPlatform machine{test::with_database};
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

TEST(Recovery, without_a_shape_writes_nothing) {
    test::RecordingPlatform machine;
    EXPECT_EQ(save_recovery(), "");
    EXPECT_FALSE(std::filesystem::exists(machine.folder / "recuperado.dat"));
}

TEST(Recovery, where_the_programs_folder_takes_no_file_the_shapes_own_is_tried_then_the_last_one) {
    test::RecordingPlatform machine;
    put_triangle();
    std::filesystem::create_directory(machine.folder / "alas");
    std::filesystem::create_directory(machine.folder / "abiertos");
    session.program_folder = machine.path("missing");
    session.Velmora.TxtDat_File = machine.path("alas/ala.dat");
    session.LastDir = machine.path("abiertos");
    EXPECT_EQ(save_recovery(), machine.path("alas/recuperado.dat"));
    session.Velmora.TxtDat_File = machine.path("missing/ala.dat");
    EXPECT_EQ(save_recovery(), machine.path("abiertos/recuperado.dat"));
}

TEST(Recovery, the_text_names_the_path_in_each_language) {
    test::RecordingPlatform machine;
    const std::pair<const char*, const char*> cases[] = {
        {"E", "La forma está a salvo. Se ha guardado en:\n/a"},
        {"I", "The shape is safe. It has been saved in:\n/a"},
        {"F", "La forme est en sécurité. Elle a été enregistrée dans :\n/a"},
        {"P", "A forma está a salvo. Foi guardada em:\n/a"},
        {"T", "La forma è al sicuro. È stata salvata in:\n/a"},
        {"", "La forma está a salvo. Se ha guardado en:\n/a"}};
    for (const auto& [language, text] : cases) {
        session.Idioma = language;
        EXPECT_EQ(kept_shape_text("/a"), text);
    }
}

#ifdef __linux__
/// The system's folder for passing files is another one while it lives.
class PassingFolder {
  public:
    explicit PassingFolder(const std::string& path) {
        if (const char* before = getenv("TMPDIR"))
            before_ = before;
        setenv("TMPDIR", path.c_str(), 1);
    }
    ~PassingFolder() {
        if (before_)
            setenv("TMPDIR", before_->c_str(), 1);
        else
            unsetenv("TMPDIR");
    }
    PassingFolder(const PassingFolder&) = delete;
    PassingFolder& operator=(const PassingFolder&) = delete;

  private:
    std::optional<std::string> before_;
};

TEST(Recovery, with_no_other_place_the_systems_folder_for_passing_files_takes_it) {
    test::RecordingPlatform machine;
    put_triangle();
    session.program_folder = machine.path("missing");
    const PassingFolder passing(machine.folder.string());
    EXPECT_EQ(save_recovery(), machine.path("recuperado.dat"));
}

TEST(Recovery, with_no_place_at_all_writes_nothing) {
    test::RecordingPlatform machine;
    put_triangle();
    session.program_folder = machine.path("missing");
    const PassingFolder passing(machine.path("missing"));
    EXPECT_EQ(save_recovery(), "");
}

TEST(Recovery, a_full_disk_is_left_as_it_was_and_another_place_takes_the_file) {
    const test::SmallDisk disk(8192);
    if (!disk.stands())
        GTEST_SKIP() << "this user can't mount a small disk";
    test::RecordingPlatform machine;
    Forma.Pto.redim(20000);
    std::ofstream(disk.path("recuperado.dat")) << "older";
    session.program_folder = disk.path("");
    session.LastDir = machine.folder.string();
    EXPECT_EQ(save_recovery(), machine.path("recuperado.dat"));
    EXPECT_EQ(std::filesystem::file_size(machine.path("recuperado.dat")), 44U * (20001 + 5));
    EXPECT_EQ(test::RecordingPlatform::read(disk.path("recuperado.dat")), "older");
    EXPECT_FALSE(std::filesystem::exists(disk.path("recuperado1.dat")));
}

TEST(Recovery, a_disk_that_the_save_filled_takes_the_recovery_file_too) {
    const test::SmallDisk disk(32768);
    if (!disk.stands())
        GTEST_SKIP() << "this user can't mount a small disk";
    test::RecordingPlatform machine;
    session.program_folder = disk.path("");
    Forma.Pto.redim(500);
    for (std::int32_t i = 0; i <= 500; ++i)
        Forma.Pto[i] = {i + 0.123456789, i * 2.0, 1, 0};
    // 44 bytes a record and two records a point do not fit, one does.
    session.Velmora.TxtDat_File = disk.path("ala.dat");
    EXPECT_EQ(test::number_of([] { EscribeFichero(); }), 61);
    Forma.Pto.redim(500);
    EXPECT_EQ(save_recovery(), disk.path("recuperado.dat"));
}

TEST(Recovery, an_older_file_of_another_user_stays_and_the_new_one_takes_a_number) {
    test::RecordingPlatform machine;
    put_triangle();
    const auto folder = machine.folder / "compartida";
    std::filesystem::create_directory(folder);
    std::ofstream(folder / "recuperado.dat") << "of another";
    std::filesystem::permissions(folder,
                                 std::filesystem::perms::all | std::filesystem::perms::sticky_bit);
    session.program_folder = folder.string();
    const test::OrdinaryUser user;
    if (geteuid() == getuid() || !user.stands())
        GTEST_SKIP() << "no other user to be";
    EXPECT_EQ(save_recovery(), (folder / "recuperado1.dat").string());
    EXPECT_EQ(test::RecordingPlatform::read((folder / "recuperado.dat").string()), "of another");
}
#endif

} // namespace
} // namespace velmora
