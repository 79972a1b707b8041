// The operations one by one, over the real automation interface, in a process of their own.
#include "adapters/running_cad.h"

#include "com/cad_server.h"
#include "runtime/error.h"
#include "script/words.h"
#include "support/error_number.h"
#include "support/temporary_folder.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

namespace velmora {
namespace {

using test::number_of;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct ComAutocadTest : testing::Test {
    test::CadServer server;
    std::unique_ptr<Autocad> cad = make_running_cad();

    std::shared_ptr<AcadApplication> run() {
        server.say({"running AutoCAD 15.0"});
        return cad->GetObject();
    }
    std::shared_ptr<AcadDocument> open_drawing(std::initializer_list<const char*> entities) {
        server.say({"running AutoCAD 15.0", "document Ala.dwg"});
        server.say(entities);
        return cad->GetObject()->ActiveDocument();
    }
};

TEST(ComAutocadWithoutServer, nothing_running_is_429_and_nothing_is_started) {
    const auto cad = make_running_cad();
    EXPECT_EQ(number_of([&] { (void)cad->GetObject(); }), 429);
    EXPECT_EQ(number_of([&] { cad->AppActivate(); }), 5);
    EXPECT_EQ(FindWindowW(L"velmora-cad-server", nullptr), nullptr);
}

TEST_F(ComAutocadTest, the_application_tells_its_name_and_version) {
    server.say({"running \"AutoCAD — Ñandú\" \"15.06s (LMS Tech)\""});
    const auto application = cad->GetObject();
    EXPECT_EQ(application->Name(), "AutoCAD — Ñandú");
    EXPECT_EQ(application->Version(), "15.06s (LMS Tech)");
}

TEST_F(ComAutocadTest, documents_are_counted_and_the_active_one_is_named) {
    const auto application = run();
    EXPECT_EQ(application->Documents_Count(), 0);
    server.say({"document Uno.dwg", "document \" Ala diseño.dwg \""});
    EXPECT_EQ(application->Documents_Count(), 2);
    EXPECT_EQ(application->ActiveDocument()->Name(), " Ala diseño.dwg ");
}

TEST_F(ComAutocadTest, each_kind_of_entity_gives_its_values_to_the_last_bit) {
    const auto drawing = open_drawing(
        {"line 0.1 -2 1e-300 0.3333333333333333", "point 5e-324 1.7976931348623157e308",
         "polyline closed 0 0 5 0 5 5", "polyline open 1 2 3 4", "arc 1 2 3 0.5 3.14159265358979",
         "circle 9 8 0.7", "spline 1 2 3 4 5 6", "other AcDbHatch"});
    EXPECT_EQ(drawing->Count(), 8);
    const auto line = drawing->Item(0);
    EXPECT_EQ(line->ObjectName(), "AcDbLine");
    EXPECT_THAT(line->StartPoint(), ElementsAre(0.1, -2, 0));
    EXPECT_THAT(line->EndPoint(), ElementsAre(1e-300, 1.0 / 3, 0));
    const auto point = drawing->Item(1);
    EXPECT_EQ(point->ObjectName(), "AcDbPoint");
    EXPECT_THAT(point->Coordinates(), ElementsAre(std::numeric_limits<double>::denorm_min(),
                                                  std::numeric_limits<double>::max(), 0));
    const auto polyline = drawing->Item(2);
    EXPECT_EQ(polyline->ObjectName(), "AcDbPolyline");
    EXPECT_THAT(polyline->Coordinates(), ElementsAre(0, 0, 5, 0, 5, 5));
    EXPECT_TRUE(polyline->Closed());
    EXPECT_FALSE(drawing->Item(3)->Closed());
    const auto arc = drawing->Item(4);
    EXPECT_EQ(arc->ObjectName(), "AcDbArc");
    EXPECT_THAT(arc->Center(), ElementsAre(1, 2, 0));
    EXPECT_EQ(arc->Radius(), 3);
    EXPECT_EQ(arc->StartAngle(), 0.5);
    EXPECT_EQ(arc->EndAngle(), 3.14159265358979);
    const auto circle = drawing->Item(5);
    EXPECT_EQ(circle->ObjectName(), "AcDbCircle");
    EXPECT_THAT(circle->Center(), ElementsAre(9, 8, 0));
    EXPECT_EQ(circle->Radius(), 0.7);
    const auto spline = drawing->Item(6);
    EXPECT_EQ(spline->ObjectName(), "AcDbSpline");
    EXPECT_EQ(spline->NumberOfControlPoints(), 3);
    EXPECT_THAT(spline->GetControlPoint(2), ElementsAre(5, 6, 0));
    EXPECT_EQ(drawing->Item(7)->ObjectName(), "AcDbHatch");
}

TEST_F(ComAutocadTest, arrays_of_values_of_any_kind_are_read_as_well) {
    const auto drawing = open_drawing({"polyline open 0.1 2 3 4"});
    server.say({"arrays of-variants"});
    EXPECT_THAT(drawing->Item(0)->Coordinates(), ElementsAre(0.1, 2, 3, 4));
}

TEST_F(ComAutocadTest, an_array_of_odd_length_comes_as_it_is) {
    const auto drawing = open_drawing({"polyline open 0 0 1 1", "shorten"});
    EXPECT_THAT(drawing->Item(0)->Coordinates(), ElementsAre(0, 0, 1));
    server.say({"shorten", "shorten", "shorten"});
    EXPECT_THAT(drawing->Item(0)->Coordinates(), IsEmpty());
}

TEST_F(ComAutocadTest, thousands_of_numbers_travel_both_ways) {
    const auto drawing = open_drawing({});
    std::vector<double> numbers;
    for (int i = 0; i < 20'000; ++i)
        numbers.push_back(std::sin(i) * std::pow(10.0, i % 20 - 10));
    EXPECT_EQ(drawing->AddLightWeightPolyline(numbers)->ObjectName(), "AcDbPolyline");
    EXPECT_EQ(drawing->Item(0)->Coordinates(), numbers);
}

TEST_F(ComAutocadTest, a_polyline_without_numbers_travels_too) {
    const auto drawing = open_drawing({});
    EXPECT_THAT(drawing->AddLightWeightPolyline({})->Coordinates(), IsEmpty());
}

TEST_F(ComAutocadTest, an_entity_is_coloured_and_a_polyline_closed) {
    const auto drawing = open_drawing({"line 0 0 1 0", "polyline open 0 0 1 0"});
    drawing->Item(0)->set_Color(2);
    drawing->Item(1)->set_Closed(true);
    EXPECT_EQ(server.shown(), "0 AcDbLine 2 0 0 1 0\n"
                              "1 AcDbPolyline 256 closed 0 0 1 0\n"
                              "documents 1\nwindow-state 1\n");
    drawing->Item(1)->set_Closed(false);
    EXPECT_THAT(server.shown(), HasSubstr("open"));
}

TEST_F(ComAutocadTest, a_point_is_picked_behind_the_prompt) {
    const auto drawing = open_drawing({});
    server.say({"pick 1.5 -2", "pick 3 4"});
    const auto prompt = "Selecciona el punto inicial, señor — ¿aquí?";
    EXPECT_THAT(drawing->GetPoint(prompt), ElementsAre(1.5, -2, 0));
    EXPECT_EQ(server.prompt(), prompt);
    server.say({"arrays of-variants"});
    EXPECT_THAT(drawing->GetPoint(""), ElementsAre(3, 4, 0));
    EXPECT_EQ(server.prompt(), "");
}

TEST_F(ComAutocadTest, a_new_drawing_comes_from_its_template_and_the_window_is_led) {
    const auto application = run();
    const test::TemporaryFolder folder;
    const std::string path = folder.write("plantilla año.dwt", "template");
    application->Documents_Add(path);
    EXPECT_EQ(application->Documents_Count(), 1);
    application->ActiveDocument()->Activate();
    application->ZoomExtents();
    application->set_WindowState(2);
    cad->AppActivate();
    EXPECT_EQ(server.shown(), "documents 1\nwindow-state 2\nDocuments.Add " +
                                  driver::word_text(path) +
                                  "\nActivate\nZoomExtents\nWindowState 2\n"
                                  "AppActivate Autocad\n");
}

TEST_F(ComAutocadTest, what_an_object_does_not_offer_is_438) {
    const auto drawing = open_drawing({"line 0 0 1 0"});
    EXPECT_EQ(number_of([&] { (void)drawing->Item(0)->Radius(); }), 438);
}

struct CarriedFault {
    const char* hex;
    int number;
};

class CarriedFaultTest : public ComAutocadTest, public testing::WithParamInterface<CarriedFault> {};

TEST_P(CarriedFaultTest, comes_through_by_an_exception_and_as_the_plain_result) {
    const auto drawing = open_drawing({});
    for (const char* way : {"failures exceptions", "failures plain"}) {
        server.say({way, (std::string("pick-error ") + GetParam().hex).c_str()});
        EXPECT_EQ(number_of([&] { (void)drawing->GetPoint("?"); }), GetParam().number) << way;
    }
}

INSTANTIATE_TEST_SUITE_P(Numbers, CarriedFaultTest,
                         testing::Values(CarriedFault{"8021001C", static_cast<int>(0x8021001C)},
                                         CarriedFault{"80020009", static_cast<int>(0x80020009)},
                                         CarriedFault{"80004005", static_cast<int>(0x80004005)},
                                         CarriedFault{"802E1234", static_cast<int>(0x802E1234)},
                                         CarriedFault{"800A01B6", 438}, CarriedFault{"1CE", 462},
                                         CarriedFault{"80010108", 462},
                                         CarriedFault{"800706BA", 462}, CarriedFault{"80070057", 5},
                                         CarriedFault{"80020005", 13}));

TEST_F(ComAutocadTest, the_applications_own_description_comes_with_its_number) {
    server.say({"running AutoCAD 15.0"});
    const auto drawing = open_drawing({});
    std::string description;
    trap([&] { (void)drawing->GetPoint("?"); },
         [&](const RuntimeError& failure) { description = failure.description; });
    EXPECT_EQ(description, "no pick is laid out");
}

TEST_F(ComAutocadTest, an_application_that_is_busy_is_asked_again) {
    const auto drawing = open_drawing({"line 0 0 1 0"});
    server.say({"busy 3"});
    EXPECT_EQ(drawing->Name(), "Ala.dwg");
}

TEST_F(ComAutocadTest, an_application_that_is_busy_is_found) {
    server.say({"running AutoCAD 15.0", "busy 1000"});
    const auto application = cad->GetObject();
    server.say({"busy 0"});
    EXPECT_EQ(application->Name(), "AutoCAD");
}

TEST_F(ComAutocadTest, what_was_closed_or_erased_is_462_and_the_rest_goes_on) {
    const auto drawing = open_drawing({"line 0 0 1 0", "line 1 0 2 0"});
    const auto entity = drawing->Item(1);
    server.say({"erase"});
    EXPECT_EQ(number_of([&] { (void)entity->ObjectName(); }), 462);
    EXPECT_EQ(drawing->Item(0)->ObjectName(), "AcDbLine");
    server.say({"no-document"});
    EXPECT_EQ(number_of([&] { (void)drawing->Count(); }), 462);
    EXPECT_EQ(cad->GetObject()->Documents_Count(), 0);
}

TEST_F(ComAutocadTest, an_application_that_ended_between_two_calls_is_462) {
    const auto drawing = open_drawing({"line 0 0 1 0"});
    const auto application = cad->GetObject();
    const auto entity = drawing->Item(0);
    server.kill();
    EXPECT_EQ(number_of([&] { (void)entity->StartPoint(); }), 462);
    EXPECT_EQ(number_of([&] { (void)drawing->Name(); }), 462);
    EXPECT_EQ(number_of([&] { application->ZoomExtents(); }), 462);
    EXPECT_EQ(number_of([&] { (void)cad->GetObject(); }), 429);
    EXPECT_EQ(number_of([&] { cad->AppActivate(); }), 5);
}

TEST_F(ComAutocadTest, an_application_that_ends_in_the_middle_of_a_pick_is_462) {
    const auto drawing = open_drawing({});
    server.say({"pick 1 1", "die-at GetPoint"});
    EXPECT_EQ(number_of([&] { (void)drawing->GetPoint("?"); }), 462);
}

TEST_F(ComAutocadTest, objects_outlive_the_way_that_led_to_them) {
    const auto drawing = open_drawing({"line 0 0 1 0"});
    cad.reset();
    EXPECT_EQ(drawing->Item(0)->ObjectName(), "AcDbLine");
}

} // namespace
} // namespace velmora
