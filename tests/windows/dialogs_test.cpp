// The desktop's dialogs as the program asks for them.
#include "adapters/qt/qt_dialogs.h"
#include "ui/key_filter.h"
#include "ui/translations.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora::test {

namespace {

using testing::ElementsAre;
using testing::EndsWith;

class DialogsTest : public testing::Test {
  protected:
    /// Works on the dialog once it is open; it must close it.
    template <class Dialog>
    void when_open(std::function<void(Dialog&)> work) {
        QTimer::singleShot(20, [this, work = std::move(work)] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            opened = true;
            work(*dialog);
        });
    }
    ~DialogsTest() override { EXPECT_TRUE(opened); }

    std::unique_ptr<Dialogs> dialogs = make_qt_dialogs();
    bool opened = false;
};

TEST_F(DialogsTest, a_box_has_its_title_text_icon_and_buttons) {
    when_open<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Velmora 1.0");
        EXPECT_EQ(box.text(), "¿<b>Salir</b>?");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_TRUE(box.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(
        dialogs->message("¿<b>Salir</b>?", buttons::yes_no + buttons::question, "Velmora 1.0"),
        answer::no);
}

class BoxAnswers : public DialogsTest, public testing::WithParamInterface<std::array<int, 3>> {};

TEST_P(BoxAnswers, each_button_gives_its_answer) {
    const auto [asked, button, expected] = GetParam();
    when_open<QMessageBox>([button = button](QMessageBox& box) {
        box.button(static_cast<QMessageBox::StandardButton>(button))->click();
    });
    EXPECT_EQ(dialogs->message("x", asked, "y"), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, BoxAnswers,
    testing::Values(std::array{buttons::ok, int{QMessageBox::Ok}, answer::ok},
                    std::array{buttons::ok_cancel, int{QMessageBox::Ok}, answer::ok},
                    std::array{buttons::ok_cancel, int{QMessageBox::Cancel}, answer::cancel},
                    std::array{buttons::yes_no, int{QMessageBox::Yes}, answer::yes},
                    std::array{buttons::yes_no, int{QMessageBox::No}, answer::no},
                    std::array{buttons::yes_no_cancel, int{QMessageBox::Cancel}, answer::cancel}));

TEST_F(DialogsTest, enter_is_ok_or_yes) {
    when_open<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(dialogs->message("x", buttons::yes_no, "y"), answer::yes);
}

TEST_F(DialogsTest, an_input_box_starts_with_its_preset_and_gives_the_text) {
    when_open<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.labelText(), "Angulo :");
        EXPECT_EQ(box.textValue(), "0");
        box.setTextValue("90");
        box.accept();
    });
    EXPECT_EQ(dialogs->input("Angulo :", "Velmora", "0"), "90");
}

TEST_F(DialogsTest, a_cancelled_input_box_gives_nothing) {
    when_open<QInputDialog>([](QInputDialog& box) { box.reject(); });
    EXPECT_EQ(dialogs->input("Angulo :", "Velmora", "0"), std::nullopt);
}

TEST_F(DialogsTest, the_open_dialog_shows_the_filter_and_gives_the_path) {
    QTemporaryDir folder;
    QFile file(folder.filePath("ala.DAT"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    when_open<QFileDialog>([](QFileDialog& box) {
        EXPECT_EQ(box.windowTitle(), "Abrir");
        EXPECT_EQ(box.nameFilters(),
                  (QStringList{"Archivo DAT (*.dat *.DAT)", "Autocad DXF (*.dxf *.DXF)"}));
        box.findChild<QLineEdit*>("fileNameEdit")->setText("ala.DAT");
        QMetaObject::invokeMethod(&box, "accept");
    });
    EXPECT_THAT(dialogs->open_file({"Abrir", "Archivo DAT (*.DAT)|*.DATAutocad DXF (*.DXF)|*.DXF",
                                    folder.path().toStdString(), ""}),
                EndsWith("/ala.DAT"));
}

TEST_F(DialogsTest,
       the_save_dialog_proposes_a_name_and_leaves_the_overwrite_question_to_the_program) {
    QTemporaryDir folder;
    QFile file(folder.filePath("ala.dat"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    when_open<QFileDialog>([](QFileDialog& box) {
        EXPECT_EQ(box.findChild<QLineEdit*>("fileNameEdit")->text(), "ala.dat");
        QMetaObject::invokeMethod(&box, "accept");
    });
    EXPECT_THAT(
        dialogs->save_file({"Guardar", "DAT|*.dat", folder.path().toStdString(), "ala.dat"}),
        EndsWith("/ala.dat"));
}

TEST_F(DialogsTest, a_colour_goes_in_and_comes_out_with_red_in_the_low_byte) {
    when_open<QColorDialog>([](QColorDialog& box) {
        EXPECT_EQ(box.currentColor(), QColor(255, 0, 0));
        box.setCurrentColor(QColor(1, 2, 3));
        box.accept();
    });
    EXPECT_EQ(dialogs->choose_colour(255), 1U + 256 * 2 + 65536 * 3);
}

class FontDialog : public DialogsTest, public testing::WithParamInterface<bool> {};

// In the program's language, which the dialog also uses for the names of styles.
TEST_P(FontDialog, starts_with_the_present_font_and_gives_the_chosen_one) {
    install_translations("E");
    const bool bold = GetParam();
    when_open<QFontDialog>([bold](QFontDialog& box) {
        EXPECT_EQ(box.currentFont().family(), "DejaVu Serif");
        EXPECT_EQ(box.currentFont().pointSize(), 72);
        EXPECT_EQ(box.currentFont().bold(), bold);
        EXPECT_FALSE(box.currentFont().italic());
        const auto boxes = box.findChildren<QLineEdit*>();
        const auto size = std::ranges::find_if_not(boxes, &QLineEdit::isReadOnly);
        ASSERT_NE(size, boxes.end());
        (*size)->setText("36");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    const auto chosen = dialogs->choose_font({"DejaVu Serif", 72, bold, false});
    ASSERT_TRUE(chosen.has_value());
    EXPECT_EQ(chosen->name, "DejaVu Serif");
    EXPECT_EQ(chosen->size, 36);
    EXPECT_EQ(chosen->bold, bold);
    EXPECT_FALSE(chosen->italic);
}

INSTANTIATE_TEST_SUITE_P(Weights, FontDialog, testing::Bool());

TEST_F(DialogsTest, without_a_name_the_font_dialog_starts_with_the_desktops_font) {
    when_open<QFontDialog>([](QFontDialog& box) {
        EXPECT_EQ(box.currentFont().family(), QFontInfo(QApplication::font()).family());
        EXPECT_FALSE(box.currentFont().bold());
        EXPECT_FALSE(box.currentFont().italic());
        box.accept();
    });
    const auto chosen = dialogs->choose_font({"", 72, false, false});
    ASSERT_TRUE(chosen.has_value());
    EXPECT_EQ(chosen->size, 72);
}

TEST_F(DialogsTest, a_cancelled_font_dialog_gives_nothing) {
    when_open<QFontDialog>([](QFontDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_FALSE(dialogs->choose_font({"DejaVu Sans", 72, false, false}).has_value());
}

/// A box with a rule for leaving it, beside a button.
class LostFocusTest : public testing::Test {
  protected:
    LostFocusTest() {
        auto* rows = new QVBoxLayout(&window);
        rows->addWidget(box);
        rows->addWidget(button);
        new LostFocusFilter(*box, [this] {
            told.emplace_back("left");
            if (take_back)
                box->setFocus();
        });
        QObject::connect(button, &QAbstractButton::clicked, [this] { told.emplace_back("click"); });
        window.show();
        QApplication::setActiveWindow(&window);
        box->setFocus();
    }

    QWidget window;
    QLineEdit* box = new QLineEdit;
    QPushButton* button = new QPushButton;
    bool take_back = false;
    std::vector<std::string> told;
};

TEST_F(LostFocusTest, leaving_the_box_is_noticed_before_the_click_that_caused_it) {
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_THAT(told, ElementsAre("left", "click"));
}

TEST_F(LostFocusTest, the_click_is_carried_out_even_when_the_box_takes_the_focus_back) {
    take_back = true;
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_THAT(told, ElementsAre("left", "click"));
    EXPECT_TRUE(box->hasFocus());
}

TEST_F(LostFocusTest, a_click_whose_release_a_message_took_is_carried_out) {
    QTest::mousePress(button, Qt::LeftButton);
    // What a message box leaves behind: the button is down, no mouse button is.
    QTest::mouseRelease(&window, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_THAT(told, ElementsAre("left", "click"));
    EXPECT_FALSE(button->isDown());
}

TEST_F(LostFocusTest, another_window_that_takes_the_focus_is_not_noticed) {
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    EXPECT_TRUE(told.empty());
}

} // namespace

} // namespace velmora::test
