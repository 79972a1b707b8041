#include "runtime/text.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace runtime;
using test::number_of;

TEST(Trim, takes_blanks_alone) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim(" \ta\t "), "\ta\t");
}

TEST(UCase, knows_the_letters_of_windows_1252) {
    EXPECT_EQ(UCase("abcxyz019.dat"), "ABCXYZ019.DAT");
    EXPECT_EQ(UCase("áéíóúüñçàèãõ"), "ÁÉÍÓÚÜÑÇÀÈÃÕ");
    EXPECT_EQ(UCase("ÿœšž"), "ŸŒŠŽ");
    EXPECT_EQ(UCase("þæøåð"), "ÞÆØÅÐ");
    EXPECT_EQ(UCase("÷×ßƒµ€{`"), "÷×ßƒµ€{`");
    EXPECT_EQ(UCase("日本😀"), "日本😀");
    EXPECT_EQ(UCase("a\xFF\xC3"), "A\xFF\xC3");
}

TEST(Len, counts_characters) {
    EXPECT_EQ(Len(""), 0U);
    EXPECT_EQ(Len("señal"), 5U);
    EXPECT_EQ(Len("€😀"), 2U);
    EXPECT_EQ(Len("\xFF\xFE"), 2U);
    EXPECT_EQ(Len("\xC3"), 1U);
    EXPECT_EQ(Len("\xC3z"), 2U);
    EXPECT_EQ(Len("\xC0\x80"), 2U);
    EXPECT_EQ(Len("\xED\xA0\x80"), 3U);
}

TEST(LeftAndRight, cut_between_characters) {
    EXPECT_EQ(Left("ñandú", 1), "ñ");
    EXPECT_EQ(Left("ñandú", 0), "");
    EXPECT_EQ(Left("ñandú", 99), "ñandú");
    EXPECT_EQ(Right("ñandú", 2), "dú");
    EXPECT_EQ(Right("ñandú", 5), "ñandú");
    EXPECT_EQ(Right("ñandú", 99), "ñandú");
    EXPECT_EQ(Right("ñandú", 0), "");
    EXPECT_EQ(number_of([] { (void)Left("a", -1); }), 5);
    EXPECT_EQ(number_of([] { (void)Right("a", -1); }), 5);
}

TEST(Windows1252, comes_back_byte_for_byte) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const std::string text = from_1252(bytes);
    EXPECT_EQ(Len(text), 256U);
    EXPECT_EQ(to_1252(text), bytes);
}

TEST(Windows1252, has_its_letters_in_their_places) {
    EXPECT_EQ(from_1252("\x80\x8C\x9F\xF1\xE1"), "€ŒŸñá");
    EXPECT_EQ(to_1252("€ŒŸñá"), "\x80\x8C\x9F\xF1\xE1");
}

TEST(Windows1252, puts_a_question_mark_for_what_it_lacks) {
    EXPECT_EQ(to_1252("a日b😀c"), "a?b?c");
    EXPECT_EQ(to_1252("a\xFFz"), "a?z");
}

TEST(Replaced, changes_every_one) {
    EXPECT_EQ(replaced("1,2,3", ',', '.'), "1.2.3");
}

TEST(Fitted, cuts_or_fills) {
    EXPECT_EQ(fitted("abc", 5), "abc  ");
    EXPECT_EQ(fitted("abcdef", 5), "abcde");
    EXPECT_EQ(fitted("", 2), "  ");
}

} // namespace
} // namespace velmora
