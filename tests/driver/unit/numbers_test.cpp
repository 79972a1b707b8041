#include "script/numbers.h"

#include "script/fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

TEST(NumberText, is_the_shortest_that_reads_back) {
    EXPECT_EQ(number_text(0.1), "0.1");
    EXPECT_EQ(number_text(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(number_text(30000.0), "30000");
    EXPECT_EQ(number_text(-0.5), "-0.5");
    EXPECT_EQ(number_text(1e-7), "1e-07");
    EXPECT_EQ(number_text(3.14159265358979), "3.14159265358979");
    EXPECT_EQ(number_text(std::int32_t{-2147483647 - 1}), "-2147483648");
}

TEST(RealNumber, takes_what_number_text_gives) {
    for (const double value : {0.0, -1.5, 1e300, 5e-324, 0.30000000000000004, 25000.1})
        EXPECT_EQ(real_number(number_text(value)), value);
}

TEST(RealNumber, refuses_the_rest) {
    for (const char* word : {"", "x", "1x", "1,5", " 1", "inf", "nan", "+1"})
        EXPECT_THROW((void)real_number(word), ScriptFault) << word;
}

TEST(WholeNumber, refuses_fractions_and_what_does_not_fit) {
    EXPECT_EQ(whole_number("-7"), -7);
    for (const char* word : {"", "1.0", "2147483648", "a"})
        EXPECT_THROW((void)whole_number(word), ScriptFault) << word;
}

TEST(CountNumber, is_not_negative) {
    EXPECT_EQ(count_number("0"), 0);
    EXPECT_THROW((void)count_number("-1"), ScriptFault);
}

TEST(HexNumber, is_a_signed_error_number) {
    EXPECT_EQ(hex_number("80020009"), -2147352567);
    EXPECT_EQ(hex_number("8021001C"), -2145320932);
    EXPECT_EQ(hex_number("8021001c"), -2145320932);
    EXPECT_EQ(hex_number("1AD"), 429);
    for (const char* word : {"", "0x1", "-1", "180020009", "G"})
        EXPECT_THROW((void)hex_number(word), ScriptFault) << word;
}

} // namespace
} // namespace velmora::driver
