#include "forms/setup.h"

#include "document/session.h"
#include "fakes/fake_form.h"
#include "fakes/recording_platform.h"
#include "services/settings.h"
#include "support/error_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;
using testing::ElementsAre;
using testing::IsEmpty;

struct SetupTest : testing::Test {
    RecordingPlatform machine{test::with_database};
    SetupWindow& window = session.setup;

    SetupTest() {
        session.FirstActivate = False;
        LeeSettings();
        setup_Activate();
    }
    std::string stored(const std::string& key) {
        return machine.settings.get(key.starts_with("cl_") ? "Colors" : "Values", key)
            .value_or("absent");
    }
    std::vector<std::string> texts_of_boxes() {
        std::vector<std::string> texts;
        for (const auto& box : machine.dialogs.boxes)
            texts.push_back(box.text);
        return texts;
    }
};

constexpr const char* kOnlyNumbers = "Sólo se permiten números!";

TEST_F(SetupTest, takes_its_literals) {
    test::FakeForm form("setup");
    machine.windows.forms["setup"] = &form;
    machine.database->execute("DROP TABLE IF EXISTS setup");
    machine.database->execute("CREATE TABLE setup (Control TEXT, Idioma TEXT, Descripcion TEXT, "
                              "Desc_Tip TEXT, PRIMARY KEY (Control, Idioma))");
    machine.database->execute("INSERT INTO setup VALUES ('setup','E','Parámetros','')");
    setup_Load();
    EXPECT_EQ(form.own_caption, "Parámetros");
}

TEST_F(SetupTest, shows_the_session_when_it_is_activated) {
    Session& s = session;
    s.cl_fondo = 1, s.cl_ejes = 2, s.cl_lineas = 3, s.cl_linea1 = 4, s.cl_linea2 = 5;
    s.cl_punto = 6, s.cl_puntosinc = 7, s.cl_puntosel = 8, s.cl_coords = 9;
    s.Def_Dec = 11, s.Def_Arc = 12, s.Def_ACircle = 13;
    s.Def_Zoom = 0.00001;
    s.SepDecimal = ',';
    s.Idioma = "F";
    s.Sound = 0;
    const auto draws = window.Test_Pic_draws;
    setup_Activate();
    EXPECT_EQ(window.lblcolor_fondo, 1U);
    EXPECT_EQ(window.lblcolor_ejes, 2U);
    EXPECT_EQ(window.lblcolor_lineas, 3U);
    EXPECT_EQ(window.lblcolor_lineaini, 4U);
    EXPECT_EQ(window.lblcolor_lineados, 5U);
    EXPECT_EQ(window.lblcolor_ptos, 6U);
    EXPECT_EQ(window.lblcolor_ptosinc, 7U);
    EXPECT_EQ(window.lblcolor_ptosel, 8U);
    EXPECT_EQ(window.lblcolor_coords, 9U);
    EXPECT_EQ(window.Txt_Def_Dec_Val, "11");
    EXPECT_EQ(window.Txt_Def_Arc_Val, "12");
    EXPECT_EQ(window.Txt_Def_Circle_Val, "13");
    EXPECT_EQ(window.Txt_Def_zoom_Val, "1E-05");
    EXPECT_EQ(window.Cmb_Lang, "Français");
    EXPECT_EQ(window.Idioma, "F");
    EXPECT_FALSE(window.APP_Sound);
    EXPECT_EQ(window.Test_Pic_draws, draws + 1);
}

TEST_F(SetupTest, shows_and_takes_the_choice_to_fit_after_opening) {
    EXPECT_FALSE(window.chk_fit_open);
    window.chk_fit_open = true;
    setup_cmd_cancel_Click();
    EXPECT_EQ(session.FitOnOpen, False);
    setup_cmd_ok_Click();
    EXPECT_EQ(session.FitOnOpen, True);
    EXPECT_EQ(stored("fit_on_open"), "1");
    window.chk_fit_open = false;
    setup_Activate();
    EXPECT_TRUE(window.chk_fit_open);
}

// The values that were always stored stand alone while nobody chose otherwise.
TEST_F(SetupTest, stores_no_choice_that_was_not_made) {
    setup_cmd_ok_Click();
    EXPECT_EQ(stored("fit_on_open"), "absent");
    EXPECT_NE(stored("sound"), "absent");
}

TEST_F(SetupTest, offers_the_languages_in_their_order) {
    EXPECT_THAT(setup_languages(),
                ElementsAre("Español", "English", "Français", "Portugues", "Italiano"));
}

TEST_F(SetupTest, selects_the_language_of_the_code_and_Spanish_for_an_unknown_one) {
    const std::pair<const char*, const char*> cases[] = {
        {"E", "Español"},  {"I", "English"}, {"F", "Français"}, {"P", "Portugues"},
        {"T", "Italiano"}, {"X", "Español"}, {"", "Español"},   {"IF", "Español"}};
    for (const auto& [code, name] : cases) {
        session.Idioma = code;
        setup_Activate();
        EXPECT_EQ(window.Cmb_Lang, name) << code;
    }
}

TEST_F(SetupTest, a_colour_is_in_force_at_once_and_cancel_keeps_it) {
    machine.dialogs.colours = {0x123456};
    const auto draws = window.Test_Pic_draws;
    lblcolor_Click("lblcolor_lineados");
    EXPECT_EQ(session.cl_linea2, 0x123456U);
    EXPECT_EQ(window.lblcolor_lineados, 0x123456U);
    EXPECT_EQ(window.Test_Pic_draws, draws + 1);
    setup_cmd_cancel_Click();
    EXPECT_EQ(session.cl_linea2, 0x123456U);
    EXPECT_TRUE(machine.settings.values.empty());
    EXPECT_THAT(machine.windows.calls, ElementsAre("unload setup"));
    LeeSettings();
    EXPECT_EQ(session.cl_linea2, 0xFF0000U);
}

TEST_F(SetupTest, each_label_has_its_own_colour) {
    const std::pair<const char*, std::uint32_t Session::*> labels[] = {
        {"lblcolor_fondo", &Session::cl_fondo},       {"lblcolor_ejes", &Session::cl_ejes},
        {"lblcolor_lineas", &Session::cl_lineas},     {"lblcolor_lineaini", &Session::cl_linea1},
        {"lblcolor_lineados", &Session::cl_linea2},   {"lblcolor_ptos", &Session::cl_punto},
        {"lblcolor_ptosinc", &Session::cl_puntosinc}, {"lblcolor_ptosel", &Session::cl_puntosel},
        {"lblcolor_coords", &Session::cl_coords}};
    std::uint32_t colour = 1000;
    for (const auto& [label, value] : labels) {
        machine.dialogs.colours = {++colour};
        lblcolor_Click(label);
        EXPECT_EQ(session.*value, colour) << label;
    }
}

TEST_F(SetupTest, a_cancelled_colour_and_an_unknown_label_change_nothing) {
    machine.dialogs.colours = {std::nullopt, 7};
    const auto draws = window.Test_Pic_draws;
    lblcolor_Click("lblcolor_fondo");
    lblcolor_Click("lblcolor_otro");
    EXPECT_EQ(session.cl_fondo, 0x80000000U);
    EXPECT_EQ(window.Test_Pic_draws, draws);
    EXPECT_EQ(machine.dialogs.colours.size(), 1U);
}

TEST_F(SetupTest, the_tab_of_the_colours_draws_the_preview) {
    const auto draws = window.Test_Pic_draws;
    setup_SSTab1_Click(0);
    EXPECT_EQ(window.Test_Pic_draws, draws);
    setup_SSTab1_Click(1);
    EXPECT_EQ(window.Test_Pic_draws, draws + 1);
}

TEST_F(SetupTest, refused_keys_reset_the_box_to_its_own_text) {
    struct Box {
        int (*press)(int);
        std::string SetupWindow::*text;
        const char* reset;
        const char* focus;
    };
    const Box boxes[] = {{Txt_Def_Arc_Val_KeyPress, &SetupWindow::Txt_Def_Arc_Val, "3",
                          "focus setup.Txt_Def_Arc_Val"},
                         {Txt_Def_Circle_Val_KeyPress, &SetupWindow::Txt_Def_Circle_Val, "4",
                          "focus setup.Txt_Def_Circle_Val"},
                         {Txt_Def_Dec_Val_KeyPress, &SetupWindow::Txt_Def_Dec_Val, "0",
                          "focus setup.Txt_Def_Dec_Val"},
                         {Txt_Def_zoom_Val_KeyPress, &SetupWindow::Txt_Def_zoom_Val, "0",
                          "focus setup.Txt_Def_zoom_Val"}};
    for (const Box& box : boxes) {
        window.*box.text = "77";
        for (const int key : {int{'0'}, int{'9'}, 8, 13})
            EXPECT_EQ(box.press(key), key);
        EXPECT_EQ(window.*box.text, "77");
        EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
        for (const int key : {int{'.'}, int{','}, int{'-'}, int{'a'}}) {
            window.*box.text = "77";
            machine.windows.calls.clear();
            EXPECT_EQ(box.press(key), 0);
            EXPECT_EQ(window.*box.text, box.reset);
            EXPECT_THAT(machine.windows.calls, ElementsAre(box.focus));
            EXPECT_EQ(machine.dialogs.boxes.back().text, kOnlyNumbers);
        }
        machine.dialogs.boxes.clear();
    }
}

TEST_F(SetupTest, leaving_the_arcs_box_below_3_takes_the_focus_back) {
    for (const char* low : {"2", "0", "", "x"}) {
        machine.windows.calls.clear();
        window.Txt_Def_Arc_Val = low;
        Txt_Def_Arc_Val_LostFocus();
        EXPECT_EQ(window.Txt_Def_Arc_Val, "3") << low;
        EXPECT_EQ(machine.dialogs.boxes.back().text, "Un arco debe tener como mínimo 3 puntos!");
        EXPECT_THAT(machine.windows.calls, ElementsAre("focus setup.Txt_Def_Arc_Val"));
    }
    window.Txt_Def_Arc_Val = "3";
    Txt_Def_Arc_Val_LostFocus();
    EXPECT_EQ(machine.dialogs.boxes.size(), 4U);
}

TEST_F(SetupTest, leaving_the_circles_box_lets_3_pass_though_its_message_says_4) {
    window.Txt_Def_Circle_Val = "3";
    Txt_Def_Circle_Val_LostFocus();
    EXPECT_EQ(window.Txt_Def_Circle_Val, "3");
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    window.Txt_Def_Circle_Val = "2";
    Txt_Def_Circle_Val_LostFocus();
    EXPECT_EQ(window.Txt_Def_Circle_Val, "4");
    EXPECT_THAT(texts_of_boxes(), ElementsAre("Un círculo debe tener como mínimo 4 puntos!"));
    EXPECT_THAT(machine.windows.calls, ElementsAre("focus setup.Txt_Def_Circle_Val"));
}

TEST_F(SetupTest, accepting_stores_and_brings_everything_in_line) {
    window.Txt_Def_Dec_Val = "4";
    window.Txt_Def_Arc_Val = "30";
    window.Txt_Def_Circle_Val = "60";
    window.Txt_Def_zoom_Val = "2500";
    window.APP_Sound = false;
    session.cl_fondo = 10;
    session.cl_coords = 20;
    setup_cmd_ok_Click();
    EXPECT_EQ(session.Precision, 4);
    EXPECT_EQ(session.PutArc, 30);
    EXPECT_EQ(session.PutCircle, 60);
    EXPECT_EQ(session.ZoomFactor, 2500);
    EXPECT_EQ(session.Sound, 0);
    EXPECT_EQ(session.winoptions.TxtPrecision, "4");
    EXPECT_EQ(session.winoptions.TxtPutArc, "30");
    EXPECT_EQ(session.winoptions.TxtPutCircle, "60");
    EXPECT_EQ(session.winoptions.Txt_zoom, "2500");
    EXPECT_EQ(session.Velmora.pic_BackColor, 10U);
    EXPECT_EQ(session.Velmora.lbl_xyfloat_ForeColor, 20U);
    EXPECT_EQ(stored("Def_Dec"), "4");
    EXPECT_EQ(stored("Def_Arc"), "30");
    EXPECT_EQ(stored("Def_ACircle"), "60");
    EXPECT_EQ(stored("Def_Zoom"), "2500");
    EXPECT_EQ(stored("sound"), "0");
    EXPECT_EQ(stored("cl_fondo"), "10");
    EXPECT_THAT(machine.windows.calls, ElementsAre("unload setup"));
}

TEST_F(SetupTest, a_start_zoom_of_0_is_stored_and_leaves_a_zoom_that_can_be_divided_by) {
    for (const char* zoom : {"0", "0.0", "-3"}) {
        SCOPED_TRACE(zoom);
        session.ZoomFactor = 7;
        window.Txt_Def_zoom_Val = zoom;
        setup_cmd_ok_Click();
        EXPECT_EQ(session.ZoomFactor, 1.0);
        EXPECT_LE(session.Def_Zoom, 0);
        EXPECT_EQ(stored("Def_Zoom"), zoom == std::string("-3") ? "-3" : "0");
        EXPECT_EQ(session.winoptions.Txt_zoom, stored("Def_Zoom"));
    }
}

TEST_F(SetupTest, other_decimals_round_the_shape_at_once_to_the_new_precision) {
    Forma.Pto.redim(2);
    Forma.Pto[1].X = 1.23456;
    session.winoptions.TxtPrecision = "6";
    window.Txt_Def_Dec_Val = "2";
    setup_cmd_ok_Click();
    EXPECT_EQ(Forma.Pto[1].X, 1.23);
    Forma.Pto[1].X = 1.23456;
    setup_cmd_ok_Click();
    EXPECT_EQ(Forma.Pto[1].X, 1.23456);
}

TEST_F(SetupTest, another_language_is_told_in_the_old_one_and_stored) {
    window.Cmb_Lang = "Italiano";
    setup_cmd_ok_Click();
    EXPECT_THAT(texts_of_boxes(),
                ElementsAre("El cambio de idioma será efectivo la próxima vez que ejecutes el "
                            "programa Velmora!"));
    EXPECT_EQ(session.Idioma, "T");
    EXPECT_EQ(stored("Idioma"), "T");
}

TEST_F(SetupTest, the_same_language_is_not_told_and_an_unknown_name_is_Spanish) {
    setup_cmd_ok_Click();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    window.Cmb_Lang = "Klingon";
    setup_cmd_ok_Click();
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
    EXPECT_EQ(session.Idioma, "E");
}

TEST_F(SetupTest, a_box_without_a_number_raises_13_and_nothing_is_stored) {
    for (auto box : {&SetupWindow::Txt_Def_Dec_Val, &SetupWindow::Txt_Def_Arc_Val,
                     &SetupWindow::Txt_Def_Circle_Val, &SetupWindow::Txt_Def_zoom_Val}) {
        setup_Activate();
        window.*box = "";
        EXPECT_EQ(number_of([] { setup_cmd_ok_Click(); }), 13);
    }
    window.Txt_Def_Dec_Val = "99999999999";
    EXPECT_EQ(number_of([] { setup_cmd_ok_Click(); }), 6);
    EXPECT_TRUE(machine.settings.values.empty());
    EXPECT_THAT(machine.windows.calls, IsEmpty());
}

} // namespace
} // namespace velmora
