// `show`, `picture` and `trace`: what a script asks of the program and its windows.
#include "questions/questions.h"
#include "runtime/paths.h"
#include "script/fault.h"
#include "script/numbers.h"
#include "script/words.h"
#include "windows/actions.h"
#include "windows/controls.h"
#include "windows/stage.h"
#include "windows/window_texts.h"

#include <QAbstractItemView>
#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <algorithm>
#include <array>

namespace velmora::driver {

namespace {

void points(Stage& stage, Words words) {
    show_points(stage.transcript, words);
}

void values(Stage& stage, Words words) {
    show_values(stage.transcript, stage.places, words);
}

/// A line `NAME CONTROL ANSWER` for each control.
template <class Ask>
void each_control(Stage& stage, Words words, const char* name, Ask ask) {
    if (words.empty())
        fault(std::string("the form is show ") + name + " CONTROL ...");
    for (const std::string& word : words)
        stage.transcript.line(name, word, ask(find_control(stage.windows(), word), word));
}

std::string flag_text(bool value) {
    return value ? "-1" : "0";
}

void text(Stage& stage, Words words) {
    each_control(stage, words, "text", [&](const QObject& control, const std::string& word) {
        return stage.places.word(text_shown(control, word));
    });
}

void enabled(Stage& stage, Words words) {
    each_control(stage, words, "enabled", [](const QObject& control, const std::string& word) {
        return flag_text(is_enabled(control, word));
    });
}

void visible(Stage& stage, Words words) {
    each_control(stage, words, "visible", [](const QObject& control, const std::string&) {
        return flag_text(is_visible(control));
    });
}

void checked(Stage& stage, Words words) {
    each_control(stage, words, "checked", [](const QObject& control, const std::string& word) {
        return flag_text(is_checked(control, word));
    });
}

void list(Stage& stage, Words words) {
    want_words(words, 0, "show list");
    const auto* view =
        qobject_cast<QAbstractItemView*>(&find_control(stage.windows(), "Velmora.Lst_Coords"));
    if (view == nullptr)
        fault("Lst_Coords is no list");
    const QAbstractItemModel& rows = *view->model();
    stage.transcript.line("list", number_text(std::int32_t{rows.rowCount()}));
    for (int row = 0; row < rows.rowCount(); ++row)
        stage.transcript.line(driver::quoted(rows.index(row, 0).data().toString().toStdString()));
}

void file(Stage& stage, Words words) {
    want_words(words, 1, "show file PATH");
    show_file(stage.transcript, stage.places, words[0]);
}

void files(Stage& stage, Words words) {
    want_words(words, 1, "show files FOLDER");
    show_files(stage.transcript, stage.places, words[0]);
}

void settings(Stage& stage, Words words) {
    want_words(words, 0, "show settings");
    show_settings(stage.transcript, stage.places, stage.settings());
}

void objects(Stage& stage, Words words) {
    want_words(words, 0, "show objects");
    show_objects(stage.transcript);
}

void cad(Stage& stage, Words words) {
    want_words(words, 0, "show cad");
    show_cad(stage.transcript, stage.places, stage.cad);
}

void pixel(Stage& stage, Words words) {
    want_words(words, 2, "show pixel X Y");
    const QPoint place(whole_number(words[0]), whole_number(words[1]));
    auto* canvas = qobject_cast<QWidget*>(&find_control(stage.windows(), "Velmora.pic"));
    if (canvas == nullptr || !canvas->rect().contains(place))
        fault("the canvas has no such pixel");
    const QColor colour = canvas->grab(QRect(place, QSize(1, 1))).toImage().pixelColor(0, 0);
    const std::string name = colour.name().toUpper().toStdString().substr(1);
    stage.transcript.line("pixel", words[0], words[1], name);
}

constexpr auto kQuestions = std::to_array<NamedAction>({
    {"points", points},
    {"values", values},
    {"text", text},
    {"enabled", enabled},
    {"visible", visible},
    {"checked", checked},
    {"list", list},
    {"file", file},
    {"files", files},
    {"settings", settings},
    {"objects", objects},
    {"cad", cad},
    {"pixel", pixel},
});

void show(Stage& stage, Words words) {
    if (words.empty())
        fault("show without a question");
    const auto found = std::ranges::find(kQuestions, words[0], &NamedAction::name);
    if (found == kQuestions.end())
        fault("unknown question show " + word_text(words[0]));
    stage.windows().refresh();
    found->action(stage, words.subspan(1));
}

void picture(Stage& stage, Words words) {
    if (words.size() != 2)
        want_words(words, 1, "picture PATH [WINDOW|CONTROL]");
    stage.windows().refresh();
    const std::string subject = words.size() == 2 ? words[1] : "Velmora";
    auto* widget = qobject_cast<QWidget*>(&find_control(stage.windows(), subject));
    if (widget == nullptr)
        fault(subject + " has no picture");
    const std::string path = stage.places.resolve(words[0]);
    if (!widget->grab().save(QString::fromStdString(path), "PNG"))
        fault("writing " + path);
}

void trace(Stage& stage, Words words) {
    want_words(words, 1, "trace on|off");
    if (words[0] != "on" && words[0] != "off")
        fault("the form is trace on|off");
    stage.tracing = words[0] == "on";
}

constexpr auto kActions = std::to_array<NamedAction>({
    {"show", show},
    {"picture", picture},
    {"trace", trace},
});

} // namespace

std::span<const NamedAction> question_actions() {
    return kActions;
}

} // namespace velmora::driver
