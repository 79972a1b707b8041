#include "printing/printing_test.h"

#include <QLineF>

namespace velmora::test {

namespace {

constexpr double kRadius = 30;

} // namespace

void expect_circles_at(const PrintedSheet& sheet, const std::vector<QPointF>& places) {
    for (const QPointF& red : sheet.red_places()) {
        const bool on_a_rim = std::ranges::any_of(places, [&](const QPointF& centre) {
            return std::abs(QLineF(centre, red).length() - kRadius) < 3 * kNear;
        });
        ASSERT_TRUE(on_a_rim) << red.x() << ", " << red.y();
    }
    for (const QPointF& centre : places) {
        EXPECT_THAT(sheet.red_across(centre.y()),
                    testing::IsSupersetOf({testing::DoubleNear(centre.x() - kRadius, kNear),
                                           testing::DoubleNear(centre.x() + kRadius, kNear)}));
        EXPECT_THAT(sheet.red_down(centre.x()),
                    testing::IsSupersetOf({testing::DoubleNear(centre.y() - kRadius, kNear),
                                           testing::DoubleNear(centre.y() + kRadius, kNear)}));
    }
}

// Where rows and columns meet the slanted side, by similar triangles: the row at 12002.5 lies
// 5742.5 of 8640 down from its upper end, so at 4820 - 2880 * 0.66464.
void expect_tall(const PrintedSheet& sheet) {
    ASSERT_EQ(sheet.size(), QSizeF(11900, 16840));
    EXPECT_THAT(sheet.black_across(1000), StrokesAt(Strokes{500}));
    EXPECT_THAT(sheet.black_across(12002.5), StrokesAt(Strokes{500, 2905.8, 4820}));
    EXPECT_THAT(sheet.black_across(16000), StrokesAt(Strokes{500}));
    EXPECT_THAT(sheet.black_across(16800), StrokesAt(Strokes{500}));
    EXPECT_THAT(sheet.black_down(100), StrokesAt(Strokes{16340}));
    EXPECT_THAT(sheet.black_down(3002.5), StrokesAt(Strokes{11712.5, 14900, 16340}));
    EXPECT_THAT(sheet.black_down(11800), StrokesAt(Strokes{16340}));
    expect_circles_at(sheet, {{1940, 14900}, {4820, 14900}, {4820, 6260}});
}

// The row at 8502.5 lies 1422.5 of 2880 down, so at 10580 - 8640 * 0.49392.
void expect_wide(const PrintedSheet& sheet) {
    ASSERT_EQ(sheet.size(), QSizeF(16840, 11900));
    EXPECT_THAT(sheet.black_across(1000), StrokesAt(Strokes{500}));
    EXPECT_THAT(sheet.black_across(8502.5), StrokesAt(Strokes{500, 6312.5, 10580}));
    EXPECT_THAT(sheet.black_across(11850), StrokesAt(Strokes{500}));
    EXPECT_THAT(sheet.black_down(100), StrokesAt(Strokes{11400}));
    EXPECT_THAT(sheet.black_down(5002.5), StrokesAt(Strokes{8939.2, 9960, 11400}));
    EXPECT_THAT(sheet.black_down(16800), StrokesAt(Strokes{11400}));
    expect_circles_at(sheet, {{1940, 9960}, {10580, 9960}, {10580, 7080}});
}

} // namespace velmora::test
