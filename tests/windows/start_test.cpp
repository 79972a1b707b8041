// From the start window to the main window's first activation, and the ways out.
#include "windows/windows_test.h"

#include "ui/picture_label.h"

#include <QLabel>
#include <QTimer>
#include <QtTest>
#include <filesystem>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::Contains;
using testing::ElementsAre;

class StartTest : public WindowsTest {
  protected:
    QTimer& timer() { return control<QTimer>("intro", "Timer1"); }
    QAction& entry(const char* name) { return control<QAction>("Velmora", name); }
};

TEST_F(StartTest, the_start_window_gives_way_to_the_main_one_and_the_side_windows_follow) {
    start_program();
    EXPECT_THAT(told, ElementsAre("open intro", "closed intro", "open Velmora", "open wininfo",
                                  "open winoptions"));
    EXPECT_EQ(session.FirstActivate, False);
    EXPECT_TRUE(control<QWidget>("Velmora", "pic").hasFocus());
    EXPECT_TRUE(session.winoptions.rolled_up);
    EXPECT_TRUE(session.wininfo.rolled_up);
}

TEST_F(StartTest, the_timer_is_armed_for_five_seconds_and_gives_way_too) {
    windows().start();
    EXPECT_EQ(timer().interval(), 5000);
    EXPECT_TRUE(timer().isActive());
    timer().start(0);
    QTRY_COMPARE(window("intro"), nullptr);
    EXPECT_THAT(told, Contains("open Velmora"));
}

TEST_F(StartTest, a_click_on_the_picture_or_its_texts_ends_the_start_window) {
    for (const char* name : {"Image1", "Label1", "lblVelmora", "lblVer"}) {
        rebuild();
        windows().start();
        settle();
        QTest::mouseClick(&control<QWidget>("intro", name), Qt::LeftButton);
        settle();
        EXPECT_EQ(window("intro"), nullptr) << name;
    }
}

TEST_F(StartTest, a_click_on_the_build_number_does_nothing) {
    windows().start();
    settle();
    QTest::mouseClick(&control<QWidget>("intro", "lblsubver"), Qt::LeftButton);
    EXPECT_NE(window("intro"), nullptr);
}

TEST_F(StartTest, closing_the_start_window_ends_the_program) {
    windows().start();
    window("intro")->close();
    EXPECT_THAT(told, ElementsAre("open intro", "closed intro", "ended"));
}

TEST_F(StartTest, the_caption_carries_version_build_and_credit) {
    start_program();
    EXPECT_TRUE(window("Velmora")->windowTitle().startsWith("Velmora 1.0 (1011) "))
        << window("Velmora")->windowTitle().toStdString();
}

// A message has no text of its own to fall back to.
TEST_F(StartTest, without_a_database_the_windows_have_their_design_texts_and_a_message_is_a_fault) {
    std::filesystem::remove(path("VELMORA.MDB"));
    start_program();
    EXPECT_EQ(entry("mnu_openfile").text(), "Abrir");
    EXPECT_EQ(entry("mnu_Archivo").text(), "&Archivo");
    EXPECT_EQ(window("winoptions")->windowTitle(), "Opciones Generales");
    EXPECT_EQ(told.back(), "open winoptions");
    entry("mnu_invert").trigger(); // no shape: message 37
    EXPECT_EQ(told.back(), "fault 91");
}

TEST_F(StartTest, a_stored_value_that_is_no_number_is_a_fault_at_the_start) {
    settings().values[{"Values", "Def_Dec"}] = "seis";
    windows().start();
    EXPECT_THAT(told, ElementsAre("fault 13"));
}

TEST_F(StartTest, stored_settings_reach_the_options) {
    settings().values[{"Values", "Def_Zoom"}] = "12.5";
    settings().values[{"Values", "Def_Arc"}] = "9";
    start_program();
    EXPECT_EQ(session.winoptions.Txt_zoom, "12.5");
    EXPECT_EQ(session.PutArc, 9);
}

TEST_F(StartTest, the_menus_exit_asks_and_the_key_is_silent_after_a_no) {
    start_program();
    dialogs().boxes.clear();
    dialogs().answers = {7};
    entry("K_EXIT").trigger();
    EXPECT_EQ(dialogs().boxes.size(), 1U);
    entry("K_EXIT").trigger();
    EXPECT_EQ(dialogs().boxes.size(), 1U);
    dialogs().answers = {6};
    settings().values[{"Values", "sound"}] = "0";
    session.Sound = 0;
    told.clear();
    entry("mnu_exit").trigger();
    EXPECT_EQ(dialogs().boxes.size(), 2U);
    EXPECT_THAT(told, ElementsAre("closed wininfo", "closed winoptions", "ended"));
}

} // namespace

} // namespace velmora::test
