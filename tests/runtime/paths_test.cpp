#include "runtime/paths.h"
#include "support/error_number.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace runtime;
using test::number_of;

const char separator = static_cast<char>(std::filesystem::path::preferred_separator);

TEST(Paths, take_either_separator) {
    const auto expected = std::filesystem::path("a") / "b" / "c.dat";
    EXPECT_EQ(native_path("a\\b\\c.dat"), expected);
    EXPECT_EQ(native_path("a/b\\c.dat"), expected);
    EXPECT_TRUE(is_separator('/'));
    EXPECT_TRUE(is_separator('\\'));
    EXPECT_FALSE(is_separator(':'));
}

TEST(Paths, text_comes_back) {
    EXPECT_EQ(path_text(native_path("señal €.dat")), "señal €.dat");
    EXPECT_EQ(path_text(native_path("")), "");
}

TEST(FileName, follows_the_last_separator_of_either_kind) {
    EXPECT_EQ(file_name("/alas/clark y.dat"), "clark y.dat");
    EXPECT_EQ(file_name("C:\\alas/nuevas\\ala.dat"), "ala.dat");
    EXPECT_EQ(file_name("ala.dat"), "ala.dat");
    EXPECT_EQ(file_name("/alas/"), "");
    EXPECT_EQ(file_name(""), "");
}

TEST(Join, puts_one_separator) {
    const std::string joint(1, separator);
    EXPECT_EQ(join("folder", "x.dat"), "folder" + joint + "x.dat");
    EXPECT_EQ(join("folder", "\\x.dat"), "folder" + joint + "x.dat");
    EXPECT_EQ(join("folder", "/x.dat"), "folder" + joint + "x.dat");
    EXPECT_EQ(join("folder/", "\\x.dat"), "folder/x.dat");
    EXPECT_EQ(join("folder\\", "x.dat"), "folder\\x.dat");
    EXPECT_EQ(join("", "x.dat"), "x.dat");
    EXPECT_EQ(join("/", "x.dat"), "/x.dat");
}

TEST(FileExists, is_about_files_alone) {
    const test::TemporaryFolder folder;
    EXPECT_TRUE(file_exists(folder.write("x", "")));
    EXPECT_FALSE(file_exists(folder.path("y")));
    EXPECT_FALSE(file_exists(path_text(folder.path())));
    EXPECT_FALSE(file_exists(folder.path("x/y")));
    EXPECT_FALSE(file_exists(""));
    EXPECT_FALSE(file_exists(std::string(5000, 'n')));
}

TEST(RemoveFile, leaves_no_file_and_raises_nothing) {
    const test::TemporaryFolder folder;
    const auto path = folder.write("x", "1");
    EXPECT_TRUE(remove_file(path));
    EXPECT_FALSE(file_exists(path));
    EXPECT_TRUE(remove_file(path));
    EXPECT_FALSE(remove_file(path_text(folder.path())));
    EXPECT_TRUE(std::filesystem::exists(folder.path()));
}

TEST(CopyFile, copies_over_what_is_there) {
    const test::TemporaryFolder folder;
    const auto from = folder.write("from", std::string("new\0bytes", 9));
    const auto to = folder.write("to", "old and longer than the new");
    copy_file(from, to);
    EXPECT_EQ(folder.read("to"), std::string("new\0bytes", 9));
    copy_file(from, folder.path("third"));
    EXPECT_EQ(folder.read("third"), folder.read("from"));
}

TEST(CopyFile, raises_the_numbers_of_files) {
    const test::TemporaryFolder folder;
    const auto here = folder.write("x", "1");
    EXPECT_EQ(number_of([&] { copy_file(folder.path("no"), folder.path("y")); }), 53);
    EXPECT_EQ(number_of([&] { copy_file(here, folder.path("no/y")); }), 76);
    EXPECT_EQ(number_of([&] { copy_file(path_text(folder.path()), folder.path("y")); }), 75);
    EXPECT_EQ(number_of([&] { copy_file(here, path_text(folder.path())); }), 75);
}

TEST(CopyFile, a_file_is_not_copied_over_itself) {
    const test::TemporaryFolder folder;
    const auto here = folder.write("x", "1");
    EXPECT_EQ(number_of([&] { copy_file(here, folder.path("./x")); }), 70);
    EXPECT_EQ(folder.read("x"), "1");
}

TEST(CopyFile, a_file_of_many_buffers_comes_whole) {
    const test::TemporaryFolder folder;
    std::string bytes;
    while (bytes.size() < 1'000'000)
        bytes += std::to_string(bytes.size());
    copy_file(folder.write("from", bytes), folder.path("to"));
    EXPECT_EQ(folder.read("to"), bytes);
}

} // namespace
} // namespace velmora
