// Every window from the keyboard alone: where presses of Tab lead, page by page.
#include "windows/dialogs_test.h"

#include "support/outline.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTabWidget>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;
using Names = std::vector<std::string>;

constexpr auto kTabs = "qt_tabwidget_tabbar";

class TabOrderTest : public DialogsTest {
  protected:
    void SetUp() override {
        DialogsTest::SetUp();
        set_shape({{0, 0}, {4, 0}, {4, 4}, {0, 4}});
        session.PtoSel = 1;
    }
    /// Opens a window as its command does, on a page of its tabs where it has some, and goes to it:
    /// a floating one leaves the keyboard with the main window.
    Names order_in(const char* window, const char* first, int page = 0) {
        show(window);
        this->window(window)->activateWindow();
        settle();
        if (auto* tabs = this->window(window)->findChild<QTabWidget*>())
            tabs->setCurrentIndex(page);
        settle();
        return tab_order(control<QWidget>(window, first));
    }
};

TEST_F(TabOrderTest, main_window) {
    EXPECT_THAT(order_in("Velmora", "TxtDat_File"),
                ElementsAre("TxtDat_File", "TxtDescDat", "Lst_Coords", "pic"));
}

TEST_F(TabOrderTest, setup) {
    EXPECT_THAT(order_in("setup", "Txt_Def_Dec_Val"),
                ElementsAre("Txt_Def_Dec_Val", "Txt_Def_Arc_Val", "Txt_Def_Circle_Val",
                            "Txt_Def_zoom_Val", "Cmb_Lang", "APP_Sound", "chk_fit_open", "cmd_ok",
                            "cmd_cancel", kTabs));
    EXPECT_THAT(order_in("setup", "lblcolor_fondo", 1),
                ElementsAre("lblcolor_fondo", "lblcolor_ejes", "lblcolor_lineas",
                            "lblcolor_lineaini", "lblcolor_lineados", "lblcolor_ptos",
                            "lblcolor_ptosinc", "lblcolor_ptosel", "lblcolor_coords", "cmd_ok",
                            "cmd_cancel", kTabs));
}

TEST_F(TabOrderTest, options) {
    EXPECT_THAT(order_in("winoptions", "TxtPrecision"),
                ElementsAre("TxtPrecision", "Txt_zoom", "ChkPtos", "ChkPtosCtrl", "ChkCoords",
                            "chk_winoptions", kTabs));
    // The arrow keys go from one output to the next.
    EXPECT_THAT(order_in("winoptions", "ChkDATSinc", 1),
                ElementsAre("ChkDATSinc", "chk_optimize", "chk_winoptions", kTabs));
    EXPECT_THAT(
        order_in("winoptions", "TxtPutArc", 2),
        ElementsAre("TxtPutArc", "TxtPutCircle", "chk_Redim_Capture", "chk_winoptions", kTabs));
}

// Figures that only show are visited too: they can be selected and copied.
TEST_F(TabOrderTest, information) {
    EXPECT_THAT(order_in("wininfo", "chk_wininfo"),
                ElementsAre("chk_wininfo", kTabs, "TxtTotalPtos", "TxtPtosSupr", "TxtTotalCtrlPtos",
                            "TxtOrigX", "TxtOrigY", "Txt_longitud", "Txt_Altura"));
    EXPECT_THAT(order_in("wininfo", "chk_wininfo", 1),
                ElementsAre("chk_wininfo", kTabs, "TxtOpensw", "txtAcadVer", "TxtAcadFile",
                            "TxtNlines", "TxtNArcs", "TxtNCircles", "TxtNSplines",
                            "TxtNLWPolylines", "TxtProcesed"));
}

TEST_F(TabOrderTest, scaling) {
    EXPECT_THAT(order_in("Scale_xy", "Opt_fixed"),
                ElementsAre("Opt_fixed", "txt_fixed_x", "txt_fixed_y", "cmd_ok", "cmd_cancel"));
    QTest::keyClick(&control<QWidget>("Scale_xy", "Opt_fixed"), Qt::Key_Right);
    EXPECT_THAT(
        order_in("Scale_xy", "Opt_percent"),
        ElementsAre("Opt_percent", "txt_percent_x", "txt_percent_y", "cmd_ok", "cmd_cancel"));
}

TEST_F(TabOrderTest, fewer_points) {
    EXPECT_THAT(order_in("del_Npto", "Txt_Numpoints2del"),
                ElementsAre("Txt_Numpoints2del", "Txt_JumpPoints", "cmd_ok", "cmd_cancel"));
}

TEST_F(TabOrderTest, more_points) {
    EXPECT_THAT(order_in("Mult_Ptos", "Combo1"), ElementsAre("Combo1", "cmd_ok", "cmd_cancel"));
}

TEST_F(TabOrderTest, compensation) {
    EXPECT_THAT(order_in("Compensa", "Txt_merma"), ElementsAre("Txt_merma", "cmd_cancel"));
    control<QLineEdit>("Compensa", "Txt_merma").setText("2");
    EXPECT_THAT(order_in("Compensa", "Txt_merma"),
                ElementsAre("Txt_merma", "cmd_ok", "cmd_cancel"));
}

TEST_F(TabOrderTest, importing_before_a_file_is_chosen) {
    EXPECT_THAT(order_in("importar", "Cmd_File"),
                ElementsAre("Cmd_File", "Lst_Chains", "Txt_Report", "Chk_Doubles", "cmd_cancel",
                            "Txt_File"));
}

TEST_F(TabOrderTest, shortcut_keys) {
    EXPECT_THAT(order_in("teclas", "Command1"), ElementsAre("Command1"));
}

TEST_F(TabOrderTest, about) {
    EXPECT_THAT(order_in("acerca", "Command1"), ElementsAre("Command1", "lbl_web", "lbl_mail"));
}

} // namespace

} // namespace velmora::test
