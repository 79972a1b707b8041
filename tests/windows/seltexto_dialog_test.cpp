// Text to shape, driven by keys and clicks over the desktop's fonts.
#include "windows/dialogs_test.h"

#include "support/outline.h"
#include "ui/text_picture.h"
#include "windows/shown_texts.h"

#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const Points kTriangle = {{0, 0}, {4, 0}, {4, 4}};

class SeltextoDialogTest : public DialogsTest {
  protected:
    void in_window(const std::function<void()>& steps) {
        set_shape(kTriangle);
        in_dialog("mnu_seltexto", "seltexto", [&] {
            QApplication::setActiveWindow(window("seltexto")); // for the underlined letters
            settle();
            steps();
        });
    }
    QLineEdit& box() { return control<QLineEdit>("seltexto", "char"); }
    QPushButton& button(const char* name) { return control<QPushButton>("seltexto", name); }
    TextPicture& picture_of_text() { return control<TextPicture>("seltexto", "Pictext"); }

    /// Key by key, also what no key of a western keyboard gives.
    void type(const QString& text) {
        for (const QChar letter : text) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
            QApplication::sendEvent(&box(), &press);
            settle();
        }
    }
    /// By its underlined letter; the button is seen going down before it acts.
    void press_letter(Qt::Key letter) {
        QTest::keyClick(window("seltexto"), letter, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return window("seltexto") == nullptr; }));
    }
    void choose(const FontChoice& font) {
        dialogs().fonts.emplace_back(font);
        QTest::mouseClick(&button("cmd_font"), Qt::LeftButton);
        settle();
    }
    /// Pixels of the picture that are not its ground.
    int inked() {
        settle();
        const QImage shown = picture_of_text().viewport()->grab().toImage();
        const QRgb ground = picture_of_text().palette().color(QPalette::Base).rgb();
        int count = 0;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                count += (shown.pixel(x, y) | 0xff000000U) != ground;
        return count;
    }
};

TEST_F(SeltextoDialogTest, opens_empty_with_the_focus_on_the_text) {
    in_window([this] {
        EXPECT_EQ(window("seltexto")->windowTitle(), "Forma desde Texto");
        EXPECT_EQ(box().text(), "");
        EXPECT_EQ(window("seltexto")->focusWidget(), &box());
        EXPECT_EQ(inked(), 0);
        EXPECT_THAT(tab_order(box()),
                    ElementsAre("char", "cmd_font", "Pictext", "cmd_load", "cmd_exit"));
        expect_nothing_cut(*window("seltexto"));
    });
    EXPECT_THAT(told, ElementsAre("open seltexto", "closed seltexto"));
}

TEST_F(SeltextoDialogTest, each_key_shows_the_text_anew) {
    in_window([this] {
        type("l");
        EXPECT_EQ(session.seltexto.last_index, 3);
        const int one = inked();
        EXPECT_GT(one, 100);
        type("l");
        EXPECT_EQ(session.seltexto.last_index, 7);
        EXPECT_NEAR(inked(), 2 * one, one / 4);
        QTest::keyClick(&box(), Qt::Key_Backspace);
        EXPECT_EQ(session.seltexto.last_index, 3);
        EXPECT_EQ(inked(), one);
        type("ñ ¡Ala!");
        picture(*window("seltexto"), "seltexto");
    });
}

TEST_F(SeltextoDialogTest, an_emptied_box_keeps_the_picture) {
    in_window([this] {
        type("l");
        const int shown = inked();
        QTest::keyClick(&box(), Qt::Key_Backspace);
        EXPECT_EQ(box().text(), "");
        EXPECT_EQ(inked(), shown);
    });
}

TEST_F(SeltextoDialogTest, load_makes_the_text_the_shape_and_closes) {
    in_window([this] {
        type("l");
        QTest::mouseClick(&button("cmd_load"), Qt::LeftButton);
        settle();
        EXPECT_EQ(window("seltexto"), nullptr);
    });
    EXPECT_THAT(shape(), SizeIs(4));
    EXPECT_EQ(session.TotalPtos, 4);
    EXPECT_THAT(dialogs().boxes, IsEmpty());
}

TEST_F(SeltextoDialogTest, load_works_by_its_letter_and_by_enter_on_it) {
    in_window([this] {
        type("l");
        QTest::keyClick(&box(),
                        Qt::Key_Return); // no key of the text's own, as in the other windows
        EXPECT_NE(window("seltexto"), nullptr);
        button("cmd_load").setFocus();
        QTest::keyClick(&button("cmd_load"), Qt::Key_Return);
        settle();
        EXPECT_EQ(window("seltexto"), nullptr);
    });
    EXPECT_THAT(shape(), SizeIs(4));
    in_window([this] {
        type("ll");
        press_letter(Qt::Key_C);
    });
    EXPECT_THAT(shape(), SizeIs(8));
}

TEST_F(SeltextoDialogTest, exit_esc_and_the_close_box_leave_the_shape) {
    const std::function<void()> ways[] = {
        [this] { QTest::mouseClick(&button("cmd_exit"), Qt::LeftButton); },
        [this] { QTest::keyClick(&box(), Qt::Key_Escape); },
        [this] { press_letter(Qt::Key_S); },
        [this] { window("seltexto")->close(); },
    };
    for (const auto& leave : ways) {
        in_window([&] {
            type("l");
            leave();
            settle();
            EXPECT_EQ(window("seltexto"), nullptr);
        });
        EXPECT_EQ(shape(), kTriangle);
    }
}

TEST_F(SeltextoDialogTest, a_chosen_font_shows_the_text_in_it) {
    in_window([this] {
        type("l");
        const int at_72 = inked();
        choose({"DejaVu Sans", 24, false, false});
        EXPECT_EQ(session.seltexto.Pictext_Font.size, 24);
        EXPECT_LT(inked(), at_72 / 2);
        choose({"DejaVu Sans", 1000, true, true});
        EXPECT_GT(picture_of_text().verticalScrollBar()->maximum(), 0);
    });
}

TEST_F(SeltextoDialogTest, a_cancelled_font_dialog_changes_nothing) {
    in_window([this] {
        type("l");
        const int before = inked();
        QTest::mouseClick(&button("cmd_font"), Qt::LeftButton);
        settle();
        EXPECT_EQ(inked(), before);
        EXPECT_EQ(session.seltexto.Pictext_Font.size, 72);
    });
}

TEST_F(SeltextoDialogTest, a_long_text_is_reached_by_the_scroll_bar_and_by_keys) {
    in_window([this] {
        type("mmmmmmmmmmmm");
        QScrollBar& bar = *picture_of_text().horizontalScrollBar();
        EXPECT_GT(bar.maximum(), 0);
        EXPECT_TRUE(bar.isVisible());
        const int at_start = inked();
        picture_of_text().setFocus();
        QTest::keyClick(&picture_of_text(), Qt::Key_Right);
        EXPECT_GT(bar.value(), 0);
        bar.setValue(bar.maximum());
        EXPECT_GT(inked(), at_start / 4); // the last letters
    });
}

TEST_F(SeltextoDialogTest, a_text_beyond1000_entries_shows_nothing_and_its_load_ends_the_program) {
    in_window([this] {
        QApplication::clipboard()->setText(QString(250, 'l'));
        box().paste();
        settle();
        EXPECT_EQ(session.seltexto.last_index, 999);
        EXPECT_GT(inked(), 0);
        type("l");
        EXPECT_EQ(session.seltexto.last_index, -2);
        EXPECT_EQ(inked(), 0);
        EXPECT_THAT(told, ElementsAre("open seltexto"));
        QTest::mouseClick(&button("cmd_load"), Qt::LeftButton);
        settle();
        EXPECT_THAT(told, testing::Contains("fault 9"));
    });
    EXPECT_EQ(shape(), kTriangle);
}

TEST_F(SeltextoDialogTest, texts_of_every_kind_become_a_shape) {
    for (const char16_t* text : {u"שלום", u"سلام", u"e\u0301x\u0302", u"漢字", u"lאבl", u"\u0301",
                                 u"ß€", u"\xD83D\xDE00l"}) {
        in_window([&] {
            type(QString::fromUtf16(text));
            EXPECT_GT(session.seltexto.last_index, 2);
            EXPECT_GT(inked(), 0);
            QTest::mouseClick(&button("cmd_load"), Qt::LeftButton);
            settle();
        });
        EXPECT_GE(Forma.Pto.upper(), 3) << QString::fromUtf16(text).toStdString();
    }
    EXPECT_THAT(dialogs().boxes, IsEmpty());
    EXPECT_THAT(told, testing::Not(testing::Contains(testing::StartsWith("fault"))));
}

TEST_F(SeltextoDialogTest, blanks_are_no_text) {
    in_window([this] {
        type("   ");
        EXPECT_EQ(inked(), 0);
        QTest::mouseClick(&button("cmd_load"), Qt::LeftButton);
        settle();
    });
    EXPECT_EQ(shape(), (Points{{0, 0}}));
    EXPECT_THAT(told, ElementsAre("open seltexto", "closed seltexto"));
}

struct Captions {
    const char* language;
    const char *title, *text, *font, *load, *exit;
};

class SeltextoLanguages : public SeltextoDialogTest,
                          public testing::WithParamInterface<Captions> {};

TEST_P(SeltextoLanguages, its_captions_come_from_its_table_and_none_is_cut) {
    const Captions& captions = GetParam();
    session.Idioma = captions.language;
    in_window([&] {
        EXPECT_EQ(window("seltexto")->windowTitle(), captions.title);
        EXPECT_EQ(box().toolTip(), captions.text);
        EXPECT_EQ(box().placeholderText(), captions.text);
        EXPECT_EQ(box().accessibleName(), captions.text);
        EXPECT_EQ(button("cmd_font").text(), captions.font);
        EXPECT_EQ(button("cmd_load").text(), captions.load);
        EXPECT_EQ(button("cmd_exit").text(), captions.exit);
        EXPECT_THAT(cut_texts(*window("seltexto")), IsEmpty());
        expect_nothing_cut(*window("seltexto"));
        picture(*window("seltexto"), std::string("seltexto-") + captions.language);
    });
}

INSTANTIATE_TEST_SUITE_P(
    Languages, SeltextoLanguages,
    testing::Values(Captions{"E", "Forma desde Texto", "Texto que será la forma", "&Fuente...",
                             "&Cargar", "&Salir"},
                    Captions{"I", "Shape from Text", "Text that becomes the shape", "&Font…",
                             "&Load", "&Close"},
                    Captions{"F", "Forme à partir d’un texte", "Texte qui deviendra la forme",
                             "&Police…", "&Charger", "&Fermer"},
                    Captions{"P", "Forma a partir de texto", "Texto que será a forma",
                             "Tipo de &letra…", "&Carregar", "&Fechar"},
                    Captions{"T", "Sagoma da testo", "Testo che diventerà la sagoma", "Ca&rattere…",
                             "&Carica", "Chi&udi"}),
    [](const auto& tongue) { return std::string(tongue.param.language); });

} // namespace

} // namespace velmora::test
