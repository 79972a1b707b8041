#include "cad/select_origin.h"
#include "fakes/scripted_cad_session.h"
#include "support/error_number.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct SelOrigenTest : test::ScriptedCadSession {
    SelOrigenTest() { machine.open_database(); }
};

TEST_F(SelOrigenTest, without_a_cad_message_31) {
    EXPECT_EQ(SelOrigen(), False);
    EXPECT_THAT(
        shown_texts(),
        ElementsAre("Autocad no está abierto en este momento! Abrelo y pulsa Reconectar Acad"));
    EXPECT_EQ(session.SelOrigenActivo, False);
}

TEST_F(SelOrigenTest, without_a_document_message_41) {
    say({"running AutoCAD 15.0"});
    ReconectaAcad();
    EXPECT_EQ(SelOrigen(), False);
    EXPECT_THAT(shown_texts(),
                ElementsAre("No hay ningún documento abierto, abre uno y reconecta!"));
    EXPECT_EQ(session.SelOrigenActivo, False);
    EXPECT_THAT(state.log, IsEmpty());
}

TEST_F(SelOrigenTest, takes_the_picked_point) {
    open_drawing({});
    say({"pick 1.23456789012345678 -2.5"});
    session.LoadOk = True;
    EXPECT_EQ(SelOrigen(), True);
    EXPECT_EQ(session.CadOrigX, 1.23456789012346);
    EXPECT_EQ(session.CadOrigY, -2.5);
    EXPECT_THAT(session.AcadPunto, ElementsAre(1.2345678901234568, -2.5, 0));
    EXPECT_EQ(session.OrigX, 1.23456789012346);
    EXPECT_EQ(session.OrigY, -2.5);
    EXPECT_EQ(session.wininfo.TxtOrigX, "1.23456789012346");
    EXPECT_EQ(session.wininfo.TxtOrigY, "-2.5");
    EXPECT_EQ(session.LoadOk, 0);
    EXPECT_EQ(session.SelOrigenActivo, False);
    EXPECT_THAT(state.log, ElementsAre("AppActivate Autocad", "GetPoint"));
    EXPECT_THAT(machine.windows.calls, ElementsAre("show wininfo"));
    EXPECT_THAT(
        machine.windows.statuses,
        ElementsAre("Usa ALT+TAB para pasar a Autocad y seleccionar el punto inicial de corte",
                    "Procediendo a capturar los objetos del dibujo Autocad..."));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(SelOrigenTest, two_errors_ask_again_as_often_as_they_come) {
    open_drawing({});
    say({"pick-error 8021001C", "pick-error 80020009", "pick-error 8021001C", "pick 3 4"});
    EXPECT_EQ(SelOrigen(), True);
    EXPECT_EQ(session.CadOrigX, 3);
    EXPECT_THAT(state.log,
                ElementsAre("AppActivate Autocad", "GetPoint", "AppActivate Autocad", "GetPoint",
                            "AppActivate Autocad", "GetPoint", "AppActivate Autocad", "GetPoint"));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

void expect_wrong_point(const SelOrigenTest& test) {
    EXPECT_THAT(test.shown_texts(), ElementsAre("Punto incorrecto!"));
    EXPECT_EQ(session.SelOrigenActivo, True);
    EXPECT_EQ(session.CadOrigX, 0);
    EXPECT_THAT(test.machine.windows.calls, Not(Contains("show wininfo")));
}

TEST_F(SelOrigenTest, another_error_is_a_wrong_point) {
    open_drawing({});
    say({"pick-error 8021001D", "pick 3 4"});
    EXPECT_EQ(SelOrigen(), False);
    expect_wrong_point(*this);
    EXPECT_EQ(state.picks.size(), 1U);
}

TEST_F(SelOrigenTest, an_application_that_is_gone_is_a_wrong_point) {
    open_drawing({});
    say({"none"});
    EXPECT_EQ(SelOrigen(), False);
    expect_wrong_point(*this);
}

TEST_F(SelOrigenTest, a_failed_activation_remains_though_a_point_was_picked) {
    open_drawing({});
    say({"fail AppActivate 5", "pick 3 4"});
    EXPECT_EQ(SelOrigen(), False);
    expect_wrong_point(*this);
    EXPECT_THAT(state.picks, IsEmpty());
}

TEST_F(SelOrigenTest, a_failed_activation_gives_way_to_an_error_that_asks_again) {
    open_drawing({});
    say({"fail AppActivate 5", "pick-error 80020009", "pick 3 4"});
    EXPECT_EQ(SelOrigen(), True);
    EXPECT_EQ(session.CadOrigY, 4);
}

TEST_F(SelOrigenTest, a_coordinate_too_large_for_its_text_is_a_fault) {
    open_drawing({});
    say({"pick 1e29 0"});
    EXPECT_EQ(test::number_of([] { (void)SelOrigen(); }), 6);
}

} // namespace
} // namespace velmora
