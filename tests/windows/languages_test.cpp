// Each window in each language of the program: every text whole, no mnemonic twice.
#include "document/session.h"
#include "services/literals.h"
#include "support/recording_platform.h"
#include "ui/window.h"
#include "windows/bare_windows.h"
#include "windows/shown_texts.h"

#include <QWidget>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::test {

namespace {

using testing::IsEmpty;

class LanguagesTest : public testing::TestWithParam<const char*> {
  protected:
    LanguagesTest() { session.Idioma = GetParam(); }

    RecordingPlatform machine;
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

INSTANTIATE_TEST_SUITE_P(Languages, LanguagesTest, testing::Values("E", "I", "F", "P", "T"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace

} // namespace velmora::test
