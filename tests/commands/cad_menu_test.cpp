#include "cad/drawing.h"
#include "commands/handlers.h"
#include "fakes/scripted_cad_session.h"
#include "fakes/watching.h"
#include "support/error_number.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using test::Place;
using test::places_of;
using test::set_shape;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto kOfferScaling = "Desea escalar la forma a la unidad?";

struct CadCommandsTest : test::ScriptedCadSession {
    CadCommandsTest() {
        machine.open_database();
        session.Velmora.TxtDat_File = session.FileName = "/viejo.dat";
        session.Velmora.TxtDescDat = "viejo";
        session.PtoSel = 2;
    }
    void open_square() {
        open_drawing({"line 0 0 20 0", "line 20 0 20 20", "line 20 20 0 20", "line 0 20 0 0"});
    }
    static void expect_refreshed(double length) {
        EXPECT_EQ(session.Longitud, length);
        EXPECT_EQ(session.Velmora.Lst_Coords.size(), Forma.Pto.size());
        EXPECT_EQ(session.Velmora.Lst_Coords.at(1).X, length);
    }
};

TEST_F(CadCommandsTest, capturing_without_a_cad_does_nothing) {
    mnu_capture();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    EXPECT_EQ(session.FileName, "/viejo.dat");
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_THAT(machine.pic.operations, IsEmpty());
}

TEST_F(CadCommandsTest, a_capture_starts_a_nameless_document) {
    open_square();
    machine.dialogs.answers = {7};
    mnu_capture();
    EXPECT_EQ(session.FileName, "");
    EXPECT_EQ(session.Velmora.TxtDat_File, "");
    EXPECT_EQ(session.Velmora.TxtDescDat, "");
    EXPECT_EQ(session.PtoSel, 0);
    EXPECT_THAT(shown_texts(), ElementsAre(kOfferScaling));
    expect_refreshed(20);
    EXPECT_FALSE(machine.pic.operations.empty());
}

TEST_F(CadCommandsTest, a_yes_scales_to_the_unit) {
    open_square();
    machine.dialogs.answers = {6};
    mnu_capture();
    EXPECT_THAT(places_of(Forma.Pto),
                ElementsAre(Place(0, 0), Place(1, 0), Place(1, 1), Place(0, 1)));
    expect_refreshed(1);
}

TEST_F(CadCommandsTest, without_the_option_nothing_is_asked) {
    open_square();
    session.RedimCapture = False;
    mnu_capture();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    expect_refreshed(20);
}

TEST_F(CadCommandsTest, the_list_is_filled_before_the_canvas_is_repainted) {
    open_square();
    int repaints = 0;
    const test::WatchingSurface pic([&] {
        ++repaints;
        EXPECT_EQ(session.Velmora.Lst_Coords.size(), 4U);
        EXPECT_EQ(session.Longitud, 1) << "laid out";
    });
    mnu_capture();
    EXPECT_EQ(repaints, 1);
}

TEST_F(CadCommandsTest, the_precision_is_applied_behind_the_scaling) {
    open_drawing({"line 0 0 3 0", "line 3 0 1 2", "line 1 2 0 0"});
    session.Precision = 2;
    mnu_capture();
    EXPECT_THAT(places_of(Forma.Pto), ElementsAre(Place(0, 0), Place(1, 0), Place(0.33, 0.67)));
}

TEST_F(CadCommandsTest, the_tail_runs_on_the_old_shape_after_a_failed_origin) {
    open_drawing({"other AcDbText"});
    set_shape({{.X = 0}, {.X = 4}, {.X = 4, .Y = 1}});
    mnu_capture();
    EXPECT_EQ(shown_texts().size(), 2U);
    EXPECT_THAT(places_of(Forma.Pto), ElementsAre(Place(0, 0), Place(1, 0), Place(1, 0.25)));
    EXPECT_EQ(session.PtoSel, 0);
}

TEST_F(CadCommandsTest, a_fault_of_the_capture_leaves_the_command) {
    open_square();
    say({"fail Item 80020009"});
    EXPECT_EQ(test::number_of([] { mnu_capture(); }), -2147352567);
    EXPECT_EQ(session.FileName, "");
    EXPECT_EQ(session.PtoSel, 2);
}

TEST_F(CadCommandsTest, a_picked_origin_captures_from_there_and_keeps_the_name) {
    open_square();
    say({"pick 20 20"});
    machine.dialogs.answers = {7};
    menu_select_orig();
    EXPECT_THAT(places_of(Forma.Pto),
                ElementsAre(Place(20, 20), Place(20, 0), Place(0, 0), Place(0, 20)));
    EXPECT_EQ(session.FileName, "/viejo.dat");
    EXPECT_EQ(session.PtoSel, 2);
    EXPECT_EQ(session.wininfo.TxtOrigX, "20");
    EXPECT_THAT(shown_texts(), ElementsAre(kOfferScaling));
    EXPECT_EQ(session.Velmora.Lst_Coords.size(), 4U);
}

TEST_F(CadCommandsTest, no_picked_origin_no_capture) {
    open_square();
    say({"pick-error 1F"});
    menu_select_orig();
    EXPECT_THAT(shown_texts(), ElementsAre("Punto incorrecto!"));
    EXPECT_FALSE(has_shape());
    EXPECT_THAT(machine.pic.operations, IsEmpty());
}

TEST_F(CadCommandsTest, a_capture_that_esc_ends_leaves_all_as_it_was) {
    open_square();
    set_shape({{.X = 1}, {.X = 2, .Sinc = 1}});
    for (const int last : {1, 2, 3, 5, 8}) {
        int turn = 0;
        const test::WatchingTurns turns([&] {
            if (++turn == last)
                session.cancel_asked = session.reading;
        });
        mnu_capture();
        EXPECT_EQ(Forma.Pto.upper(), 1) << last;
        EXPECT_EQ(session.FileName, "/viejo.dat");
        EXPECT_EQ(session.Velmora.TxtDat_File, "/viejo.dat");
        EXPECT_EQ(session.Velmora.TxtDescDat, "viejo");
        EXPECT_EQ(session.PtoSel, 2);
        EXPECT_EQ(session.Velmora.StatusBar1, "Captura cancelada.");
        EXPECT_EQ(session.Velmora.MousePointer, 0);
    }
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    mnu_capture();
    EXPECT_EQ(Forma.Pto.upper(), 3);
}

} // namespace
} // namespace velmora
