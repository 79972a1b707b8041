// Each window in each language of the program: every text whole, no mnemonic twice.
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "services/literals.h"
#include "ui/window.h"
#include "windows/bare_windows.h"
#include "windows/shown_texts.h"

#include <QAbstractButton>
#include <QWidget>
#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

namespace velmora::test {

namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

/// The buttons with words that have no letter underlined. Places such as "(0, 0)" have none.
std::vector<std::string> without_mnemonic(QWidget& window) {
    std::vector<std::string> found;
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        const QString text = button->text();
        const bool has_word = std::ranges::any_of(text, [](QChar c) { return c.isLetter(); });
        if (has_word && !button->objectName().startsWith("qt_") && !text.contains('&'))
            found.push_back(button->objectName().toStdString());
    }
    return found;
}

/// Spanish captions that are given without one.
const std::map<std::string, std::vector<std::string>, std::less<>> kPlainInSpanish = {
    {"ajuste", {"cmd_selA", "cmd_selB", "Cmd_Ajuste", "ChkPtosCtrl", "Cmd_save"}},
    {"setup", {"APP_Sound"}},
    {"teclas", {"Command1"}},
};

class LanguagesTest : public testing::TestWithParam<const char*> {
  protected:
    LanguagesTest() { session.Idioma = GetParam(); }

    RecordingPlatform machine{test::with_database};
    BareWindows windows;
};

TEST_P(LanguagesTest, every_window_shows_its_texts_whole) {
    for (const std::string_view name : window_names()) {
        const auto window = make_window(name, windows.around);
        AplicaLiterales(window->form(), "");
        window->widget().show();
        EXPECT_THAT(cut_texts(window->widget()), IsEmpty()) << name;
        EXPECT_EQ(clashing_mnemonics(window->widget()).toStdString(), "") << name;
        const QString folder = qEnvironmentVariable("VELMORA_PICTURES");
        if (!folder.isEmpty())
            window->widget().grab().save(folder + '/' + QString::fromUtf8(name) + '-' + GetParam() +
                                         ".png");
    }
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_P(LanguagesTest, every_button_has_a_mnemonic) {
    for (const std::string_view name : window_names()) {
        if (name == "Velmora")
            continue; // its keys show pictures
        const auto window = make_window(name, windows.around);
        AplicaLiterales(window->form(), "");
        const auto plain = kPlainInSpanish.find(name);
        const bool given = session.Idioma == "E" && plain != kPlainInSpanish.end();
        EXPECT_THAT(without_mnemonic(window->widget()),
                    UnorderedElementsAreArray(given ? plain->second : std::vector<std::string>()))
            << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguagesTest, testing::Values("E", "I", "F", "P", "T"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace

} // namespace velmora::test
