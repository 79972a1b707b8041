#include "cad/capture.h"

#include "cad/drawing.h"
#include "fakes/scripted_cad_session.h"
#include "fakes/watching.h"
#include "support/error_number.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using test::number_of;
using test::Place;
using test::places_of;
using test::set_shape;
using test::ShownBox;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kOriginNotOnShape =
    "El punto origen no está en la forma!, por favor selecciona una nuevo punto Origen!";
constexpr auto kArcPrompt = "Los puntos para un arco no pueden ser inferiores a 3! modifica los "
                            "parámetros de captura; Puntos:";
constexpr auto kCirclePrompt = "Los puntos de un círculo no pueden ser inferiores a 4!  Puntos:";
constexpr auto kOneIncoherent = "Se han encontrado 1 lineas incoherentes en el dibujo, estas se "
                                "han marcado en amarillo; procede a repararlas!";

struct CaptureTest : test::ScriptedCadSession {
    CaptureTest() { machine.open_database(); }

    Flag origin = True;
    void capture() { CapturaAcad(origin); }
    static std::vector<Place> outline() { return places_of(Forma.Pto); }
};

TEST_F(CaptureTest, a_square_with_one_line_drawn_backwards) {
    open_drawing({"line 0 0 10 0", "line 10 10 10 0", "line 10 10 0 10", "line 0 10 0 0"});
    session.LoadOk = True;
    capture();
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(10, 0), Place(10, 10), Place(0, 10)));
    EXPECT_EQ(origin, False);
    EXPECT_EQ(session.LoadOk, 0);
    EXPECT_EQ(session.TotalObjs, 4);
    EXPECT_EQ(session.NLines, 4);
    EXPECT_EQ(session.wininfo.TxtProcesed, "4");
    EXPECT_EQ(session.wininfo.TxtNlines, "4");
    EXPECT_FALSE(session.ObjsCad[0].Ptos.dimensioned());
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    EXPECT_THAT(machine.windows.statuses,
                ElementsAre("Capturando los objetos contenidos en : ALA.DWG !",
                            "Convirtiendo puntos a lineas!", "Reorganizando objetos! (1/2)",
                            "Reorganizando objetos! (2/2)", "Objetos Cargados!"));
}

TEST_F(CaptureTest, each_kind_has_its_counter) {
    session.NLines = session.NArcs = 7;
    session.wininfo.TxtNArcs = "7";
    open_drawing({"line 0 0 1 0", "spline 1 0 2 0 3 0", "other AcDbText", "polyline open 3 0 4 0",
                  "arc 4 1 1 0 1", "circle 9 9 1"});
    capture();
    EXPECT_EQ(session.TotalObjs, 5);
    EXPECT_EQ(session.NLines, 1);
    EXPECT_EQ(session.NSplines, 1);
    EXPECT_EQ(session.NLWPolylines, 1);
    EXPECT_EQ(session.NArcs, 1);
    EXPECT_EQ(session.NCircles, 1);
    const WinInfo& info = session.wininfo;
    EXPECT_THAT((std::vector{info.TxtProcesed, info.TxtNlines, info.TxtNSplines,
                             info.TxtNLWPolylines, info.TxtNArcs, info.TxtNCircles}),
                ElementsAre("5", "1", "1", "1", "1", "1"));
}

TEST_F(CaptureTest, the_counters_start_at_0_with_their_boxes) {
    session.NSplines = session.NCircles = 7;
    session.wininfo.TxtNSplines = session.wininfo.TxtNCircles = "7";
    open_drawing({"line 0 0 1 0"});
    capture();
    EXPECT_EQ(session.NSplines, 0);
    EXPECT_EQ(session.NCircles, 0);
    EXPECT_EQ(session.wininfo.TxtNSplines, "0");
    EXPECT_EQ(session.wininfo.TxtNCircles, "0");
}

TEST_F(CaptureTest, points_become_lines_and_count_as_lines) {
    open_drawing({"point 0 0", "point 5 0", "point 5 5"});
    capture();
    EXPECT_EQ(session.NLines, 3);
    EXPECT_EQ(session.TotalObjs, 3);
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(5, 0)));
}

TEST_F(CaptureTest, the_elements_before_the_walk_carry_their_place_in_the_drawing) {
    open_drawing({"other AcDbText", "line 0 0 1 0", "other AcDbHatch", "line 5 5 6 6"});
    session.CadOrigX = 100;
    origin = False;
    capture();
    EXPECT_THAT(test::ids(), ElementsAre(1, 3));
    EXPECT_THAT(test::ordenes(), ElementsAre(-1, -1));
    EXPECT_EQ(session.ObjsCad[0].NPtos, 1);
    EXPECT_EQ(session.ObjsCad[0].Usado, 0);
    EXPECT_EQ(session.ObjsCad[0].Tipo, TipoCad::AcDbLine);
}

TEST_F(CaptureTest, coordinates_pass_through_15_digits) {
    open_drawing({"line 0.1234567890123456789 0 1 0", "line 1 0 2 0"});
    capture();
    EXPECT_EQ(Forma.Pto[0].X, 0.123456789012346);
    EXPECT_EQ(session.CadOrigX, 0.123456789012346);
}

TEST_F(CaptureTest, an_empty_drawing_is_told_and_the_shape_stays) {
    open_drawing({});
    set_shape({{.X = 1}, {.X = 2}});
    capture();
    EXPECT_THAT(shown_texts(),
                ElementsAre("El documento cargado en Autocad no tiene ningún objeto!"));
    EXPECT_EQ(Forma.Pto.upper(), 1);
    EXPECT_EQ(origin, True);
}

TEST_F(CaptureTest, the_list_is_empty_before_an_empty_drawing_is_told) {
    open_drawing({});
    test::set_drawing({test::line({0, 0}, {1, 1}), test::line({1, 1}, {2, 2})});
    int told = 0;
    const test::WatchingDialogs dialogs([&] {
        ++told;
        EXPECT_EQ(session.ObjsCad.upper(), 0);
        EXPECT_FALSE(session.ObjsCad[0].Ptos.dimensioned());
    });
    capture();
    EXPECT_EQ(told, 1);
}

TEST_F(CaptureTest, text_and_hatch_alone_give_message_22) {
    open_drawing({"other AcDbText", "other AcDbHatch"});
    set_shape({{.X = 1}, {.X = 2}});
    session.LoadOk = True;
    capture();
    EXPECT_THAT(shown_texts(), ElementsAre(kOriginNotOnShape));
    EXPECT_EQ(Forma.Pto.upper(), 1);
    EXPECT_EQ(session.LoadOk, True);
    EXPECT_EQ(session.TotalObjs, 0);
}

TEST_F(CaptureTest, an_origin_off_the_shape_gives_message_22_and_keeps_the_list) {
    open_drawing({"line 0 0 1 0", "line 1 0 2 0"});
    session.CadOrigX = 50;
    origin = False;
    capture();
    EXPECT_THAT(shown_texts(), ElementsAre(kOriginNotOnShape));
    EXPECT_EQ(session.ObjsCad.upper(), 1);
    EXPECT_FALSE(has_shape());
}

TEST_F(CaptureTest, a_given_origin_starts_the_chain) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 10 10 0 0"});
    session.CadOrigX = 10.9;
    session.CadOrigY = 0.5;
    origin = False;
    capture();
    // The first element with an end in the cell, turned round.
    EXPECT_EQ(outline().front(), Place(10, 0));
    EXPECT_EQ(outline()[1], Place(0, 0));
    EXPECT_EQ(session.CadOrigX, 10.9);
}

TEST_F(CaptureTest, an_origin_on_a_middle_vertex_starts_at_vertex_0) {
    open_drawing({"polyline open 0 0 5 0 5 5", "line 5 5 0 9"});
    session.CadOrigX = 5;
    origin = False;
    capture();
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(5, 0), Place(5, 5)));
}

TEST_F(CaptureTest, a_spline_gives_no_origin) {
    open_drawing({"spline 7 7 8 8 9 9", "line 3 0 7 7"});
    capture();
    EXPECT_EQ(session.CadOrigX, 3);
    EXPECT_EQ(session.CadOrigY, 0);
    EXPECT_EQ(origin, False);
    EXPECT_EQ(outline().front(), Place(3, 0));
}

TEST_F(CaptureTest, splines_alone_leave_the_origin_that_was_there) {
    open_drawing({"spline 7 7 8 8 9 9"});
    session.CadOrigX = session.CadOrigY = 7;
    capture();
    EXPECT_EQ(origin, True);
    EXPECT_EQ(session.CadOrigX, 7);
    EXPECT_EQ(Forma.Pto.upper(), 50);
}

struct OriginCase {
    const char* entity;
    Place origin;
};
struct OriginTest : CaptureTest, testing::WithParamInterface<OriginCase> {};

TEST_P(OriginTest, is_the_first_point_of_the_first_entity) {
    open_drawing({GetParam().entity, "line 20 20 30 30"});
    capture();
    EXPECT_EQ(Place(session.CadOrigX, session.CadOrigY), GetParam().origin);
    EXPECT_EQ(origin, False);
}

INSTANTIATE_TEST_SUITE_P(Kinds, OriginTest,
                         testing::Values(OriginCase{"line 1 2 3 4", {1, 2}},
                                         OriginCase{"point 5 6", {5, 6}},
                                         OriginCase{"polyline closed 7 8 9 9 9 7", {7, 8}},
                                         OriginCase{"arc 1 2 3 0 1.5", {4, 2}},
                                         OriginCase{"circle 1 2 4", {5, 2}}));

TEST_F(CaptureTest, a_closed_polyline_loses_its_repeated_point_again) {
    open_drawing({"polyline closed 0 0 5 0 5 5"});
    capture();
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(5, 0), Place(5, 5)));
    EXPECT_EQ(session.UltimoPto, 4);
    EXPECT_EQ(session.TotalPtos, 3);
}

TEST_F(CaptureTest, curves_take_their_points_from_the_boxes) {
    session.PutArc = session.PutCircle = 99;
    session.winoptions.TxtPutArc = "5";
    session.winoptions.TxtPutCircle = "6 puntos";
    open_drawing({"circle 0 0 10"});
    capture();
    EXPECT_EQ(session.PutArc, 5);
    EXPECT_EQ(session.PutCircle, 6);
    EXPECT_EQ(Forma.Pto.upper(), 5);
}

TEST_F(CaptureTest, an_arc_with_too_few_points_asks_until_there_are_3) {
    session.winoptions.TxtPutArc = "2";
    machine.dialogs.inputs = {"1", "", std::nullopt, "muchos", "3.5", "99999999999", "3"};
    open_drawing({"arc 0 0 10 0 1.5707963267949", "arc 0 0 10 1.5707963267949 3.14"});
    capture();
    EXPECT_EQ(session.PutArc, 3);
    EXPECT_EQ(session.winoptions.TxtPutArc, "3");
    ASSERT_EQ(machine.dialogs.input_calls.size(), 7U);
    EXPECT_THAT(machine.dialogs.input_calls,
                testing::Each(ElementsAre(kArcPrompt, "Velmora 1.0", "")));
    EXPECT_EQ(Forma.Pto.upper(), 5);
    capture();
    EXPECT_EQ(machine.dialogs.input_calls.size(), 7U);
}

TEST_F(CaptureTest, a_circle_with_too_few_points_asks_until_there_are_4) {
    session.winoptions.TxtPutCircle = "0";
    machine.dialogs.inputs = {"3", "4"};
    open_drawing({"circle 0 0 10"});
    capture();
    EXPECT_EQ(session.PutCircle, 4);
    EXPECT_EQ(session.winoptions.TxtPutCircle, "4");
    EXPECT_THAT(machine.dialogs.input_calls,
                ElementsAre(ElementsAre(kCirclePrompt, "Velmora 1.0", ""),
                            ElementsAre(kCirclePrompt, "Velmora 1.0", "")));
    EXPECT_EQ(Forma.Pto.upper(), 3);
}

TEST_F(CaptureTest, each_entity_fills_the_second_bar) {
    open_drawing({"circle 0 0 10"});
    capture();
    EXPECT_EQ(session.Velmora.pbar2.Max, 5);
    EXPECT_EQ(session.Velmora.pbar2.Value, 5);
    say({"document Dos.dwg", "line 0 0 1 0"});
    ReconectaAcad();
    capture();
    EXPECT_EQ(session.Velmora.pbar2.Max, 2);
    EXPECT_EQ(session.Velmora.pbar2.Value, 2);
}

TEST_F(CaptureTest, nothing_is_asked_without_a_curve_of_the_kind) {
    session.winoptions.TxtPutArc = session.winoptions.TxtPutCircle = "0";
    open_drawing({"line 0 0 1 0"});
    capture();
    EXPECT_THAT(machine.dialogs.input_calls, IsEmpty());
    EXPECT_EQ(session.PutArc, 0);
}

TEST_F(CaptureTest, a_stray_line_turns_yellow_and_is_counted) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 50 50 60 60", "line 11 10 0 0"});
    capture();
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(10, 0), Place(10, 10)));
    EXPECT_EQ(colour(2), 2);
    EXPECT_EQ(colour(3), driver::kColourByLayer);
    EXPECT_THAT(machine.dialogs.boxes, ElementsAre(ShownBox{kOneIncoherent, 16, "Velmora 1.0"}));
    EXPECT_EQ(session.Velmora.StatusBar1, kOneIncoherent);
}

TEST_F(CaptureTest, the_yellow_goes_to_the_item_at_the_lists_index) {
    open_drawing({"other AcDbText", "line 0 0 10 0", "line 10 0 10 10", "line 50 50 60 60",
                  "line 11 10 0 0"});
    capture();
    EXPECT_EQ(colour(2), 2);
    EXPECT_EQ(colour(3), driver::kColourByLayer);
}

TEST_F(CaptureTest, the_last_entity_left_is_taken_wherever_it_lies) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 50 50 60 60"});
    capture();
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(10, 0), Place(10, 10)));
    EXPECT_EQ(colour(2), driver::kColourByLayer);
    EXPECT_EQ(session.UltimoPto, 4);
}

struct FaultCase {
    const char* entity;
    const char* member;
};
struct FaultTest : CaptureTest, testing::WithParamInterface<FaultCase> {};

TEST_P(FaultTest, of_the_cad_goes_through) {
    open_drawing({GetParam().entity});
    state.failures.push_back({GetParam().member, 1234});
    EXPECT_EQ(number_of([&] { capture(); }), 1234);
}

INSTANTIATE_TEST_SUITE_P(
    Members, FaultTest,
    testing::Values(FaultCase{"line 0 0 1 0", "ModelSpace.Count"},
                    FaultCase{"line 0 0 1 0", "AcadDocument.Name"},
                    FaultCase{"line 0 0 1 0", "Item"}, FaultCase{"line 0 0 1 0", "ObjectName"},
                    FaultCase{"line 0 0 1 0", "StartPoint"}, FaultCase{"point 0 0", "Coordinates"},
                    FaultCase{"polyline open 0 0 1 1", "Closed"},
                    FaultCase{"arc 0 0 1 0 1", "EndAngle"}, FaultCase{"circle 0 0 1", "Radius"},
                    FaultCase{"spline 0 0 1 1", "GetControlPoint"}));

TEST_F(CaptureTest, a_single_point_is_a_fault) {
    open_drawing({"point 1 1"});
    EXPECT_EQ(number_of([&] { capture(); }), 9);
}

TEST_F(CaptureTest, a_spline_of_degree_171_overflows) {
    open_drawing({});
    std::string line = "spline";
    for (int i = 0; i < 172; ++i)
        line += " 0 " + std::to_string(i);
    say({line.c_str()});
    EXPECT_EQ(number_of([&] { capture(); }), 6);
}

TEST_F(CaptureTest, a_polyline_with_half_a_vertex_is_a_fault) {
    open_drawing({"polyline open 0 0 1 1"});
    auto& numbers = state.application->active->model_space[0]->numbers;
    numbers.push_back(2); // 5 numbers: two and a half vertices, rounded to two
    capture();
    EXPECT_EQ(Forma.Pto.upper(), 0);
    numbers.insert(numbers.end(), {3, 4}); // 7 numbers: rounded to four
    EXPECT_EQ(number_of([&] { capture(); }), 9);
    numbers.clear();
    EXPECT_EQ(number_of([&] { capture(); }), 9);
}

TEST_F(CaptureTest, a_drawing_opened_since_waits_for_the_next_connection) {
    open_drawing({"line 0 0 10 0", "line 10 0 0 5"});
    say({"document Otro.dwg", "line 0 0 1 0"});
    capture();
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(10, 0)));
    EXPECT_EQ(machine.windows.statuses.front(), "Capturando los objetos contenidos en : ALA.DWG !");
}

TEST_F(CaptureTest, an_application_or_drawing_that_is_gone_raises_462) {
    open_drawing({"line 0 0 1 0"});
    say({"no-document"});
    EXPECT_EQ(number_of([&] { capture(); }), 462);
}

TEST_F(CaptureTest, without_a_document_91) {
    say({"running AutoCAD 15.0"});
    ReconectaAcad();
    EXPECT_EQ(number_of([&] { capture(); }), 91);
}

} // namespace
} // namespace velmora
