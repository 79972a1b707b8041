#include "cad/select_origin.h"
#include "free_cad_session.h"
#include "plate.h"

#include "cad/capture.h"
#include "cad/send.h"
#include "commands/handlers.h"
#include "support/error_number.h"
#include "support/outline.h"
#include "support/places.h"

#include <chrono>
#include <filesystem>
#include <gmock/gmock.h>
#include <iostream>

namespace velmora {
namespace {

using test::number_of;
using test::on_circle;
using test::Places;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct FreeCadTest : test::FreeCadSession {
    static void capture() {
        Flag from_drawing = True;
        CapturaAcad(from_drawing);
    }
    void use_template(const std::string& bytes) const { machine.write("acad.dwt", bytes); }
    void use_installed_template() const {
        std::filesystem::copy_file(test::source_dir() / "data/acad.dwt",
                                   machine.folder / "acad.dwt");
    }
};

Places curve_of_plate() {
    const QJsonArray numbers = FreeCadTest::look("curve_points()").toArray();
    Places points;
    for (qsizetype i = 0; i < numbers.size(); i += 2)
        points.emplace_back(numbers[i].toDouble(), numbers[i + 1].toDouble());
    return points;
}

void expect_outline(const Places& expected) {
    const test::Points shape = test::shape();
    ASSERT_EQ(shape.size(), expected.size());
    for (std::size_t i = 0; i < shape.size(); ++i) {
        EXPECT_NEAR(shape[i].X, expected[i].first, 1e-12) << "point " << i;
        EXPECT_NEAR(shape[i].Y, expected[i].second, 1e-12) << "point " << i;
    }
}

TEST_F(FreeCadTest, is_connected_with_its_document) {
    open("plate()");
    EXPECT_EQ(session.wininfo.TxtOpensw, "FreeCAD");
    EXPECT_THAT(session.wininfo.txtAcadVer, testing::StartsWith("0."));
    EXPECT_EQ(session.wininfo.TxtAcadFile, "PIEZA");
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(FreeCadTest, its_drawing_is_captured_and_the_stray_turns_yellow) {
    open("plate()");
    EXPECT_THAT(labels("painted()"), IsEmpty());
    mnu_capture();
    expect_outline(test::plate_outline(curve_of_plate()));
    EXPECT_THAT(labels("painted()"), ElementsAre("Stray"));
    ASSERT_THAT(machine.dialogs.boxes, SizeIs(1));
    EXPECT_EQ(machine.dialogs.boxes[0].buttons, 16);
    EXPECT_EQ(machine.dialogs.boxes[0].text,
              "Se han encontrado 1 lineas incoherentes en el dibujo, estas se han marcado en "
              "amarillo; procede a repararlas!");
    EXPECT_EQ(session.TotalObjs, 9);
    EXPECT_EQ(session.NLines, 5);
    EXPECT_EQ(session.NArcs, 1);
    EXPECT_EQ(session.NCircles, 1);
    EXPECT_EQ(session.NLWPolylines, 2);
    EXPECT_EQ(session.NSplines, 0);
}

TEST_F(FreeCadTest, the_origin_is_picked_in_its_terminal) {
    open("plate()");
    started->type_when_asked("50.75, 30.25\n");
    menu_select_orig();
    EXPECT_THAT(started->output().toStdString(),
                HasSubstr("Selecciona el punto inicial de la linea de corte."));
    EXPECT_EQ(session.CadOrigX, 50.75);
    EXPECT_EQ(session.CadOrigY, 30.25);
    expect_outline(test::plate_outline_from_corner(curve_of_plate()));
    EXPECT_THAT(labels("painted()"), testing::UnorderedElementsAre("Hole", "Last"));
}

TEST_F(FreeCadTest, a_closed_wire_begins_where_the_user_picked) {
    look("FreeCAD.newDocument('alambre').Name");
    open("drawn(Draft.make_wire([V(0.5, 0.5), V(30.5, 0.5), V(30.5, 20.5), V(12.5, 9)], "
         "closed=True, face=False))");
    started->type_when_asked("30.5,20.5\n");
    menu_select_orig();
    expect_outline({{30.5, 20.5}, {12.5, 9}, {0.5, 0.5}, {30.5, 0.5}});
    mnu_capture();
    expect_outline({{0.5, 0.5}, {30.5, 0.5}, {30.5, 20.5}, {12.5, 9}});
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(FreeCadTest, the_captured_document_is_named_with_what_was_passed_over) {
    open("plate()");
    mnu_capture();
    EXPECT_EQ(session.Velmora.lbl_notice, "pieza, in mm; 1 text passed over: Text");
}

TEST_F(FreeCadTest, solids_alone_are_refused_and_the_old_shape_stays) {
    look("FreeCAD.newDocument('solido').Name");
    open("drawn(feature(Part.makeBox(1, 1, 1)))");
    const test::Points before{{.X = 1}, {.X = 2}};
    test::set_shape(before);
    session.RedimCapture = True;
    mnu_capture();
    ASSERT_THAT(shown_texts(), SizeIs(1));
    EXPECT_THAT(shown_texts()[0],
                HasSubstr("holds no lines to capture. 1 solid passed over: Feature"));
    EXPECT_EQ(test::shape(), before);
}

TEST_F(FreeCadTest, an_empty_line_gives_the_pick_up) {
    open("plate()");
    for (const char* line : {"\n", "40.5\n", "a,b\n", "nan,1\n"}) {
        machine.dialogs.boxes.clear();
        started->type_when_asked(line);
        EXPECT_EQ(SelOrigen(), False) << line;
        EXPECT_THAT(shown_texts(), ElementsAre("Punto incorrecto!")) << line;
    }
    started->type_when_asked("\n");
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->GetPoint("donde"); }),
              static_cast<int>(0x80004004U));
}

TEST_F(FreeCadTest, a_line_typed_ahead_answers_the_next_pick) {
    open("plate()");
    started->type_when_asked("1,2\n3,4\n");
    EXPECT_THAT(acad().AcadDoc->GetPoint("uno"), ElementsAre(1, 2));
    EXPECT_THAT(acad().AcadDoc->GetPoint("dos"), ElementsAre(3, 4));
}

TEST_F(FreeCadTest, the_outline_comes_back_to_the_last_bit) {
    use_installed_template();
    open("plate()");
    started->type_when_asked("50.75, 30.25\n");
    menu_select_orig();
    machine.dialogs.boxes.clear();
    SendToCad();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    const QJsonArray sent = look("sent()").toArray();
    const test::Points shape = test::shape();
    ASSERT_EQ(sent.size(), static_cast<qsizetype>(2 * shape.size()));
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const auto x = static_cast<qsizetype>(2 * i);
        EXPECT_EQ(sent[x].toDouble(), shape[i].X) << "point " << i;
        EXPECT_EQ(sent[x + 1].toDouble(), shape[i].Y) << "point " << i;
    }
    EXPECT_THAT(labels("list(FreeCAD.listDocuments())"), SizeIs(2));
    EXPECT_THAT(session.wininfo.TxtAcadFile, testing::StartsWith("UNNAMED"));
}

TEST_F(FreeCadTest, what_was_sent_is_captured_as_it_was) {
    use_installed_template();
    open("FreeCAD.newDocument('vacio').Name");
    const test::Points outline{
        {.X = 0.1}, {.X = 10, .Y = 1e-7}, {.X = 5, .Y = 0.333333333333333}, {.X = -1e4, .Y = 3.5}};
    test::set_shape(outline);
    SendToCad();
    test::set_shape({{}});
    mnu_capture();
    EXPECT_EQ(test::shape(), outline);
}

TEST_F(FreeCadTest, an_outline_of_one_place_is_sent_too) {
    use_installed_template();
    open("FreeCAD.newDocument('vacio').Name");
    test::set_shape({{}});
    SendToCad();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    EXPECT_THAT(labels("list(FreeCAD.listDocuments())"), SizeIs(2));
}

TEST_F(FreeCadTest, a_new_drawing_begins_with_what_its_template_holds) {
    use_template("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n1.5\n20\n2\n11\n3\n21\n4\n"
                 "0\nENDSEC\n0\nEOF\n");
    open("FreeCAD.newDocument('vacio').Name");
    test::set_shape({{.X = 1}, {.X = 2}, {.Y = 2}});
    SendToCad();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    AcadDocument& drawing = *acad().AcadDoc;
    ASSERT_EQ(drawing.Count(), 2);
    EXPECT_THAT(drawing.Item(0)->StartPoint(), ElementsAre(1.5, 2));
    EXPECT_THAT(drawing.Item(0)->EndPoint(), ElementsAre(3, 4));
    EXPECT_EQ(drawing.Item(1)->ObjectName(), "AcDbPolyline");
}

TEST_F(FreeCadTest, a_document_of_its_own_is_a_template_too) {
    use_template("");
    const QString path = QString::fromStdString(machine.path("acad.dwt"));
    open("plate()");
    look("save_copy('" + path + "')");
    look("close_all()");
    test::set_shape({{.X = 1}, {.X = 2}, {.Y = 2}});
    SendToCad();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    EXPECT_EQ(acad().AcadDoc->Count(), 10);
}

TEST_F(FreeCadTest, without_its_template_no_drawing_is_made) {
    open("plate()");
    test::set_shape({{.X = 1}, {.X = 2}});
    SendToCad();
    ASSERT_THAT(machine.dialogs.boxes, SizeIs(1));
    EXPECT_EQ(machine.dialogs.boxes[0].title, "Error en SendToCad ");
    EXPECT_THAT(machine.dialogs.boxes[0].text, testing::StartsWith("nº: 53  - Desc: "));
    EXPECT_THAT(labels("list(FreeCAD.listDocuments())"), ElementsAre("pieza"));
    EXPECT_THAT(test::shape(), SizeIs(2));
}

TEST_F(FreeCadTest, a_template_that_it_does_not_read_is_told) {
    use_template("AC1015\x01\x02");
    open("plate()");
    SendToCad();
    ASSERT_THAT(machine.dialogs.boxes, SizeIs(1));
    EXPECT_THAT(machine.dialogs.boxes[0].text, testing::StartsWith("nº: 440  - Desc: "));
    EXPECT_THAT(labels("list(FreeCAD.listDocuments())"), ElementsAre("pieza"));
}

TEST_F(FreeCadTest, a_drawing_read_from_dxf_is_captured) {
    machine.write("ala.dxf", "0\nSECTION\n2\nENTITIES\n"
                             "0\nLINE\n8\n0\n10\n0.5\n20\n0.5\n11\n10.5\n21\n0.5\n"
                             "0\nARC\n8\n0\n10\n10.5\n20\n5.5\n40\n5\n50\n270\n51\n90\n"
                             "0\nLWPOLYLINE\n8\n0\n90\n3\n70\n0\n"
                             "10\n10.5\n20\n10.5\n10\n5.5\n20\n12.5\n10\n0.5\n20\n10.5\n"
                             "0\nLINE\n8\n0\n10\n0.5\n20\n0.5\n11\n0.5\n21\n10.5\n"
                             "0\nENDSEC\n0\nEOF\n");
    open("imported('" + QString::fromStdString(machine.path("ala.dxf")) + "')");
    EXPECT_EQ(session.wininfo.TxtAcadFile, "ALA");
    mnu_capture();
    Places expected{{0.5, 0.5}, {10.5, 0.5}};
    for (int step = 1; step <= 7; ++step)
        expected.push_back(on_circle({10.5, 5.5}, 5, -test::kTurn / 4 + step * test::kTurn / 14));
    expected.insert(expected.end(), {{5.5, 12.5}, {0.5, 10.5}});
    expect_outline(expected);
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(FreeCadTest, a_document_closed_meanwhile_raises_462) {
    open("plate()");
    look("close('pieza')");
    EXPECT_EQ(number_of(capture), 462);
}

TEST_F(FreeCadTest, an_entity_erased_meanwhile_raises_424) {
    open("plate()");
    std::ignore = acad().AcadDoc->Count();
    const auto stray = acad().AcadDoc->Item(7);
    look("erase('Stray')");
    EXPECT_EQ(number_of([&] { stray->set_Color(2); }), 424);
}

TEST_F(FreeCadTest, ten_thousand_entities_arrive_in_order) {
    open("many_lines(10000)");
    const auto start = std::chrono::steady_clock::now();
    AcadDocument& drawing = *acad().AcadDoc;
    const std::int32_t count = drawing.Count();
    double last_end = 0;
    for (std::int32_t i = 0; i < count; ++i) {
        const auto line = drawing.Item(i);
        ASSERT_EQ(line->StartPoint()[0], last_end);
        last_end = line->EndPoint()[0];
    }
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - start;
    EXPECT_EQ(last_end, 10000);
    std::cout << "10,000 lines out of FreeCAD: " << static_cast<int>(taken.count()) << " ms\n";
}

TEST_F(FreeCadTest, zoom_and_window_states_pass_without_windows) {
    open("plate()");
    acad().AcadApp->ZoomExtents();
    for (const int state : {1, 2, 3})
        acad().AcadApp->set_WindowState(state);
    EXPECT_EQ(number_of([] { acad().AcadApp->set_WindowState(4); }), 5);
}

struct FreeCadGoneTest : FreeCadTest {};

TEST_F(FreeCadGoneTest, a_freecad_that_ends_meanwhile_raises_462) {
    open("plate()");
    started->kill();
    EXPECT_EQ(number_of(capture), 462);
    mnu_Reconect();
    EXPECT_THAT(shown_texts(), ElementsAre("Autocad no está abierto en este momento! Abrelo y "
                                           "pulsa Reconectar Acad"));
}

} // namespace
} // namespace velmora
