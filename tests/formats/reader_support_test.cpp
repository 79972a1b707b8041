#include "formats/reader_support.h"

#include "document/feedback.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/box_text.h"
#include "formats/sample_files.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;
using test::ShownBox;

void three_points() {
    Forma.Pto.redim(2);
    Forma.Pto[1] = {1, 2, 0, 0};
    Forma.Pto[2] = {3, 4, 1, 0};
}

TEST(ReaderSupport, joins_pieces_with_single_blanks_and_keeps_those_of_empty_pieces) {
    EXPECT_EQ(joined_by_blanks({}), "");
    EXPECT_EQ(joined_by_blanks({"a"}), "a");
    EXPECT_EQ(joined_by_blanks({"El fichero :", "/x.dat", ""}), "El fichero : /x.dat ");
    EXPECT_EQ(joined_by_blanks({"", "b"}), " b");
}

TEST(ReaderSupport, a_repeated_first_point_is_dropped) {
    RecordingPlatform platform;
    three_points();
    Forma.Pto[2] = Forma.Pto[0];
    Forma.Pto[2].X = -0.0;
    std::int32_t count = 3;
    drop_closing_point(Forma.Pto, count);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(Forma.Pto.upper(), 1);
}

TEST(ReaderSupport, another_last_point_stays) {
    RecordingPlatform platform;
    three_points();
    std::int32_t count = 3;
    drop_closing_point(Forma.Pto, count);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(Forma.Pto.upper(), 2);
}

TEST(ReaderSupport, the_closing_test_raises_9_with_one_point_and_with_none) {
    RecordingPlatform platform;
    Forma.Pto.redim(0);
    std::int32_t one = 1;
    EXPECT_EQ(number_of([&] { drop_closing_point(Forma.Pto, one); }), 9);
    EXPECT_EQ(one, 1);
    std::int32_t none = 0;
    EXPECT_EQ(number_of([&] { drop_closing_point(Forma.Pto, none); }), 9);
    EXPECT_EQ(Forma.Pto.upper(), 0);
}

TEST(ReaderSupport, a_cancelled_load_empties_the_document) {
    RecordingPlatform platform;
    three_points();
    session.UltimoPto = 7;
    platform.dialogs.answers = {answer::ok, answer::yes};
    const std::int16_t result =
        read_asking({"CargaCUT", "  -  En Linea: "}, {12, 2},
                    []() -> std::int16_t { raise(error::type_mismatch, "No cuadra"); });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(session.UltimoPto, 0);
    const std::vector<ShownBox> expected = {
        {"Error CargaCUT  nº: 13  - Desc: No cuadra  -  En Linea: 12", 0, "Velmora"},
        {"Cancel Load?", 20, "Velmora"}};
    EXPECT_EQ(platform.dialogs.boxes, expected);
}

TEST(ReaderSupport, a_load_that_is_not_cancelled_keeps_what_was_read) {
    RecordingPlatform platform;
    three_points();
    session.TotalSinc = 5;
    session.wininfo.TxtTotalCtrlPtos = std::to_string(5);
    platform.dialogs.answers = {answer::ok, answer::no};
    const std::int16_t result = read_asking(
        {"CargaNOSLW"}, {4, 2}, []() -> std::int16_t { raise(error::past_end, "Fin"); });
    EXPECT_EQ(result, -1);
    EXPECT_EQ(Forma.Pto.upper(), 1);
    EXPECT_EQ(Forma.Pto[1], (Pto{1, 2, 0, 0}));
    EXPECT_EQ(session.TotalPtos, 2);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "2");
    EXPECT_EQ(session.TotalSinc, 0);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
    EXPECT_EQ(session.UltimoPto, 2);
    EXPECT_EQ(platform.dialogs.boxes[0].text,
              "Error CargaNOSLW  nº: 62  - Desc: Fin  - En Linea: 4");
}

TEST(ReaderSupport, with_no_whole_point_read_one_zeroed_record_stands) {
    for (const std::int32_t upper : {0, 2}) {
        RecordingPlatform platform;
        Forma.Pto.redim(upper);
        Forma.Pto[0] = {7, 0, 1, 0};
        platform.dialogs.answers = {answer::ok, answer::no};
        EXPECT_EQ(read_asking({"CargaNOSLW"}, {1, 0},
                              []() -> std::int16_t { raise(error::type_mismatch); }),
                  -1);
        EXPECT_EQ(Forma.Pto.upper(), 0);
        EXPECT_EQ(Forma.Pto[0], Pto{});
        EXPECT_EQ(session.UltimoPto, 0);
    }
}

TEST(ReaderSupport, the_refusing_route_shows_one_box) {
    RecordingPlatform platform;
    three_points();
    session.UltimoPto = 7;
    const std::int16_t result =
        read_refusing({"CargaSLWMD"}, {1, 0}, []() -> std::int16_t { raise(9, "Rango"); });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(session.UltimoPto, 0);
    ASSERT_EQ(platform.dialogs.boxes.size(), 1U);
    EXPECT_EQ(platform.dialogs.boxes[0].text,
              "Error CargaSLWMD  nº: 9  - Desc: Rango  - En Linea: 1");
}

TEST(ReaderSupport, a_body_that_ends_well_gives_its_own_result) {
    RecordingPlatform platform;
    EXPECT_EQ(read_asking({"CargaSCR"}, {}, [] { return False; }), 0);
    EXPECT_EQ(read_refusing({"CargaSLWMD"}, {}, [] { return True; }), -1);
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

} // namespace
} // namespace velmora
