#include "document/shown_counts.h"

#include "document/session.h"
#include "support/recording_platform.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ShownCounts, totals_are_shown_and_kept) {
    test::RecordingPlatform platform;
    show_TotalPtos(41);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "41");
    EXPECT_EQ(session.TotalPtos, 41);
    show_TotalSinc(-1);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "-1");
    EXPECT_EQ(session.TotalSinc, -1);
}

TEST(ShownCounts, a_step_moves_text_and_total_each_from_its_own_value) {
    test::RecordingPlatform platform;
    const std::pair<const char*, const char*> cases[] = {
        {"5", "6"}, {"-1", "0"}, {"", "1"}, {"x", "1"}, {"2 puntos", "3"}};
    for (const auto& [before, after] : cases) {
        session.wininfo.TxtTotalCtrlPtos = before;
        session.TotalSinc = 9;
        step_TotalSinc(1);
        EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, after);
        EXPECT_EQ(session.TotalSinc, 10);
    }
    step_TotalSinc(-1);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "2");
    EXPECT_EQ(session.TotalSinc, 9);
}

TEST(Selection, an_index_beyond_the_array_counts_as_none) {
    test::RecordingPlatform platform;
    Forma.Pto.redim(2);
    const std::pair<int, bool> cases[] = {{-1, false}, {0, true}, {2, true}, {3, false}};
    for (const auto& [index, selected] : cases) {
        session.PtoSel = index;
        EXPECT_EQ(has_selection(), selected) << index;
    }
}

} // namespace
} // namespace velmora
