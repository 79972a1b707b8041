// The program's folder at its first start and at that of a newer program, hampered at every call:
// what the user put there is his, and the next start has all.
#include "app/program_folder.h"

#include "hampered.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace velmora {
namespace {

namespace fs = std::filesystem;
using test::Outcome;

std::string bytes_of(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct FirstStartTest : testing::Test {
    test::TemporaryFolder folder;
    ProgramPlaces places{
        folder.path() / "bin", folder.path() / "user", folder.path() / "share", {}};

    void SetUp() override {
        if (!test::can_hamper())
            GTEST_SKIP() << "the kernel lets nobody stand between";
        fs::create_directories(places.executable);
        fs::create_directories(places.installed / "help");
    }
    void install(const std::string& version) const {
        for (const char* name : {"mdbwav0.wav", "acad.dwt", "deployment.txt", "help/index.html"})
            std::ofstream(places.installed / name) << std::string(5000, version[0]) << name;
    }
    /// The files of the user's folder, of these bytes, under whatever name.
    [[nodiscard]] bool holds(const std::string& bytes) const {
        std::error_code none;
        for (const auto& entry : fs::recursive_directory_iterator(places.user_data, none))
            if (entry.is_regular_file() && bytes_of(entry.path()) == bytes)
                return true;
        return false;
    }
    void expect_whole(const char* name, const std::string& former, const std::string& where) const {
        const fs::path file = places.user_data / name;
        const std::string now = bytes_of(file);
        EXPECT_TRUE(!fs::exists(file) || now == bytes_of(places.installed / name) || now == former)
            << name << " has " << now.size() << " bytes: " << where;
    }
};

TEST_F(FirstStartTest, the_next_start_has_every_file_whole) {
    install("1");
    const auto prepare = [&] {
        fs::remove_all(places.user_data);
    };
    const auto start = [&] {
        (void)choose_program_folder(places);
    };
    const auto look = [&](const Outcome& outcome, const std::string& where) {
        EXPECT_TRUE(outcome.killed || outcome.finished) << where;
        for (const char* name : {"mdbwav0.wav", "acad.dwt", "deployment.txt", "help/index.html"})
            expect_whole(name, "", where);
        start();
        for (const char* name : {"mdbwav0.wav", "acad.dwt", "deployment.txt", "help/index.html"})
            EXPECT_EQ(bytes_of(places.user_data / name), bytes_of(places.installed / name))
                << where;
    };
    test::hamper_every_call({prepare, start, look});
}

TEST_F(FirstStartTest, a_newer_program_loses_nothing_of_the_users_own) {
    const std::string own = "mine";
    const auto prepare = [&] {
        fs::remove_all(places.user_data);
        install("1");
        (void)choose_program_folder(places);
        std::ofstream(places.user_data / "acad.dwt") << own;
        install("2");
    };
    const auto start = [&] {
        (void)choose_program_folder(places);
    };
    const auto look = [&](const Outcome& outcome, const std::string& where) {
        EXPECT_TRUE(outcome.killed || outcome.finished) << where;
        EXPECT_TRUE(holds(own)) << "lost: " << where;
        start();
        EXPECT_TRUE(holds(own)) << "lost by the next start: " << where;
        EXPECT_EQ(bytes_of(places.user_data / "mdbwav0.wav"),
                  bytes_of(places.installed / "mdbwav0.wav"))
            << where;
    };
    test::hamper_every_call({prepare, start, look});
}

} // namespace
} // namespace velmora
