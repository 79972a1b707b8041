// Menus, tool bars and shortcuts are those of the command table.
#include "windows/windows_test.h"

#include "commands/command_table.h"

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QtTest>
#include <algorithm>
#include <gmock/gmock.h>
#include <set>

namespace velmora::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MenusTest : public WindowsTest {
  protected:
    void SetUp() override { start_program(); }

    QMenu& menu(std::string_view name) {
        return *window("Velmora")->findChild<QMenu*>(QString::fromStdString(std::string(name)));
    }
    QAction& entry(std::string_view name) { return control<QAction>("Velmora", name); }
    void press(QWidget& widget, const char* keys) {
        const QKeySequence sequence(keys);
        QTest::keyClick(&widget, sequence[0].key(), sequence[0].keyboardModifiers());
    }
};

TEST_F(MenusTest, the_menu_bar_holds_the_top_menus_and_not_the_pop_up) {
    std::vector<std::string> names;
    for (const QAction* action : window("Velmora")->findChild<QMenuBar*>()->actions())
        names.push_back(action->objectName().toStdString());
    EXPECT_THAT(names, ElementsAre("mnu_Archivo", "mnu_config", "mnu_funcs", "mnuherra", "mnuacad",
                                   "mnu_ver", "mnu_hlp"));
}

TEST_F(MenusTest, each_menu_holds_its_rows_in_order) {
    std::map<std::string_view, int> next;
    for (const MenuEntry& row : menu_entries()) {
        if (row.menu.empty())
            continue;
        const int place = next[row.menu]++;
        const QList<QAction*> actions = menu(row.menu).actions();
        ASSERT_LT(place, actions.size()) << row.name;
        const QAction& action = *actions[place];
        EXPECT_EQ(action.objectName().toStdString(), row.name);
        EXPECT_EQ(action.isSeparator(), row.caption == "-") << row.name;
        EXPECT_EQ(action.shortcut(),
                  QKeySequence(QString::fromStdString(std::string(row.shortcut))))
            << row.name;
        EXPECT_EQ(action.property("Index").toInt(), row.index);
    }
    for (const auto& [name, count] : next)
        EXPECT_EQ(menu(name).actions().size(), count) << name;
}

TEST_F(MenusTest, compensation_and_the_head_of_the_pop_up_stay_hidden) {
    EXPECT_FALSE(entry("mnu_paralela").isVisible());
    EXPECT_FALSE(entry("ptss").isVisible());
    session.Velmora.menus["mnu_paralela"].visible = true;
    windows().refresh();
    EXPECT_FALSE(entry("mnu_paralela").isVisible());
}

TEST_F(MenusTest, no_two_entries_share_a_shortcut) {
    std::set<QString> seen;
    for (const QAction* action : window("Velmora")->findChildren<QAction*>()) {
        const QString keys = action->shortcut().toString();
        EXPECT_TRUE(keys.isEmpty() || seen.insert(keys).second) << keys.toStdString();
    }
    const auto with_keys = std::ranges::count_if(
        menu_entries(), [](const MenuEntry& row) { return !row.shortcut.empty(); });
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(with_keys));
}

TEST_F(MenusTest, each_bar_holds_its_keys_with_tip_and_icon) {
    std::map<std::string_view, int> next;
    for (const ToolKey& key : tool_keys()) {
        const auto& bar = control<QToolBar>("Velmora", key.bar);
        QAction& action = *bar.actions().at(next[key.bar]++);
        EXPECT_EQ(action.objectName().toStdString(), key.key);
        EXPECT_EQ(action.toolTip().toStdString(), key.tip);
        EXPECT_EQ(bar.widgetForAction(&action)->accessibleName().toStdString(), key.tip);
        for (const int size : {16, 24, 48})
            EXPECT_FALSE(action.icon().pixmap(size, size).isNull()) << key.key;
    }
}

TEST_F(MenusTest, icons_stand_out_on_light_and_dark_windows) {
    const auto lightness = [this] {
        const QImage image = entry("K_OPEN").icon().pixmap(24, 24).toImage();
        int lightest = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).alpha() > 200)
                    lightest = std::max(lightest, image.pixelColor(x, y).lightness());
        return lightest;
    };
    EXPECT_LT(lightness(), 140);
    QPalette dark;
    dark.setColor(QPalette::Window, QColor("#202327"));
    dark.setColor(QPalette::WindowText, QColor("#eeeeee"));
    window("Velmora")->setPalette(dark);
    EXPECT_GT(lightness(), 200);
}

TEST_F(MenusTest, the_connection_enables_and_disables_its_entries) {
    EXPECT_FALSE(entry("mnu_capture").isEnabled()); // no CAD runs
    EXPECT_FALSE(entry("menu_select_orig").isEnabled());
    EXPECT_FALSE(entry("mnu_SendToCad").isEnabled());
    EXPECT_TRUE(entry("mnu_Reconect").isEnabled());
    session.Velmora.menus["mnu_capture"].enabled = true;
    windows().refresh();
    EXPECT_TRUE(entry("mnu_capture").isEnabled());
}

TEST_F(MenusTest, recent_files_stand_in_the_file_menu) {
    EXPECT_FALSE(entry("mnuRecentFileSep").isVisible());
    EXPECT_FALSE(entry("mnuRecentFile(1)").isVisible());
    session.Velmora.mnuRecentFileSep_visible = true;
    session.Velmora.mnuRecentFile[1] = {"&1 ala.dat", "/tmp/ala.dat", true};
    windows().refresh();
    EXPECT_TRUE(entry("mnuRecentFileSep").isVisible());
    EXPECT_TRUE(entry("mnuRecentFile(1)").isVisible());
    EXPECT_EQ(entry("mnuRecentFile(1)").text(), "&1 ala.dat");
    EXPECT_EQ(entry("mnuRecentFile(1)").toolTip(), "/tmp/ala.dat");
    EXPECT_TRUE(menu("mnu_Archivo").toolTipsVisible());
    EXPECT_FALSE(entry("mnuRecentFile(2)").isVisible());
}

TEST_F(MenusTest, shortcuts_work_wherever_the_focus_is_in_the_main_window) {
    Forma.Pto.redim(1);
    Forma.Pto[0] = {1, 2};
    Forma.Pto[1] = {3, 4};
    for (const char* name : {"pic", "Lst_Coords", "TxtDescDat"}) {
        auto& focused = control<QWidget>("Velmora", name);
        focused.setFocus();
        settle();
        const std::uint64_t fills = session.Velmora.Lst_Coords_fill;
        press(focused, "F5");
        EXPECT_EQ(session.Velmora.Lst_Coords_fill, fills + 1) << name;
    }
}

// In a text box the desktop's Ctrl+A would select the text; the menu's comes first, on purpose.
TEST_F(MenusTest, ctrl_a_opens_a_file_from_every_control_of_the_main_window) {
    std::size_t opened = 0;
    for (const char* name : {"pic", "Lst_Coords", "TxtDescDat", "TxtDat_File"}) {
        auto& focused = control<QWidget>("Velmora", name);
        focused.setFocus();
        settle();
        press(focused, "Ctrl+A");
        EXPECT_EQ(dialogs().open_calls.size(), ++opened) << name;
    }
}

TEST_F(MenusTest, the_pop_up_opens_behind_the_handler_and_closes_for_the_next) {
    windows().run([this] {
        windows().popup_menu("OPT_PTO");
        EXPECT_FALSE(menu("OPT_PTO").isVisible());
    });
    EXPECT_TRUE(menu("OPT_PTO").isVisible());
    windows().run([] {});
    EXPECT_FALSE(menu("OPT_PTO").isVisible());
}

} // namespace

} // namespace velmora::test
