#include "formats/dxf.h"

#include "cad/drawing.h"
#include "fakes/recording_platform.h"
#include "fakes/watching.h"
#include "formats/dxf_sheet.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "support/trap_text.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {
namespace {

using namespace test;

class Dxf : public testing::Test {
  protected:
    std::int16_t load(std::string_view bytes) {
        return CargaDXF(path_ = platform.write("drawing.dxf", bytes));
    }
    /// The list as the reader leaves it, by way of an entity that can't be read.
    std::int16_t load_and_stop(const std::string& entities) {
        return load(dxf_sheet(entities + rows({"AcDbLine", " 10", "stop"})));
    }
    [[nodiscard]] const std::vector<ShownBox>& boxes() const { return platform.dialogs.boxes; }
    static std::string failure(int number, int lines) {
        return trap_text("Error CargaDXF  nº: ", number, "  -  En Linea: ", lines);
    }
    static std::string assembly_failure(int number = 9, int write_index = 0) {
        return trap_text("Error OBJS2PTS nº: ", number, "  -  En punto: ", write_index);
    }
    [[nodiscard]] int number_of_first_box() const {
        constexpr std::string_view prefix = "Error CargaDXF  nº: ";
        EXPECT_TRUE(boxes()[0].text.starts_with(prefix));
        return std::stoi(boxes()[0].text.substr(prefix.size()));
    }
    [[nodiscard]] const ObjCad& first() const { return session.ObjsCad[0]; }

    RecordingPlatform platform{test::with_database};
    std::string path_;
};

TEST_F(Dxf, a_square_loads) {
    session.NSplines = 7;
    session.EscalaCarga = 100;
    session.Velmora.MousePointer = 2;
    EXPECT_EQ(load(dxf_square()), -1);
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
    EXPECT_EQ(session.TotalObjs, 4);
    EXPECT_EQ(session.NLines, 4);
    EXPECT_EQ(session.NSplines, 0);
    EXPECT_EQ(session.wininfo.TxtProcesed, "4");
    EXPECT_EQ(session.wininfo.TxtNlines, "4");
    EXPECT_EQ(session.EscalaCarga, 1);
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    EXPECT_EQ(platform.windows.statuses,
              (std::vector<std::string>{GetMensaje(message::reorganising_1),
                                        GetMensaje(message::reorganising_2)}));
    EXPECT_EQ(session.Velmora.pbar2.Value, session.Velmora.pbar2.Max);
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Dxf, the_hourglass_stands_while_the_entities_are_chained) {
    const std::string chaining = GetMensaje(message::reorganising_1);
    std::vector<int> seen;
    const test::WatchingTurns turns([&] {
        if (session.Velmora.StatusBar1 == chaining)
            seen.push_back(session.Velmora.MousePointer);
    });
    load(dxf_square());
    EXPECT_EQ(seen, (std::vector{11, 11, 11, 0}));
}

TEST_F(Dxf, R14_and_2000_are_taken) {
    EXPECT_EQ(load(dxf_sheet(dxf_line("0", "0", "1", "1"), "AC1014")), -1);
    EXPECT_EQ(load(dxf_sheet(dxf_line("0", "0", "1", "1"), "AC1015")), -1);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Dxf, the_version_may_stand_anywhere_in_its_line) {
    for (const std::string_view version : {"14", "x14", "  AC1015 (2000)", "2015", "R14 beta"})
        EXPECT_EQ(load(dxf_sheet(dxf_line("0", "0", "1", "1"), version)), -1) << version;
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Dxf, other_versions_are_refused_and_end_in_the_error_of_the_empty_list) {
    for (const std::string_view version : {"AC1018", "AC1009", "AC1032", ""}) {
        platform.dialogs.boxes.clear();
        EXPECT_EQ(load(dxf_sheet(dxf_line("0", "0", "1", "1"), version)), -1);
        const std::vector<ShownBox> expected = {{GetMensaje(message::file_version) + " " + path_ +
                                                     " " +
                                                     GetMensaje(message::version_not_supported),
                                                 16, "Velmora 1.0"},
                                                {assembly_failure(), 0, "Velmora"}};
        EXPECT_EQ(boxes(), expected);
        EXPECT_EQ(session.Respuesta, 1);
        EXPECT_EQ(Forma.Pto.upper(), 0);
        EXPECT_FALSE(session.files.is_open(1));
    }
}

TEST_F(Dxf, a_line_of_the_list_has_its_two_ends) {
    EXPECT_EQ(load_and_stop(dxf_line(" 1.5 ", "-2", "3E2", "1,25")), 0);
    ASSERT_EQ(session.ObjsCad.upper(), 0);
    EXPECT_EQ(first().Tipo, TipoCad::AcDbLine);
    EXPECT_EQ(first().NPtos, 1);
    EXPECT_EQ(first().Orden, 0);
    EXPECT_EQ(places_of(first().Ptos), (std::vector<Place>{{1.5, -2}, {300, 1.25}}));
}

TEST_F(Dxf, coordinates_have_15_significant_digits) {
    load_and_stop(dxf_line("0.1234567890123456789", "1234567890.123456789", "1E-20",
                           "0.00000000000000000000000000012345"));
    const auto places = places_of(first().Ptos);
    EXPECT_EQ(places[0].first, 0.123456789012346);
    EXPECT_EQ(places[0].second, 1234567890.12346);
    EXPECT_EQ(places[1].first, 1E-20);
    EXPECT_EQ(places[1].second, 1E-28);
}

TEST_F(Dxf, minus_zero_is_zero) {
    load_and_stop(dxf_line("-0.0", "-0", "-0.000000000000000000", "-0E5"));
    for (const auto& [X, Y] : places_of(first().Ptos)) {
        EXPECT_FALSE(std::signbit(X));
        EXPECT_FALSE(std::signbit(Y));
    }
}

TEST_F(Dxf, a_point_is_the_line_from_what_came_before) {
    load_and_stop(dxf_point("1", "2") + dxf_point("3", "4") + dxf_line("7", "7", "8", "9") +
                  dxf_point("5", "6"));
    ASSERT_EQ(session.ObjsCad.upper(), 3);
    EXPECT_EQ(places_of(session.ObjsCad[0].Ptos), (std::vector<Place>{{1, 2}, {1, 2}}));
    EXPECT_EQ(places_of(session.ObjsCad[1].Ptos), (std::vector<Place>{{1, 2}, {3, 4}}));
    EXPECT_EQ(places_of(session.ObjsCad[3].Ptos), (std::vector<Place>{{8, 9}, {5, 6}}));
    EXPECT_EQ(session.ObjsCad[3].Tipo, TipoCad::AcDbPoint);
    EXPECT_EQ(ids(), (std::vector<std::int32_t>{0, 1, 2, 3}));
    EXPECT_EQ(session.NLines, 4);
}

TEST_F(Dxf, bare_points_load_as_an_outline) {
    EXPECT_EQ(load(dxf_sheet(dxf_point("0", "0") + dxf_point("5", "0") + dxf_point("5", "5"))), -1);
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {0, 0}, {5, 0}}));
}

TEST_F(Dxf, a_circle_and_an_arc_are_told_apart_by_the_second_line_behind_the_radius) {
    session.PutArc = 3;
    session.PutCircle = 6;
    load_and_stop(dxf_circle_rows("1", "2", "10") + dxf_arc_rows("1", "2", "10", "0", "90"));
    ASSERT_EQ(session.ObjsCad.upper(), 1);
    EXPECT_EQ(first().Tipo, TipoCad::AcDbCircle);
    EXPECT_EQ(first().NPtos, 6);
    EXPECT_EQ(first().Ptos[0].X, 11);
    EXPECT_EQ(session.ObjsCad[1].Tipo, TipoCad::AcDbArc);
    EXPECT_EQ(session.ObjsCad[1].NPtos, 3);
    EXPECT_NEAR(session.ObjsCad[1].Ptos[3].Y, 12, 1e-9);
    EXPECT_EQ(session.NCircles, 1);
    EXPECT_EQ(session.wininfo.TxtNCircles, "1");
    EXPECT_EQ(session.NArcs, 1);
    EXPECT_EQ(session.wininfo.TxtNArcs, "1");
}

// Unlike centre and radius, whose exponents come apart by hand.
TEST_F(Dxf, the_angles_of_an_arc_take_an_exponent_as_it_stands) {
    session.PutArc = 3;
    load_and_stop(dxf_arc_rows("0", "0", "10", " 3000E-02 ", "0.9E+2"));
    ASSERT_EQ(first().NPtos, 3);
    EXPECT_NEAR(first().Ptos[0].Y, 5, 1e-9);
    EXPECT_NEAR(first().Ptos[3].Y, 10, 1e-9);
}

TEST_F(Dxf, a_circle_as_the_last_entity_reads_the_end_of_the_section_ahead) {
    session.PutCircle = 4;
    EXPECT_EQ(load(dxf_sheet(dxf_circle_rows("0", "0", "10"))), -1);
    EXPECT_TRUE(boxes().empty());
    ASSERT_EQ(Forma.Pto.upper(), 3);
    EXPECT_EQ(Forma.Pto[0].X, 10);
}

TEST_F(Dxf, a_closed_polyline_repeats_its_first_vertex_and_loses_it_again) {
    const std::vector<std::string_view> vertices = {"0", "0", "4", "0", "4", "4", "0", "4"};
    load_and_stop(dxf_polyline("4", "1", vertices));
    EXPECT_EQ(first().NPtos, 4);
    EXPECT_EQ(first().Ptos.upper(), 4);
    EXPECT_EQ(first().Ptos[4], first().Ptos[0]);
    EXPECT_EQ(session.NLWPolylines, 1);
    EXPECT_EQ(session.wininfo.TxtNLWPolylines, "1");
    EXPECT_EQ(load(dxf_sheet(dxf_polyline("4", "1", vertices))), -1);
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {4, 0}, {4, 4}, {0, 4}}));
}

TEST_F(Dxf, any_flag_but_1_means_open) {
    const std::vector<std::string_view> vertices = {"0", "0", "4", "0", "4", "4"};
    for (const std::string_view open : {"0", "128", "129", "-1", "x", "1,0"}) {
        load_and_stop(dxf_polyline("3", open, vertices));
        EXPECT_EQ(first().NPtos, open == "1,0" ? 3 : 2) << open;
    }
    load_and_stop(dxf_polyline("3", " 1 ", vertices));
    EXPECT_EQ(first().NPtos, 3);
}

TEST_F(Dxf, a_polyline_without_the_width_group_is_read_two_lines_off) {
    const std::string entity = rows({"100", "AcDbPolyline", " 90", "2", " 70", "0", " 10", "1",
                                     " 20", "2", " 10", "3", " 20", "4", " 10", "5"});
    load_and_stop(entity);
    EXPECT_EQ(places_of(first().Ptos), (std::vector<Place>{{2, 3}, {4, 5}}));
}

TEST_F(Dxf, an_extra_group_behind_the_marker_is_misread) {
    const std::string entity = rows({"100", "AcDbLine", " 39", "7", " 10", "1", " 20", "2", " 30",
                                     "0", " 11", "3", " 21", "4", " 31", "0"});
    load_and_stop(entity);
    EXPECT_EQ(places_of(first().Ptos), (std::vector<Place>{{7, 1}, {0, 3}}));
}

TEST_F(Dxf, classes_that_are_not_read_are_skipped_without_a_word) {
    const std::string others = rows({"AcDbSpline", "AcDb2dPolyline", "AcDbText", " AcDbLine",
                                     "acdbline", "AcDbLine2", "AcDbArc"});
    EXPECT_EQ(load(dxf_sheet(others + dxf_line("0", "0", "5", "0"))), -1);
    EXPECT_EQ(session.TotalObjs, 1);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Dxf, a_file_with_a_spline_alone_ends_in_the_error_of_the_empty_list) {
    EXPECT_EQ(load(dxf_sheet(rows({"100", "AcDbSpline", " 70", "8"}))), -1);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(boxes()[0].text, assembly_failure());
    EXPECT_EQ(Forma.Pto.upper(), 0);
}

TEST_F(Dxf, the_words_ENTITIES_and_ENDSEC_count_anywhere_in_a_line) {
    const std::string text = rows({"x$ACADVERx", "1", "AC1015 ", "some ENTITIES here"}) +
                             dxf_line("0", "0", "5", "0") + rows({"the ENDSEC text"}) +
                             dxf_line("5", "0", "5", "5");
    EXPECT_EQ(load(text), -1);
    EXPECT_EQ(session.TotalObjs, 1);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Dxf, ENDSEC_in_the_last_line_of_a_pattern_ends_the_section) {
    const std::string entity =
        rows({"AcDbLine", "10", "0", "20", "0", "30", "0", "11", "5", "21", "0", "31", "ENDSEC"});
    EXPECT_EQ(load(dxf_sheet(entity + dxf_line("5", "0", "5", "5"))), -1);
    EXPECT_EQ(session.TotalObjs, 1);
    const std::string inside =
        rows({"AcDbLine", "10", "0", "20", "0", "ENDSEC", "0", "11", "5", "21", "0", "31", "0"});
    EXPECT_EQ(load(dxf_sheet(inside + dxf_line("5", "0", "5", "5"))), -1);
    EXPECT_EQ(session.TotalObjs, 2);
}

TEST_F(Dxf, the_end_of_the_file_before_ENDSEC_asks) {
    platform.dialogs.answers = {1, 6};
    session.UltimoPto = 9;
    Forma.Pto.redim(5);
    const std::string header = rows({"$ACADVER", "1", "AC1014", "ENTITIES"});
    EXPECT_EQ(load(header + dxf_line("0", "0", "5", "0")), 0);
    // Of the entity's lines only those before the pattern count.
    const std::vector<ShownBox> expected = {{failure(62, 10), 0, "Velmora"},
                                            {"Cancel Load?", 20, "Velmora"}};
    EXPECT_EQ(boxes(), expected);
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(session.UltimoPto, 0);
    EXPECT_EQ(session.ObjsCad[0].NPtos, 1);
    EXPECT_FALSE(session.files.is_open(1));
}

TEST_F(Dxf, No_gives_success_with_the_outline_as_it_is) {
    platform.dialogs.answers = {1, 7};
    session.UltimoPto = 9;
    Forma.Pto.redim(5);
    EXPECT_EQ(load(rows({"$ACADVER", "1", "AC1014", "ENTITIES"})), -1);
    EXPECT_EQ(boxes()[0].text, failure(62, 4));
    EXPECT_EQ(Forma.Pto.upper(), 0);
    EXPECT_EQ(session.UltimoPto, 9);
}

TEST_F(Dxf, a_file_that_is_not_there_asks_with_line_0) {
    platform.dialogs.answers = {1, 7};
    Forma.Pto.redim(5);
    EXPECT_EQ(CargaDXF(platform.path("none.dxf")), -1);
    EXPECT_EQ(boxes()[0].text, failure(53, 0));
    EXPECT_EQ(Forma.Pto.upper(), 5);
}

TEST_F(Dxf, a_file_left_open_is_met) {
    session.files.open_input(1, platform.write("other", "x"));
    EXPECT_EQ(load(dxf_square()), 0);
    EXPECT_EQ(boxes()[0].text, failure(55, 0));
    EXPECT_FALSE(session.files.is_open(1));
    EXPECT_EQ(load(dxf_square()), -1);
}

TEST_F(Dxf, numbers_that_do_not_convert_ask) {
    struct Case {
        std::string entity;
        int number;
    };
    const std::vector<Case> cases = {
        {dxf_line("x", "0", "1", "1"), 13},
        {dxf_line("", "0", "1", "1"), 13},
        {dxf_line("1.2.3", "0", "1", "1"), 13},
        {dxf_line("1E999", "0", "1", "1"), 6},
        {dxf_line("1E29", "0", "1", "1"), 6},
        {dxf_circle_rows("0", "0", "1E-05"), 5},
        {dxf_circle_rows("0", "0", "x"), 13},
        {dxf_arc_rows("0", "0", "1", "x", "0"), 13},
        {dxf_polyline("0", "0", {}), 9},
        {dxf_polyline("-5", "0", {}), 9},
        {dxf_polyline("x", "0", {}), 9},
        {dxf_polyline("3000000000", "0", {}), 6},
        {dxf_polyline("1E999", "0", {}), 6},
        {dxf_polyline("2000000000", "0", {"1", "2", "3", "4"}), 13},
    };
    for (const Case& one : cases) {
        platform.dialogs.boxes.clear();
        EXPECT_EQ(load(dxf_sheet(one.entity)), 0);
        ASSERT_EQ(boxes().size(), 2U) << one.entity;
        EXPECT_EQ(number_of_first_box(), one.number) << one.entity;
    }
}

TEST_F(Dxf, a_huge_vertex_count_takes_no_memory_ahead) {
    std::string text = dxf_sheet(dxf_polyline("2000000000", "0", {"1", "2", "3", "4"}));
    text.resize(text.find("ENDSEC", text.find("AcDbPolyline")) - 5);
    EXPECT_EQ(load(text), 0);
    EXPECT_EQ(number_of_first_box(), 62);
}

TEST_F(Dxf, without_segments_for_an_arc_the_division_fails) {
    session.PutArc = 0;
    EXPECT_EQ(load(dxf_sheet(dxf_arc_rows("0", "0", "1", "0", "90"))), 0);
    EXPECT_EQ(number_of_first_box(), 11);
}

TEST_F(Dxf, on_a_machine_with_commas_points_are_replaced) {
    session.SepDecimal = ',';
    load_and_stop(dxf_line("1.5", "2,5", "-3.25", "1.5E-03") +
                  dxf_circle_rows("0.5", "0.25", "1.23456789012346E-05") +
                  dxf_polyline("2.5", "1.0", {"0.5", "1.5", "2.5", "3.5"}));
    ASSERT_EQ(session.ObjsCad.upper(), 2);
    EXPECT_EQ(places_of(first().Ptos), (std::vector<Place>{{1.5, 2.5}, {-3.25, 0.0015}}));
    EXPECT_EQ(session.ObjsCad[1].Ptos[0].X, 0.5000123456789);
    // 2.5 less 1, to the even whole number; the flag is read with the point as it stands.
    EXPECT_EQ(session.ObjsCad[2].NPtos, 3);
}

TEST_F(Dxf, what_can_not_be_chained_is_reported_by_the_assembly) {
    EXPECT_EQ(load(dxf_sheet(dxf_line("0", "0", "10", "0") + dxf_line("50", "50", "60", "60") +
                             dxf_line("70", "70", "80", "80") + dxf_line("10", "0", "10", "10"))),
              -1);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(boxes()[0].text,
              "Error OBJS2PTS nº: 5  - Desc: " + error_description(5, 'E') + "  -  En punto: 4");
    EXPECT_EQ(Forma.Pto.upper(), 3);
    EXPECT_EQ(session.ObjsCad.upper(), 3);
}

TEST_F(Dxf, a_list_kept_from_a_failed_load_is_taken_by_a_file_without_entities) {
    load_and_stop(dxf_line("0", "0", "10", "0") + dxf_line("10", "0", "10", "10"));
    platform.dialogs.boxes.clear();
    EXPECT_EQ(load(dxf_sheet("")), -1);
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(places_of(Forma.Pto), (std::vector<Place>{{0, 0}, {10, 0}}));
}

TEST_F(Dxf, the_first_entity_makes_the_list_one_fresh_element) {
    load_and_stop(dxf_line("0", "0", "10", "0") + dxf_line("10", "0", "10", "10"));
    platform.dialogs.boxes.clear();
    EXPECT_EQ(load(dxf_square()), -1);
    EXPECT_EQ(Forma.Pto.upper(), 3);
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Dxf, a_first_entity_that_fails_leaves_one_fresh_element_too) {
    load_and_stop(dxf_line("0", "0", "10", "0") + dxf_line("10", "0", "10", "10"));
    EXPECT_EQ(session.ObjsCad.upper(), 1);
    load_and_stop("");
    EXPECT_EQ(session.ObjsCad.upper(), 0);
    EXPECT_FALSE(first().Ptos.dimensioned());
    platform.dialogs.boxes.clear();
    EXPECT_EQ(load(dxf_sheet("")), -1);
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(boxes()[0].text, assembly_failure());
}

TEST_F(Dxf, line_ends_of_every_kind_are_taken) {
    const std::string windows = dxf_square();
    for (const std::string_view end : {"\n", "\r"}) {
        std::string text;
        std::size_t from = 0;
        for (std::size_t at; (at = windows.find("\r\n", from)) != std::string::npos; from = at + 2)
            text.append(windows, from, at - from).append(end);
        EXPECT_EQ(load(text), -1);
        EXPECT_EQ(Forma.Pto.upper(), 3);
    }
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Dxf, cut_at_any_byte_a_file_ends_in_a_box_or_an_outline) {
    const std::string whole =
        dxf_sheet(dxf_line("0.0", "0.0", "10.0", "0.0") +
                  dxf_arc_rows("10", "5", "5", "270", "90") + dxf_circle_rows("10", "10", "1") +
                  dxf_polyline("3", "1", {"10", "10", "5", "5", "0", "0"}) + dxf_point("1", "1"));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        platform.dialogs.boxes.clear();
        session.ObjsCad.redim(0);
        load(std::string_view(whole).substr(0, length));
        EXPECT_TRUE(!boxes().empty() || Forma.Pto.upper() > 0) << length;
        EXPECT_FALSE(session.files.is_open(1));
    }
}

TEST_F(Dxf, files_of_other_kinds_end_in_a_box) {
    using namespace std::literals;
    const std::string binary = "AutoCAD Binary DXF\r\n\x1a\0\0\0SECTION\0\2\0HEADER\0"s;
    for (const std::string& bytes :
         {binary, std::string(), std::string(5000, '\0'), std::string(5000, '\x1a'),
          std::string("AC1015 ACADVER\n\n14\n"), rows({"$ACADVER", "1", "AC1015"})}) {
        platform.dialogs.boxes.clear();
        load(bytes);
        EXPECT_FALSE(boxes().empty());
    }
}

} // namespace
} // namespace velmora
