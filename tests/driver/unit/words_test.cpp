#include "script/words.h"

#include "script/fault.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SplitWords, cuts_at_blanks_and_tabs) {
    EXPECT_THAT(split_words("menu mnu_openfile"), ElementsAre("menu", "mnu_openfile"));
    EXPECT_THAT(split_words("  a \t b  "), ElementsAre("a", "b"));
    EXPECT_THAT(split_words(""), IsEmpty());
    EXPECT_THAT(split_words(" \t "), IsEmpty());
}

TEST(SplitWords, unquotes) {
    EXPECT_THAT(split_words(R"(write "a b.dat" "1 2\r\n\t\"x\"\\")"),
                ElementsAre("write", "a b.dat", "1 2\r\n\t\"x\"\\"));
    EXPECT_THAT(split_words(R"(input "")"), ElementsAre("input", ""));
}

TEST(SplitWords, leaves_a_backslash_outside_quotes_alone) {
    EXPECT_THAT(split_words(R"(pick sub\name.dat)"), ElementsAre("pick", R"(sub\name.dat)"));
}

TEST(SplitWords, refuses_what_is_no_word) {
    for (const char* line : {R"(type "open)", R"(type "a\)", R"(type a"b)", R"(type "a"b)",
                             R"(type "\q")", R"(type "a""b")"})
        EXPECT_THROW((void)split_words(line), ScriptFault) << line;
}

TEST(WordText, stands_as_it_is_without_blanks_quotes_and_controls) {
    for (const char* text : {"a", "$WORK/a.dat", "Ángulo", "a\\b", "-> ", "#", "0"}) {
        const std::string_view word = text;
        EXPECT_EQ(word_text(word), word == "-> " ? "\"-> \"" : word);
    }
}

TEST(WordText, quotes_the_others) {
    EXPECT_EQ(word_text(""), "\"\"");
    EXPECT_EQ(word_text("a b"), "\"a b\"");
    EXPECT_EQ(word_text("a\"b"), R"("a\"b")");
    EXPECT_EQ(word_text("a\\ b"), R"("a\\ b")");
    EXPECT_EQ(word_text("a\nb\tc\rd"), R"("a\nb\tc\rd")");
    EXPECT_EQ(word_text(std::string(1, '\x01')), R"("\x01")");
}

TEST(WordText, reads_back) {
    for (const char* text : {"", "a b", "\"", "\\ ", "a\r\n\tb", "plain", "c:\\x"})
        EXPECT_THAT(split_words(word_text(text)), ElementsAre(text));
}

TEST(QuotedBytes, shows_what_is_no_ascii_as_hex) {
    EXPECT_EQ(quoted_bytes("pline\r\n"), R"("pline\r\n")");
    EXPECT_EQ(quoted_bytes("1\t2 \"\\"), R"("1\t2 \"\\")");
    EXPECT_EQ(quoted_bytes("A\xD1O\x7F\x1A~"), R"("A\xD1O\x7F\x1A~")");
    EXPECT_EQ(quoted_bytes(std::string_view("\0", 1)), R"("\x00")");
}

TEST(Quoted, keeps_letters_beyond_ascii) {
    EXPECT_EQ(quoted("Añadir: 1"), "\"Añadir: 1\"");
}

} // namespace
} // namespace velmora::driver
