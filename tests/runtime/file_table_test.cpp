#include "runtime/file_table.h"
#include "runtime/paths.h"
#include "support/error_number.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using runtime::FileTable;
using test::number_of;

class Files : public testing::Test {
  protected:
    std::string file(std::string_view bytes) { return folder.write("file.dat", bytes); }
    std::vector<std::string> lines(std::string_view bytes) {
        files.open_input(1, file(bytes));
        std::vector<std::string> found;
        while (!files.eof(1))
            found.emplace_back(files.line_input(1));
        EXPECT_EQ(number_of([&] { files.line_input(1); }), 62);
        files.close(1);
        return found;
    }

    test::TemporaryFolder folder;
    FileTable files;
};

using Lines = std::vector<std::string>;

TEST_F(Files, lines_end_at_any_of_the_three_ends) {
    EXPECT_EQ(lines("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(lines("a\r\n\r\n\n\rb\r\n"), (Lines{"a", "", "", "", "b"}));
    EXPECT_EQ(lines("\r\r\n\n"), (Lines{"", "", ""}));
    EXPECT_EQ(lines(""), Lines{});
    EXPECT_EQ(lines("\n"), Lines{""});
    EXPECT_EQ(lines("a\r"), Lines{"a"});
}

TEST_F(Files, bytes_in_a_line_stay_as_they_are) {
    const std::string odd("\0\t\x1B\xF1\x19 x", 7);
    EXPECT_EQ(lines(odd + "\r\nz"), (Lines{odd, "z"}));
}

TEST_F(Files, byte_26_ends_the_text) {
    EXPECT_EQ(lines("a\r\nb\x1A c\r\nd"), (Lines{"a", "b"}));
    EXPECT_EQ(lines("a\r\n\x1A"), Lines{"a"});
    EXPECT_EQ(lines("\x1A"), Lines{});
    EXPECT_EQ(lines("a\r\x1A\n"), Lines{"a"});
}

TEST_F(Files, lines_pass_the_borders_of_the_buffer) {
    for (const std::string end : {"\r\n", "\n", "\r"}) {
        std::string bytes;
        Lines expected;
        for (std::size_t i = 0; bytes.size() < 1'500'000; ++i) {
            expected.emplace_back(i % 97, static_cast<char>('a' + i % 26));
            bytes += expected.back() + end;
        }
        ASSERT_EQ(lines(bytes), expected);
    }
}

TEST_F(Files, an_end_of_two_bytes_may_lie_across_any_border) {
    constexpr std::size_t buffer = 256 * 1024;
    for (std::size_t size = buffer - 3; size <= buffer + 1; ++size) {
        const std::string first(size, 'x');
        EXPECT_EQ(lines(first + "\r\nlast\r\n"), (Lines{first, "last"})) << size;
        EXPECT_EQ(lines(first + "\r\rlast"), (Lines{first, "", "last"})) << size;
        EXPECT_EQ(lines(first + "\r"), Lines{first}) << size;
    }
}

TEST_F(Files, a_line_may_be_longer_than_the_buffer) {
    const std::string first(3'000'000, 'x');
    EXPECT_EQ(lines(first + "\nb"), (Lines{first, "b"}));
}

TEST_F(Files, records_are_read_in_sequence) {
    files.open_random(1, file("abcdEFGH"), 4);
    EXPECT_FALSE(files.eof(1));
    EXPECT_EQ(files.read_record(1), "abcd");
    EXPECT_EQ(files.read_record(1), "EFGH");
    EXPECT_FALSE(files.eof(1));
    EXPECT_EQ(files.read_record(1), "    ");
    EXPECT_TRUE(files.eof(1));
    EXPECT_EQ(files.read_record(1), "    ");
    EXPECT_TRUE(files.eof(1));
}

TEST_F(Files, a_short_record_is_filled_with_blanks) {
    files.open_random(1, file("abcdEF"), 4);
    EXPECT_EQ(files.read_record(1), "abcd");
    EXPECT_FALSE(files.eof(1));
    EXPECT_EQ(files.read_record(1), "EF  ");
    EXPECT_TRUE(files.eof(1));
}

TEST_F(Files, byte_26_is_nothing_special_in_a_record) {
    files.open_random(1, file("\x1A\x1A"), 2);
    EXPECT_EQ(files.read_record(1), "\x1A\x1A");
    EXPECT_FALSE(files.eof(1));
}

TEST_F(Files, records_pass_the_borders_of_the_buffer) {
    std::string bytes;
    for (int i = 0; i < 20000; ++i)
        bytes += std::to_string(1'000'000 + i) + std::string(37, 'r');
    files.open_random(1, file(bytes), 44);
    for (std::size_t i = 0; i < 20000; ++i)
        ASSERT_EQ(files.read_record(1), std::string_view(bytes).substr(i * 44, 44));
    EXPECT_FALSE(files.eof(1));
    EXPECT_EQ(files.read_record(1), std::string(44, ' '));
    EXPECT_TRUE(files.eof(1));
}

TEST_F(Files, open_random_makes_a_missing_file) {
    const auto path = folder.path("new.dat");
    files.open_random(1, path, 4);
    files.write(1, "abcd");
    files.write(1, "efgh");
    files.close(1);
    EXPECT_EQ(folder.read("new.dat"), "abcdefgh");
}

TEST_F(Files, records_not_written_over_stay) {
    files.open_random(1, file("aaaabbbbcccc"), 4);
    files.write(1, "1111");
    EXPECT_EQ(files.length(1), 12U);
    files.close(1);
    EXPECT_EQ(folder.read("file.dat"), "1111bbbbcccc");
}

TEST_F(Files, reading_and_writing_records_share_one_place) {
    files.open_random(1, file("aaaabbbbcccc"), 4);
    EXPECT_EQ(files.read_record(1), "aaaa");
    files.write(1, "2222");
    EXPECT_EQ(files.read_record(1), "cccc");
    files.write(1, "4444");
    files.close(1);
    EXPECT_EQ(folder.read("file.dat"), "aaaa2222cccc4444");
}

TEST_F(Files, a_record_has_exactly_its_length) {
    files.open_random(1, file(""), 4);
    EXPECT_EQ(number_of([&] { files.write(1, "abc"); }), 5);
    EXPECT_EQ(number_of([&] { files.write(1, "abcde"); }), 5);
    EXPECT_EQ(number_of([&] { files.open_random(2, folder.path("x"), 0); }), 5);
}

TEST_F(Files, output_is_made_anew_and_written_as_it_stands) {
    const auto path = file("old text that is longer");
    files.open_output(1, path);
    std::string expected;
    for (int i = 0; i < 100000; ++i) {
        const auto line = std::to_string(i) + "\r\n";
        files.write(1, line);
        expected += line;
    }
    EXPECT_EQ(files.length(1), expected.size());
    files.close(1);
    EXPECT_EQ(folder.read("file.dat"), expected);
}

TEST_F(Files, bytes_are_all_of_the_file) {
    std::string expected(700'000, '\x1A');
    expected[5] = '\0';
    files.open_bytes(2, file(expected));
    EXPECT_EQ(files.length(2), expected.size());
    std::string found;
    while (!files.eof(2))
        found += files.read_bytes(2);
    EXPECT_EQ(found, expected);
    EXPECT_EQ(files.read_bytes(2), "");
}

TEST_F(Files, numbers_are_1_and_2) {
    const auto path = file("x");
    for (const int number : {-1, 0, 3}) {
        EXPECT_EQ(number_of([&] { files.open_input(number, path); }), 52);
        EXPECT_EQ(number_of([&] { files.close(number); }), 52);
        EXPECT_FALSE(files.is_open(number));
        files.abandon(number);
    }
}

TEST_F(Files, an_open_number_raises_55_and_stays_open) {
    const auto path = file("line");
    files.open_input(1, path);
    EXPECT_EQ(number_of([&] { files.open_input(1, path); }), 55);
    EXPECT_EQ(number_of([&] { files.open_output(1, path); }), 55);
    EXPECT_EQ(number_of([&] { files.open_random(1, path, 44); }), 55);
    EXPECT_EQ(number_of([&] { files.open_bytes(1, path); }), 55);
    EXPECT_EQ(files.line_input(1), "line");
}

TEST_F(Files, a_closed_number_raises_52_and_closes_again) {
    EXPECT_EQ(number_of([&] { (void)files.eof(1); }), 52);
    EXPECT_EQ(number_of([&] { files.line_input(1); }), 52);
    EXPECT_EQ(number_of([&] { files.read_record(2); }), 52);
    EXPECT_EQ(number_of([&] { files.write(2, "x"); }), 52);
    files.close(1);
    files.close(1);
    files.abandon(2);
    EXPECT_FALSE(files.is_open(1));
}

TEST_F(Files, the_wrong_use_raises_54) {
    files.open_output(1, folder.path("out.txt"));
    EXPECT_EQ(number_of([&] { (void)files.eof(1); }), 54);
    EXPECT_EQ(number_of([&] { files.line_input(1); }), 54);
    EXPECT_EQ(number_of([&] { files.read_record(1); }), 54);
    EXPECT_EQ(number_of([&] { files.read_bytes(1); }), 54);
    files.open_input(2, file("x"));
    EXPECT_EQ(number_of([&] { files.write(2, "x"); }), 54);
    EXPECT_EQ(number_of([&] { files.read_record(2); }), 54);
}

TEST_F(Files, faults_of_opening_have_their_numbers) {
    const auto missing = folder.path("missing.dat");
    const auto nowhere = folder.path("nowhere/file.dat");
    const auto below_a_file = file("x") + "/y.dat";
    EXPECT_EQ(number_of([&] { files.open_input(1, missing); }), 53);
    EXPECT_EQ(number_of([&] { files.open_bytes(1, missing); }), 53);
    EXPECT_EQ(number_of([&] { files.open_output(1, nowhere); }), 76);
    EXPECT_EQ(number_of([&] { files.open_random(1, nowhere, 44); }), 76);
    EXPECT_EQ(number_of([&] { files.open_input(1, below_a_file); }), 76);
    EXPECT_EQ(number_of([&] { files.open_input(1, folder.path("")); }), 75);
    EXPECT_EQ(number_of([&] { files.open_output(1, folder.path("")); }), 75);
    EXPECT_EQ(number_of([&] { files.open_random(1, folder.path(""), 44); }), 75);
    EXPECT_EQ(number_of([&] { files.open_output(1, folder.path(std::string(5000, 'n'))); }), 52);
    EXPECT_FALSE(files.is_open(1));
}

TEST_F(Files, abandon_writes_what_waits) {
    const auto path = folder.path("half.txt");
    files.open_output(1, path);
    files.write(1, "begun");
    files.abandon(1);
    EXPECT_FALSE(files.is_open(1));
    EXPECT_EQ(folder.read("half.txt"), "begun");
}

TEST_F(Files, a_path_may_have_either_separator_and_any_letter) {
    const auto path = runtime::path_text(folder.path()) + "\\ala señal€.dat";
    files.open_output(1, path);
    files.write(1, "x");
    files.close(1);
    EXPECT_EQ(folder.read("ala señal€.dat"), "x");
}

} // namespace
} // namespace velmora
