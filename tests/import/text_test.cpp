#include "import/text.h"

#include "import/number_text.h"

#include <gtest/gtest.h>

namespace velmora::imports {
namespace {

using namespace std::literals;

std::string text_of(std::string_view bytes) {
    std::string storage;
    Report report;
    return std::string(decoded(bytes, storage, report));
}

TEST(ImportText, utf8_is_taken_as_it_stands_and_its_mark_left_out) {
    EXPECT_EQ(text_of("ala \xC3\xB1"), "ala \xC3\xB1");
    EXPECT_EQ(text_of("\xEF\xBB\xBF"
                      "1 2"),
              "1 2");
    EXPECT_EQ(text_of("\xF0\x9D\x84\x9E"), "\xF0\x9D\x84\x9E");
    EXPECT_EQ(text_of(""), "");
}

TEST(ImportText, what_is_no_utf8_is_latin1) {
    EXPECT_EQ(text_of("ala \xF1"), "ala \xC3\xB1");
    EXPECT_EQ(text_of("\xC3"), "\xC3\x83");
    EXPECT_EQ(text_of("\xC0\x80"), "\xC3\x80\xC2\x80");
}

TEST(ImportText, utf16_is_known_by_its_mark_or_its_nuls) {
    EXPECT_EQ(text_of("\xFF\xFE"
                      "1\0 \0002\0\xF1\0"sv),
              "1 2\xC3\xB1");
    EXPECT_EQ(text_of("\xFE\xFF\0001\0 \0002"sv), "1 2");
    EXPECT_EQ(text_of("1\0 \0002\0"sv), "1 2");
    EXPECT_EQ(text_of("\0001\0 \0002"sv), "1 2");
    // A pair of surrogates, a lone one, half a unit at the end.
    EXPECT_EQ(text_of("\xFF\xFE\x34\xD8\x1E\xDD"sv), "\xF0\x9D\x84\x9E");
    EXPECT_EQ(text_of("\xFF\xFE\x34\xD8"
                      "1\0x"sv),
              "\xEF\xBF\xBD"
              "1");
}

TEST(ImportText, lines_end_in_three_ways) {
    Lines lines("a\r\nb\n\nc\rd");
    std::string_view line;
    std::string all;
    while (lines.next(line))
        all += std::to_string(lines.number()) + std::string(line) + "|";
    EXPECT_EQ(all, "1a|2b|3|4c|5d|");
    Lines ended("a\n");
    EXPECT_TRUE(ended.next(line));
    EXPECT_FALSE(ended.next(line));
}

TEST(ImportText, the_end_mark_ends_the_text) {
    Report report;
    EXPECT_EQ(before_end_mark("1 2\x1a\x1a\x1a", report), "1 2");
    EXPECT_EQ(report.count(Fact::end_mark), 1U);
    EXPECT_EQ(before_end_mark("1 2", report), "1 2");
    EXPECT_EQ(report.count(Fact::end_mark), 1U);
}

TEST(ImportNumbers, are_read_as_other_programs_write_them) {
    EXPECT_EQ(number_of(".95"), 0.95);
    EXPECT_EQ(number_of("+1.0"), 1.0);
    EXPECT_EQ(number_of("-.001"), -0.001);
    EXPECT_EQ(number_of("5."), 5.0);
    EXPECT_EQ(number_of("1.5E-03"), 0.0015);
    EXPECT_EQ(number_of("1.5D-03"), 0.0015);
    EXPECT_EQ(number_of("1d2"), 100.0);
    EXPECT_EQ(number_of("1e-999"), 0.0);
    EXPECT_EQ(number_with_comma("-0,25"), -0.25);
    EXPECT_EQ(number_with_comma("3"), 3.0);
}

TEST(ImportNumbers, are_not_read_into_what_is_none) {
    for (const std::string_view text :
         {"",       "+",   "-",    ".",     "-.",    "e5",    "1e",    "+-1",
          "--1",    "inf", "nan",  "0x10",  "1.2.3", "1,2",   "1e999", "1e16",
          "......", "1d",  "1dd5", "1d2d3", "12%",   "20-32C"})
        EXPECT_FALSE(number_of(text)) << text;
    for (const std::string_view text : {"1.000,5", "1,2,3", ","})
        EXPECT_FALSE(number_with_comma(text)) << text;
}

TEST(ImportNumbers, are_taken_off_the_start_of_a_text) {
    std::string_view text = ".5.5-3e1x";
    EXPECT_EQ(take_number(text), 0.5);
    EXPECT_EQ(take_number(text), 0.5);
    EXPECT_EQ(take_number(text), -30.0);
    EXPECT_FALSE(take_number(text));
    EXPECT_EQ(text, "x");
}

TEST(ImportReport, says_what_was_done_and_where) {
    Report report;
    report.add(Fact::line_passed_over, 77, "end");
    report.add(Fact::selig, 0, {}, 75);
    report.add(Fact::edge_gap, 0, {}, 0.0179991000449977);
    EXPECT_EQ(sentence(report.remarks()[0]), "line 77: passed over: end");
    EXPECT_EQ(sentence(report.remarks()[1]),
              "75 points, Selig order (trailing edge, nose, trailing edge)");
    EXPECT_EQ(sentence(report.remarks()[2]),
              "the trailing edge is open by 0.017999 % of the chord, closed straight");
    EXPECT_EQ(key(Fact::edge_gap), "edge_gap");
}

TEST(ImportReport, keeps_a_thousand_of_each_and_counts_on) {
    Report report;
    for (int i = 0; i < 5000; ++i)
        report.add(Fact::line_passed_over, 1, std::string(1000, 'x'));
    report.add(Fact::title, 1);
    EXPECT_EQ(report.remarks().size(), Report::kept_of_each + 1);
    EXPECT_EQ(report.count(Fact::line_passed_over), 5000U);
    EXPECT_EQ(report.remarks()[0].text.size(), 80U);
    report.add(Fact::title, 2, std::string(79, 'x') + "\xC3\xB1");
    EXPECT_EQ(report.remarks().back().text, std::string(79, 'x'));
}

} // namespace
} // namespace velmora::imports
