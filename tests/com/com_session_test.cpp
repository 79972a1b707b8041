// The logic's own roads over the real automation interface: capture, origin, sending.
#include "adapters/running_cad.h"
#include "cad/connection.h"
#include "cad/select_origin.h"
#include "com/cad_server.h"
#include "commands/handlers.h"
#include "fakes/put_in_place.h"
#include "fakes/scripted_cad_session.h"
#include "support/error_number.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using test::number_of;
using test::ShownBox;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

using Lines = std::initializer_list<const char*>;

/// A session whose CAD is the real adapter.
struct ComSession {
    ComSession() {
        test::put_in_place(*cad);
        session.RedimCapture = False;
    }
    ~ComSession() { acad() = {}; }
    ComSession(const ComSession&) = delete;
    ComSession& operator=(const ComSession&) = delete;

    test::CadServer server;
    test::RecordingPlatform machine{test::with_database};
    std::unique_ptr<Autocad> cad = make_running_cad();

    void open_drawing(Lines entities) {
        server.say({"running AutoCAD 15.0", "document Ala.dwg"});
        server.say(entities);
        ReconectaAcad();
    }
    [[nodiscard]] std::vector<std::string> shown_texts() const {
        std::vector<std::string> texts;
        for (const ShownBox& box : machine.dialogs.boxes)
            texts.push_back(box.text);
        return texts;
    }
};

/// What a capture leaves for the user.
struct Outcome {
    std::vector<Pto> outline;
    std::vector<std::string> statuses;
    std::vector<ShownBox> boxes;
    std::vector<std::string> counters;
    bool operator==(const Outcome&) const = default;
};

Outcome outcome(const test::RecordingPlatform& machine) {
    const auto points = std::as_const(Forma.Pto).all();
    const WinInfo& info = session.wininfo;
    return {{points.begin(), points.end()},
            machine.windows.statuses,
            machine.dialogs.boxes,
            {info.TxtOpensw, info.txtAcadVer, info.TxtAcadFile, info.TxtProcesed, info.TxtNlines,
             info.TxtNSplines, info.TxtNLWPolylines, info.TxtNArcs, info.TxtNCircles}};
}

/// Every kind, lines drawn backwards, a stray, classes that are passed over.
constexpr Lines kMixedDrawing = {"other AcDbText",
                                 "line 0 0 10 0.1",
                                 "line 20 0 10 0",
                                 "arc 20 5 5 4.71238898038469 1.5707963267949",
                                 "polyline open 20 10 15 12.3333333333333333 10 10",
                                 "line 70 70 80 80",
                                 "spline 10 10 8 11 6 9 5 10",
                                 "other AcDbHatch",
                                 "line 0 10 5 10",
                                 "polyline open 0 10 0 5 0 0",
                                 "circle 50 50 3"};

/// The same session over the drawing in this process.
struct MemorySession : test::ScriptedCadSession {
    MemorySession() { machine.open_database(); }
    void TestBody() override {}
};

template <class Session>
Outcome captured_from() {
    Session session_of_test;
    session.RedimCapture = False;
    session.winoptions.TxtPutArc = "5";
    session.winoptions.TxtPutCircle = "8";
    session_of_test.open_drawing(kMixedDrawing);
    mnu_capture();
    return outcome(session_of_test.machine);
}

TEST(ComCapture, gives_what_the_same_drawing_in_memory_gives) {
    const Outcome expected = captured_from<MemorySession>();
    const Outcome got = captured_from<ComSession>();
    EXPECT_GT(expected.outline.size(), 60U);
    EXPECT_EQ(got.outline, expected.outline);
    EXPECT_EQ(got.statuses, expected.statuses);
    EXPECT_EQ(got.boxes, expected.boxes);
    EXPECT_EQ(got.counters, expected.counters);
}

struct ComSessionTest : testing::Test, ComSession {};

TEST_F(ComSessionTest, a_line_drawn_backwards_is_turned_and_a_stray_one_turns_yellow) {
    open_drawing({"line 0 0 10 0", "line 10 10 10 0", "line 50 50 60 60", "line 11 10 0 0"});
    mnu_capture();
    const std::vector<Pto> triangle = {{.X = 0}, {.X = 10}, {.X = 10, .Y = 10}};
    EXPECT_TRUE(std::ranges::equal(std::as_const(Forma.Pto).all(), triangle));
    EXPECT_THAT(shown_texts(), ElementsAre(StartsWith("Se han encontrado 1 lineas incoherentes")));
    EXPECT_EQ(server.shown(), "0 AcDbLine 256 0 0 10 0\n"
                              "1 AcDbLine 256 10 10 10 0\n"
                              "2 AcDbLine 2 50 50 60 60\n"
                              "3 AcDbLine 256 11 10 0 0\n"
                              "documents 1\nwindow-state 1\n");
}

TEST_F(ComSessionTest, nothing_running_is_message_31) {
    server.kill();
    ReconectaAcad();
    EXPECT_THAT(shown_texts(), ElementsAre("Autocad no está abierto en este momento! Abrelo y "
                                           "pulsa Reconectar Acad"));
    EXPECT_EQ(session.AcadOpen, False);
}

TEST_F(ComSessionTest, the_origin_is_asked_for_again_after_the_two_errors) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 10 10 0 0"});
    server.say({"pick-error 8021001C", "pick-error 80020009", "failures plain",
                "pick-error 80020009", "pick-error 8021001C", "pick 10.25 0.123456789012345678"});
    menu_select_orig();
    EXPECT_EQ(session.CadOrigX, 10.25);
    EXPECT_EQ(session.CadOrigY, 0.123456789012346);
    EXPECT_EQ(session.SelOrigenActivo, False);
    EXPECT_EQ(server.prompt(), "Selecciona el punto inicial de la linea de corte.");
    // The first element with an end at the picked point, turned round.
    EXPECT_EQ(Forma.Pto[0], (Pto{.X = 10}));
    EXPECT_EQ(Forma.Pto[1], Pto{});
    EXPECT_THAT(shown_texts(), IsEmpty());
}

TEST_F(ComSessionTest, a_pick_that_fails_otherwise_is_a_wrong_point) {
    open_drawing({"line 0 0 10 0"});
    server.say({"pick-error 80020009", "pick-error 80004005"});
    EXPECT_EQ(SelOrigen(), False);
    EXPECT_THAT(shown_texts(), ElementsAre("Punto incorrecto!"));
    EXPECT_EQ(session.SelOrigenActivo, True);
}

TEST_F(ComSessionTest, the_outline_is_sent_as_a_closed_polyline_into_a_new_drawing) {
    server.say({"running AutoCAD 15.0"});
    const std::string path = machine.write("acad.dwt", "template");
    Forma.Pto.erase();
    for (const Pto& point :
         {Pto{.X = 0.1, .Y = -2, .Sinc = 1}, Pto{.X = 10}, Pto{.X = 10, .Y = 1.0 / 3}})
        Forma.Pto.append(point);
    mnu_SendToCad();
    EXPECT_THAT(shown_texts(), IsEmpty());
    EXPECT_EQ(server.shown(), "0 AcDbPolyline 256 closed 0.1 -2 10 0 10 0.3333333333333333 0.1 -2\n"
                              "documents 1\nwindow-state 3\n"
                              "Documents.Add " +
                                  driver::word_text(path) +
                                  "\nActivate\nAddLightWeightPolyline\nZoomExtents\n"
                                  "WindowState 2\nWindowState 3\nAppActivate Autocad\n");
    EXPECT_EQ(session.wininfo.TxtAcadFile, "DRAWING1.DWG");
}

TEST_F(ComSessionTest, a_missing_template_is_told_with_its_number) {
    server.say({"running AutoCAD 15.0"});
    mnu_SendToCad();
    EXPECT_THAT(machine.dialogs.boxes,
                ElementsAre(ShownBox{"nº: 53  - Desc: No se ha encontrado el archivo", 16,
                                     "Error en SendToCad "}));
    EXPECT_THAT(server.shown(), testing::HasSubstr("documents 0\n"));
}

TEST_F(ComSessionTest, a_cad_that_ends_while_it_draws_is_told_with_its_number) {
    server.say({"running AutoCAD 15.0", "die-at AddLightWeightPolyline"});
    machine.write("acad.dwt", "template");
    mnu_SendToCad();
    EXPECT_THAT(machine.dialogs.boxes,
                ElementsAre(ShownBox{"nº: 462  - Desc: " + error_description(462, 'E'), 16,
                                     "Error en SendToCad "}));
}

TEST_F(ComSessionTest, a_cad_that_ends_during_the_pick_is_a_wrong_point) {
    open_drawing({"line 0 0 10 0"});
    server.say({"pick 0 0", "die-at GetPoint"});
    EXPECT_EQ(SelOrigen(), False);
    EXPECT_THAT(shown_texts(), ElementsAre("Punto incorrecto!"));
}

TEST_F(ComSessionTest, a_cad_that_ended_before_the_pick_is_a_wrong_point) {
    open_drawing({"line 0 0 10 0"});
    server.kill();
    EXPECT_EQ(SelOrigen(), False);
    EXPECT_THAT(shown_texts(), ElementsAre("Punto incorrecto!"));
}

TEST_F(ComSessionTest, a_cad_that_ended_before_a_capture_is_462) {
    open_drawing({"line 0 0 10 0"});
    server.kill();
    EXPECT_EQ(number_of([] { mnu_capture(); }), 462);
}

TEST_F(ComSessionTest, a_drawing_that_was_closed_is_462_until_the_next_connection) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10"});
    server.say({"no-document", "document Otra.dwg", "line 5 5 6 6", "line 6 6 7 5"});
    EXPECT_EQ(number_of([] { mnu_capture(); }), 462);
    ReconectaAcad();
    EXPECT_EQ(session.wininfo.TxtAcadFile, "OTRA.DWG");
    mnu_capture();
    EXPECT_EQ(Forma.Pto[0], (Pto{.X = 5, .Y = 5}));
}

/// Something happens in the middle of a capture: its number, and the outline from before stays.
struct Accident {
    const char* line;
    int number;
};
class AccidentTest : public ComSessionTest, public testing::WithParamInterface<Accident> {};

TEST_P(AccidentTest, leaves_the_outline_as_it_was) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 50 50 60 60", "line 11 10 0 0"});
    const std::vector<Pto> outline = {{.X = 1, .Sinc = 1}, {.X = 2, .Y = 3}};
    Forma.Pto.erase();
    for (const Pto& point : outline)
        Forma.Pto.append(point);
    server.say({GetParam().line});
    EXPECT_EQ(number_of([] { mnu_capture(); }), GetParam().number);
    EXPECT_TRUE(std::ranges::equal(std::as_const(Forma.Pto).all(), outline));
}

// The last entity is missed where it is asked for; the stray one is gone before it turns yellow.
INSTANTIATE_TEST_SUITE_P(
    Moments, AccidentTest,
    testing::Values(Accident{"erase-at EndPoint", 5}, Accident{"close-at Color", 462},
                    Accident{"close-at StartPoint", 462}, Accident{"close-at Item", 462},
                    Accident{"die-at EndPoint", 462}, Accident{"die-at Count", 462},
                    Accident{"die-at Color", 462},
                    Accident{"fail StartPoint 80210067", static_cast<int>(0x80210067)}));

TEST_F(ComSessionTest, the_entity_that_is_being_read_is_erased_462) {
    open_drawing({"line 0 0 10 0"});
    server.say({"erase-at EndPoint"});
    EXPECT_EQ(number_of([] { mnu_capture(); }), 462);
}

TEST_F(ComSessionTest, a_polyline_with_half_a_vertex_is_9) {
    open_drawing({"polyline open 0 0 1 1 2 2 3 3", "shorten"});
    EXPECT_EQ(number_of([] { mnu_capture(); }), 9);
}

} // namespace
} // namespace velmora
