#include "remote_cad_session.h"
#include "support/error_number.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>

#include <gmock/gmock.h>

namespace velmora {
namespace {

using test::number_of;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kNotOpen = "Autocad no está abierto en este momento! Abrelo y pulsa Reconectar Acad";

struct BusConnectionTest : test::RemoteCadSession {};

TEST_F(BusConnectionTest, without_a_cad_nothing_is_connected) {
    EXPECT_EQ(number_of([&] { std::ignore = cad->GetObject(); }), 429);
    EXPECT_EQ(number_of([&] { cad->AppActivate(); }), 5);
    ReconectaAcad();
    EXPECT_THAT(shown_texts(), ElementsAre(kNotOpen));
    EXPECT_EQ(session.AcadOpen, False);
}

TEST_F(BusConnectionTest, tells_who_runs_and_what_is_open) {
    open_drawing({});
    EXPECT_EQ(session.wininfo.TxtOpensw, "AutoCAD");
    EXPECT_EQ(session.wininfo.txtAcadVer, "15.0");
    EXPECT_EQ(session.wininfo.TxtAcadFile, "ALA.DWG");
    EXPECT_EQ(session.AcadDocLoaded, True);
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(BusConnectionTest, names_keep_their_accents) {
    start_cad({"document ala_ñandú.dwg"});
    ReconectaAcad();
    EXPECT_EQ(session.wininfo.TxtAcadFile, "ALA_ÑANDÚ.DWG");
}

TEST_F(BusConnectionTest, a_cad_without_a_drawing_is_connected_alone) {
    start_cad();
    ReconectaAcad();
    EXPECT_EQ(session.AcadOpen, True);
    EXPECT_EQ(session.AcadDocLoaded, False);
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadApp->ActiveDocument(); }), 462);
}

TEST_F(BusConnectionTest, a_name_that_something_else_owns_is_no_cad) {
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "somebody");
    ASSERT_TRUE(bus.registerService("org.velmora.Cad1"));
    ReconectaAcad();
    EXPECT_THAT(shown_texts(), ElementsAre(kNotOpen));
    EXPECT_NE(number_of([&] { cad->AppActivate(); }), 0);
    QDBusConnection::disconnectFromBus("somebody");
}

TEST_F(BusConnectionTest, another_program_that_owns_the_name_is_no_cad) {
    start_cad({"unknown Name"});
    ReconectaAcad();
    EXPECT_THAT(shown_texts(), ElementsAre(kNotOpen));
    EXPECT_EQ(session.AcadOpen, False);
}

TEST_F(BusConnectionTest, a_name_that_is_no_text_is_no_cad) {
    start_cad({"answer Name number"});
    EXPECT_EQ(number_of([&] { std::ignore = cad->GetObject(); }), 429);
}

TEST_F(BusConnectionTest, a_cad_that_is_busy_is_open_and_tells_the_rest_later) {
    start_cad({"document ala.dwg"});
    remote->freeze();
    ReconectaAcad();
    EXPECT_EQ(session.AcadOpen, True);
    EXPECT_EQ(session.AcadDocLoaded, False);
    EXPECT_EQ(session.wininfo.TxtOpensw, "");
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    remote->thaw();
    ReconectaAcad();
    EXPECT_EQ(session.wininfo.TxtOpensw, "AutoCAD");
    EXPECT_EQ(session.wininfo.TxtAcadFile, "ALA.DWG");
}

TEST_F(BusConnectionTest, a_cad_that_is_gone_raises_462_until_the_next_connection) {
    open_drawing({"line 0 0 1 0"});
    remote->kill();
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadApp->Name(); }), 462);
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->Count(); }), 462);
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->GetPoint("donde"); }), 462);
    EXPECT_EQ(number_of([&] { cad->AppActivate(); }), 5);
    // Another one under the same name is another application.
    start_cad({"document Otro.dwg"});
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->Count(); }), 462);
    ReconectaAcad();
    EXPECT_EQ(session.wininfo.TxtAcadFile, "OTRO.DWG");
}

TEST_F(BusConnectionTest, a_cad_that_falls_silent_raises_462) {
    open_drawing({});
    remote->freeze();
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->Count(); }), 462);
    remote->thaw();
}

TEST_F(BusConnectionTest, a_closed_document_raises_462_and_the_application_answers) {
    open_drawing({"line 0 0 1 0"});
    remote->say("no-document");
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->Name(); }), 462);
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->Item(0); }), 462);
    EXPECT_EQ(acad().AcadApp->Documents_Count(), 0);
}

TEST_F(BusConnectionTest, the_cads_own_numbers_and_texts_come_through) {
    open_drawing({});
    remote->say("fail ModelSpace.Count 80210067");
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadDoc->Count(); }),
              static_cast<int>(0x80210067U));
    remote->say("fail Documents.Count 5");
    EXPECT_EQ(number_of([] { std::ignore = acad().AcadApp->Documents_Count(); }), 5);
}

TEST_F(BusConnectionTest, other_errors_of_the_bus_have_numbers_too) {
    open_drawing({});
    const auto count_after = [&](const char* line) {
        remote->say(line);
        return number_of([] { std::ignore = acad().AcadDoc->Count(); });
    };
    EXPECT_EQ(count_after("stray-error EntityCount org.velmora.Cad1.Error.E00000000 no"), 440);
    EXPECT_EQ(count_after("stray-error EntityCount org.velmora.Cad1.Error.Edoce no"), 440);
    EXPECT_EQ(count_after("stray-error EntityCount org.example.Python.KeyError no"), 440);
    EXPECT_EQ(count_after("stray-error EntityCount org.freedesktop.DBus.Error.NoMemory no"), 7);
    EXPECT_EQ(count_after("stray-error EntityCount org.freedesktop.DBus.Error.AccessDenied no"),
              70);
    EXPECT_EQ(count_after("stray-error EntityCount org.freedesktop.DBus.Error.InvalidArgs no"), 5);
    EXPECT_EQ(count_after("answer EntityCount doce"), 13);
    EXPECT_EQ(count_after("unknown EntityCount"), 438);
}

TEST_F(BusConnectionTest, an_error_keeps_its_own_description) {
    open_drawing({});
    remote->say("stray-error EntityCount org.velmora.Cad1.Error.E80210067 el plano está cerrado");
    std::string description;
    trap([] { std::ignore = acad().AcadDoc->Count(); },
         [&](const RuntimeError& failure) { description = failure.description; });
    EXPECT_EQ(description, "el plano está cerrado");
}

} // namespace
} // namespace velmora
