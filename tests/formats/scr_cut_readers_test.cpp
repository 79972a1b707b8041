#include "formats/scr_cut_readers.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "platform/dialogs.h"
#include "support/error_number.h"
#include "support/trap_text.h"

#include <gtest/gtest.h>

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

class LineFile : public testing::Test {
  protected:
    LineFile() {
        Forma.Pto.redim(6);
        session.TotalPtos = 70;
        session.wininfo.TxtTotalPtos = "70";
        session.wininfo.TxtTotalCtrlPtos = "30";
        session.UltimoPto = 90;
        session.Velmora.TxtDescDat = "before";
        session.EscalaCarga = 1000;
    }

    std::string file(std::string_view bytes) const { return platform.write("wing.scr", bytes); }
    [[nodiscard]] const std::vector<ShownBox>& boxes() const { return platform.dialogs.boxes; }
    void expect_question() const {
        ASSERT_EQ(boxes().size(), 2U);
        EXPECT_EQ(boxes()[1], (ShownBox{"Cancel Load?", 20, "Velmora"}));
        EXPECT_FALSE(session.files.is_open(1));
    }

    RecordingPlatform platform{test::with_database};
};

class Scr : public LineFile {
  protected:
    void expect_trap(int number, int lines) const {
        ASSERT_FALSE(boxes().empty());
        EXPECT_EQ(boxes()[0].text,
                  trap_text("Error CargaSCR  nº: ", number, "  - En Linea: ", lines));
        expect_question();
    }
};

class Cut : public LineFile {
  protected:
    void expect_trap(int number, int lines) const {
        ASSERT_FALSE(boxes().empty());
        EXPECT_EQ(boxes()[0].text,
                  trap_text("Error CargaCUT  nº: ", number, "  -  En Linea: ", lines));
        expect_question();
    }
};

// SCR

TEST_F(Scr, takes_the_points_of_a_polyline) {
    EXPECT_EQ(CargaSCR(file("pline\r\n0.00000,0.00000\r\n 10.5 , -2.25 \r\n1,1\r\n"
                            "0.00000,0.00000\r\n\r\n")),
              -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {10.5, -2.25}, {1, 1}}));
    EXPECT_EQ(session.UltimoPto, 2);
    EXPECT_EQ(session.TotalPtos, 2);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "2");
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
    EXPECT_EQ(session.Velmora.TxtDescDat, "before");
    EXPECT_EQ(session.EscalaCarga, 1);
    EXPECT_TRUE(boxes().empty());
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(Scr, lines_that_do_not_qualify_are_skipped) {
    EXPECT_EQ(CargaSCR(file(" pline \nc\nlayer,2\n,5\n+1,2\n12\n1,2\nline\n-3,4\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{1, 2}, {-3, 4}}));
}

TEST_F(Scr, a_second_command_is_read_as_points_too) {
    EXPECT_EQ(CargaSCR(file("pline\n0,0\n5,0\n\npline\n7,7\n")), -1);
    EXPECT_EQ(Forma.Pto.upper(), 2);
}

TEST_F(Scr, another_first_line_is_refused_with_the_file_left_open) {
    for (const std::string_view first : {"PLINE", "Pline", "pline 0,0", "", "_pline"}) {
        EXPECT_EQ(CargaSCR(file(std::string(first) + "\n0,0\n5,0\n")), 0) << first;
        EXPECT_TRUE(session.files.is_open(1));
        EXPECT_EQ(Forma.Pto.upper(), 0);
        session.files.close(1);
    }
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Scr, the_next_use_of_the_file_number_meets_the_open_file_once) {
    EXPECT_EQ(CargaSCR(file("PLINE\n")), 0);
    EXPECT_EQ(CargaSCR(file("pline\n0,0\n5,0\n")), 0);
    expect_trap(55, 0);
    platform.dialogs.boxes.clear();
    EXPECT_EQ(CargaSCR(file("pline\n0,0\n5,0\n")), -1);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Scr, an_empty_file_asks) {
    EXPECT_EQ(CargaSCR(file("")), 0);
    expect_trap(62, 0);
}

TEST_F(Scr, no_point_and_one_point_end_in_the_closing_test) {
    EXPECT_EQ(CargaSCR(file("pline\n\n")), 0);
    expect_trap(9, 2);
    platform.dialogs.boxes.clear();
    EXPECT_EQ(CargaSCR(file("pline\n4,5\n")), 0);
    expect_trap(9, 2);
}

TEST_F(Scr, numbers_that_fail_ask_and_No_keeps_the_points_before) {
    platform.dialogs.answers = {answer::ok, answer::no};
    EXPECT_EQ(CargaSCR(file("pline\n1,2\n3,4,0\n")), -1);
    expect_trap(13, 3);
    EXPECT_EQ(outline(), (std::vector<Place>{{1, 2}}));
    EXPECT_EQ(session.TotalPtos, 1);
    EXPECT_EQ(session.UltimoPto, 1);
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "0");
}

TEST_F(Scr, the_limit_refuses) {
    EXPECT_EQ(CargaSCR(file("pline\n25000,-30000\n0,0\n25000.1,0\n")), 0);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(boxes()[0].buttons, 20);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(Scr, an_answer_of_1_reads_again_from_the_first_line) {
    platform.dialogs.answers = {answer::ok};
    EXPECT_EQ(CargaSCR(file("pline\n10,20\n250000,0\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{1, 2}, {25000, 0}}));
}

TEST_F(Scr, on_a_machine_with_commas_points_become_commas) {
    session.SepDecimal = ',';
    EXPECT_EQ(CargaSCR(file("pline\n1.5,2.5\n3.25,4,5\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{1.5, 2.5}, {3.25, 4.5}}));
}

// CUT

TEST_F(Cut, takes_the_left_sides_values) {
    EXPECT_EQ(CargaCUT(file("XG:0.0 YG:0.0 XD:9 YD:9\r\n"
                            "XG: 10.5  YG: -2.25 XD: x YD: y\r\nN5 XG:1YG:2XD:\r\n"
                            "XG:0 YG:0 XD:\r\n")),
              -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{0, 0}, {10.5, -2.25}, {1, 2}}));
    EXPECT_EQ(session.UltimoPto, 2);
    EXPECT_EQ(session.TotalPtos, 70);
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "70");
    EXPECT_EQ(session.wininfo.TxtTotalCtrlPtos, "30");
    EXPECT_EQ(session.Velmora.TxtDescDat, "before");
    EXPECT_TRUE(boxes().empty());
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(Cut, a_line_without_XG_is_taken_from_its_third_character_on) {
    EXPECT_EQ(CargaCUT(file("ab7 YG:8 XD:\nxg:5 YG:6 XD:\n")), 0);
    expect_trap(13, 2);
    platform.dialogs.boxes.clear();
    EXPECT_EQ(CargaCUT(file("ab7 YG:8 XD:\n  5 YG:6 XD:\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{7, 8}, {5, 6}}));
}

TEST_F(Cut, the_first_YG_behind_XG_and_the_first_XD_behind_YG_end_the_values) {
    EXPECT_EQ(CargaCUT(file("XG:1 YG:2 XD:3 XG:4 YG:5 XD:6\nXG:7 YG:8 XD:\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{1, 2}, {7, 8}}));
}

TEST_F(Cut, an_empty_line_in_the_middle_asks) {
    EXPECT_EQ(CargaCUT(file("XG:0 YG:0 XD:\n\nXG:1 YG:1 XD:\n")), 0);
    expect_trap(5, 2);
    EXPECT_EQ(Forma.Pto.upper(), 0);
}

TEST_F(Cut, missing_labels_ask_before_the_array_grows) {
    for (const std::string_view line :
         {"XG:5 XD:6", "XG:5 YG:6", "YG:1 XG:5", "x", "XG:", "XG:5 yg:6 xd:7"}) {
        platform.dialogs.boxes.clear();
        platform.dialogs.answers = {answer::ok, answer::no};
        EXPECT_EQ(CargaCUT(file("XG:3 YG:4 XD:\n" + std::string(line) + "\n")), -1);
        expect_trap(5, 2);
        EXPECT_EQ(outline(), (std::vector<Place>{{3, 4}}));
        EXPECT_EQ(session.TotalPtos, 1);
    }
}

TEST_F(Cut, values_that_fail_leave_no_point_when_the_load_is_kept) {
    platform.dialogs.answers = {answer::ok, answer::no};
    EXPECT_EQ(CargaCUT(file("XG:3 YG:4 XD:\nXG:5 YG: XD:\n")), -1);
    expect_trap(13, 2);
    EXPECT_EQ(outline(), (std::vector<Place>{{3, 4}}));
    EXPECT_EQ(session.TotalPtos, 1);
}

TEST_F(Cut, no_point_and_one_point_end_in_the_closing_test) {
    EXPECT_EQ(CargaCUT(file("")), 0);
    expect_trap(9, 0);
    platform.dialogs.boxes.clear();
    EXPECT_EQ(CargaCUT(file("XG:3 YG:4 XD:\n")), 0);
    expect_trap(9, 1);
}

TEST_F(Cut, the_limit_refuses_and_an_answer_of_1_scales) {
    const std::string bytes = "XG:10 YG:20 XD:\nXG:0 YG:25001 XD:\n";
    EXPECT_EQ(CargaCUT(file(bytes)), 0);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    platform.dialogs.answers = {answer::ok};
    EXPECT_EQ(CargaCUT(file(bytes)), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{1, 2}, {0, 2500.1}}));
}

TEST_F(Cut, on_a_machine_with_commas_points_become_commas) {
    EXPECT_EQ(CargaCUT(file("XG:1,5 YG:2.5 XD:\n")), 0);
    expect_trap(13, 1);
    session.SepDecimal = ',';
    platform.dialogs.boxes.clear();
    EXPECT_EQ(CargaCUT(file("XG:1,5 YG:2.5 XD:\nXG:3 YG:4 XD:\n")), -1);
    EXPECT_EQ(outline(), (std::vector<Place>{{1.5, 2.5}, {3, 4}}));
}

} // namespace
} // namespace velmora
