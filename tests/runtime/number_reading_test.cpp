#include "runtime/numbers.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <random>

namespace velmora {
namespace {

using test::number_of;

int cdbl_error(std::string_view text, char separator = '.') {
    return number_of([&] { (void)runtime::CDbl(text, separator); });
}

TEST(CDbl, reads_a_whole_text) {
    const std::pair<const char*, double> cases[] = {
        {"0", 0},
        {"1", 1},
        {"+1", 1},
        {"-1", -1},
        {"007", 7},
        {".5", 0.5},
        {"5.", 5},
        {"-.5", -0.5},
        {"5.e2", 500},
        {"1E-05", 1e-5},
        {"1e+15", 1e15},
        {"1E5", 1e5},
        {" \t-12.5\t ", -12.5},
        {"0.1", 0.1},
        {"123456789.123456789", 123456789.123456789},
        {"9007199254740993", 9007199254740992},
        {"1.7976931348623157e308", 1.7976931348623157e308},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(runtime::CDbl(text, '.'), value) << text;
}

TEST(CDbl, reads_the_comma_where_it_is_the_separator) {
    EXPECT_EQ(runtime::CDbl("-1,25", ','), -1.25);
    EXPECT_EQ(runtime::CDbl(" 1,5E-03 ", ','), 0.0015);
    EXPECT_EQ(runtime::CDbl("12", ','), 12);
    EXPECT_EQ(runtime::CDbl(std::string(100, '0') + "1,5", ','), 1.5);
}

TEST(CDbl, gives_the_bits_of_the_library_for_short_and_long_texts) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 200000; ++i) {
        std::string text = std::to_string(random() >> (random() % 64));
        if (random() % 8 != 0)
            text.insert(random() % (text.size() + 1), 1, '.');
        if (random() % 2 != 0)
            text.insert(0, 1, '-');
        double expected = 0;
        std::from_chars(text.data(), text.data() + text.size(), expected);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(runtime::CDbl(text, '.')),
                  std::bit_cast<std::uint64_t>(expected))
            << text;
    }
}

TEST(CDbl, refuses_what_is_no_number) {
    for (const char* text :
         {"",    " ",    "\t",       "-",    "+",   ".",       "e5",    "E",    "1e",  "1e+",
          "1E-", "1 2",  "--1",      "+-1",  "-+1", "1-",      "1.2.3", "1..2", "inf", "-inf",
          "nan", "NAN",  "infinity", "0x10", "1x",  "abc",     "\n1",   "1\n",  "1\r", "1e1.5",
          "- 1", "1E 5", ",",        "1,5",  "1,",  "1.000,5", "1'5"})
        EXPECT_EQ(cdbl_error(text), 13) << text;
    for (const char* text : {"", "1.5", "1,2,3", ".", ",", "1.5,2", "1,5e", "1.", "inf"})
        EXPECT_EQ(cdbl_error(text, ','), 13) << text;
    EXPECT_EQ(cdbl_error(std::string_view("1\0", 2)), 13);
}

TEST(CDbl, raises_6_beyond_f64) {
    for (const char* text : {"1e309", "-1e309", "1.8e308", "1e99999999999999999999", "0.1e310",
                             "10000000000e300", "0.001e312"})
        EXPECT_EQ(cdbl_error(text), 6) << text;
    EXPECT_EQ(cdbl_error("1" + std::string(400, '0')), 6);
    EXPECT_EQ(cdbl_error("1,8e308", ','), 6);
}

TEST(CDbl, gives_the_nearest_f64_for_the_smallest) {
    EXPECT_EQ(runtime::CDbl("1e-400", '.'), 0);
    EXPECT_EQ(runtime::CDbl("-1e-99999999999999999999", '.'), 0);
    EXPECT_EQ(runtime::CDbl("0." + std::string(400, '0') + "1", '.'), 0);
    EXPECT_EQ(runtime::CDbl("0e999999", '.'), 0);
    EXPECT_EQ(runtime::CDbl("4.9e-324", '.'), 4.9e-324);
    EXPECT_EQ(runtime::CDbl("2e-324", '.'), 0);
    EXPECT_EQ(runtime::CDbl("1.5e-310", '.'), 1.5e-310);
    EXPECT_EQ(runtime::CDbl("1" + std::string(400, '0') + "e-400", '.'), 1);
    EXPECT_EQ(runtime::CDbl("0." + std::string(400, '0') + "1e401", '.'), 1);
}

TEST(Val, takes_the_longest_numeric_start) {
    const std::pair<const char*, double> cases[] = {
        {"", 0},        {"abc", 0},         {"12abc", 12},    {"1,5", 1},
        {"1.5.7", 1.5}, {" 1 2 . 5", 12.5}, {"1\t2\n3", 123}, {"-", 0},
        {"- 5", -5},    {"+5", 5},          {".", 0},         {".5", 0.5},
        {"1e", 1},      {"1e+", 1},         {"1e2", 100},     {"1 E - 2 x", 0.01},
        {"E5", 0},      {"--1", 0},         {"inf", 0},       {"nan", 0},
        {"0x10", 0},    {"1e-400", 0},      {"12\r3", 12},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(runtime::Val(text), value) << text;
}

TEST(Val, raises_6_beyond_f64_and_never_13) {
    EXPECT_EQ(number_of([] { (void)runtime::Val("1e400xyz"); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::Val("xyz"); }), 0);
}

TEST(WholeNumbers, round_to_even_and_raise_6_when_they_do_not_fit) {
    EXPECT_EQ(runtime::CInt("2.5", '.'), 2);
    EXPECT_EQ(runtime::CInt("3,5", ','), 4);
    EXPECT_EQ(runtime::CInt("-2.5", '.'), -2);
    EXPECT_EQ(runtime::CInt("32767.4", '.'), 32767);
    EXPECT_EQ(runtime::CInt("-32768.5", '.'), -32768);
    EXPECT_EQ(number_of([] { (void)runtime::CInt("32767.5", '.'); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::CInt("-32769", '.'); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::CInt("", '.'); }), 13);
    EXPECT_EQ(runtime::CLng("2147483647.49", '.'), 2147483647);
    EXPECT_EQ(runtime::CLng("-2147483648.5", '.'), -2147483647 - 1);
    EXPECT_EQ(number_of([] { (void)runtime::CLng("2147483647.5", '.'); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::CLng("1e300", '.'); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::CLng("x", '.'); }), 13);
    EXPECT_EQ(number_of([] { (void)runtime::to_int32(std::nan("")); }), 6);
    EXPECT_EQ(number_of([] { (void)runtime::to_int16(1e300); }), 6);
    EXPECT_EQ(runtime::to_int16(-0.5), 0);
}

} // namespace
} // namespace velmora
