#include "cad/send.h"

#include "commands/handlers.h"
#include "fakes/scripted_cad_session.h"
#include "fakes/watching.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using test::set_shape;
using test::ShownBox;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct SendTest : test::ScriptedCadSession {
    SendTest() { machine.open_database(); }

    std::string template_path;

    void run_cad() {
        say({"running AutoCAD 15.0"});
        template_path = machine.write("acad.dwt", "template");
    }
    [[nodiscard]] const driver::CadEntity& sent() const {
        return *state.application->active->model_space.at(0);
    }
    static bool enabled(const char* entry) { return session.Velmora.menus[entry].enabled; }
};

TEST_F(SendTest, draws_a_closed_polyline_into_a_new_drawing) {
    run_cad();
    set_shape({{.X = 0.1, .Y = -2, .Sinc = 1}, {.X = 10}, {.X = 10, .Y = 1.0 / 3}});
    mnu_SendToCad();
    EXPECT_THAT(sent().numbers, ElementsAre(0.1, -2, 10, 0, 10, 1.0 / 3, 0.1, -2));
    EXPECT_TRUE(sent().closed);
    EXPECT_THAT(state.log, ElementsAre("Documents.Add " + template_path, "Activate",
                                       "AddLightWeightPolyline", "ZoomExtents", "WindowState 2",
                                       "WindowState 3", "AppActivate Autocad"));
    EXPECT_THAT(machine.windows.calls, ElementsAre("minimize Velmora"));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(SendTest, the_windows_run_behind_each_state_of_the_cads_window) {
    run_cad();
    set_shape({{.X = 1}, {.X = 2}});
    const test::WatchingTurns turns([&] { state.log.emplace_back("turn"); });
    SendToCad();
    ASSERT_GE(state.log.size(), 5U);
    const std::vector<std::string> end(state.log.end() - 5, state.log.end());
    EXPECT_THAT(
        end, ElementsAre("WindowState 2", "turn", "WindowState 3", "turn", "AppActivate Autocad"));
}

TEST_F(SendTest, the_new_drawing_becomes_the_connected_one) {
    run_cad();
    ReconectaAcad();
    EXPECT_FALSE(enabled("mnu_capture"));
    SendToCad();
    EXPECT_EQ(session.AcadDocLoaded, True);
    EXPECT_EQ(session.wininfo.TxtAcadFile, "DRAWING1.DWG");
    EXPECT_EQ(session.wininfo.ShpAcadDocLoaded, 65280U);
    EXPECT_TRUE(enabled("mnu_capture"));
    EXPECT_TRUE(enabled("menu_select_orig"));
    EXPECT_EQ(connected_document()->Count(), 1);
}

TEST_F(SendTest, an_empty_document_is_sent_as_one_point_twice) {
    run_cad();
    SendToCad();
    EXPECT_THAT(sent().numbers, ElementsAre(0, 0, 0, 0));
}

TEST_F(SendTest, without_a_cad_message_31_alone) {
    session.AcadDocLoaded = True;
    SendToCad();
    EXPECT_THAT(
        shown_texts(),
        ElementsAre("Autocad no está abierto en este momento! Abrelo y pulsa Reconectar Acad"));
    EXPECT_EQ(session.AcadDocLoaded, False);
    EXPECT_THAT(machine.windows.calls, IsEmpty());
}

TEST_F(SendTest, without_the_template_a_box_and_nothing_changes) {
    say({"running AutoCAD 15.0", "document Ala.dwg"});
    set_shape({{.X = 1}, {.X = 2}});
    SendToCad();
    EXPECT_THAT(machine.dialogs.boxes,
                ElementsAre(ShownBox{"nº: 53  - Desc: No se ha encontrado el archivo", 16,
                                     "Error en SendToCad "}));
    EXPECT_EQ(session.wininfo.TxtAcadFile, "ALA.DWG");
    EXPECT_EQ(Forma.Pto.upper(), 1);
    EXPECT_THAT(machine.windows.calls, IsEmpty());
}

struct RefusalTest : SendTest, testing::WithParamInterface<const char*> {};

TEST_P(RefusalTest, is_told_and_the_window_stays) {
    run_cad();
    state.failures.push_back({GetParam(), 1234});
    SendToCad();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].title, "Error en SendToCad ");
    EXPECT_THAT(machine.dialogs.boxes[0].text, testing::StartsWith("nº: 1234  - Desc: "));
    EXPECT_THAT(machine.windows.calls, Not(Contains("minimize Velmora")));
}

INSTANTIATE_TEST_SUITE_P(Members, RefusalTest,
                         testing::Values("AcadApplication.Name", "Documents.Count", "Documents.Add",
                                         "ActiveDocument", "Activate", "AddLightWeightPolyline",
                                         "Closed", "ZoomExtents", "WindowState", "AppActivate"));

TEST_F(SendTest, a_refused_polyline_leaves_the_new_drawing_open) {
    run_cad();
    say({"fail AddLightWeightPolyline 80020009"});
    SendToCad();
    EXPECT_EQ(state.application->drawings.size(), 1U);
    EXPECT_EQ(session.AcadDocLoaded, True);
}

} // namespace
} // namespace velmora
