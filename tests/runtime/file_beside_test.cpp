#include "runtime/file_beside.h"

#include "runtime/paths.h"
#include "support/error_number.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace velmora::runtime {
namespace {

namespace fs = std::filesystem;
using test::number_of;
using test::TemporaryFolder;

void put(const std::string& path, std::string_view bytes) {
    std::ofstream(native_path(path), std::ios::binary) << bytes;
}

std::size_t files_in(const fs::path& folder) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(FileBeside, takes_the_name_over_what_stood_there) {
    const TemporaryFolder folder;
    const std::string target = folder.write("ala.dat", "old");
    FileBeside fresh(target);
    put(fresh.path(), "new");
    EXPECT_EQ(folder.read("ala.dat"), "old");
    fresh.take_name();
    EXPECT_EQ(folder.read("ala.dat"), "new");
    EXPECT_EQ(files_in(folder.path()), 1U);
}

TEST(FileBeside, takes_a_name_that_was_free) {
    const TemporaryFolder folder;
    FileBeside fresh(folder.path("ala.dat"));
    put(fresh.path(), "new");
    fresh.take_permissions();
    fresh.take_name();
    EXPECT_EQ(folder.read("ala.dat"), "new");
}

TEST(FileBeside, what_did_not_take_the_name_is_gone) {
    const TemporaryFolder folder;
    const std::string target = folder.write("ala.dat", "old");
    { put(FileBeside(target).path(), "gone before"); }
    {
        const FileBeside fresh(target);
        put(fresh.path(), "half");
        EXPECT_EQ(files_in(folder.path()), 2U);
    }
    EXPECT_EQ(folder.read("ala.dat"), "old");
    EXPECT_EQ(files_in(folder.path()), 1U);
}

TEST(FileBeside, two_of_one_target_stand_apart) {
    const TemporaryFolder folder;
    FileBeside one(folder.path("ala.dat"));
    FileBeside other(folder.path("ala.dat"));
    EXPECT_NE(one.path(), other.path());
    put(one.path(), "one");
    put(other.path(), "other");
    one.take_name();
    EXPECT_EQ(folder.read("ala.dat"), "one");
    other.take_name();
    EXPECT_EQ(folder.read("ala.dat"), "other");
}

TEST(FreeNameIn, is_a_name_by_chance_between_the_two_texts) {
    const TemporaryFolder folder;
    const std::string path = free_name_in(folder.path(""), "temp-", ".dat");
    EXPECT_TRUE(path.starts_with(folder.path("temp-"))) << path;
    EXPECT_TRUE(path.ends_with(".dat")) << path;
    EXPECT_NE(path, free_name_in(folder.path(""), "temp-", ".dat"));
}

TEST(FileBeside, a_file_that_was_never_written_takes_no_name) {
    const TemporaryFolder folder;
    folder.write("ala.dat", "old");
    FileBeside fresh(folder.path("ala.dat"));
    EXPECT_EQ(number_of([&] { fresh.take_name(); }), 76);
    EXPECT_EQ(folder.read("ala.dat"), "old");
}

TEST(LinkTarget, a_path_that_is_no_link_stays_as_it_is) {
    const TemporaryFolder folder;
    const std::string path = folder.write("ala.dat", "x");
    EXPECT_EQ(link_target(path), path);
    EXPECT_EQ(link_target(folder.path("none.dat")), folder.path("none.dat"));
}

#ifdef __linux__
TEST(FileBeside, keeps_the_permissions_of_the_target) {
    const TemporaryFolder folder;
    const std::string target = folder.write("ala.dat", "old");
    constexpr auto odd = fs::perms::owner_all | fs::perms::group_read;
    fs::permissions(native_path(target), odd);
    FileBeside fresh(target);
    put(fresh.path(), "new");
    fresh.take_permissions();
    fresh.take_name();
    EXPECT_EQ(fs::status(native_path(target)).permissions(), odd);
}

TEST(LinkTarget, follows_links_to_their_end) {
    const TemporaryFolder folder;
    const std::string path = folder.write("ala.dat", "x");
    fs::create_symlink("ala.dat", folder.path() / "one");
    fs::create_symlink(folder.path() / "one", folder.path() / "two");
    fs::create_symlink("none", folder.path() / "astray");
    EXPECT_EQ(link_target(folder.path("two")), path_text(fs::canonical(native_path(path))));
    EXPECT_EQ(link_target(folder.path("astray")), folder.path("astray"));
}
#endif

} // namespace
} // namespace velmora::runtime
