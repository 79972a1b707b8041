#include "cad/capture.h"

#include "cad/drawing.h"
#include "cad/select_origin.h"
#include "cad/send.h"
#include "commands/handlers.h"
#include "fakes/scripted_cad_session.h"
#include "remote_cad_session.h"
#include "script/words.h"
#include "scripted/cad_lines.h"
#include "support/error_number.h"
#include "support/outline.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

#include <gmock/gmock.h>
#include <thread>

namespace velmora {
namespace {

using test::number_of;
using test::Place;
using test::places_of;
using testing::ElementsAre;
using testing::IsEmpty;

struct BusCaptureTest : test::RemoteCadSession {
    static void capture() {
        Flag from_drawing = True;
        CapturaAcad(from_drawing);
    }
    static std::vector<Place> outline() { return places_of(Forma.Pto); }
};

// Points, lines drawn backwards, an arc, a circle, a wire, a spline, a text and two strays.
const std::vector<const char*> kMixedDrawing{
    "point 0.25 9.1",
    "point 0 0",
    "line 0 0 10 0",
    "line 20.123456789012345 0.5 10 0.25",
    "other AcDbText",
    "arc 20 5 4.5 -1.5707963267948966 1.5707963267948966",
    "polyline open 10 9.5 15 12 20.3 9.3",
    "spline 10.5 9.9 8 14 4 3 0.5 9.75",
    "line 500 500 600 600",
    "line 700 700 800 800",
    "polyline closed 0.5 9.5 -4 9 -4 4",
    "circle -40.5 9.5 41",
};

struct Outcome {
    test::Points points;
    std::vector<test::ShownBox> boxes;
    std::vector<std::string> statuses;
    std::vector<std::string> colours;
    std::vector<std::int32_t> counters;
    bool operator==(const Outcome&) const = default;
};

Outcome outcome_of(const test::RecordingPlatform& machine, std::vector<std::string> colours) {
    return {test::shape(),
            machine.dialogs.boxes,
            machine.windows.statuses,
            std::move(colours),
            {session.TotalObjs, session.NLines, session.NSplines, session.NLWPolylines,
             session.NArcs, session.NCircles, session.UltimoPto}};
}

Outcome captured_in_the_same_process() {
    struct InThisProcess : test::ScriptedCadSession {
        void TestBody() override {}
    } here;
    here.machine.open_database();
    session.winoptions.TxtPutArc = "7";
    session.winoptions.TxtPutCircle = "12";
    here.open_drawing({});
    for (const char* line : kMixedDrawing)
        here.say({line});
    mnu_capture();
    std::vector<std::string> colours;
    for (const auto& entity : here.state.application->active->model_space)
        colours.push_back(std::to_string(entity->color));
    return outcome_of(here.machine, std::move(colours));
}

TEST(BusCapture, gives_what_a_capture_in_the_same_process_gives) {
    const Outcome expected = captured_in_the_same_process();
    struct Remote : test::RemoteCadSession {
        void TestBody() override {}
    } remote;
    remote.start_cad({"document Ala.dwg"});
    for (const char* line : kMixedDrawing)
        remote.remote->say(line);
    session.winoptions.TxtPutArc = "7";
    session.winoptions.TxtPutCircle = "12";
    ReconectaAcad();
    mnu_capture();
    std::vector<std::string> colours;
    for (const QString& colour : remote.remote->ask("colours"))
        colours.push_back(colour.toStdString());
    const Outcome outcome = outcome_of(remote.machine, colours);
    EXPECT_EQ(outcome.points, expected.points);
    EXPECT_EQ(outcome.boxes, expected.boxes);
    EXPECT_EQ(outcome.statuses, expected.statuses);
    EXPECT_EQ(outcome.colours, expected.colours);
    EXPECT_EQ(outcome.counters, expected.counters);
    EXPECT_THAT(colours, testing::Contains("2"));
    EXPECT_GT(outcome.points.size(), 50U);
}

TEST_F(BusCaptureTest, a_refusal_is_told_and_asks_nothing_of_the_old_shape) {
    open_drawing({"line 0 0 10 0"});
    const test::Points before{{.X = 1}, {.X = 2}};
    test::set_shape(before);
    session.FileName = "ala.dat";
    session.RedimCapture = True;
    remote->say("stray-error EntityCount org.velmora.Cad1.Error.E80040200 Pad holds no lines.");
    mnu_capture();
    EXPECT_THAT(shown_texts(),
                ElementsAre("El dibujo no se ha capturado. El CAD dice:\n\nPad holds no lines."));
    EXPECT_EQ(session.Velmora.StatusBar1,
              "El dibujo no se ha capturado. El CAD dice: Pad holds no lines.");
    EXPECT_EQ(test::shape(), before);
    EXPECT_EQ(session.FileName, "ala.dat");
    machine.dialogs.boxes.clear();
    mnu_capture();
    EXPECT_EQ(session.TotalObjs, 1);
}

TEST_F(BusCaptureTest, what_the_cad_remarks_stands_beside_the_status) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10"});
    session.RedimCapture = False;
    remote->say("answer Remarks Ala.dwg");
    mnu_capture();
    EXPECT_EQ(session.Velmora.lbl_notice, "Ala.dwg");
    EXPECT_THAT(machine.windows.statuses, testing::Contains("Objetos Cargados!"));
    remote->say("unknown Remarks");
    mnu_capture();
    EXPECT_EQ(session.Velmora.lbl_notice, "");
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(BusCaptureTest, small_blocks_make_the_same_drawing) {
    open_drawing({"line 0 0 10 0", "line 10 10 10 0", "line 10 10 0 10", "line 0 10 0 0"});
    remote->say("block 1");
    capture();
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(10, 0), Place(10, 10), Place(0, 10)));
}

TEST_F(BusCaptureTest, a_second_capture_sees_what_changed) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10"});
    capture();
    remote->say("line 10 10 0 0");
    capture();
    EXPECT_EQ(session.TotalObjs, 3);
    EXPECT_THAT(outline(), ElementsAre(Place(0, 0), Place(10, 0), Place(10, 10)));
}

TEST_F(BusCaptureTest, an_entity_erased_while_the_drawing_is_read_raises_9) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 10 10 0 0"});
    test::set_shape({{.X = 1}, {.X = 2}});
    remote->say("block 2");
    remote->say("erase-after-read 1");
    EXPECT_EQ(number_of(capture), 9);
    EXPECT_EQ(test::shape().size(), 2U);
}

TEST_F(BusCaptureTest, a_stray_erased_before_it_is_coloured_raises_the_cads_number) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 50 50 60 60", "line 11 10 0 0"});
    remote->say("erase-after-read 2");
    EXPECT_EQ(number_of(capture), 424);
}

TEST_F(BusCaptureTest, a_polyline_of_odd_length_raises_9) {
    open_drawing({"raw AcDbPolyline open 0 0 5"});
    EXPECT_EQ(number_of(capture), 9);
    remote->say("document Dos.dwg");
    // Half a vertex more than an even number of vertices rounds down to them.
    remote->say("raw AcDbPolyline open 0 0 5 0 7");
    ReconectaAcad();
    capture();
    EXPECT_THAT(outline(), ElementsAre(Place(5, 0)));
    EXPECT_EQ(session.UltimoPto, 2);
}

struct ShortTest : BusCaptureTest, testing::WithParamInterface<const char*> {};

TEST_P(ShortTest, numbers_that_are_missing_raise_9) {
    open_drawing({GetParam()});
    EXPECT_EQ(number_of(capture), 9);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ShortTest,
                         testing::Values("raw AcDbLine open", "raw AcDbLine open 0 0 1",
                                         "raw AcDbPoint open 1", "raw AcDbPolyline open",
                                         "raw AcDbCircle open 0 0", "raw AcDbArc open 0 0 1 0",
                                         "raw AcDbSpline open", "raw AcDbSpline open 0 0 1"));

TEST_F(BusCaptureTest, numbers_that_are_none_raise_6) {
    open_drawing({"raw AcDbLine open 0 0 nan 1"});
    EXPECT_EQ(number_of(capture), 6);
}

TEST_F(BusCaptureTest, a_member_of_another_class_raises_438) {
    open_drawing({"line 0 0 10 0", "other AcDbText", "polyline open 0 0 1 1"});
    AcadDocument& drawing = *acad().AcadDoc;
    EXPECT_EQ(number_of([&] { std::ignore = drawing.Item(0)->Radius(); }), 438);
    EXPECT_EQ(number_of([&] { std::ignore = drawing.Item(0)->Closed(); }), 438);
    EXPECT_EQ(number_of([&] { std::ignore = drawing.Item(1)->Coordinates(); }), 438);
    EXPECT_EQ(number_of([&] { std::ignore = drawing.Item(2)->StartPoint(); }), 438);
    EXPECT_EQ(number_of([&] { std::ignore = drawing.Item(3); }), 9);
    EXPECT_EQ(number_of([&] { std::ignore = drawing.Item(-1); }), 9);
}

TEST_F(BusCaptureTest, a_failure_while_reading_goes_through) {
    open_drawing({"circle 0 0 10"});
    remote->say("fail AcadEntity.Radius 80020005");
    EXPECT_EQ(number_of(capture), static_cast<int>(0x80020005U));
}

TEST_F(BusCaptureTest, an_answer_of_another_shape_raises_13) {
    open_drawing({"circle 0 0 10"});
    remote->say("answer ReadEntities nada");
    EXPECT_EQ(number_of(capture), 13);
}

TEST_F(BusCaptureTest, a_cad_closed_before_the_capture_raises_462) {
    open_drawing({"circle 0 0 10"});
    remote->kill();
    EXPECT_EQ(number_of(capture), 462);
}

// A command leaves the fault to the dispatcher's report, and the outline as it was.
struct LostCase {
    const char* name;
    std::vector<const char*> lines;
};
struct LostTest : BusCaptureTest, testing::WithParamInterface<LostCase> {};

TEST_P(LostTest, a_command_on_a_lost_cad_raises_462_and_keeps_the_outline) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 10 10 0 0"});
    remote->say("block 2");
    test::set_shape({{.X = 1}, {.X = 2}});
    for (const char* line : GetParam().lines)
        remote->say(line);
    EXPECT_EQ(number_of(mnu_capture), 462);
    EXPECT_EQ(test::shape(), (test::Points{{.X = 1}, {.X = 2}}));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Ways, LostTest,
                         testing::Values(LostCase{"closed_document", {"no-document"}},
                                         LostCase{"closed_document_while_read",
                                                  {"close-after-read"}},
                                         LostCase{"ended_when_counted", {"dies EntityCount"}},
                                         LostCase{"ended_while_read", {"dies ReadEntities"}}),
                         [](const auto& instance) { return instance.param.name; });

TEST_F(BusCaptureTest, a_cad_that_ends_before_the_stray_is_coloured_raises_462) {
    open_drawing({"line 0 0 10 0", "line 50 50 60 60", "line 70 70 80 80"});
    remote->say("dies SetColor");
    EXPECT_EQ(number_of(mnu_capture), 462);
}

TEST_F(BusCaptureTest, ten_thousand_entities_arrive_in_order) {
    open_drawing({"run-of-lines 10000"});
    capture();
    EXPECT_EQ(session.TotalObjs, 10000);
    EXPECT_EQ(Forma.Pto.upper(), 9999);
    EXPECT_EQ(Forma.Pto[9999].X, 9999);
}

TEST_F(BusCaptureTest, a_drawing_that_claims_more_than_any_has_is_refused_at_once) {
    open_drawing({"line 0 0 10 0"});
    for (const char* claim : {"claim 2147483647", "claim 10000001"}) {
        remote->say(claim);
        EXPECT_EQ(number_of(capture), 7);
    }
    remote->say("claim -1");
    EXPECT_EQ(number_of(capture), 13);
}

TEST_F(BusCaptureTest, a_claim_that_the_drawing_does_not_keep_raises_9_where_it_ends) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "claim 9000000"});
    EXPECT_EQ(number_of(capture), 9);
    EXPECT_EQ(session.TotalObjs, 2);
}

TEST_F(BusCaptureTest, a_text_beyond_any_name_is_refused) {
    open_drawing({"line 0 0 10 0"});
    remote->say("raw " + QString(100000, 'x') + " open");
    EXPECT_EQ(number_of(capture), 7);
}

/// An Esc of the user while the CAD says nothing.
void press_escape_in(int milliseconds) {
    QTimer::singleShot(milliseconds, [] {
        QCoreApplication::postEvent(QCoreApplication::instance(),
                                    new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, {}));
    });
}

TEST_F(BusCaptureTest, esc_ends_the_wait_for_an_answer_that_never_comes) {
    for (const char* method : {"mute EntityCount", "mute ReadEntities"}) {
        cad = make_dbus_cad(
            {.to_attach = std::chrono::milliseconds(300), .to_answer = std::chrono::hours(1)});
        set_platform({machine.dialogs, machine.windows, machine.shell, machine.settings,
                      *machine.database, machine.clock, machine.machine, machine.pic, *cad});
        open_drawing({"line 0 0 10 0"});
        test::set_shape({{.X = 1}, {.X = 2}});
        remote->say(method);
        press_escape_in(100);
        mnu_capture();
        EXPECT_EQ(test::shape(), (test::Points{{.X = 1}, {.X = 2}}));
        EXPECT_EQ(session.Velmora.StatusBar1, "Captura cancelada.");
    }
}

struct BusPickTest : BusCaptureTest {};

TEST_F(BusPickTest, the_origin_is_what_the_user_picks) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 10 10 0 0"});
    remote->say("pick 10.5 0.25");
    EXPECT_EQ(SelOrigen(), True);
    EXPECT_EQ(session.CadOrigX, 10.5);
    EXPECT_EQ(session.CadOrigY, 0.25);
    EXPECT_THAT(remote->ask("log"), ElementsAre("AppActivate Autocad", "GetPoint"));
}

TEST_F(BusPickTest, two_errors_ask_again) {
    open_drawing({"line 0 0 10 0"});
    for (const char* line : {"pick-error 8021001C", "pick-error 80020009", "pick 3 4"})
        remote->say(line);
    EXPECT_EQ(SelOrigen(), True);
    EXPECT_EQ(session.CadOrigX, 3);
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(BusPickTest, another_error_is_a_wrong_point) {
    open_drawing({"line 0 0 10 0"});
    remote->say("pick-error 80004004");
    EXPECT_EQ(SelOrigen(), False);
    EXPECT_THAT(shown_texts(), ElementsAre("Punto incorrecto!"));
    EXPECT_EQ(session.SelOrigenActivo, True);
}

TEST_F(BusPickTest, a_point_of_one_number_raises_9) {
    open_drawing({"line 0 0 10 0"});
    remote->say("pick-short");
    remote->say("pick 3 4");
    EXPECT_EQ(number_of([] { std::ignore = SelOrigen(); }), 9);
}

TEST_F(BusPickTest, an_answer_that_is_no_point_is_a_wrong_point) {
    open_drawing({"line 0 0 10 0"});
    remote->say("answer GetPoint aqui");
    EXPECT_EQ(SelOrigen(), False);
    EXPECT_THAT(shown_texts(), ElementsAre("Punto incorrecto!"));
}

TEST_F(BusPickTest, after_a_wrong_point_nothing_is_captured) {
    open_drawing({"line 0 0 10 0", "line 10 0 10 10", "line 10 10 0 0"});
    test::set_shape({{.X = 1}, {.X = 2}});
    remote->say("pick-error 80004004");
    menu_select_orig();
    EXPECT_EQ(test::shape(), (test::Points{{.X = 1}, {.X = 2}}));
}

TEST_F(BusPickTest, waits_longer_than_for_any_other_answer) {
    open_drawing({"line 0 0 10 0"});
    remote->say("pick-wait 1200");
    remote->say("pick 3 4");
    EXPECT_EQ(SelOrigen(), True);
}

TEST_F(BusPickTest, the_windows_repaint_meanwhile) {
    struct Painted : QWidget {
        int times = 0;
        void paintEvent(QPaintEvent*) override { ++times; }
    } window;
    window.show();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { window.update(); });
    timer.start(10);
    open_drawing({"line 0 0 10 0"});
    remote->say("pick-wait 300");
    remote->say("pick 3 4");
    const int before = window.times;
    EXPECT_EQ(SelOrigen(), True);
    EXPECT_GT(window.times, before + 3);
}

TEST_F(BusPickTest, a_cad_that_goes_meanwhile_is_a_wrong_point) {
    open_drawing({"line 0 0 10 0"});
    remote->say("pick-wait 100");
    remote->say("dies GetPoint");
    EXPECT_EQ(SelOrigen(), False);
    EXPECT_THAT(shown_texts(), ElementsAre("Punto incorrecto!"));
}

TEST_F(BusPickTest, a_cad_that_goes_meanwhile_has_number_462) {
    open_drawing({"line 0 0 10 0"});
    remote->say("dies GetPoint");
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->GetPoint("donde"); }), 462);
}

struct BusSendTest : BusCaptureTest {
    BusSendTest() {
        session.program_folder = machine.folder.string();
        test::set_shape({{.X = 0.1}, {.X = 10, .Y = 1e-7}, {.X = 5, .Y = 1.0 / 3}});
    }
};

TEST_F(BusSendTest, draws_the_outline_closed_into_a_new_drawing) {
    machine.write("acad.dwt", "plantilla");
    start_cad();
    SendToCad();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    EXPECT_THAT(remote->ask("numbers"),
                ElementsAre("0.10000000000000001", "0", "10", "9.9999999999999995e-08", "5",
                            "0.33333333333333331", "0.10000000000000001", "0"));
    EXPECT_THAT(remote->ask("closed"), ElementsAre("closed"));
    const QString added = "Documents.Add " + QString::fromStdString(program_file("\\acad.dwt"));
    EXPECT_THAT(remote->ask("log"),
                ElementsAre(added, "Activate", "AddLightWeightPolyline", "ZoomExtents",
                            "WindowState 2", "WindowState 3", "AppActivate Autocad"));
    EXPECT_THAT(machine.windows.calls, testing::Contains("minimize Velmora"));
    EXPECT_EQ(session.wininfo.TxtAcadFile, "DRAWING1.DWG");
}

TEST_F(BusSendTest, a_missing_template_is_told) {
    start_cad();
    SendToCad();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].title, "Error en SendToCad ");
    EXPECT_EQ(machine.dialogs.boxes[0].text, "nº: 53  - Desc: " + error_description(53, 'E'));
    EXPECT_THAT(remote->ask("numbers"), IsEmpty());
}

TEST_F(BusSendTest, a_cad_that_falls_silent_is_told) {
    machine.write("acad.dwt", "plantilla");
    start_cad();
    ReconectaAcad();
    remote->say("stray-error AddPolyline org.freedesktop.DBus.Error.NoReply gone");
    SendToCad();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text, "nº: 462  - Desc: " + error_description(462, 'E'));
}

TEST_F(BusSendTest, a_cad_that_ends_meanwhile_is_told_and_the_outline_stays) {
    machine.write("acad.dwt", "plantilla");
    start_cad();
    remote->say("dies AddPolyline");
    const test::Points before = test::shape();
    SendToCad();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text, "nº: 462  - Desc: " + error_description(462, 'E'));
    EXPECT_EQ(test::shape(), before);
}

} // namespace
} // namespace velmora
