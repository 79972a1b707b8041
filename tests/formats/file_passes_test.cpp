#include "formats/file_passes.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/sample_files.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "support/unprivileged.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;

/// Lines "line 1" to "line n", with one of them replaced.
std::string lines(int count, int at = 0, const std::string& text = "") {
    std::string all;
    for (int i = 1; i <= count; ++i)
        all += (i == at ? text : "line " + std::to_string(i)) + "\r\n";
    return all;
}

TEST(FormatPaths, QuitaNombre_cuts_at_the_last_separator_with_four_characters_behind_it) {
    struct Case {
        const char* path;
        const char* folder;
    };
    for (const Case& c : std::vector<Case>{{"C:\\alas\\wing.dat", "C:\\alas"},
                                           {"/home/ana/wing.dat", "/home/ana"},
                                           {"C:\\alas/x.dat", "C:\\alas"},
                                           {"/a/x.da", "/a"},
                                           {"/a/xda", ""},
                                           {"/aaa/b/xy", "/aaa"},
                                           {"C:\\alas\\x.d", "C:"},
                                           {"/alas/ña.d", "/alas"},
                                           {"/alas/ñ.d", ""},
                                           {"/wing.dat", ""},
                                           {"wing.dat", ""},
                                           {"", ""},
                                           {"/", ""},
                                           {"/////", ""}})
        EXPECT_EQ(QuitaNombre(c.path), c.folder) << c.path;
}

TEST(FormatPaths, SoloNombre_takes_what_stands_behind_the_last_separator) {
    EXPECT_EQ(SoloNombre("C:\\alas\\wing.dat"), "wing.dat");
    EXPECT_EQ(SoloNombre("/home/ana/wing.dat"), "wing.dat");
    EXPECT_EQ(SoloNombre("C:\\a/b"), "b");
    EXPECT_EQ(SoloNombre("wing.dat"), "wing.dat");
    EXPECT_EQ(SoloNombre("/home/"), "");
    EXPECT_EQ(SoloNombre(""), "");
}

TEST(FormatPaths, a_description_is_cut_at_the_backslash_alone) {
    EXPECT_EQ(after_last_backslash("ala 1/2"), "ala 1/2");
    EXPECT_EQ(after_last_backslash("ala\\punta\\izq"), "izq");
    EXPECT_EQ(after_last_backslash("ala\\"), "");
    EXPECT_EQ(after_last_backslash(""), "");
}

TEST(BorraFichero, goes_to_the_recycle_bin_and_tells_whether_the_file_is_gone) {
    RecordingPlatform platform;
    const std::string path = platform.write("a.dat", "x");
    EXPECT_TRUE(BorraFichero(path));
    EXPECT_FALSE(runtime::file_exists(path));
    const std::string kept = platform.write("b.dat", "x");
    platform.shell.recycle_fails = true;
    EXPECT_FALSE(BorraFichero(kept));
    EXPECT_EQ(platform.shell.recycled, (std::vector{path, kept}));
}

TEST(SetDecimalSep, fourteen_lines_with_commas_are_rewritten_on_a_machine_with_a_point) {
    RecordingPlatform platform;
    std::string text = lines(14, 5, "1,5 2,5");
    text += "a,b\tc";
    const std::string path = platform.write("wing.dat", text);
    SetDecimalSep(path);
    EXPECT_EQ(RecordingPlatform::read(path), runtime::replaced(text, ',', '.'));
}

TEST(SetDecimalSep, a_comma_machine_turns_points_into_commas) {
    RecordingPlatform platform;
    session.SepDecimal = ',';
    const std::string text = lines(14, 5, "1.5 2.5") + "x.y";
    const std::string path = platform.write("wing.dat", text);
    SetDecimalSep(path);
    EXPECT_EQ(RecordingPlatform::read(path), runtime::replaced(text, '.', ','));
}

TEST(SetDecimalSep, the_file_is_left_alone) {
    struct Case {
        const char* why;
        std::string text;
    };
    for (const Case& c :
         std::vector<Case>{{"13 lines", lines(13, 5, "1,5")},
                           {"13 lines, the last without its end", lines(12, 5, "1,5") + "2,5"},
                           {"4 lines", lines(4, 4, "1,5")},
                           {"3 lines", lines(3, 3, "1,5")},
                           {"the separator in line 4", lines(20, 4, "1.5,2")},
                           {"the separator in line 13", lines(20, 13, "1.5,2")},
                           {"byte 26 behind line 13", lines(13, 5, "1,5") + "\x1A" + lines(9)}}) {
        RecordingPlatform platform;
        const std::string path = platform.write("wing.dat", c.text);
        SetDecimalSep(path);
        EXPECT_EQ(RecordingPlatform::read(path), c.text) << c.why;
        EXPECT_TRUE(platform.shell.recycled.empty()) << c.why;
    }
}

TEST(SetDecimalSep, a_separator_in_lines_1_to_3_or_from_14_on_does_not_count) {
    for (const int line : {1, 2, 3, 14, 15}) {
        RecordingPlatform platform;
        const std::string text = lines(15, line, "1.5,2");
        const std::string path = platform.write("wing.dat", text);
        SetDecimalSep(path);
        EXPECT_EQ(RecordingPlatform::read(path), runtime::replaced(text, ',', '.')) << line;
    }
}

TEST(SetDecimalSep, lines_end_at_cr_lf_at_lf_or_at_cr) {
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        RecordingPlatform platform;
        std::string text;
        for (int i = 0; i < 14; ++i)
            text += "1,5 2" + end;
        const std::string path = platform.write("wing.dat", text);
        SetDecimalSep(path);
        EXPECT_EQ(RecordingPlatform::read(path), runtime::replaced(text, ',', '.'));
    }
}

TEST(SetDecimalSep, whole_numbers_alone_send_the_file_through_the_pass_unchanged) {
    RecordingPlatform platform;
    const std::string path = platform.write("wing.dat", lines(14));
    SetDecimalSep(path);
    EXPECT_EQ(RecordingPlatform::read(path), lines(14));
    ASSERT_EQ(platform.shell.recycled.size(), 2U);
    EXPECT_EQ(platform.shell.recycled[0], path);
    const std::string& temp = platform.shell.recycled[1];
    EXPECT_TRUE(temp.starts_with(program_file("\\temp-")) && temp.ends_with(".dat")) << temp;
    EXPECT_FALSE(runtime::file_exists(temp));
}

// What two programs at once write there must not meet.
TEST(SetDecimalSep, the_temp_file_of_each_pass_has_a_name_of_its_own) {
    RecordingPlatform platform;
    for (const char* name : {"one.dat", "other.dat"})
        SetDecimalSep(platform.write(name, lines(14)));
    ASSERT_EQ(platform.shell.recycled.size(), 4U);
    EXPECT_NE(platform.shell.recycled[1], platform.shell.recycled[3]);
}

TEST(SetDecimalSep, a_temp_file_left_from_before_is_deleted_first) {
    RecordingPlatform platform;
    const std::string temp = platform.write("temp.dat", std::string(100000, 'z'));
    const std::string path = platform.write("wing.dat", lines(14));
    SetDecimalSep(path);
    EXPECT_EQ(RecordingPlatform::read(path), lines(14));
    EXPECT_EQ(platform.shell.recycled.size(), 3U);
    EXPECT_EQ(platform.shell.recycled.front(), program_file("\\temp.dat"));
    EXPECT_FALSE(runtime::file_exists(temp));
}

TEST(SetDecimalSep, a_large_file_keeps_every_byte) {
    RecordingPlatform platform;
    std::string text = lines(14);
    for (int i = 0; i < 1'000'000; ++i)
        text += static_cast<char>(i * 7 % 256);
    const std::string path = platform.write("wing.dat", text);
    SetDecimalSep(path);
    EXPECT_EQ(RecordingPlatform::read(path), runtime::replaced(text, ',', '.'));
}

TEST(SetDecimalSep, where_the_recycle_bin_fails_the_file_is_written_over) {
    RecordingPlatform platform;
    platform.shell.recycle_fails = true;
    const std::string path = platform.write("wing.dat", lines(14, 6, "1,5"));
    SetDecimalSep(path);
    EXPECT_EQ(RecordingPlatform::read(path), lines(14, 6, "1.5"));
}

TEST(SetDecimalSep, faults_rise_and_leave_no_number_open) {
    RecordingPlatform platform;
    EXPECT_EQ(number_of([&] { SetDecimalSep(platform.path("none.dat")); }), 53);
    EXPECT_EQ(number_of([&] { SetDecimalSep(platform.folder.string()); }), 75);
    const std::string two = platform.write("two.dat", lines(2));
    EXPECT_EQ(number_of([&] { SetDecimalSep(two); }), 62);
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_FALSE(session.files.is_open(2));
}

TEST(SetDecimalSep, a_file_1_left_open_by_another_reader_raises_55_and_stays_open) {
    RecordingPlatform platform;
    const std::string path = platform.write("wing.dat", lines(14));
    session.files.open_input(1, path);
    EXPECT_EQ(number_of([&] { SetDecimalSep(path); }), 55);
    EXPECT_TRUE(session.files.is_open(1));
}

#ifdef __linux__
namespace fs = std::filesystem;

/// A program's folder open to all, and beside it a folder with one file that only its owner, or
/// nobody at all, may write.
class ReadOnlyFile {
  public:
    explicit ReadOnlyFile(const std::string& text) {
        fs::permissions(platform.folder, fs::perms::all);
        fs::create_directory(folder);
        path = platform.write("leer/wing.dat", text);
        fs::permissions(path,
                        fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
        set_folder(fs::perms{0555});
    }
    ~ReadOnlyFile() { set_folder(fs::perms::all); }
    ReadOnlyFile(const ReadOnlyFile&) = delete;
    ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

    void set_folder(fs::perms allowed) const { fs::permissions(folder, allowed); }

    RecordingPlatform platform;
    fs::path folder = platform.folder / "leer";
    std::string path;
};

TEST(Passes, a_file_that_can_not_be_rewritten_stands_and_its_passed_copy_is_to_be_read) {
    const std::string text = lines(14, 6, "1,5\t2");
    const ReadOnlyFile file(text);
    const test::OrdinaryUser user;
    if (!user.stands())
        GTEST_SKIP() << "no other user to be";
    const std::string dotted = SetDecimalSep(file.path);
    EXPECT_NE(dotted, file.path);
    EXPECT_EQ(RecordingPlatform::read(dotted), lines(14, 6, "1.5\t2"));
    const std::string blanked = TabToSpace(dotted);
    EXPECT_EQ(RecordingPlatform::read(blanked), lines(14, 6, "1.5 2"));
    EXPECT_EQ(RecordingPlatform::read(file.path), text);
    EXPECT_TRUE(file.platform.dialogs.boxes.empty());
}

TEST(Passes, tabs_alone_are_passed_in_a_copy_too) {
    const ReadOnlyFile file(lines(14, 6, "1\t2"));
    const test::OrdinaryUser user;
    if (!user.stands())
        GTEST_SKIP() << "no other user to be";
    EXPECT_EQ(RecordingPlatform::read(TabToSpace(file.path)), lines(14, 6, "1 2"));
    EXPECT_EQ(RecordingPlatform::read(file.path), lines(14, 6, "1\t2"));
}

TEST(Passes, a_file_of_another_user_in_a_folder_with_restricted_deletion_stands) {
    const ReadOnlyFile file(lines(14, 6, "1,5"));
    file.set_folder(fs::perms::all | fs::perms::sticky_bit);
    const test::OrdinaryUser user;
    if (geteuid() == getuid() || !user.stands())
        GTEST_SKIP() << "no other user to be";
    EXPECT_EQ(RecordingPlatform::read(SetDecimalSep(file.path)), lines(14, 6, "1.5"));
    EXPECT_EQ(RecordingPlatform::read(file.path), lines(14, 6, "1,5"));
    EXPECT_EQ(std::distance(fs::directory_iterator(file.folder), fs::directory_iterator()), 1);
}

TEST(Passes, a_full_disk_under_the_file_leaves_it_and_the_copy_is_read) {
    const test::SmallDisk disk(8192);
    if (!disk.stands())
        GTEST_SKIP() << "this user can't mount a small disk";
    RecordingPlatform platform;
    const std::string text = lines(14, 6, "1,5") + std::string(5000, 'x');
    std::ofstream(disk.path("wing.dat"), std::ios::binary) << text;
    const std::string to_read = SetDecimalSep(disk.path("wing.dat"));
    EXPECT_EQ(RecordingPlatform::read(to_read), runtime::replaced(text, ',', '.'));
    EXPECT_EQ(RecordingPlatform::read(disk.path("wing.dat")), text);
    EXPECT_TRUE(platform.shell.recycled.empty());
}

TEST(Passes, keep_the_permissions_of_the_file) {
    for (const fs::perms kept : {fs::perms::owner_read | fs::perms::owner_write,
                                 fs::perms::owner_read | fs::perms::group_read, fs::perms::all}) {
        RecordingPlatform platform;
        const std::string path = platform.write("wing.dat", lines(14, 6, "1,5\t2"));
        fs::permissions(path, kept);
        EXPECT_EQ(SetDecimalSep(path), path);
        EXPECT_EQ(TabToSpace(path), path);
        EXPECT_EQ(RecordingPlatform::read(path), lines(14, 6, "1.5 2"));
        EXPECT_EQ(fs::status(path).permissions(), kept);
    }
}

TEST(Passes, rewrite_the_target_of_a_symbolic_link_and_the_link_stays) {
    RecordingPlatform platform;
    fs::create_directory(platform.folder / "lejos");
    platform.write("lejos/ala.dat", lines(14, 6, "1,5\t2"));
    fs::create_symlink("lejos/ala.dat", platform.folder / "wing.dat");
    const std::string path = platform.path("wing.dat");
    EXPECT_EQ(SetDecimalSep(path), path);
    EXPECT_EQ(TabToSpace(path), path);
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(RecordingPlatform::read(platform.path("lejos/ala.dat")), lines(14, 6, "1.5 2"));
}

TEST(Passes, a_saved_file_is_written_over_where_its_folder_takes_no_new_one) {
    const ReadOnlyFile file(lines(14, 6, "1,5"));
    fs::permissions(file.path, fs::perms::all);
    const test::OrdinaryUser user;
    if (!user.stands())
        GTEST_SKIP() << "no other user to be";
    SetDotDecimals(file.path);
    const std::string dotted = lines(14, 6, "1.5");
    EXPECT_EQ(RecordingPlatform::read(file.path), dotted.substr(0, dotted.size() - 2));
}

TEST(SetDecimalSep, a_copy_that_a_full_disk_broke_off_is_removed) {
    const test::SmallDisk disk(8192);
    if (!disk.stands())
        GTEST_SKIP() << "this user can't mount a small disk";
    RecordingPlatform platform;
    const std::string path = platform.write("wing.dat", lines(14) + std::string(20000, 'x'));
    session.program_folder = disk.path("");
    EXPECT_EQ(number_of([&] { SetDecimalSep(path); }), 61);
    EXPECT_TRUE(fs::is_empty(disk.path()));
}

TEST(SetDecimalSep, a_temp_file_of_before_that_stays_is_not_in_the_way) {
    RecordingPlatform platform;
    platform.shell.recycle_fails = true;
    const std::string left = platform.write("temp.dat", "left");
    const std::string path = platform.write("wing.dat", lines(14, 6, "1,5"));
    EXPECT_EQ(SetDecimalSep(path), path);
    EXPECT_EQ(RecordingPlatform::read(path), lines(14, 6, "1.5"));
    EXPECT_EQ(RecordingPlatform::read(left), "left");
}
#endif

TEST(SetDecimalSep, the_temp_file_itself_is_not_copied_over_itself) {
    RecordingPlatform platform;
    const std::string path = platform.write("temp.dat", lines(14, 6, "1,5"));
    EXPECT_EQ(number_of([&] { SetDecimalSep(path); }), 55);
    EXPECT_EQ(RecordingPlatform::read(path), lines(14, 6, "1,5"));
    EXPECT_TRUE(platform.shell.recycled.empty());
}

TEST(TabToSpace, a_tab_in_lines_4_to_13_turns_all_tabs_into_blanks) {
    for (const int line : {4, 13}) {
        RecordingPlatform platform;
        const std::string text = lines(14, line, "1\t2") + "\t\t";
        const std::string path = platform.write("wing.dat", text);
        TabToSpace(path);
        EXPECT_EQ(RecordingPlatform::read(path), runtime::replaced(text, '\t', ' ')) << line;
    }
}

TEST(TabToSpace, the_file_is_left_alone) {
    for (const std::string& text : {lines(13, 5, "1\t2"), lines(4, 4, "1\t2"), lines(14),
                                    lines(14, 14, "1\t2"), lines(14, 3, "1\t2")}) {
        RecordingPlatform platform;
        const std::string path = platform.write("wing.dat", text);
        TabToSpace(path);
        EXPECT_EQ(RecordingPlatform::read(path), text);
        EXPECT_TRUE(platform.shell.recycled.empty());
    }
}

TEST(SetDotDecimals, a_comma_starts_the_pass_and_the_last_two_bytes_are_lost) {
    for (const int count : {4, 8, 13, 14, 30}) {
        RecordingPlatform platform;
        const std::string text = lines(count, 4, "1,5 2,5");
        const std::string path = platform.write("wing.dat", text);
        SetDotDecimals(path);
        const std::string expected = runtime::replaced(text, ',', '.');
        EXPECT_EQ(RecordingPlatform::read(path), expected.substr(0, expected.size() - 2));
    }
}

TEST(SetDotDecimals, without_a_comma_in_lines_4_to_13_the_file_is_left_alone) {
    for (const std::string& text :
         {lines(14), lines(3, 3, "1,5"), lines(14, 1, "1,5"), lines(14, 14, "1,5")}) {
        RecordingPlatform platform;
        const std::string path = platform.write("wing.dat", text);
        SetDotDecimals(path);
        EXPECT_EQ(RecordingPlatform::read(path), text);
        EXPECT_TRUE(platform.shell.recycled.empty());
    }
}

} // namespace
} // namespace velmora
