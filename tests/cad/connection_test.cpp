#include "cad/connection.h"

#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/scripted_cad_session.h"
#include "fakes/watching.h"
#include "services/messages.h"
#include "support/error_number.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;

struct ConnectionWithoutDatabaseTest : test::ScriptedCadSession {
    void run_application(bool with_document) {
        say({"none", "running AutoCAD 15.0"});
        if (with_document)
            state.application->open(" Dibujo1.dwg ");
    }
    void end_application() { state.stop(); }
    /// The next `times` that the program asks for it.
    void fail(const char* member, int number, int times = 1) {
        state.failures.insert(state.failures.end(), static_cast<std::size_t>(times),
                              {member, number});
    }
    static bool enabled(const char* entry) {
        const auto found = session.Velmora.menus.find(entry);
        return found == session.Velmora.menus.end() || found->second.enabled;
    }
    static void expect_commands(bool capture, bool origin, bool send) {
        EXPECT_EQ(enabled("mnu_capture"), capture);
        EXPECT_EQ(enabled("menu_select_orig"), origin);
        EXPECT_EQ(enabled("mnu_SendToCad"), send);
    }
};

struct ConnectionTest : ConnectionWithoutDatabaseTest {
    ConnectionTest() { machine.open_database(); }
};

TEST_F(ConnectionTest, with_none_running_message_31_and_everything_off) {
    ReconectaAcad();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text,
              "Autocad no está abierto en este momento! Abrelo y pulsa Reconectar Acad");
    EXPECT_EQ(session.AcadOpen, False);
    EXPECT_EQ(session.AcadDocLoaded, False);
    EXPECT_EQ(session.wininfo.ShpAcadOpen, 255U);
    expect_commands(false, false, false);
}

TEST_F(ConnectionTest, with_a_document_everything_is_on) {
    run_application(true);
    mnu_Reconect();
    EXPECT_EQ(session.AcadOpen, True);
    EXPECT_EQ(session.AcadDocLoaded, True);
    EXPECT_EQ(session.wininfo.TxtOpensw, "AutoCAD");
    EXPECT_EQ(session.wininfo.txtAcadVer, "15.0");
    EXPECT_EQ(session.wininfo.TxtAcadFile, "DIBUJO1.DWG");
    EXPECT_EQ(session.wininfo.ShpAcadOpen, 65280U);
    EXPECT_EQ(session.wininfo.ShpAcadDocLoaded, 65280U);
    ASSERT_NE(acad().AcadDoc, nullptr);
    EXPECT_EQ(acad().AcadDoc->Name(), " Dibujo1.dwg ");
    expect_commands(true, true, true);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(ConnectionTest, without_a_document_only_sending_is_on) {
    run_application(true);
    ReconectaAcad();
    run_application(false);
    ReconectaAcad();
    EXPECT_EQ(session.AcadOpen, True);
    EXPECT_EQ(session.AcadDocLoaded, False);
    EXPECT_EQ(session.wininfo.TxtAcadFile, "");
    EXPECT_EQ(session.wininfo.ShpAcadDocLoaded, 255U);
    EXPECT_EQ(acad().AcadDoc, nullptr);
    expect_commands(false, false, true);
}

TEST_F(ConnectionTest, an_application_that_went_clears_its_own_fields_alone) {
    run_application(true);
    ReconectaAcad();
    end_application();
    ReconectaAcad();
    EXPECT_EQ(session.wininfo.TxtOpensw, "");
    EXPECT_EQ(session.wininfo.txtAcadVer, "");
    EXPECT_EQ(session.wininfo.ShpAcadOpen, 255U);
    EXPECT_EQ(session.wininfo.TxtAcadFile, "DIBUJO1.DWG");
    EXPECT_EQ(session.wininfo.ShpAcadDocLoaded, 65280U);
    EXPECT_EQ(session.AcadDocLoaded, False);
    EXPECT_EQ(acad().AcadApp, nullptr);
    expect_commands(false, false, false);
}

TEST_F(ConnectionTest, message_31_comes_while_the_application_still_shows) {
    run_application(true);
    ReconectaAcad();
    end_application();
    int told = 0;
    const test::WatchingDialogs dialogs([&] {
        ++told;
        EXPECT_EQ(session.AcadDocLoaded, False);
        EXPECT_EQ(session.AcadOpen, True);
        EXPECT_EQ(session.wininfo.ShpAcadOpen, 65280U);
        EXPECT_EQ(session.wininfo.TxtOpensw, "AutoCAD");
        EXPECT_EQ(session.wininfo.txtAcadVer, "15.0");
        expect_commands(true, true, true);
    });
    ReconectaAcad();
    EXPECT_EQ(told, 1);
    expect_commands(false, false, false);
}

TEST_F(ConnectionTest, a_connected_application_that_fails_is_not_passed_over) {
    run_application(true);
    fail("AcadApplication.Name", 462);
    EXPECT_EQ(number_of([] { ReconectaAcad(); }), 462);
}

TEST_F(ConnectionTest, an_application_that_is_busy_is_open_without_texts_and_document) {
    run_application(true);
    ReconectaAcad();
    fail("AcadApplication.Name", error::cad_busy);
    ReconectaAcad();
    EXPECT_EQ(session.AcadOpen, True);
    EXPECT_EQ(session.AcadDocLoaded, False);
    EXPECT_EQ(session.wininfo.ShpAcadOpen, 65280U);
    EXPECT_EQ(session.wininfo.ShpAcadDocLoaded, 255U);
    EXPECT_EQ(session.wininfo.TxtOpensw, "");
    EXPECT_EQ(session.wininfo.txtAcadVer, "");
    EXPECT_EQ(session.wininfo.TxtAcadFile, "");
    expect_commands(false, false, true);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
}

TEST_F(ConnectionTest, one_that_becomes_busy_with_its_document_has_none) {
    run_application(true);
    fail("AcadDocument.Name", error::cad_busy);
    ReconectaAcad();
    EXPECT_EQ(session.AcadOpen, True);
    EXPECT_EQ(session.AcadDocLoaded, False);
    EXPECT_EQ(session.wininfo.TxtOpensw, "AutoCAD");
    EXPECT_EQ(acad().AcadDoc, nullptr);
    expect_commands(false, false, true);
}

TEST_F(ConnectionWithoutDatabaseTest, the_failing_message_is_passed_over_here_alone) {
    EXPECT_EQ(number_of([] { ReconectaAcad(); }), 0);
    EXPECT_TRUE(machine.dialogs.boxes.empty());
    EXPECT_EQ(session.Velmora.MousePointer, 0);
    expect_commands(false, false, false);
    EXPECT_EQ(number_of([] { (void)MuestraMensaje(37); }), 91);
}

} // namespace
} // namespace velmora
