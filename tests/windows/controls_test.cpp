// Every control stands in its window under its name, in the form's order, with its kind.
#include "ui/window_host.h"
#include "windows/windows_test.h"

#include "commands/command_table.h"
#include "platform/form.h"

#include <QAction>
#include <QProgressBar>
#include <QTimer>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsSupersetOf;

class ControlsTest : public WindowsTest {
  protected:
    void SetUp() override { start_program(); }

    /// The names in the form's order, a control array's with their places.
    std::vector<std::string> names(std::string_view window) {
        std::vector<std::string> result;
        Form& form = *windows().form(window);
        for (int i = 0; i < form.control_count(); ++i)
            result.push_back(name_of(form.control(i)));
        return result;
    }
    FormControl& form_control(std::string_view window, std::string_view name) {
        Form& form = *windows().form(window);
        for (int i = 0; i < form.control_count(); ++i)
            if (name_of(form.control(i)) == name)
                return form.control(i);
        throw std::runtime_error("no control " + std::string(name));
    }

  private:
    static std::string name_of(const FormControl& control) {
        try {
            return control.name() + "(" + std::to_string(control.index()) + ")";
        } catch (const RuntimeError& failure) {
            EXPECT_EQ(failure.number, error::not_an_array);
            return control.name();
        }
    }
};

std::vector<std::string> named_menu_entries() {
    std::vector<std::string> result;
    for (const MenuEntry& entry : menu_entries()) {
        if (entry.name.empty())
            continue;
        std::string name(entry.name);
        if (entry.index > 0)
            name.append("(").append(std::to_string(entry.index)).append(")");
        result.push_back(name);
    }
    return result;
}

TEST_F(ControlsTest, the_main_window_holds_its_controls_in_order) {
    std::vector<std::string> expected = {"pic",        "lbl_xyfloat", "Lst_Coords",
                                         "TxtDescDat", "TxtDat_File", "Timer1"};
    const auto menus = named_menu_entries();
    expected.insert(expected.end(), menus.begin(), menus.end());
    for (const char* name :
         {"SSPanel1", "SSScroll", "CoolBar1", "TBar4", "TBar3", "TBar2", "CommonDialog1",
          "StatusBar1", "Pbar1", "pbar2", "ImageList2", "lbl_position"})
        expected.emplace_back(name);
    EXPECT_THAT(names("Velmora"), ElementsAreArray(expected));
}

TEST_F(ControlsTest, the_options_hold_their_controls_in_order) {
    EXPECT_THAT(names("winoptions"),
                ElementsAre("frm_Format", "Label1", "TxtPutCircle", "TxtPutArc", "Label19",
                            "Label18", "TxtPrecision", "Label2", "ChkPtos", "Txt_zoom",
                            "ChkPtosCtrl", "ChkCoords", "Label4", "chk_winoptions", "SSTab1",
                            "ChkSCR", "Chk_DATPerfil", "ChkDATSinc", "SSFrame2",
                            "chk_Redim_Capture", "SSFrame1", "chk_optimize", "SSFrame3"));
}

TEST_F(ControlsTest, the_information_holds_its_controls_in_order_around_its_labels) {
    std::vector<std::string> rest;
    for (const std::string& name : names("wininfo"))
        if (!name.starts_with("Label") && !name.starts_with("Shp"))
            rest.push_back(name);
    EXPECT_THAT(rest, ElementsAre("TxtAcadFile", "TxtOpensw", "txtAcadVer", "Frame3", "TxtNArcs",
                                  "TxtNCircles", "TxtNLWPolylines", "TxtProcesed", "TxtNlines",
                                  "TxtNSplines", "Frame1", "TxtTotalCtrlPtos", "Txt_longitud",
                                  "Txt_Altura", "TxtOrigX", "TxtOrigY", "TxtTotalPtos",
                                  "TxtPtosSupr", "Image1", "SSTab1", "chk_wininfo"));
}

TEST_F(ControlsTest, the_scaling_dialog_holds_its_controls) {
    windows().run([this] { windows().load("Scale_xy"); });
    EXPECT_THAT(
        names("Scale_xy"),
        IsSupersetOf({"Opt_fixed", "Opt_percent", "frm_fixed", "frm_percent", "txt_fixed_x",
                      "txt_fixed_y", "txt_percent_x", "txt_percent_y", "cmd_ok", "cmd_cancel"}));
}

TEST_F(ControlsTest, each_listed_control_is_reachable_by_its_name) {
    for (const char* window : {"Velmora", "winoptions", "wininfo"})
        for (const std::string& name : names(window))
            EXPECT_NE(windows().control(window, name), nullptr) << window << "." << name;
    EXPECT_EQ(windows().control("Velmora", "nobody"), nullptr);
    EXPECT_EQ(windows().control("Velmora", "mnuRecentFile(11)"), nullptr);
    EXPECT_EQ(windows().control("nobody", "pic"), nullptr);
}

TEST_F(ControlsTest, the_idle_timer_never_runs) {
    const auto& timer = control<QTimer>("Velmora", "Timer1");
    EXPECT_EQ(timer.interval(), 10);
    EXPECT_FALSE(timer.isActive());
}

TEST_F(ControlsTest, kinds_and_parts_are_those_of_the_form) {
    EXPECT_EQ(form_control("Velmora", "TBar2").kind(), ControlKind::tool_bar);
    EXPECT_EQ(form_control("Velmora", "TBar2").parts(), 7);
    EXPECT_EQ(form_control("Velmora", "TBar3").parts(), 2);
    EXPECT_EQ(form_control("Velmora", "TBar4").parts(), 10);
    EXPECT_EQ(form_control("Velmora", "StatusBar1").kind(), ControlKind::status_bar);
    EXPECT_EQ(form_control("Velmora", "StatusBar1").parts(), 1);
    EXPECT_EQ(form_control("winoptions", "SSTab1").kind(), ControlKind::tab_strip);
    EXPECT_EQ(form_control("winoptions", "SSTab1").parts(), 3);
    EXPECT_EQ(form_control("Velmora", "TxtDescDat").kind(), ControlKind::text_box);
    EXPECT_EQ(form_control("Velmora", "mnu_openfile").kind(), ControlKind::other);
}

TEST_F(ControlsTest, what_a_control_lacks_is_error438) {
    for (const char* name : {"pic", "Lst_Coords", "Timer1", "CommonDialog1", "Pbar1", "SSPanel1"})
        EXPECT_THROW((void)form_control("Velmora", name).text(0), RuntimeError) << name;
    EXPECT_THROW((void)form_control("Velmora", "mnu_openfile").tip(0), RuntimeError);
    EXPECT_THROW(form_control("Velmora", "Timer1").set_tip(0, "tip"), RuntimeError);
}

TEST_F(ControlsTest, texts_and_tips_go_to_the_widgets) {
    form_control("Velmora", "mnu_openfile").set_text(0, "&Open");
    EXPECT_EQ(control<QAction>("Velmora", "mnu_openfile").text(), "&Open");
    form_control("Velmora", "TBar2").set_tip(0, "Leave");
    EXPECT_EQ(control<QAction>("Velmora", "K_EXIT").toolTip(), "Leave");
    form_control("Velmora", "StatusBar1").set_text(0, "Ready");
    EXPECT_EQ(form_control("Velmora", "StatusBar1").text(0), "Ready");
    form_control("winoptions", "SSTab1").set_text(1, "File");
    EXPECT_EQ(control<QTabWidget>("winoptions", "SSTab1").tabText(1), "File");
    form_control("winoptions", "frm_Format").set_text(0, "Format");
    EXPECT_EQ(control<QGroupBox>("winoptions", "frm_Format").title(), "Format");
    form_control("Velmora", "TxtDescDat").set_tip(0, "Description");
    EXPECT_EQ(control<QLineEdit>("Velmora", "TxtDescDat").accessibleName(), "Description");
}

TEST_F(ControlsTest, a_text_put_into_a_box_is_in_the_session_at_once) {
    form_control("Velmora", "TxtDescDat").set_text(0, "ala");
    EXPECT_EQ(session.Velmora.TxtDescDat, "ala");
}

TEST_F(ControlsTest, a_caption_stands_in_the_title_and_in_the_session) {
    windows().form("Velmora")->set_caption("Otro");
    EXPECT_EQ(window("Velmora")->windowTitle(), "Otro");
    EXPECT_EQ(session.Velmora.Caption, "Otro");
}

TEST_F(ControlsTest, progress_bars_show_their_terms) {
    session.Velmora.Pbar1 = {.Min = 0, .Max = 250, .Value = 40};
    session.Velmora.pbar2 = {.Min = 0, .Max = 0, .Value = 7};
    windows().refresh();
    const auto& first = control<QProgressBar>("Velmora", "Pbar1");
    EXPECT_EQ(first.maximum(), 250);
    EXPECT_EQ(first.value(), 40);
    const auto& second = control<QProgressBar>("Velmora", "pbar2");
    EXPECT_LT(second.minimum(), second.maximum()) << "a bar without a range is busy for ever";
    EXPECT_EQ(second.value(), 0);
}

} // namespace

} // namespace velmora::test
