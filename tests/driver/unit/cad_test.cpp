#include "scripted/cad.h"

#include "script/fault.h"
#include "script/words.h"
#include "scripted/cad_lines.h"
#include "support/error_number.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

using test::number_of;
using testing::ElementsAre;
using testing::IsEmpty;

struct ScriptedCadTest : testing::Test {
    CadState state;
    ScriptedCad cad{state};

    void line(std::string_view text) { cad_line(state, split_words(text)); }
    std::shared_ptr<AcadDocument> open_drawing() {
        line("running AutoCAD 15.0");
        line("document ala.dwg");
        return cad.GetObject()->ActiveDocument();
    }
    /// The path of a template that is there until the test ends.
    static std::string made_template() {
        const std::string path = testing::TempDir() + "velmora-cad-test.dwt";
        std::ofstream(path) << "template";
        return path;
    }
    ~ScriptedCadTest() override {
        std::filesystem::remove(testing::TempDir() + "velmora-cad-test.dwt");
    }
};

TEST_F(ScriptedCadTest, is_not_there_at_first) {
    EXPECT_EQ(number_of([&] { (void)cad.GetObject(); }), 429);
    EXPECT_EQ(number_of([&] { cad.AppActivate(); }), 5);
    EXPECT_THAT(state.log, IsEmpty());
}

TEST_F(ScriptedCadTest, runs_with_and_without_a_drawing) {
    line("running AutoCAD \"15.0 s\"");
    const auto application = cad.GetObject();
    EXPECT_EQ(application->Name(), "AutoCAD");
    EXPECT_EQ(application->Version(), "15.0 s");
    EXPECT_EQ(application->Documents_Count(), 0);
    line("document ala.dwg");
    line("document cola.dwg");
    EXPECT_EQ(application->Documents_Count(), 2);
    EXPECT_EQ(application->ActiveDocument()->Name(), "cola.dwg");
    line("no-document");
    EXPECT_EQ(application->Documents_Count(), 0);
}

TEST_F(ScriptedCadTest, gives_each_entity_its_members) {
    const auto document = open_drawing();
    for (const char* text : {"line 1 2 3 4", "point 5 6", "circle 1 2 3", "arc 1 2 3 0 1.5",
                             "polyline closed 0 0 1 0 1 1", "spline 0 0 1 1 2 0", "other AcDbText"})
        line(text);
    ASSERT_EQ(document->Count(), 7);
    EXPECT_EQ(document->Item(0)->ObjectName(), "AcDbLine");
    EXPECT_THAT(document->Item(0)->StartPoint(), ElementsAre(1, 2, 0));
    EXPECT_THAT(document->Item(0)->EndPoint(), ElementsAre(3, 4, 0));
    EXPECT_EQ(document->Item(1)->ObjectName(), "AcDbPoint");
    EXPECT_THAT(document->Item(1)->Coordinates(), ElementsAre(5, 6, 0));
    EXPECT_EQ(document->Item(2)->ObjectName(), "AcDbCircle");
    EXPECT_THAT(document->Item(2)->Center(), ElementsAre(1, 2, 0));
    EXPECT_EQ(document->Item(2)->Radius(), 3);
    EXPECT_EQ(document->Item(3)->ObjectName(), "AcDbArc");
    EXPECT_EQ(document->Item(3)->StartAngle(), 0);
    EXPECT_EQ(document->Item(3)->EndAngle(), 1.5);
    EXPECT_EQ(document->Item(4)->ObjectName(), "AcDbPolyline");
    EXPECT_TRUE(document->Item(4)->Closed());
    EXPECT_THAT(document->Item(4)->Coordinates(), ElementsAre(0, 0, 1, 0, 1, 1));
    EXPECT_EQ(document->Item(5)->ObjectName(), "AcDbSpline");
    EXPECT_EQ(document->Item(5)->NumberOfControlPoints(), 3);
    EXPECT_THAT(document->Item(5)->GetControlPoint(2), ElementsAre(2, 0, 0));
    EXPECT_EQ(document->Item(6)->ObjectName(), "AcDbText");
}

TEST_F(ScriptedCadTest, lacks_the_members_of_other_shapes) {
    const auto document = open_drawing();
    line("line 1 2 3 4");
    line("other AcDbText");
    EXPECT_EQ(number_of([&] { (void)document->Item(0)->Radius(); }), 438);
    EXPECT_EQ(number_of([&] { (void)document->Item(0)->Coordinates(); }), 438);
    EXPECT_EQ(number_of([&] { (void)document->Item(1)->StartPoint(); }), 438);
    EXPECT_EQ(number_of([&] { (void)document->Item(2); }), 5);
}

TEST_F(ScriptedCadTest, colours_an_entity_of_any_class) {
    const auto document = open_drawing();
    line("other AcDbText");
    document->Item(0)->set_Color(2);
    EXPECT_EQ(state.application->active->model_space[0]->color, 2);
}

TEST_F(ScriptedCadTest, keeps_what_the_program_writes) {
    const auto document = open_drawing();
    line("line 1 2 3 4");
    document->Item(0)->set_Color(2);
    const double flat[] = {0, 0, 1, 1};
    document->AddLightWeightPolyline(flat)->set_Closed(true);
    const auto& entities = state.application->active->model_space;
    EXPECT_EQ(entities.at(0)->color, 2);
    EXPECT_EQ(entities.at(1)->color, kColourByLayer);
    EXPECT_TRUE(entities.at(1)->closed);
    EXPECT_THAT(entities.at(1)->numbers, ElementsAre(0, 0, 1, 1));
}

TEST_F(ScriptedCadTest, logs_calls_and_writes_on_the_application) {
    const auto document = open_drawing();
    line("pick 1.5 -2");
    cad.AppActivate();
    EXPECT_THAT(document->GetPoint(""), ElementsAre(1.5, -2, 0));
    document->Activate();
    const double flat[] = {0, 0, 1, 1};
    document->AddLightWeightPolyline(flat)->set_Closed(true);
    const auto application = cad.GetObject();
    application->ZoomExtents();
    application->set_WindowState(2);
    EXPECT_EQ(application->Documents_Count(), 1);
    EXPECT_THAT(state.log, ElementsAre("AppActivate Autocad", "GetPoint", "Activate",
                                       "AddLightWeightPolyline", "ZoomExtents", "WindowState 2"));
    EXPECT_EQ(state.application->window_state, 2);
}

TEST_F(ScriptedCadTest, opens_a_drawing_from_a_template_that_is_there) {
    (void)open_drawing();
    const std::string made = made_template();
    const auto application = cad.GetObject();
    EXPECT_EQ(number_of([&] { application->Documents_Add("/nowhere/acad.dwt"); }), 53);
    EXPECT_EQ(application->Documents_Count(), 1);
    application->Documents_Add(made);
    EXPECT_EQ(application->Documents_Count(), 2);
    EXPECT_EQ(application->ActiveDocument()->Name(), "Drawing1.dwg");
    EXPECT_THAT(state.log, ElementsAre("Documents.Add /nowhere/acad.dwt", "Documents.Add " + made));
}

TEST_F(ScriptedCadTest, answers_picks_in_order_and_ends_without_one) {
    const auto document = open_drawing();
    state.no_pick = [] {
        fault("no pick");
    };
    line("pick-error 80020009");
    line("pick 0 0");
    EXPECT_EQ(number_of([&] { (void)document->GetPoint(""); }), -2147352567);
    EXPECT_THAT(document->GetPoint(""), ElementsAre(0, 0, 0));
    EXPECT_THROW((void)document->GetPoint(""), ScriptFault);
}

TEST_F(ScriptedCadTest, fails_once_where_a_script_says_so) {
    const auto document = open_drawing();
    const std::string made = made_template();
    line("line 1 2 3 4");
    line("fail Item 80020009");
    line("fail Documents.Add 1F");
    line("fail Add 20");
    EXPECT_EQ(number_of([&] { (void)document->Count(); }), 0);
    EXPECT_EQ(number_of([&] { (void)document->Item(0); }), -2147352567);
    EXPECT_EQ(number_of([&] { (void)document->Item(0); }), 0);
    const auto application = cad.GetObject();
    EXPECT_EQ(number_of([&] { application->Documents_Add(made); }), 31);
    EXPECT_EQ(number_of([&] { application->Documents_Add(made); }), 32);
    EXPECT_EQ(number_of([&] { application->Documents_Add(made); }), 0);
}

TEST_F(ScriptedCadTest, tells_counts_of_documents_and_entities_apart) {
    const auto document = open_drawing();
    const auto application = cad.GetObject();
    line("fail ModelSpace.Count 9");
    EXPECT_EQ(number_of([&] { (void)application->Documents_Count(); }), 0);
    EXPECT_EQ(number_of([&] { (void)document->Count(); }), 9);
    line("fail Count 9");
    EXPECT_EQ(number_of([&] { (void)application->Documents_Count(); }), 9);
    EXPECT_EQ(number_of([&] { (void)document->Count(); }), 0);
}

TEST_F(ScriptedCadTest, knows_a_member_by_its_class_too) {
    const auto document = open_drawing();
    line("circle 1 2 3");
    line("fail AcadModelSpace.Count 9");
    EXPECT_EQ(number_of([&] { (void)cad.GetObject()->Documents_Count(); }), 0);
    EXPECT_EQ(number_of([&] { (void)document->Count(); }), 9);
    line("fail AcadApplication.Documents 8");
    EXPECT_EQ(number_of([&] { (void)cad.GetObject()->Documents_Count(); }), 8);
    line("fail AcadCircle.Center 7");
    EXPECT_EQ(number_of([&] { (void)document->Item(0)->Radius(); }), 0);
    EXPECT_EQ(number_of([&] { (void)document->Item(0)->Center(); }), 7);
    EXPECT_THROW(line("fail AcadCircle.Add 7"), ScriptFault);
    EXPECT_THROW(line("fail AcadCircle 7"), ScriptFault);
}

TEST_F(ScriptedCadTest, what_the_program_holds_goes_with_the_application) {
    const auto document = open_drawing();
    const auto application = cad.GetObject();
    line("line 1 2 3 4");
    const auto entity = document->Item(0);
    line("none");
    EXPECT_EQ(number_of([&] { (void)application->Name(); }), 462);
    EXPECT_EQ(number_of([&] { (void)document->Count(); }), 462);
    EXPECT_EQ(number_of([&] { (void)entity->ObjectName(); }), 462);
    EXPECT_EQ(number_of([&] { (void)cad.GetObject(); }), 429);
    line("running AutoCAD 15.0");
    EXPECT_EQ(number_of([&] { (void)application->Name(); }), 462);
    EXPECT_EQ(cad.GetObject()->Documents_Count(), 0);
}

TEST_F(ScriptedCadTest, a_closed_drawing_is_gone_and_the_application_stays) {
    const auto document = open_drawing();
    line("no-document");
    EXPECT_EQ(number_of([&] { (void)document->Name(); }), 462);
    EXPECT_EQ(cad.GetObject()->Name(), "AutoCAD");
}

TEST_F(ScriptedCadTest, refuses_lines_that_it_does_not_know) {
    (void)open_drawing();
    for (const char* text :
         {"", "walk", "running AutoCAD", "document", "line 1 2 3", "line 1 2 3 x", "point 1",
          "circle 1 2", "arc 1 2 3 4", "polyline 0 0 1 1", "polyline open", "polyline open 1",
          "spline 1 2 3", "other", "pick 1", "pick-error x", "fail Speed 9", "fail Count",
          "none 1"})
        EXPECT_THROW(line(text), ScriptFault) << text;
    line("no-document");
    EXPECT_THROW(line("line 1 2 3 4"), ScriptFault);
}

} // namespace
} // namespace velmora::driver
