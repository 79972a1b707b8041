#include "adapters/qt/program_folder.h"

#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>

namespace velmora {

namespace {

namespace fs = std::filesystem;

class ProgramFolderTest : public testing::Test {
  protected:
    ProgramFolderTest() {
        for (const fs::path& folder : {places.executable, places.installed})
            fs::create_directories(folder);
    }
    ~ProgramFolderTest() override { fs::permissions(places.executable, fs::perms::owner_all); }

    static void write(const fs::path& path, const char* text) { std::ofstream(path) << text; }
    static std::string read(const fs::path& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static bool writable(const fs::path& path) {
        return (fs::status(path).permissions() & fs::perms::owner_write) != fs::perms::none;
    }

    QTemporaryDir folder_;
    fs::path root = folder_.path().toStdString();
    ProgramPlaces places{root / "bin", root / "data" / "Velmora", root / "share" / "velmora"};
};

TEST_F(ProgramFolderTest, IsTheExecutablesWhereTheDatabaseLiesBesideIt) {
    write(places.executable / "VELMORA.MDB", "portable");
    EXPECT_EQ(choose_program_folder(places), places.executable);
    EXPECT_FALSE(fs::exists(places.user_data));
}

TEST_F(ProgramFolderTest, IsTheUsersFilledFromTheInstalledFiles) {
    for (const char* name : {"VELMORA.MDB", "mdbwav0.wav", "velmora.chm", "deployment.txt"})
        write(places.installed / name, name);
    fs::create_directories(places.installed / "help");
    write(places.installed / "help" / "index.html", "pages");
    fs::permissions(places.installed / "VELMORA.MDB", fs::perms::owner_read);
    EXPECT_EQ(choose_program_folder(places), places.user_data);
    EXPECT_EQ(read(places.user_data / "mdbwav0.wav"), "mdbwav0.wav");
    EXPECT_EQ(read(places.user_data / "velmora.chm"), "velmora.chm");
    EXPECT_EQ(read(places.user_data / "deployment.txt"), "deployment.txt");
    EXPECT_EQ(read(places.user_data / "help" / "index.html"), "pages");
    EXPECT_TRUE(writable(places.user_data / "VELMORA.MDB"));
}

TEST_F(ProgramFolderTest, KeepsWhatTheUsersFolderHas) {
    write(places.installed / "VELMORA.MDB", "installed");
    fs::create_directories(places.user_data);
    write(places.user_data / "VELMORA.MDB", "the user's");
    EXPECT_EQ(choose_program_folder(places), places.user_data);
    EXPECT_EQ(read(places.user_data / "VELMORA.MDB"), "the user's");
}

TEST_F(ProgramFolderTest, IsTheUsersWithNothingInstalledToo) {
    EXPECT_EQ(choose_program_folder(places), places.user_data);
    EXPECT_TRUE(fs::is_directory(places.user_data));
    EXPECT_TRUE(fs::is_empty(places.user_data));
}

} // namespace

} // namespace velmora
