// The dialog of the three distances: its boxes, its button, its drawing.
#include "windows/dialogs_test.h"

#include <QLineEdit>
#include <QPushButton>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;

class AjusteOptDialogTest : public DialogsTest {
  protected:
    /// Over the workbench, as its button opens it.
    void in_window(const std::function<void()>& steps) {
        in_dialog("mnu_corrpoltrap", "ajuste", [this, &steps] {
            session.ajuste.cmd_opt_enabled = true;
            windows().refresh();
            dialogs().boxes.clear();
            bool ran = false;
            QTimer::singleShot(0, [this, &steps, &ran] {
                ASSERT_NE(window("ajuste_opt"), nullptr);
                ran = true;
                settle();
                steps();
                settle();
                if (QWidget* left = window("ajuste_opt"))
                    left->close();
            });
            control<QPushButton>("ajuste", "cmd_opt").click();
            EXPECT_TRUE(ran);
        });
    }
    QLineEdit& box(const char* name) { return control<QLineEdit>("ajuste_opt", name); }
    QPushButton& ok() { return control<QPushButton>("ajuste_opt", "cmb_ok"); }
    QWidget& drawing() { return control<QWidget>("ajuste_opt", "Picture1"); }

    void paint_in(const QColor& ground, const QColor& text) {
        QPalette palette = drawing().palette();
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::WindowText, text);
        window("ajuste_opt")->setPalette(palette);
        settle();
    }
    /// Pixels of the drawing that are nearer to the one colour than to the other.
    int nearer_to(const QColor& wanted, const QColor& other) {
        const QImage image = drawing().grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                count += std::abs(image.pixelColor(x, y).lightness() - wanted.lightness()) <
                         std::abs(image.pixelColor(x, y).lightness() - other.lightness());
        return count;
    }
};

TEST_F(AjusteOptDialogTest, opens_empty_with_the_drawing_and_a_button_that_waits) {
    in_window([this] {
        EXPECT_EQ(window("ajuste_opt")->windowTitle(), "Opciones del Ajuste");
        EXPECT_EQ(box("txt_X").text() + box("txt_Y").text() + box("txt_Z").text(), "");
        EXPECT_EQ(ok().text(), "&Aceptar");
        EXPECT_FALSE(ok().isEnabled());
        EXPECT_TRUE(box("txt_X").hasFocus());
        EXPECT_THAT(tab_order(box("txt_X")), ElementsAre("txt_X", "txt_Y", "txt_Z"));
        picture(*window("ajuste_opt"), "ajuste_opt");
    });
}

TEST_F(AjusteOptDialogTest, nothing_is_cut_in_any_language) {
    const std::pair<const char*, const char*> titles[] = {{"E", "Opciones del Ajuste"},
                                                          {"I", "Distances of the Machine"},
                                                          {"F", "Distances de la machine"},
                                                          {"P", "Distâncias da máquina"},
                                                          {"T", "Distanze della macchina"}};
    for (const auto& [language, title] : titles) {
        SCOPED_TRACE(language);
        session.Idioma = language;
        in_window([this, title = title] {
            EXPECT_EQ(window("ajuste_opt")->windowTitle(), title);
            expect_nothing_cut(*window("ajuste_opt"));
        });
    }
}

TEST_F(AjusteOptDialogTest, three_typed_distances_are_kept) {
    in_window([this] {
        QTest::keyClicks(&box("txt_X"), "100");
        QTest::keyClicks(&box("txt_Y"), "50.5");
        EXPECT_FALSE(ok().isEnabled());
        QTest::keyClicks(&box("txt_Z"), "400");
        EXPECT_TRUE(ok().isEnabled());
        ok().setFocus();
        QTest::keyClick(&ok(), Qt::Key_Return);
        settle();
        EXPECT_EQ(window("ajuste_opt"), nullptr);
    });
    EXPECT_EQ(session.OptX, 100);
    EXPECT_EQ(session.OptY, 50.5);
    EXPECT_EQ(session.OptZ, 400);
    EXPECT_TRUE(session.ajuste.Cmd_Ajuste_enabled);
}

TEST_F(AjusteOptDialogTest, a_refused_key_empties_its_box_to0) {
    in_window([this] {
        QTest::keyClicks(&box("txt_Z"), "40");
        QTest::keyClick(&box("txt_Z"), '-');
        ASSERT_EQ(dialogs().boxes.size(), 1U);
        EXPECT_EQ(dialogs().boxes[0].text, "Sólo se permiten números!");
        EXPECT_EQ(box("txt_Z").text(), "0");
        EXPECT_TRUE(box("txt_Z").hasFocus());
    });
}

TEST_F(AjusteOptDialogTest, esc_keeps_nothing_and_opens_the_adjustment_all_the_same) {
    in_window([this] {
        QTest::keyClicks(&box("txt_X"), "100");
        QTest::keyClick(window("ajuste_opt"), Qt::Key_Escape);
        settle();
        EXPECT_EQ(window("ajuste_opt"), nullptr);
    });
    EXPECT_EQ(session.OptX, 0);
    EXPECT_TRUE(session.ajuste.Cmd_Ajuste_enabled);
}

TEST_F(AjusteOptDialogTest, the_drawing_has_the_colour_of_the_windows_text) {
    in_window([this] {
        const QColor dark("#202326");
        const QColor light("#f2f2f2");
        paint_in(dark, light);
        const int in_the_dark = nearer_to(light, dark);
        picture(*window("ajuste_opt"), "ajuste_opt-dark");
        paint_in(light, dark);
        EXPECT_GT(in_the_dark, 500);
        EXPECT_GT(nearer_to(dark, light), 500);
    });
}

} // namespace

} // namespace velmora::test
