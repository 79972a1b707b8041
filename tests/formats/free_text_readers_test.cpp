#include "formats/free_text_readers.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "platform/dialogs.h"
#include "support/trap_text.h"

#include <gtest/gtest.h>

#include <sstream>

namespace velmora {
namespace {

using namespace test;

using Place = std::pair<double, double>;

std::vector<Place> outline() {
    std::vector<Place> places;
    for (const Pto& point : Forma.Pto.all())
        places.emplace_back(point.X, point.Y);
    return places;
}

std::vector<int> syncs() {
    std::vector<int> flags;
    for (const Pto& point : Forma.Pto.all())
        flags.push_back(point.Sinc);
    return flags;
}

/// What an earlier document left behind.
void leave_traces() {
    Forma.Pto.redim(6);
    session.TotalPtos = 70;
    session.wininfo.TxtTotalPtos = "70";
    session.TotalSinc = 30;
    session.wininfo.TxtTotalCtrlPtos = "30";
    session.UltimoPto = 90;
    session.Velmora.TxtDescDat = "before";
    session.EscalaCarga = 1000;
}

class FreeText : public testing::Test {
  protected:
    FreeText() { leave_traces(); }

    std::string file(std::string_view bytes) const { return platform.write("wing.dat", bytes); }
    [[nodiscard]] const std::vector<ShownBox>& boxes() const { return platform.dialogs.boxes; }
    void expect_trap(std::string_view routine, int number, int lines) const {
        ASSERT_FALSE(boxes().empty());
        std::ostringstream prefix;
        prefix << "Error " << routine << "  nº: ";
        EXPECT_EQ(boxes()[0].text, trap_text(prefix.str(), number, "  - En Linea: ", lines));
        EXPECT_EQ(boxes()[0].buttons, 0);
        EXPECT_EQ(boxes()[0].title, "Velmora");
        EXPECT_FALSE(session.files.is_open(1));
    }
    void expect_question() const {
        ASSERT_EQ(boxes().size(), 2U);
        EXPECT_EQ(boxes()[1], (ShownBox{"Cancel Load?", 20, "Velmora"}));
    }

    RecordingPlatform platform{test::with_database};
};

class Noslw : public FreeText {};
class Slwmd : public FreeText {};
class Profili : public FreeText {};

// NOSLW

TEST_F(Noslw, takes_lines_of_two_numbers_and_skips_the_rest) {
    EXPECT_EQ(CargaNOSLW(file("NACA 2412\r\n\r\n  0.0   0.0\r\n12\r\n 1.5 -2,5 \r\n9 8\r\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {1.5, -2.5}, {9, 8}}));
    EXPECT_EQ(session.UltimoPto, 2);
    EXPECT_EQ(session.TotalPtos, 2);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "2");
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
    EXPECT_EQ(session.TotalSinc, 30);
    EXPECT_EQ(session.Velmora.TxtDescDat, "before");
    EXPECT_EQ(session.EscalaCarga, 1);
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Noslw, drops_a_closing_point_that_repeats_the_first) {
    EXPECT_EQ(CargaNOSLW(file("0 0\n1 0\n1 1\n-0.0 0e5\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {1, 0}, {1, 1}}));
    EXPECT_EQ(session.TotalPtos, 2);
}

TEST_F(Noslw, an_outline_that_does_not_close_stays_as_it_is) {
    EXPECT_EQ(CargaNOSLW(file("0 0\n1 0\n0 0.0000001\n")), -1);
    EXPECT_EQ(Forma.Pto.upper(), 2);
}

TEST_F(Noslw, without_a_point_it_succeeds_with_nothing) {
    for (const std::string_view bytes : {"", "a title\n", "1\t2\n3\t4\n"}) {
        leave_traces();
        EXPECT_EQ(CargaNOSLW(file(bytes)), -1);
        EXPECT_EQ(Forma.Pto.upper(), 0);
        EXPECT_EQ(session.TotalPtos, -1);
        EXPECT_EQ(session.wininfo.TxtTotalPtos, "-1");
    }
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Noslw, a_single_point_ends_in_the_closing_test) {
    EXPECT_EQ(CargaNOSLW(file("title\n1 2\n")), 0);
    expect_trap("CargaNOSLW", 9, 2);
    expect_question();
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}}));
    EXPECT_EQ(session.UltimoPto, 0);
}

TEST_F(Noslw, three_numbers_in_a_line_ask_and_No_keeps_what_was_read) {
    platform.dialogs.answers = {answer::ok, answer::no};
    EXPECT_EQ(CargaNOSLW(file("title\n1 2\n3 4\n5 6 7\n8 9\n")), -1);
    expect_trap("CargaNOSLW", 13, 4);
    expect_question();
    EXPECT_EQ(outline(), (std::vector<Place>{{1, 2}, {3, 4}}));
    EXPECT_EQ(session.TotalPtos, 2);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "2");
    EXPECT_EQ(session.UltimoPto, 2);
    EXPECT_EQ(session.TotalSinc, 0);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
}

TEST_F(Noslw, a_title_that_looks_like_a_point_asks_and_Yes_empties) {
    EXPECT_EQ(CargaNOSLW(file("20-32C AIRFOIL\n1 2\n3 4\n")), 0);
    expect_trap("CargaNOSLW", 13, 1);
    expect_question();
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(session.UltimoPto, 0);
    EXPECT_EQ(session.TotalPtos, 70);
}

TEST_F(Noslw, a_file_that_is_not_there_asks_with_line_0) {
    platform.dialogs.answers = {answer::ok, answer::no};
    EXPECT_EQ(CargaNOSLW(platform.path("none.dat")), -1);
    expect_trap("CargaNOSLW", 53, 0);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}}));
    EXPECT_EQ(session.TotalPtos, 0);
}

TEST_F(Noslw, the_limit_is_25000_on_the_upper_side) {
    EXPECT_EQ(CargaNOSLW(file("25000 0\n0 25000\n-30000 -30000\n")), -1);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Noslw, a_larger_coordinate_refuses_whatever_the_answer) {
    for (const int reply : {answer::yes, answer::no}) {
        for (const std::string_view line : {"25000.1 0\n", "0 25000.1\n"}) {
            leave_traces();
            platform.dialogs.boxes.clear();
            platform.dialogs.answers = {reply};
            EXPECT_EQ(CargaNOSLW(file("0 0\n1 1\n" + std::string(line) + "2 2\n")), 0);
            ASSERT_EQ(boxes().size(), 1U);
            EXPECT_EQ(boxes()[0].buttons, 20);
            EXPECT_EQ(boxes()[0].title, "Velmora 1.0");
            EXPECT_EQ(Forma.Pto.upper(), 0);
            EXPECT_EQ(session.UltimoPto, 90);
            EXPECT_FALSE(session.files.is_open(1));
        }
    }
}

TEST_F(Noslw, an_answer_of_1_reads_again_from_the_start_with_the_scale) {
    // The stored coordinate, 400000 at scale 10, is divided by 100 and fits; as read it doesn't
    // yet.
    platform.dialogs.answers = {answer::ok, answer::ok, answer::ok};
    EXPECT_EQ(CargaNOSLW(file("0 0\n30000 10\n0 4000000\n")), -1);
    EXPECT_EQ(boxes().size(), 3U);
    EXPECT_EQ(session.EscalaCarga, 1000);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {30, 0.01}, {0, 4000}}));
    EXPECT_EQ(session.TotalPtos, 2);
}

TEST_F(Noslw, the_line_counter_starts_over_with_another_scale) {
    platform.dialogs.answers = {answer::ok, answer::ok, answer::no};
    EXPECT_EQ(CargaNOSLW(file("0 0\n1 1\n30000 10\n5 x\n")), -1);
    ASSERT_EQ(boxes().size(), 3U);
    EXPECT_TRUE(boxes()[1].text.ends_with("  - En Linea: 4"));
    EXPECT_EQ(session.TotalPtos, 3);
}

TEST_F(Noslw, line_ends_of_every_kind_give_the_same) {
    for (const std::string_view end : {"\n", "\r", "\r\n"}) {
        std::string bytes;
        for (const std::string_view line : {"title", "0 0", "1 0", "1 1"})
            bytes.append(line).append(end);
        EXPECT_EQ(CargaNOSLW(file(bytes)), -1);
        EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {1, 0}, {1, 1}}));
        const auto without_last_end = std::string_view(bytes).substr(0, bytes.size() - end.size());
        EXPECT_EQ(CargaNOSLW(file(without_last_end)), -1);
        EXPECT_EQ(Forma.Pto.upper(), 2);
    }
}

TEST_F(Noslw, commas_are_taken_on_either_machine) {
    session.SepDecimal = ',';
    EXPECT_EQ(CargaNOSLW(file("0.5 0,25\n1 -1.5\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0.5, 0.25}, {1, -1.5}}));
}

TEST_F(Noslw, points_have_neither_sync_nor_mark) {
    for (Pto& point : Forma.Pto.all())
        point = {5, 5, 1, -1};
    EXPECT_EQ(CargaNOSLW(file("0 0\n1 0\n1 1\n")), -1);
    EXPECT_EQ(syncs(), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(Forma.Pto[2].Marca, 0);
}

// SLWMD

TEST_F(Slwmd, takes_the_outline_and_marks_the_sync_points) {
    EXPECT_EQ(CargaSLWMD(file("KORDLINE Perfil \xD1\r\nsecond\r\nthird\r\n0 0\r\n10 0\r\n\r\n"
                              "10 10\r\n0 0\r\nPuntos Sincronismo\r\n10 10\r\n10.0 0\r\n0 0\r\n"
                              "7 7\r\n")),
              -1);
    EXPECT_EQ(session.Velmora.TxtDescDat, "KORDLINE Perfil Ñ");
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {10, 0}, {10, 10}}));
    // The line behind the title is not read, so (10, 10) is no sync point.
    EXPECT_EQ(syncs(), (std::vector<int>{1, 1, 0}));
    EXPECT_TRUE(boxes().empty());
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(Slwmd, leaves_the_totals_as_they_were) {
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n0 0\n1 0\n1 1\n0 0\nSincronismo\n\n0 0\n")), -1);
    EXPECT_EQ(session.TotalPtos, 70);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "70");
    EXPECT_EQ(session.TotalSinc, 30);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "30");
    EXPECT_EQ(session.UltimoPto, 3);
}

TEST_F(Slwmd, line_3_is_tried_as_a_point_and_not_as_the_title) {
    EXPECT_EQ(CargaSLWMD(file("d\n\n5 6\n7 8\nSincronismo\n\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{5, 6}, {7, 8}}));
    EXPECT_EQ(CargaSLWMD(file("d\n\n9 Sincronismo\n7 8\nSincronismo\n\n")), 0);
    expect_trap("CargaSLWMD", 13, 3);
    EXPECT_EQ(CargaSLWMD(file("d\n\nSincronismo\n1 2\n7 8\nxSincronismox\n\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{1, 2}, {7, 8}}));
}

TEST_F(Slwmd, equal_points_are_all_marked) {
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n0 0\n1 0\n2 0\n1 0\nSincronismo\n\n1 0\n1 0\n")), -1);
    EXPECT_EQ(syncs(), (std::vector<int>{0, 1, 0, 1}));
}

TEST_F(Slwmd, sync_lines_are_filtered_as_points_are) {
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n0 0\n1 0,5\nSincronismo\n\n\nx y\n12\n 1,0  0.5 \n")), -1);
    EXPECT_EQ(syncs(), (std::vector<int>{0, 1}));
}

TEST_F(Slwmd, a_sync_line_that_fails_refuses_without_a_question) {
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n0 0\n1 0\nSincronismo\n\n1 x\n")), 0);
    expect_trap("CargaSLWMD", 13, 8);
    EXPECT_EQ(boxes().size(), 1U);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(session.UltimoPto, 0);
    EXPECT_EQ(session.TotalPtos, 70);
}

TEST_F(Slwmd, without_the_title_the_end_of_the_file_refuses) {
    EXPECT_EQ(CargaSLWMD(file("MERIDOL\n\n\n0 0\n1 0\n1 1\n")), 0);
    expect_trap("CargaSLWMD", 62, 6);
    EXPECT_EQ(boxes().size(), 1U);
    EXPECT_EQ(Forma.Pto.upper(), 0);
}

TEST_F(Slwmd, a_title_as_the_last_line_refuses) {
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n0 0\n1 0\nSincronismo")), 0);
    expect_trap("CargaSLWMD", 62, 6);
}

TEST_F(Slwmd, fewer_lines_than_its_headers_refuse) {
    EXPECT_EQ(CargaSLWMD(file("d\nsecond")), 0);
    expect_trap("CargaSLWMD", 62, 2);
    EXPECT_EQ(Forma.Pto.upper(), 0);
}

TEST_F(Slwmd, no_point_and_one_point_end_in_the_closing_test) {
    EXPECT_EQ(CargaSLWMD(file("d\n\n\nSincronismo\n\n")), 0);
    expect_trap("CargaSLWMD", 9, 4);
    platform.dialogs.boxes.clear();
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n4 5\nSincronismo\n\n")), 0);
    expect_trap("CargaSLWMD", 9, 5);
}

TEST_F(Slwmd, the_limit_refuses_here_too) {
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n4 5\n30000 5\nSincronismo\n\n")), 0);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(boxes()[0].buttons, 20);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(Slwmd, sync_points_are_compared_undivided) {
    platform.dialogs.answers = {answer::ok};
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n0 0\n30000 50\nSincronismo\n\n30000 50\n3000 5\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {3000, 5}}));
    EXPECT_EQ(syncs(), (std::vector<int>{0, 1}));
    EXPECT_EQ(CargaSLWMD(file("d\n\n\n0 0\n30 50\nSincronismo\n\n0 0\n30000 50\n")), -1);
    EXPECT_EQ(syncs(), (std::vector<int>{1, 0}));
}

// PROFILI

TEST_F(Profili, the_lower_surface_is_appended_backwards_without_its_ends) {
    EXPECT_EQ(CargaPROFILI(file("Clark Y\r\n\r\n Upper X    Upper Y\r\n0 0\r\n50 8\r\n100 0\r\n\r\n"
                                " Lower X    Lower Y\r\n0 0\r\n30 -2\r\n60 -3\r\n100 0\r\n")),
              -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {50, 8}, {100, 0}, {60, -3}, {30, -2}}));
    EXPECT_EQ(session.TotalPtos, 4);
    EXPECT_EQ(session.UltimoPto, 4);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "4");
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
    EXPECT_EQ(session.Velmora.TxtDescDat, "before");
    EXPECT_TRUE(boxes().empty());
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(Profili, a_lower_surface_of_3_points_adds_its_middle_one) {
    EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n0 0\n9 0\nLower X\n0 0\n5 -1\n9 0\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {9, 0}, {5, -1}}));
}

TEST_F(Profili, shorter_lower_surfaces_add_nothing) {
    for (const std::string_view lower : {"", "1 1\n", "1 1\n2 2\n"}) {
        EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n0 0\n9 0\nlower X\n" + std::string(lower))), -1);
        EXPECT_EQ(Forma.Pto.upper(), 1) << lower;
    }
}

TEST_F(Profili, without_the_word_all_points_are_upper) {
    EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n0 0\n5 5\nLOWER X\n9 0\n0 0\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {5, 5}, {9, 0}}));
}

TEST_F(Profili, a_line_with_the_word_is_no_point_the_first_time_alone) {
    EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n0 0\n9 0\n3 Lower X\n1 1\n2 2\n4 4\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {9, 0}, {2, 2}}));
    EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n0 0\n9 0\nLower X\n3 Lower X\n")), 0);
    expect_trap("CargaPROFILI", 13, 7);
}

TEST_F(Profili, the_three_header_lines_are_not_looked_at) {
    EXPECT_EQ(CargaPROFILI(file("1 1\n2 2\n3 Lower X\n0 0\n9 0\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {9, 0}}));
}

TEST_F(Profili, fewer_lines_than_its_headers_ask_and_No_leaves_one_zeroed_record) {
    platform.dialogs.answers = {answer::ok, answer::no};
    EXPECT_EQ(CargaPROFILI(file("a\nb\n")), -1);
    expect_trap("CargaPROFILI", 62, 2);
    expect_question();
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}}));
    EXPECT_EQ(session.TotalPtos, 0);
}

TEST_F(Profili, an_error_in_the_lower_surface_keeps_the_upper_one) {
    platform.dialogs.answers = {answer::ok, answer::no};
    EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n0 0\n5 5\n9 0\nLower X\n0 0\n5 x\n")), -1);
    expect_trap("CargaPROFILI", 13, 9);
    EXPECT_EQ(Forma.Pto.upper(), 2);
    EXPECT_EQ(session.TotalPtos, 3);
}

TEST_F(Profili, the_limit_applies_to_both_surfaces) {
    for (const std::string_view bytes :
         {"a\nb\nc\n0 0\n25001 0\n", "a\nb\nc\n0 0\n9 0\nLower X\n0 0\n3 25001\n"}) {
        platform.dialogs.boxes.clear();
        EXPECT_EQ(CargaPROFILI(file(bytes)), 0);
        ASSERT_EQ(boxes().size(), 1U);
        EXPECT_EQ(boxes()[0].buttons, 20);
        EXPECT_EQ(Forma.Pto.upper(), 0);
    }
}

TEST_F(Profili, an_answer_of_1_starts_both_surfaces_over) {
    platform.dialogs.answers = {answer::ok};
    EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n0 0\n90000 0\nLower X\n0 0\n5000 -10\n9 9\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {9000, 0}, {500, -1}}));
}

TEST_F(Profili, no_point_succeeds_and_one_point_asks) {
    EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n")), -1);
    EXPECT_EQ(session.TotalPtos, -1);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(CargaPROFILI(file("a\nb\nc\n1 1\n")), 0);
    expect_trap("CargaPROFILI", 9, 4);
    expect_question();
}

} // namespace
} // namespace velmora
