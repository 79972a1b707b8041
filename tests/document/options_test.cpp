#include "document/options.h"

#include "document/session.h"
#include "document/shown.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"
#include "support/outline.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Points;
using test::RecordingPlatform;
using test::set_shape;
using test::shape;

const Points kFine = {{0.12345678, 1.00049}, {2.5, 3}};
const Points kRounded = {{0.123, 1}, {2.5, 3}};

class Options : public ::testing::Test {
  protected:
    Options() {
        set_shape(kFine);
        session.Precision = 3;
        session.FirstActivate = False;
    }
    RecordingPlatform platform_{test::with_database};
};

TEST_F(Options, a_changed_TxtPrecision_rounds_with_the_old_Precision) {
    set_TxtPrecision("1");
    EXPECT_EQ(session.winoptions.TxtPrecision, "1");
    EXPECT_EQ(session.Precision, 3);
    EXPECT_EQ(shape(), kRounded);
}

TEST_F(Options, texts_that_do_not_round) {
    for (const char* text : {"0", "-2", "x", " ", "0.0"}) {
        SCOPED_TRACE(text);
        set_TxtPrecision(text);
        EXPECT_EQ(session.winoptions.TxtPrecision, text);
        EXPECT_EQ(shape(), kFine);
    }
}

TEST_F(Options, the_same_text_again_is_no_change) {
    set_TxtPrecision("4");
    set_shape(kFine);
    set_TxtPrecision("4");
    EXPECT_EQ(shape(), kFine);
}

TEST_F(Options, before_the_first_activation_nothing_is_rounded) {
    session.FirstActivate = True;
    set_TxtPrecision("4");
    TxtPrecision_Change();
    EXPECT_EQ(shape(), kFine);
}

TEST_F(Options, a_typed_text_counts_as_it_stands) {
    session.winoptions.TxtPrecision = std::string("2");
    TxtPrecision_Change();
    EXPECT_EQ(shape(), kRounded);
}

TEST_F(Options, take_defaults_fills_boxes_and_working_copies) {
    session.FirstActivate = True;
    session.Def_Arc = 12;
    session.Def_ACircle = 34;
    session.Def_Dec = 5;
    session.Def_Zoom = 2.5;
    session.SepDecimal = ',';
    take_defaults();
    EXPECT_EQ(session.PutArc, 12);
    EXPECT_EQ(session.PutCircle, 34);
    EXPECT_EQ(session.Precision, 5);
    EXPECT_EQ(session.ZoomFactor, 2.5);
    EXPECT_EQ(session.winoptions.TxtPutArc, "12");
    EXPECT_EQ(session.winoptions.TxtPutCircle, "34");
    EXPECT_EQ(session.winoptions.TxtPrecision, "5");
    EXPECT_EQ(session.winoptions.Txt_zoom, "2,5");
    EXPECT_EQ(shape(), kFine);
}

TEST_F(Options, the_order_shows_while_the_shape_is_rounded) {
    const std::pair<Defaults, const char*> cases[] = {{Defaults::copies_first, "12 12 7 1"},
                                                      {Defaults::one_by_one, "25 25 7 7"}};
    session.Def_Arc = 12;
    session.Def_Dec = 3;
    session.Def_Zoom = 7;
    std::string seen;
    const test::WatchingTurns turns([&] {
        seen = std::to_string(session.PutArc) + " " + session.winoptions.TxtPutArc + " " +
               CStr(session.ZoomFactor) + " " + session.winoptions.Txt_zoom;
    });
    for (const auto& [order, expected] : cases) {
        session.winoptions.TxtPrecision = std::string("6");
        shown::PutArc().put(25);
        shown::ZoomFactor().put(1);
        take_defaults(order);
        EXPECT_EQ(seen, expected);
        EXPECT_EQ(session.winoptions.TxtPutArc + session.winoptions.Txt_zoom, "127");
    }
}

TEST_F(Options, a_start_zoom_of_0_is_kept_as_it_is_or_as_1) {
    session.Def_Zoom = 0;
    take_stored_zoom();
    EXPECT_EQ(session.ZoomFactor, 0);
    EXPECT_EQ(session.winoptions.Txt_zoom, "0");
    take_start_zoom();
    EXPECT_EQ(session.ZoomFactor, 1);
    EXPECT_EQ(session.winoptions.Txt_zoom, "0");
    take_working_copies();
    EXPECT_EQ(session.ZoomFactor, 0);
}

TEST_F(Options, take_defaults_rounds_to_the_new_precision_at_once) {
    session.winoptions.TxtPrecision = std::string("6");
    session.Def_Dec = 3;
    session.Precision = 6;
    take_defaults();
    EXPECT_EQ(shape(), kRounded);
}

} // namespace
} // namespace velmora
