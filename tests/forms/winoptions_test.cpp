#include "forms/winoptions.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "forms/intro.h"
#include "forms/velmora.h"
#include "starting.h"
#include "support/error_number.h"
#include "support/outline.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::FakeForm;
using test::number_of;
using test::RecordingPlatform;
using test::set_shape;
using test::StartTest;

TEST_F(StartTest, the_options_window_reads_the_settings_and_shows_the_flags) {
    intro_Load();
    Velmora_Load();
    machine.settings.save("Values", "Def_Arc", "17");
    session.ShowPtos = session.GenDATSinc = session.OptimizeOnGen = False;
    session.GenSCR = True;
    winoptions_Load();
    const WinOptions& box = session.winoptions;
    EXPECT_EQ(box.TxtPutArc, "17");
    EXPECT_FALSE(box.ChkPtos);
    EXPECT_TRUE(box.ChkPtosCtrl);
    EXPECT_TRUE(box.ChkCoords);
    EXPECT_FALSE(box.ChkDATSinc);
    EXPECT_TRUE(box.ChkSCR);
    EXPECT_FALSE(box.Chk_DATPerfil);
    EXPECT_FALSE(box.chk_optimize);
    EXPECT_TRUE(box.chk_Redim_Capture);
}

TEST_F(StartTest, winoptions_takes_its_literals) {
    FakeForm form("winoptions");
    machine.windows.forms["winoptions"] = &form;
    intro_Load();
    machine.database->execute("DELETE FROM winoptions");
    machine.database->execute("INSERT INTO winoptions VALUES ('winoptions','E','Título','')");
    winoptions_Load();
    EXPECT_EQ(form.own_caption, "Título");
}

TEST(OutputChoice, one_type_excludes_the_others) {
    struct Case {
        void (*click)();
        Flag sinc, script, profile;
        const char* extension;
    };
    const Case cases[] = {
        {ChkSCR_Click, False, True, False, ".scr"},
        {Chk_DATPerfil_Click, False, False, True, ".dat"},
        {ChkDATSinc_Click, True, False, False, ".dat"},
        {ChkDATSinc_Click, True, False, False, ".dat"},
    };
    RecordingPlatform platform;
    for (const Case& c : cases) {
        c.click();
        EXPECT_EQ(session.GenDATSinc, c.sinc);
        EXPECT_EQ(session.GenSCR, c.script);
        EXPECT_EQ(session.GenDATPerfil, c.profile);
        EXPECT_EQ(session.winoptions.ChkDATSinc, c.sinc == True);
        EXPECT_EQ(session.winoptions.ChkSCR, c.script == True);
        EXPECT_EQ(session.winoptions.Chk_DATPerfil, c.profile == True);
        EXPECT_EQ(session.DefExt, c.extension);
    }
}

TEST(OutputChoice, the_name_takes_the_extension) {
    struct Case {
        void (*click)();
        const char* before;
        const char* after;
    };
    const Case cases[] = {
        {ChkSCR_Click, "/casa/ala.dat", "/casa/ala.scr"},
        {ChkSCR_Click, "/casa/ala.DAT", "/casa/ala.scr"},
        {ChkSCR_Click, "/casa/ala.Scr", "/casa/ala.Scr"},
        {ChkSCR_Click, "/casa/a.scripts/ala.dat", "/casa/a.scripts/ala.dat"}, // has it somewhere
        {ChkDATSinc_Click, "ala.scr", "ala.dat"},
        {Chk_DATPerfil_Click, "ALA.DAT", "ALA.DAT"},
        {Chk_DATPerfil_Click, "alerón", "al.dat"},
        {ChkSCR_Click, "pañol", "p.scr"},
        {ChkSCR_Click, "ala", ".scr"},
        {ChkSCR_Click, "", ""},
    };
    RecordingPlatform platform;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.before);
        session.Velmora.TxtDat_File = c.before;
        session.FileName = std::string("old");
        c.click();
        EXPECT_EQ(session.Velmora.TxtDat_File, c.after);
        EXPECT_EQ(session.FileName, c.after);
    }
}

TEST(WinOptionsWindow, the_check_boxes_set_their_flags) {
    struct Case {
        void (*click)();
        bool WinOptions::*box;
        Flag Session::*value;
        int repaints;
    };
    const Case cases[] = {
        {ChkPtos_Click, &WinOptions::ChkPtos, &Session::ShowPtos, 1},
        {ChkPtosCtrl_Click, &WinOptions::ChkPtosCtrl, &Session::ShowPtosCtrl, 1},
        {ChkCoords_Click, &WinOptions::ChkCoords, &Session::ShowCoords, 0},
        {chk_optimize_Click, &WinOptions::chk_optimize, &Session::OptimizeOnGen, 0},
        {chk_Redim_Capture_Click, &WinOptions::chk_Redim_Capture, &Session::RedimCapture, 0},
    };
    RecordingPlatform platform;
    set_shape({{0, 0}, {4, 1}, {2, 0}});
    for (const Case& c : cases) {
        for (const bool ticked : {false, true}) {
            platform.pic.operations.clear();
            session.winoptions.*c.box = ticked;
            c.click();
            EXPECT_EQ(session.*c.value, flag(ticked));
            EXPECT_EQ(std::ranges::count(platform.pic.operations, "cls"), c.repaints);
        }
    }
}

TEST(TxtZoom, Enter_takes_the_number_with_either_separator) {
    struct Case {
        char separator;
        const char* typed;
        const char* text;
        double zoom;
    };
    const Case cases[] = {
        {'.', "2,5", "2.5", 2.5},
        {'.', "2.5", "2.5", 2.5},
        {',', "2.5", "2,5", 2.5},
        {',', " 30000 ", " 30000 ", 30000},
        {'.', "0.1234567890123456", "0.1234567890123456", 0.1234567890123456},
        {'.', "0.00000000000000000012345678949", "0.00000000000000000012345678949",
         0.0000000000000000001234567895}, // the decimal type has 28 places
    };
    RecordingPlatform platform;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        set_shape({{0, 0}, {1, 1}, {2, 0}});
        session.SepDecimal = c.separator;
        session.winoptions.Txt_zoom = c.typed;
        EXPECT_EQ(Txt_zoom_KeyPress(13), 13);
        EXPECT_EQ(session.winoptions.Txt_zoom, c.text);
        EXPECT_EQ(session.ZoomFactor, c.zoom);
    }
}

TEST(TxtZoom, Enter_lays_out_and_repaints) {
    RecordingPlatform platform;
    set_shape({{0, 0}, {4, 1}, {2, 0}});
    session.Longitud = 777;
    session.winoptions.Txt_zoom = std::string("0");
    (void)Txt_zoom_KeyPress(13);
    EXPECT_EQ(session.ZoomFactor, 1); // the layout's guard
    EXPECT_EQ(session.Longitud, 4);
    EXPECT_EQ(std::ranges::count(platform.pic.operations, "cls"), 1);
    (void)Txt_zoom_KeyPress('5');
    EXPECT_EQ(std::ranges::count(platform.pic.operations, "cls"), 1);
}

TEST(TxtZoom, a_text_that_is_no_number_is_a_fault) {
    RecordingPlatform platform;
    const std::pair<const char*, int> cases[] = {
        {"", 13}, {"1.2.3", 13}, {"79228162514264337593543950335", 6}, {"1e400", 6}};
    for (const auto& [text, number] : cases) {
        session.winoptions.Txt_zoom = text;
        EXPECT_EQ(number_of([] { (void)Txt_zoom_KeyPress(13); }), number) << text;
    }
}

TEST(WinOptionsWindow, the_numeric_boxes_refuse_other_keys) {
    struct Case {
        int (*press)(int);
        std::string WinOptions::*text;
        const char* focus;
        bool takes_separators;
    };
    const Case cases[] = {
        {TxtPutArc_KeyPress, &WinOptions::TxtPutArc, "focus winoptions.TxtPutArc", false},
        {TxtPutCircle_KeyPress, &WinOptions::TxtPutCircle, "focus winoptions.TxtPutCircle", false},
        {TxtPrecision_KeyPress, &WinOptions::TxtPrecision, "focus winoptions.TxtPrecision", false},
        {Txt_zoom_KeyPress, &WinOptions::Txt_zoom, "focus winoptions.Txt_zoom", true},
    };
    RecordingPlatform platform{test::with_database};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.focus);
        session.winoptions.*c.text = std::string("25");
        platform.windows.calls.clear();
        EXPECT_EQ(c.press('7'), '7');
        EXPECT_EQ(c.press(8), 8);
        EXPECT_EQ(session.winoptions.*c.text, "25");
        EXPECT_EQ(c.press('x'), 0);
        EXPECT_EQ(session.winoptions.*c.text, "0");
        EXPECT_EQ(platform.windows.calls, std::vector<std::string>{c.focus});
        for (const int separator : {int{'.'}, int{','}})
            EXPECT_EQ(c.press(separator), c.takes_separators ? separator : 0);
    }
}

TEST(WinOptionsWindow, only_the_zoom_heeds_Enter) {
    RecordingPlatform platform;
    session.PutArc = 25;
    session.winoptions.TxtPutArc = std::string("7");
    EXPECT_EQ(TxtPutArc_KeyPress(13), 13);
    EXPECT_EQ(TxtPutCircle_KeyPress(13), 13);
    EXPECT_EQ(TxtPrecision_KeyPress(13), 13);
    EXPECT_EQ(session.PutArc, 25);
}

TEST(WinOptionsWindow, it_rolls_up_when_it_loses_the_activation_unless_pinned) {
    RecordingPlatform platform;
    winoptions_Activate();
    EXPECT_EQ(winoptions_height(), 4245);
    winoptions_Deactivate();
    EXPECT_EQ(winoptions_height(), 300);
    winoptions_Activate();
    EXPECT_EQ(winoptions_height(), 4245);
    session.winoptions.chk_winoptions = true;
    winoptions_Deactivate();
    EXPECT_EQ(winoptions_height(), 4245);
}

} // namespace
} // namespace velmora
