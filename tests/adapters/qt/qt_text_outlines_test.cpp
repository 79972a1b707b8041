// Real letters of a real font: DejaVu Sans, whose em is 2048 units, so that at 1536 points a unit
// is a pixel.
#include "adapters/qt/qt_text_outlines.h"

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace velmora::test {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using Figures = std::vector<Figure>;

const FontChoice kUnits{"DejaVu Sans", 1536};

struct Box {
    double left = HUGE_VAL, right = -HUGE_VAL, top = HUGE_VAL, bottom = -HUGE_VAL;
    [[nodiscard]] double width() const { return right - left; }
    [[nodiscard]] double height() const { return bottom - top; }
    [[nodiscard]] double middle() const { return (left + right) / 2; }
};

Box box_of(const Figures& figures) {
    Box box;
    for (const Figure& figure : figures)
        for (const OutlinePoint& point : figure) {
            box.left = std::min(box.left, point.x);
            box.right = std::max(box.right, point.x);
            box.top = std::min(box.top, point.y);
            box.bottom = std::max(box.bottom, point.y);
        }
    return box;
}

/// The same shape, wherever it stands from left to right: each place from the leftmost one.
Figures at_left_edge(Figures figures) {
    const double left = box_of(figures).left;
    for (Figure& figure : figures)
        for (OutlinePoint& point : figure)
            point = {std::round(point.x - left), std::round(point.y)};
    return figures;
}

class TextOutlinesTest : public testing::Test {
  protected:
    Figures figures(const std::string& text, const FontChoice& font = kUnits) {
        return outlines->figures(text, font, {20, 20});
    }
    std::unique_ptr<TextOutlines> outlines = make_qt_text_outlines();
};

// The line begins 1901 units above the foot; the stem is 1120 units high, the dot's top at 1556.
TEST_F(TextOutlinesTest, a_letter_has_its_places_from_the_upper_left_corner_on) {
    const auto near = [](double x, double y) {
        return testing::AllOf(testing::Field(&OutlinePoint::x, DoubleNear(x, 0.5)),
                              testing::Field(&OutlinePoint::y, DoubleNear(y, 0.5)));
    };
    const double foot = 20 + 1901;
    const Figures letter = figures("i");
    ASSERT_THAT(letter, SizeIs(2));
    EXPECT_THAT(letter[0], ElementsAre(near(213, foot - 1120), near(397, foot - 1120),
                                       near(397, foot), near(213, foot), near(213, foot - 1120)));
    EXPECT_THAT(letter[1],
                ElementsAre(near(213, foot - 1556), near(397, foot - 1556), near(397, foot - 1323),
                            near(213, foot - 1323), near(213, foot - 1556)));
}

TEST_F(TextOutlinesTest, the_corner_moves_all) {
    const Box here = box_of(outlines->figures("Ala", kUnits, {0, 0}));
    const Box there = box_of(outlines->figures("Ala", kUnits, {100, 40}));
    EXPECT_NEAR(there.left - here.left, 100, 1e-6);
    EXPECT_NEAR(there.bottom - here.bottom, 40, 1e-6);
}

TEST_F(TextOutlinesTest, curves_become_short_segments_on_the_curve) {
    const Figures letter = figures("o", {"DejaVu Sans", 72});
    ASSERT_THAT(letter, SizeIs(2));
    for (const Figure& figure : letter) {
        ASSERT_GT(figure.size(), 12U);
        const Box whole = box_of({figure});
        for (std::size_t i = 1; i < figure.size(); ++i)
            EXPECT_LT(std::hypot(figure[i].x - figure[i - 1].x, figure[i].y - figure[i - 1].y),
                      whole.width() / 3);
    }
}

TEST_F(TextOutlinesTest, a_size_in_points_is_that_many_at_15_twips_to_the_pixel) {
    // The stem of 72 points, 96 pixels to the em.
    EXPECT_NEAR(box_of(figures("l", {"DejaVu Sans", 72})).height(), 1556.0 * 96 / 2048, 0.1);
    EXPECT_NEAR(box_of(figures("l", {"DejaVu Sans", 10.5})).height(), 1556.0 * 14 / 2048, 0.1);
}

TEST_F(TextOutlinesTest, letters_stand_side_by_side_in_the_order_of_the_text) {
    const Figures both = figures("il");
    ASSERT_THAT(both, SizeIs(3));
    EXPECT_GT(box_of({both[2]}).left, box_of({both[0], both[1]}).right);
    EXPECT_EQ(at_left_edge({both[2]}), at_left_edge(figures("l")));
}

TEST_F(TextOutlinesTest, empty_and_blank_texts_have_no_figure) {
    for (const char* text : {"", " ", "   ", "\t", "\u00a0", "\u200b"})
        EXPECT_THAT(figures(text), IsEmpty()) << '"' << text << '"';
    EXPECT_EQ(at_left_edge(figures(" i ")), at_left_edge(figures("i")));
}

TEST_F(TextOutlinesTest, tabs_and_line_ends_of_a_pasted_text_are_blanks) {
    for (const char* text : {"i\ti", "i\ni", "i\ri", "i\u2028i", "i\u2029i"})
        EXPECT_EQ(figures(text), figures("i i")) << text;
}

TEST_F(TextOutlinesTest, bold_is_broader_and_italic_leans) {
    const Box plain = box_of(figures("l"));
    EXPECT_GT(box_of(figures("l", {"DejaVu Sans", 1536, true, false})).width(), plain.width());
    const Box leaning = box_of(figures("l", {"DejaVu Sans", 1536, false, true}));
    EXPECT_GT(leaning.width(), plain.width() + 100);
    EXPECT_NEAR(leaning.height(), plain.height(), 20);
}

TEST_F(TextOutlinesTest, a_font_that_nobody_has_gives_way_to_another) {
    EXPECT_THAT(figures("Ala", {"A font that nobody has", 72}), Not(IsEmpty()));
    EXPECT_THAT(figures("Ala", {"", 72}), Not(IsEmpty()));
}

// A font lacks the letter, or all do: another's letter comes, or a box stands for it.
TEST_F(TextOutlinesTest, a_letter_that_the_font_lacks_is_shown_all_the_same) {
    for (const char* letter : {"漢", "\ue123", "\U0010FFFD", "\ufffd"})
        EXPECT_THAT(figures(letter), Not(IsEmpty())) << letter;
    const Figures between = figures("i\ue123i");
    EXPECT_GT(between.size(), figures("ii").size());
}

TEST_F(TextOutlinesTest, bytes_that_are_no_text_are_shown_as_one) {
    EXPECT_THAT(figures("\xff\xfe"), Not(IsEmpty()));
    EXPECT_THAT(figures("\xed\xa0\x80"), Not(IsEmpty())); // half of a pair
}

TEST_F(TextOutlinesTest, hebrew_runs_from_right_to_left) {
    const Figures alef = figures("א");
    const Figures lamed = figures("ל");
    const Figures both = figures("אל");
    ASSERT_EQ(both.size(), alef.size() + lamed.size());
    const auto middle = both.begin() + static_cast<std::ptrdiff_t>(lamed.size());
    const Figures first(both.begin(), middle), last(middle, both.end());
    EXPECT_EQ(at_left_edge(first), at_left_edge(lamed));
    EXPECT_EQ(at_left_edge(last), at_left_edge(alef));
    EXPECT_GT(box_of(last).left, box_of(first).right);
}

TEST_F(TextOutlinesTest, a_hebrew_word_in_a_latin_text_runs_its_own_way) {
    const Figures word = figures("אל");
    const Figures line = figures("lאלl");
    ASSERT_EQ(line.size(), word.size() + 2);
    EXPECT_EQ(at_left_edge({line.begin() + 1, line.end() - 1}), at_left_edge(word));
}

TEST_F(TextOutlinesTest, arabic_letters_join) {
    const Box alone = box_of(figures("ب"));
    const Box joined = box_of(figures("بب"));
    EXPECT_LT(joined.width(), 1.8 * alone.width());
    // Lam and alef are one sign.
    EXPECT_THAT(figures("لا"), SizeIs(1));
}

TEST_F(TextOutlinesTest, a_combining_accent_is_the_accented_letter) {
    EXPECT_EQ(at_left_edge(figures("e\u0301")), at_left_edge(figures("é")));
    EXPECT_EQ(at_left_edge(figures("n\u0303")), at_left_edge(figures("ñ")));
}

TEST_F(TextOutlinesTest, a_combining_accent_without_a_letter_of_its_own_stands_above) {
    const Box plain = box_of(figures("x"));
    const Figures both = figures("x\u0302");
    ASSERT_THAT(both, SizeIs(2));
    const Box accent = box_of({both[1]});
    EXPECT_LT(accent.bottom, plain.top);
    EXPECT_NEAR(accent.middle(), plain.middle(), plain.width() / 4);
}

TEST_F(TextOutlinesTest, an_accent_alone_and_signs_of_direction_are_no_fault) {
    EXPECT_THAT(figures("\u0301"), Not(IsEmpty()));
    EXPECT_THAT(figures("\u202e\u202c\u200f"), IsEmpty());
    EXPECT_THAT(figures("\u202eli"), SizeIs(3));
}

TEST_F(TextOutlinesTest, a_long_text_is_given_whole) {
    EXPECT_THAT(figures(std::string(5000, 'l'), {"DejaVu Sans", 72}), SizeIs(5000));
}

TEST_F(TextOutlinesTest, the_smallest_and_the_largest_size_have_outlines) {
    EXPECT_THAT(figures("i", {"DejaVu Sans", 1}), SizeIs(2));
    EXPECT_NEAR(box_of(figures("l", {"DejaVu Sans", 2160})).height(), 1556.0 * 2880 / 2048, 1);
}

} // namespace

} // namespace velmora::test
