#include "cutprep/side_readers.h"

#include "formats/sample_files.h"
#include "workbench.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::Points;
using test::points_of;
using test::sync_file;

struct SideReaderTest : testing::Test, test::Workbench {
    SideReaderTest() { machine.open_database(); }

    Flag ok = False;

    static void set_document(std::size_t size) { test::set_shape(Points(size)); }
    [[nodiscard]] std::string box(std::size_t index = 0) const {
        return machine.dialogs.boxes.at(index).text;
    }
    static std::string trap_text(const std::string& reader, int number, int lines) {
        return "Error " + reader + "  nº: " + std::to_string(number) +
               "  - Desc: " + error_description(number, 'E') +
               "  - En Linea: " + std::to_string(lines);
    }
};

struct CargaSLWSINC2Test : SideReaderTest {
    void load(const std::string& bytes, const char* lado = "A") {
        const std::string path = machine.write("lado.dat", bytes);
        CargaSLWSINC2(path, lado[0] == 'A' ? session.PtosA : session.PtosB, lado, ok);
    }
};

TEST_F(CargaSLWSINC2Test, the_outline_comes_without_its_closing_point_and_with_its_sync_points) {
    session.UltimoPto = 77;
    session.TotalPtos = 88;
    session.TotalSinc = 99;
    session.Velmora.TxtDescDat = "una forma";
    load(sync_file({{"0", "0"}, {"10", "0"}, {"10", "5.5"}, {"0", "0"}},
                   {{"0", "0"}, {"10", "5.5"}}));
    EXPECT_EQ(ok, -1);
    EXPECT_EQ(points_of(session.PtosA), (Points{{0, 0, 1}, {10, 0}, {10, 5.5, 1}}));
    EXPECT_EQ(session.ajuste.TxtTotalPtos_A, "3");
    EXPECT_EQ(session.ajuste.TxtTotalCtrlPtos_A, "2");
    EXPECT_FALSE(session.files.is_open(1));
    // With the closing point, on purpose; nothing else of the document is touched.
    EXPECT_EQ(session.UltimoPto, 4);
    EXPECT_EQ(session.TotalPtos, 88);
    EXPECT_EQ(session.TotalSinc, 99);
    EXPECT_EQ(session.Velmora.TxtDescDat, "una forma");
    EXPECT_EQ(session.wininfo.TxtTotalPtos, "0");
    EXPECT_EQ(Forma.Pto.upper(), 0);
}

TEST_F(CargaSLWSINC2Test, side_B_has_its_own_boxes) {
    load(sync_file({{"1", "0"}, {"10", "0"}}, {{"1", "0"}}), "B");
    EXPECT_EQ(points_of(session.PtosB), (Points{{1, 0, 1}, {10, 0}}));
    EXPECT_EQ(session.ajuste.TxtTotalPtos_B + " " + session.ajuste.TxtTotalCtrlPtos_B, "2 1");
    EXPECT_EQ(session.ajuste.TxtTotalPtos_A + session.ajuste.TxtTotalCtrlPtos_A, "");
}

TEST_F(CargaSLWSINC2Test, a_sync_record_marks_all_points_of_its_place_and_none_of_another) {
    load(sync_file({{"5", "5"}, {"1", "1"}, {"5", "5"}, {"2", "2"}},
                   {{"5", "5"}, {"5", "5.0000001"}, {"9", "9"}}));
    EXPECT_EQ(session.ajuste.TxtTotalCtrlPtos_A, "2");
    EXPECT_EQ(points_of(session.PtosA), (Points{{5, 5, 1}, {1, 1}, {5, 5, 1}, {2, 2}}));
}

TEST_F(CargaSLWSINC2Test, a_sync_record_that_comes_twice_counts_twice) {
    load(sync_file({{"5", "5"}, {"1", "1"}}, {{"5", "5"}, {"5", "5"}}));
    EXPECT_EQ(session.ajuste.TxtTotalCtrlPtos_A, "2");
}

TEST_F(CargaSLWSINC2Test, without_a_match_the_box_keeps_its_figure) {
    session.ajuste.TxtTotalCtrlPtos_A = "12";
    load(sync_file({{"5", "5"}, {"1", "1"}}, {}));
    EXPECT_EQ(ok, -1);
    EXPECT_EQ(session.ajuste.TxtTotalCtrlPtos_A, "12");
}

TEST_F(CargaSLWSINC2Test, numbers_have_the_machines_separator) {
    session.SepDecimal = ',';
    load(sync_file({{"0,5", "1"}, {"2", "3"}}, {}));
    EXPECT_EQ(points_of(session.PtosA), (Points{{0.5, 1}, {2, 3}}));
    load(sync_file({{"4", "1"}, {"0.5", "1"}}, {}));
    EXPECT_EQ(ok, 0);
    EXPECT_EQ(box(), trap_text("CargaSLWSINC2", 13, 4));
}

TEST_F(CargaSLWSINC2Test, a_fault_shows_one_box_and_keeps_the_points_so_far) {
    load(sync_file({{"1", "2"}, {"3", "x"}, {"5", "6"}}, {}));
    EXPECT_EQ(ok, 0);
    EXPECT_EQ(machine.dialogs.boxes,
              (std::vector<test::ShownBox>{{trap_text("CargaSLWSINC2", 13, 4), 0, "Velmora"}}));
    EXPECT_EQ(points_of(session.PtosA), (Points{{1, 2}, {3, 0}}));
    EXPECT_EQ(session.ajuste.TxtTotalPtos_A, "1");
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(CargaSLWSINC2Test, an_outline_of_one_point_raises_9) {
    load(sync_file({{"1", "2"}}, {}));
    EXPECT_EQ(box(), trap_text("CargaSLWSINC2", 9, 4));
    EXPECT_EQ(ok, 0);
}

TEST_F(CargaSLWSINC2Test, a_file_number_in_use_raises_55_and_is_free_behind_it) {
    session.files.open_output(1, machine.path("other.txt"));
    load(sync_file({{"1", "2"}, {"3", "4"}}, {}));
    EXPECT_EQ(box(), trap_text("CargaSLWSINC2", 55, 0));
    load(sync_file({{"1", "2"}, {"3", "4"}}, {}));
    EXPECT_EQ(ok, -1);
}

struct CargaSLWMDaTest : SideReaderTest {
    CargaSLWMDaTest() { set_document(3); }
    void load(const std::string& bytes, const char* lado = "A") {
        const std::string path = machine.write("lado.dat", bytes);
        CargaSLWMD_a(path, lado[0] == 'A' ? session.PtosA : session.PtosB, lado, ok);
    }
    /// A file as MERIDOL writes it, with a closing point.
    static std::string meridol(const std::string& sync,
                               const std::string& outline = "0 0\r\n10 0\r\n10 5\r\n0 0\r\n") {
        return "MERIDOL ala\r\nlinea dos\r\n" + outline + "Puntos Sincronismo\r\n\r\n" + sync;
    }
};

TEST_F(CargaSLWMDaTest, the_outline_comes_without_its_closing_point_and_with_its_sync_points) {
    session.TotalPtos = 88;
    session.Velmora.TxtDescDat = "una forma";
    load(meridol("  10 \t5 \r\n\r\n0,0 0\r\n"));
    EXPECT_EQ(ok, -1) << (machine.dialogs.boxes.empty() ? "" : box());
    EXPECT_EQ(points_of(session.PtosA), (Points{{0, 0, 1}, {10, 0}, {10, 5, 1}}));
    EXPECT_EQ(session.ajuste.TxtTotalPtos_A, "3");
    EXPECT_EQ(session.ajuste.TxtTotalCtrlPtos_A, "2");
    EXPECT_EQ(session.UltimoPto, 4);
    EXPECT_EQ(session.TotalPtos, 88);
    EXPECT_EQ(session.Velmora.TxtDescDat, "una forma");
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(CargaSLWMDaTest, lines_are_trimmed_skipped_and_brought_to_the_machines_separator) {
    load(meridol("", "  -1,5 2.5 \r\nsin numero\r\n7\r\n\r\nA 1 2\r\n3   4\r\n"), "B");
    EXPECT_EQ(points_of(session.PtosB), (Points{{-1.5, 2.5}, {3, 4}}));
    EXPECT_EQ(session.ajuste.TxtTotalPtos_B, "2");
}

TEST_F(CargaSLWMDaTest, with_a_shorter_document_the_tail_is_not_searched) {
    set_document(2);
    load(meridol("10 5\r\n10 0\r\n"));
    EXPECT_EQ(ok, -1);
    EXPECT_EQ(points_of(session.PtosA), (Points{{0, 0}, {10, 0, 1}, {10, 5}}));
    EXPECT_EQ(session.ajuste.TxtTotalCtrlPtos_A, "1");
}

TEST_F(CargaSLWMDaTest, without_a_document_only_the_first_point_is_searched) {
    set_document(1);
    load(meridol("10 5\r\n0 0\r\n"));
    EXPECT_EQ(points_of(session.PtosA), (Points{{0, 0, 1}, {10, 0}, {10, 5}}));
}

TEST_F(CargaSLWMDaTest, with_a_longer_document_the_first_sync_point_ends_in_the_box_with_9) {
    set_document(4);
    load(meridol("10 5\r\n10 0\r\n"));
    EXPECT_EQ(ok, 0);
    EXPECT_EQ(machine.dialogs.boxes,
              (std::vector<test::ShownBox>{{trap_text("CargaSLWMD_a", 9, 9), 0, "Velmora"}}));
    // It was matched before the search ran off the end.
    EXPECT_EQ(points_of(session.PtosA), (Points{{0, 0}, {10, 0}, {10, 5, 1}}));
    EXPECT_EQ(session.ajuste.TxtTotalCtrlPtos_A, "1");
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(CargaSLWMDaTest, with_a_longer_document_and_no_sync_point_the_load_succeeds) {
    set_document(40);
    load(meridol(""));
    EXPECT_EQ(ok, -1);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(CargaSLWMDaTest, a_coordinate_over_the_limit_asks_and_both_answers_empty_the_side) {
    for (const int reply : {6, 7}) {
        test::fill(session.PtosA, {{1, 1}, {2, 2}});
        machine.dialogs.boxes.clear();
        machine.dialogs.answers = {reply};
        load(meridol("", "1 2\r\n3 25000.5\r\n5 6\r\n"));
        EXPECT_EQ(ok, 0);
        EXPECT_EQ(points_of(session.PtosA), Points{Pto{}});
        ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
        EXPECT_EQ(box(), "El fichero : " + machine.path("lado.dat") +
                             " contiene coordenadas superiores a 25000! Deseas que Velmora "
                             "escale las coordenadas para poder cargarlo?");
        EXPECT_EQ(machine.dialogs.boxes[0].buttons, 20);
        EXPECT_FALSE(session.files.is_open(1));
    }
}

TEST_F(CargaSLWMDaTest, an_answer_of_1_scales_and_reads_again) {
    machine.dialogs.answers = {1};
    load(meridol("50000 1000\r\n5 0.1\r\n", "10 20\r\n50000 1\r\n-300000 4\r\n"));
    EXPECT_EQ(ok, -1);
    EXPECT_EQ(session.EscalaCarga, 10);
    // Sync points are compared as they stand in the file, not divided.
    EXPECT_EQ(points_of(session.PtosA), (Points{{1, 2}, {5000, 0.1}, {-30000, 0.4}}));
}

TEST_F(CargaSLWMDaTest, faults_keep_the_points_so_far_and_show_one_box) {
    load("MERIDOL\r\nx\r\n1 2\r\n3 4\r\n");
    EXPECT_EQ(ok, 0);
    EXPECT_EQ(machine.dialogs.boxes,
              (std::vector<test::ShownBox>{{trap_text("CargaSLWMD_a", 62, 4), 0, "Velmora"}}));
    EXPECT_EQ(points_of(session.PtosA), (Points{{1, 2}, {3, 4}}));

    machine.dialogs.boxes.clear();
    load(meridol("", "1 2\r\n3 4 5\r\n"));
    EXPECT_EQ(box(), trap_text("CargaSLWMD_a", 13, 4));

    machine.dialogs.boxes.clear();
    load(meridol("", "sin puntos\r\n"));
    EXPECT_EQ(box(), trap_text("CargaSLWMD_a", 9, 4));

    machine.dialogs.boxes.clear();
    CargaSLWMD_a(machine.path("none.dat"), session.PtosA, "A", ok);
    EXPECT_EQ(box(), trap_text("CargaSLWMD_a", 53, 0));
}

} // namespace
} // namespace velmora
