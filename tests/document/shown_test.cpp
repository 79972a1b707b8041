#include "document/shown.h"

#include "document/session.h"
#include "fakes/recording_platform.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

/// What is kept and what is shown after a verb, from 5 kept and "7" shown.
template <class Verb>
std::pair<int, std::string> after(Verb verb) {
    std::int32_t kept = 5;
    std::string box = "7";
    verb(ShownCount(kept, box));
    return {kept, box};
}

TEST(Shown, each_verb_changes_what_its_name_says) {
    using Pair = std::pair<int, std::string>;
    EXPECT_EQ(after([](ShownCount count) { count.put(41); }), Pair(41, "41"));
    EXPECT_EQ(after([](ShownCount count) { count.put(-1); }), Pair(-1, "-1"));
    EXPECT_EQ(after([](ShownCount count) { count.keep(2); }), Pair(2, "7"));
    EXPECT_EQ(after([](ShownCount count) { count.show(2); }), Pair(5, "2"));
    EXPECT_EQ(after([](ShownCount count) { count.step(-2); }), Pair(3, "5"));
    EXPECT_EQ(after([](ShownCount count) { count.count(); }), Pair(6, "6"));
    EXPECT_EQ(after([](ShownCount count) { count.keep_shown(); }), Pair(7, "7"));
}

TEST(Shown, a_figure_is_shown_with_the_machines_separator) {
    test::RecordingPlatform platform;
    session.SepDecimal = ',';
    shown::OrigX().put(-2.5);
    EXPECT_EQ(session.OrigX, -2.5);
    EXPECT_EQ(session.wininfo.TxtOrigX, "-2,5");
}

TEST(Shown, each_pair_is_a_number_and_its_own_box) {
    test::RecordingPlatform platform;
    shown::TotalPtos().put(1);
    shown::TotalSinc().put(2);
    shown::PtosSuprimidos().put(3);
    shown::TotalObjs().put(4);
    shown::PutArc().put(5);
    shown::PutCircle().put(6);
    shown::OrigY().put(7);
    shown::Longitud().put(8);
    shown::Altura().put(9);
    shown::ZoomFactor().put(10);
    const WinInfo& info = session.wininfo;
    const WinOptions& options = session.winoptions;
    EXPECT_EQ(info.TxtTotalPtos + info.TxtTotalCtrlPtos + info.TxtPtosSupr + info.TxtProcesed +
                  options.TxtPutArc + options.TxtPutCircle + info.TxtOrigY + info.Txt_longitud +
                  info.Txt_Altura + options.Txt_zoom,
              "12345678910");
    EXPECT_EQ(session.TotalPtos, 1);
    EXPECT_EQ(session.TotalSinc, 2);
    EXPECT_EQ(session.PtosSuprimidos, 3);
    EXPECT_EQ(session.TotalObjs, 4);
    EXPECT_EQ(session.PutArc, 5);
    EXPECT_EQ(session.PutCircle, 6);
    EXPECT_EQ(session.OrigY, 7);
    EXPECT_EQ(session.Longitud, 8);
    EXPECT_EQ(session.Altura, 9);
    EXPECT_EQ(session.ZoomFactor, 10);
}

TEST(Shown, a_step_moves_text_and_total_each_from_its_own_value) {
    test::RecordingPlatform platform;
    const std::pair<const char*, const char*> cases[] = {
        {"5", "6"}, {"-1", "0"}, {"", "1"}, {"x", "1"}, {"2 puntos", "3"}};
    for (const auto& [before, after] : cases) {
        session.wininfo.TxtTotalCtrlPtos = before;
        session.TotalSinc = 9;
        shown::TotalSinc().step(1);
        EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, after);
        EXPECT_EQ(session.TotalSinc, 10);
    }
    shown::TotalSinc().step(-1);
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
