#include "formats/fixed_record_readers.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "formats/sample_files.h"
#include "platform/dialogs.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::record;
using test::RecordingPlatform;
using test::records;
using test::sync_file;

std::vector<Pto> points() {
    const auto all = Forma.Pto.all();
    return {all.begin(), all.end()};
}

std::string slws_file(std::initializer_list<test::Fields> outline) {
    return record("SLW - perfil", "ignorado") + record("SLATEWORKS", "") + records(outline);
}

/// The line counter and the number in a reader's error box.
void expect_error_box(const test::ShownBox& box, const std::string& reader, int number,
                      const std::string& label, int lines) {
    EXPECT_TRUE(
        box.text.starts_with("Error " + reader + "  nº: " + std::to_string(number) + "  - Desc: "))
        << box.text;
    EXPECT_TRUE(box.text.ends_with(label + std::to_string(lines))) << box.text;
    EXPECT_EQ(box.buttons, 0);
    EXPECT_EQ(box.title, "Velmora");
}

TEST(CargaSLWS, takes_the_description_with_its_blanks_and_all_points) {
    RecordingPlatform platform;
    session.TotalSinc = 4;
    const std::string path =
        platform.write("wing.dat", slws_file({{"0", "0"}, {"1.5", "-2E-3"}, {" 3", "4 "}}));
    EXPECT_EQ(CargaSLWS(path), -1);
    EXPECT_EQ(session.Velmora.TxtDescDat, test::field("SLW - perfil"));
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 0, 0}, {1.5, -0.002, 0, 0}, {3, 4, 0, 0}}));
    EXPECT_EQ(session.TotalPtos, 4);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "4");
    EXPECT_EQ(session.UltimoPto, 4);
    EXPECT_EQ(session.TotalSinc, 0);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(CargaSLWS, the_description_comes_in_from_the_8_bit_letters) {
    RecordingPlatform platform;
    const std::string path =
        platform.write("wing.dat", record("SLW - \xE1la \x80", "") + record("", "") +
                                       records({{"0", "0"}, {"1", "1"}}));
    EXPECT_EQ(CargaSLWS(path), -1);
    EXPECT_EQ(session.Velmora.TxtDescDat, "SLW - ála €          ");
}

TEST(CargaSLWS, a_closing_point_is_dropped) {
    RecordingPlatform platform;
    const std::string path =
        platform.write("wing.dat", slws_file({{"0", "0"}, {"1", "0"}, {"1", "1"}, {"-0", "0.0"}}));
    EXPECT_EQ(CargaSLWS(path), -1);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_EQ(session.UltimoPto, 4);
    EXPECT_EQ(session.TotalPtos, 4);
}

TEST(CargaSLWS, a_record_whose_44th_byte_is_no_line_feed_is_skipped) {
    RecordingPlatform platform;
    std::string odd = record("9", "9");
    odd.back() = 'x';
    const std::string path = platform.write("wing.dat", slws_file({{"0", "0"}}) + odd +
                                                            records({{"1", "1"}, {"2", "2"}}));
    EXPECT_EQ(CargaSLWS(path), -1);
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 0, 0}, {1, 1, 0, 0}, {2, 2, 0, 0}}));
}

TEST(CargaSLWS, a_last_record_that_is_not_whole_is_not_taken) {
    RecordingPlatform platform;
    const std::string whole = slws_file({{"0", "0"}, {"1", "1"}, {"2", "2"}});
    for (const std::size_t cut : {1U, 2U, 20U, 43U}) {
        const std::string path = platform.write("wing.dat", whole.substr(0, whole.size() - cut));
        EXPECT_EQ(CargaSLWS(path), -1);
        EXPECT_EQ(Forma.Pto.upper(), 1) << cut;
    }
}

TEST(CargaSLWS, no_coordinate_limit_applies) {
    RecordingPlatform platform;
    const std::string path =
        platform.write("wing.dat", slws_file({{"25001", "1E300"}, {"0", "0"}}));
    EXPECT_EQ(CargaSLWS(path), -1);
    EXPECT_EQ(Forma.Pto[0], (Pto{25001, 1E300, 0, 0}));
}

TEST(CargaSLWS, one_point_or_none_ends_in_the_trap) {
    RecordingPlatform platform;
    platform.dialogs.answers = {answer::ok, answer::yes, answer::ok, answer::no};
    EXPECT_EQ(CargaSLWS(platform.write("none.dat", slws_file({}))), 0);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWS", 9, "  -   En Linea: ", 4);
    EXPECT_EQ(CargaSLWS(platform.write("one.dat", slws_file({{"5", "6"}}))), -1);
    expect_error_box(platform.dialogs.boxes.at(2), "CargaSLWS", 9, "  -   En Linea: ", 4);
    EXPECT_EQ(points(), (std::vector<Pto>{{5, 6, 0, 0}}));
    EXPECT_EQ(session.UltimoPto, 1);
}

TEST(CargaSLWS, an_empty_file_ends_in_the_trap) {
    RecordingPlatform platform;
    EXPECT_EQ(CargaSLWS(platform.write("empty.dat", "")), 0);
    // The end is looked for behind the next record alone, so a fourth one is read here too.
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWS", 9, "  -   En Linea: ", 4);
}

TEST(CargaSLWS, the_point_whose_text_fails_goes_when_the_load_is_kept) {
    RecordingPlatform platform;
    platform.dialogs.answers = {answer::ok, answer::no};
    const std::string path = platform.write(
        "wing.dat", slws_file({{"0", "0"}, {"1", "2"}, {"3", "cuatro"}, {"5", "6"}}));
    EXPECT_EQ(CargaSLWS(path), -1);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWS", 13, "  -   En Linea: ", 5);
    EXPECT_EQ(platform.dialogs.boxes.at(1), (test::ShownBox{"Cancel Load?", 20, "Velmora"}));
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 0, 0}, {1, 2, 0, 0}}));
    EXPECT_EQ(session.TotalPtos, 2);
    EXPECT_EQ(session.UltimoPto, 2);
}

TEST(CargaSLWS, the_machines_separator_decides) {
    RecordingPlatform platform;
    session.SepDecimal = ',';
    EXPECT_EQ(CargaSLWS(platform.write("wing.dat", slws_file({{"0,5", "1"}, {"2", "3"}}))), -1);
    EXPECT_EQ(Forma.Pto[0].X, 0.5);
    EXPECT_EQ(CargaSLWS(platform.write("dots.dat", slws_file({{"0.5", "1"}, {"2", "3"}}))), 0);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWS", 13, "  -   En Linea: ", 3);
}

TEST(CargaSLWS, a_fault_of_opening_counts_no_line_and_cancelling_empties_the_document) {
    RecordingPlatform platform;
    Forma.Pto.redim(3);
    EXPECT_EQ(CargaSLWS(platform.folder.string()), 0);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWS", 75, "  -   En Linea: ", 0);
    EXPECT_EQ(Forma.Pto.upper(), 0);
}

TEST(CargaSLWSINC, takes_description_outline_and_sync_points) {
    RecordingPlatform platform;
    const std::string path =
        platform.write("wing.dat", sync_file({{"0", "0"}, {"1.5", "0"}, {"1.5", "2"}, {"0", "0"}},
                                             {{"0", "0"}, {"1.5", "2"}}, "ala izquierda"));
    EXPECT_EQ(CargaSLWSINC(path), -1);
    EXPECT_EQ(session.Velmora.TxtDescDat, test::field("ala izquierda"));
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 1, 0}, {1.5, 0, 0, 0}, {1.5, 2, 1, 0}}));
    EXPECT_EQ(session.UltimoPto, 3);
    EXPECT_EQ(session.TotalPtos, 3);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "3");
    EXPECT_EQ(session.TotalSinc, 2);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "2");
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_TRUE(platform.dialogs.boxes.empty());
    EXPECT_GE(platform.windows.yields, 6);
}

TEST(CargaSLWSINC, an_outline_that_is_not_closed_is_kept_as_it_is) {
    RecordingPlatform platform;
    const std::string path =
        platform.write("wing.dat", sync_file({{"0", "0"}, {"1", "0"}, {"1", "1"}}, {{"1", "1"}}));
    EXPECT_EQ(CargaSLWSINC(path), -1);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_EQ(session.UltimoPto, 3);
}

TEST(CargaSLWSINC, equal_points_are_all_marked_and_each_counts) {
    RecordingPlatform platform;
    const std::string path = platform.write(
        "wing.dat",
        sync_file({{"0", "0"}, {"1", "1"}, {"2", "2"}, {"1", "1"}, {"0", "0"}}, {{"1", "1"}}));
    EXPECT_EQ(CargaSLWSINC(path), -1);
    EXPECT_EQ(session.TotalSinc, 2);
    EXPECT_EQ(Forma.Pto[1].Sinc, 1);
    EXPECT_EQ(Forma.Pto[3].Sinc, 1);
    EXPECT_EQ(Forma.Pto[0].Sinc, 0);
}

TEST(CargaSLWSINC, a_sync_record_of_no_point_is_ignored_and_the_total_stays_as_shown) {
    RecordingPlatform platform;
    session.wininfo.TxtTotalCtrlPtos = std::to_string(7);
    const std::string path =
        platform.write("wing.dat", sync_file({{"0", "0"}, {"1", "1"}}, {{"1", "1.0001"}}));
    EXPECT_EQ(CargaSLWSINC(path), -1);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "7");
    EXPECT_EQ(session.TotalSinc, 7);
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 0, 0}, {1, 1, 0, 0}}));
}

TEST(CargaSLWSINC, the_record_behind_the_title_is_no_sync_point_whatever_it_holds) {
    RecordingPlatform platform;
    const std::string head = record("Fichero DAT(KMR)2002", "ala") + record("SLATEWORKS", "") +
                             records({{"0", "0"}, {"1", "0"}, {"1", "1"}, {"0", "0"}}) +
                             record("Puntos Sincronismo", "");
    EXPECT_EQ(CargaSLWSINC(platform.write("wing.dat", head + record("1", "0") + record("1", "1") +
                                                          record("0", "0"))),
              -1);
    EXPECT_EQ(points(), (std::vector<Pto>{{0, 0, 1, 0}, {1, 0, 0, 0}, {1, 1, 1, 0}}));
    EXPECT_EQ(session.TotalSinc, 2);
    EXPECT_EQ(CargaSLWSINC(
                  platform.write("wing.dat", head + record("x", "no number") + record("1", "1"))),
              -1);
    EXPECT_EQ(session.TotalSinc, 1);
    EXPECT_TRUE(platform.dialogs.boxes.empty());
}

TEST(CargaSLWSINC, a_file_may_end_anywhere_behind_the_title) {
    const std::string outline = sync_file({{"0", "0"}, {"1", "1"}}, {});
    for (const std::string& text :
         {outline, outline.substr(0, outline.size() - 44), outline.substr(0, outline.size() - 60),
          outline + record("", ""), outline + "     "}) {
        RecordingPlatform platform;
        EXPECT_EQ(CargaSLWSINC(platform.write("wing.dat", text)), -1);
        EXPECT_EQ(Forma.Pto.upper(), 1);
        EXPECT_TRUE(platform.dialogs.boxes.empty());
    }
}

TEST(CargaSLWSINC, a_last_sync_record_without_its_line_end_counts) {
    RecordingPlatform platform;
    const std::string text = sync_file({{"0", "0"}, {"1", "1"}}, {{"1", "1"}});
    EXPECT_EQ(CargaSLWSINC(platform.write("wing.dat", text.substr(0, text.size() - 2))), -1);
    EXPECT_EQ(Forma.Pto[1].Sinc, 1);
    EXPECT_EQ(session.TotalSinc, 1);
}

TEST(CargaSLWSINC, a_sync_record_with_one_blank_field_ends_in_the_trap) {
    RecordingPlatform platform;
    platform.dialogs.answers = {answer::ok, answer::no};
    const std::string path =
        platform.write("wing.dat", sync_file({{"0", "0"}, {"1", "1"}}, {{"1", "1"}, {"0", ""}}));
    EXPECT_EQ(CargaSLWSINC(path), -1);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWSINC", 13, "  - En Linea: ", 8);
    EXPECT_EQ(Forma.Pto[1].Sinc, 1);
    EXPECT_EQ(session.TotalSinc, 0);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
}

TEST(CargaSLWSINC, a_record_whose_44th_byte_is_no_line_feed_is_taken) {
    RecordingPlatform platform;
    std::string text = sync_file({{"0", "0"}, {"9", "9"}, {"1", "1"}}, {});
    text[4 * 44 - 1] = 'x';
    EXPECT_EQ(CargaSLWSINC(platform.write("wing.dat", text)), -1);
    EXPECT_EQ(Forma.Pto.upper(), 2);
}

TEST(CargaSLWSINC, no_coordinate_limit_applies) {
    RecordingPlatform platform;
    const std::string path =
        platform.write("wing.dat", sync_file({{"0", "0"}, {"25001", "1E300"}}, {}));
    EXPECT_EQ(CargaSLWSINC(path), -1);
    EXPECT_EQ(Forma.Pto[1], (Pto{25001, 1E300, 0, 0}));
}

TEST(CargaSLWSINC, without_the_title_the_record_past_the_end_fails_to_parse) {
    RecordingPlatform platform;
    platform.dialogs.answers = {answer::ok, answer::no};
    const std::string path = platform.write("wing.dat", record("a", "b") + record("c", "d") +
                                                            records({{"1", "2"}, {"3", "4"}}));
    EXPECT_EQ(CargaSLWSINC(path), -1);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWSINC", 13, "  - En Linea: ", 5);
    EXPECT_EQ(points(), (std::vector<Pto>{{1, 2, 0, 0}, {3, 4, 0, 0}}));
    EXPECT_EQ(session.UltimoPto, 2);
}

TEST(CargaSLWSINC, the_title_in_record_3_is_tried_as_a_point) {
    RecordingPlatform platform;
    EXPECT_EQ(CargaSLWSINC(platform.write("wing.dat", sync_file({}, {}))), 0);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWSINC", 13, "  - En Linea: ", 3);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(session.UltimoPto, 0);
}

TEST(CargaSLWSINC, a_single_point_ends_in_the_trap) {
    RecordingPlatform platform;
    platform.dialogs.answers = {answer::ok, answer::no};
    EXPECT_EQ(CargaSLWSINC(platform.write("wing.dat", sync_file({{"5", "6"}}, {}))), -1);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWSINC", 9, "  - En Linea: ", 4);
    EXPECT_EQ(points(), (std::vector<Pto>{{5, 6, 0, 0}}));
}

TEST(CargaSLWSINC, the_title_is_found_anywhere_in_field_1_in_its_own_case) {
    RecordingPlatform platform;
    const std::string text = record("", "") + record("", "") + records({{"0", "0"}, {"1", "1"}}) +
                             record("ptos.Sincronismo x", "") + record("", "");
    EXPECT_EQ(CargaSLWSINC(platform.write("wing.dat", text)), -1);
    const std::string small = record("", "") + record("", "") + records({{"0", "0"}, {"1", "1"}}) +
                              record("Puntos sincronismo", "");
    EXPECT_EQ(CargaSLWSINC(platform.write("small.dat", small)), 0);
}

TEST(CargaSLWSINC, binary_rubbish_ends_in_the_trap) {
    RecordingPlatform platform;
    std::string rubbish;
    for (int i = 0; i < 5000; ++i)
        rubbish += static_cast<char>(i * 31 % 256);
    EXPECT_EQ(CargaSLWSINC(platform.write("wing.dat", rubbish)), 0);
    EXPECT_EQ(platform.dialogs.boxes.size(), 2U);
    EXPECT_FALSE(session.files.is_open(1));
}

TEST(CargaSLWSINC, a_file_1_left_open_is_closed_by_the_trap_so_the_next_load_goes_well) {
    RecordingPlatform platform;
    const std::string path =
        platform.write("wing.dat", sync_file({{"0", "0"}, {"1", "1"}}, {{"1", "1"}}));
    session.files.open_input(1, path);
    EXPECT_EQ(CargaSLWSINC(path), 0);
    expect_error_box(platform.dialogs.boxes.at(0), "CargaSLWSINC", 55, "  - En Linea: ", 0);
    EXPECT_EQ(CargaSLWSINC(path), -1);
}

} // namespace
} // namespace velmora
