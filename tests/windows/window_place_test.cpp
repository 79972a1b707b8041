// The main window comes back where it was, on a screen that exists.
#include "windows/windows_test.h"

#include "ui/window_place.h"

#include <QMainWindow>
#include <QScreen>
#include <QtTest>

namespace velmora::test {

namespace {

class WindowPlaceTest : public WindowsTest {
  protected:
    QWidget& main() { return *window("Velmora"); }
    QRect room() { return main().screen()->availableGeometry(); }
    void store(const char* place) { settings().save("Window", "place", place); }
    std::optional<std::string> stored() { return settings().get("Window", "place"); }
    void wait_for_keeper() { QTest::qWait(400); }
};

TEST_F(WindowPlaceTest, comes_back_with_its_size) {
    store("40 30 620 510 0");
    start_program();
    EXPECT_EQ(main().pos(), QPoint(40, 30));
    EXPECT_EQ(main().size(), QSize(620, 510));
    EXPECT_FALSE(main().isMaximized());
}

TEST_F(WindowPlaceTest, comes_back_filling_the_screen) {
    store("40 30 620 510 1");
    start_program();
    EXPECT_TRUE(main().isMaximized());
    main().showNormal();
    settle();
    EXPECT_EQ(main().size(), QSize(620, 510));
}

TEST_F(WindowPlaceTest, comes_onto_the_screen_as_far_as_it_must) {
    store("450 -60 620 510 0"); // the offscreen screen is 800 by 800
    start_program();
    ASSERT_TRUE(room().contains(main().frameGeometry()));
    EXPECT_EQ(main().size(), QSize(620, 510));
    EXPECT_EQ(main().frameGeometry().topRight(), room().topRight());
}

TEST_F(WindowPlaceTest, gets_no_larger_than_the_screen) {
    store("0 0 5000 700 0");
    start_program();
    EXPECT_TRUE(room().contains(main().frameGeometry()));
}

TEST_F(WindowPlaceTest, a_screen_that_is_gone_or_no_place_is_as_at_the_first_start) {
    start_program();
    const QRect first = main().geometry();
    for (const char* text :
         {"4000 3000 620 510 0", "-2000 0 620 510 0", "40 30 620", "", "a b c d e",
          "40 30 20 510 0", "40 30 -620 510 0", "40 30 620 510 0 7", "99999999999 0 620 510 0"}) {
        rebuild();
        store(text);
        start_program();
        EXPECT_EQ(main().geometry(), first) << text;
    }
}

TEST_F(WindowPlaceTest, is_stored_a_moment_after_the_user_changed_it) {
    start_program();
    new WindowPlaceKeeper(main(), 0);
    wait_for_keeper();
    EXPECT_EQ(stored(), std::nullopt) << "the program's own placing is none of the user's";
    main().move(50, 40);
    main().resize(640, 520);
    wait_for_keeper();
    EXPECT_EQ(stored(), "50 40 640 520 0");
    main().showMaximized();
    wait_for_keeper();
    EXPECT_EQ(stored(), "50 40 640 520 1");
    main().showMinimized();
    wait_for_keeper();
    EXPECT_EQ(stored(), "50 40 640 520 1");
}

TEST_F(WindowPlaceTest, nothing_is_stored_at_the_end) {
    start_program();
    main().resize(640, 520);
    windows().close("Velmora");
    settle();
    EXPECT_EQ(stored(), std::nullopt);
}

} // namespace

} // namespace velmora::test
