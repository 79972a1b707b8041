#include "questions/questions.h"
#include "script/numbers.h"
#include "script/words.h"

namespace velmora::driver {

namespace {

std::string entity_text(const CadEntity& entity) {
    std::string text = word_text(entity.ObjectName) + ' ' + number_text(entity.color);
    if (entity.shape == CadShape::polyline)
        text += entity.closed ? " closed" : " open";
    for (const double number : entity.numbers)
        text += ' ' + number_text(number);
    return text;
}

/// A call's name and its one argument, if it has any.
void print_call(Transcript& transcript, const Places& places, const std::string& line) {
    const auto blank = line.find(' ');
    if (blank == std::string::npos)
        transcript.line(line);
    else
        transcript.line(line.substr(0, blank), places.word(line.substr(blank + 1)));
}

} // namespace

void show_cad(Transcript& transcript, const Places& places, const CadState& cad) {
    const CadApplication& application = *cad.application;
    if (application.active) {
        std::int32_t index = 0;
        for (const auto& entity : application.active->model_space)
            transcript.line(number_text(index++), entity_text(*entity));
    }
    transcript.line("documents",
                    number_text(static_cast<std::int32_t>(application.drawings.size())));
    transcript.line("window-state", number_text(application.window_state));
    for (const std::string& line : cad.log)
        print_call(transcript, places, line);
}

} // namespace velmora::driver
