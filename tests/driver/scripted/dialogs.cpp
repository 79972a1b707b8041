#include "scripted/dialogs.h"

#include "script/numbers.h"
#include "script/words.h"

#include <utility>

namespace velmora::driver {

namespace {

constexpr std::string_view kCancel = "-> cancel";

template <class T>
T take(std::deque<T>& queue, T otherwise) {
    if (queue.empty())
        return otherwise;
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

std::string font_text(const FontChoice& font) {
    std::string text = word_text(font.name) + ' ' + number_text(font.size);
    if (font.bold)
        text += " bold";
    if (font.italic)
        text += " italic";
    return text;
}

} // namespace

ScriptedDialogs::ScriptedDialogs(Transcript& transcript, const Places& places, Answers& answers)
    : transcript_(transcript), places_(places), answers_(answers) {}

int ScriptedDialogs::message(std::string_view text, int buttons_and_icon, std::string_view title) {
    const int answer = take(answers_.boxes, default_answer(buttons_and_icon));
    transcript_.line("box", number_text(buttons_and_icon), places_.word(title), places_.word(text),
                     "->", number_text(answer));
    return answer;
}

std::optional<std::string> ScriptedDialogs::input(std::string_view prompt, std::string_view title,
                                                  std::string_view preset) {
    auto text = take(answers_.inputs, std::optional<std::string>{});
    transcript_.line("input", places_.word(title), places_.word(prompt), places_.word(preset),
                     text ? "-> " + places_.word(*text) : std::string(kCancel));
    return text;
}

std::string ScriptedDialogs::take_path(std::string_view kind, const FileRequest& request) {
    const auto path = take(answers_.paths, std::optional<std::string>{});
    transcript_.line(kind, places_.word(request.title), places_.word(request.filter),
                     places_.word(request.folder), places_.word(request.name),
                     path ? "-> " + places_.word(*path) : std::string(kCancel));
    return path.value_or("");
}

std::string ScriptedDialogs::open_file(const FileRequest& request) {
    return take_path("open", request);
}

std::string ScriptedDialogs::save_file(const FileRequest& request) {
    return take_path("save", request);
}

std::optional<std::uint32_t> ScriptedDialogs::choose_colour(std::uint32_t) {
    const auto colour = take(answers_.colours, std::optional<std::uint32_t>{});
    const auto text = [&] {
        return "-> " + number_text(static_cast<std::int32_t>(*colour));
    };
    transcript_.line("colour", colour ? text() : std::string(kCancel));
    return colour;
}

std::optional<FontChoice> ScriptedDialogs::choose_font(const FontChoice&) {
    auto font = take(answers_.fonts, std::optional<FontChoice>{});
    transcript_.line("font", font ? "-> " + font_text(*font) : std::string(kCancel));
    return font;
}

} // namespace velmora::driver
