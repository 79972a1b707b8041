// What stands around the program: the machine, the answers that wait, the files, the CAD.
#include "document/session.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "script/fault.h"
#include "script/hand_made_dat.h"
#include "script/numbers.h"
#include "script/words.h"
#include "scripted/cad_lines.h"
#include "windows/actions.h"
#include "windows/stage.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>

namespace velmora::driver {

namespace fs = std::filesystem;

namespace {

fs::path place_of(const Stage& stage, const std::string& path) {
    return runtime::native_path(stage.places.resolve(path));
}

void check_done(const std::string& what, const std::error_code& failure) {
    if (failure)
        fault(what + ": " + failure.message());
}

/// A script has no line of its own for a folder: what is put into one makes it.
void make_folder_of(const fs::path& path) {
    std::error_code failure;
    fs::create_directories(path.parent_path(), failure);
    check_done("making " + path.parent_path().string(), failure);
}

void copy_over(const fs::path& from, const fs::path& to) {
    make_folder_of(to);
    std::error_code failure;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, failure);
    check_done("copying " + from.string(), failure);
}

void remove_if_there(const fs::path& path) {
    std::error_code failure;
    fs::remove(path, failure);
    check_done("deleting " + path.string(), failure);
}

void write_bytes(const fs::path& path, const std::string& text, std::ios::openmode mode) {
    make_folder_of(path);
    std::ofstream file(path, std::ios::binary | mode);
    file << runtime::to_1252(text);
    file.close();
    if (!file)
        fault("writing " + path.string());
}

void locale(Stage& stage, Words words) {
    want_words(words, 1, "locale .|,");
    if (stage.started)
        fault("the locale stands before start");
    if (words[0] != "." && words[0] != ",")
        fault("the separator is . or ,");
    stage.machine().separator = words[0][0];
}

void setting(Stage& stage, Words words) {
    want_words(words, 3, "setting SECTION KEY VALUE");
    stage.settings().save(words[0], words[1], stage.places.expanded(words[2]));
}

void program_file(Stage& stage, Words words) {
    constexpr auto form = "program-file NAME copy PATH | remove";
    if (words.size() < 2)
        fault(std::string("the form is ") + form);
    const fs::path place = runtime::native_path(runtime::join(stage.places.program(), words[0]));
    if (words[1] == "copy") {
        want_words(words, 3, form);
        return copy_over(place_of(stage, words[2]), place);
    }
    want_words(words, 2, form);
    if (words[1] != "remove")
        fault(std::string("the form is ") + form);
    remove_if_there(place);
}

void answer(Stage& stage, Words words) {
    if (words.empty())
        fault("the form is answer N ...");
    for (const std::string& word : words) {
        const std::int32_t number = whole_number(word);
        if (number != answer::ok && number != answer::cancel && number != answer::yes &&
            number != answer::no)
            fault(word + " is no answer of a box");
        stage.answers.boxes.push_back(number);
    }
}

void input(Stage& stage, Words words) {
    want_words(words, 1, "input TEXT");
    stage.answers.inputs.emplace_back(words[0]);
}

void input_cancel(Stage& stage, Words words) {
    want_words(words, 0, "input-cancel");
    stage.answers.inputs.emplace_back(std::nullopt);
}

void pick(Stage& stage, Words words) {
    want_words(words, 1, "pick PATH");
    stage.answers.paths.emplace_back(stage.places.resolve(words[0]));
}

void pick_cancel(Stage& stage, Words words) {
    want_words(words, 0, "pick-cancel");
    stage.answers.paths.emplace_back(std::nullopt);
}

/// A colour as a transcript prints it, or without its sign.
std::uint32_t colour_number(const std::string& word) {
    std::uint32_t number = 0;
    const char* end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, number);
    if (read.ec == std::errc{} && read.ptr == end)
        return number;
    return static_cast<std::uint32_t>(whole_number(word));
}

void colour(Stage& stage, Words words) {
    want_words(words, 1, "colour VALUE");
    stage.answers.colours.emplace_back(colour_number(words[0]));
}

void colour_cancel(Stage& stage, Words words) {
    want_words(words, 0, "colour-cancel");
    stage.answers.colours.emplace_back(std::nullopt);
}

void font(Stage& stage, Words words) {
    constexpr auto form = "font NAME SIZE [bold] [italic]";
    if (words.size() < 2)
        fault(std::string("the form is ") + form);
    FontChoice choice{words[0], real_number(words[1])};
    for (const std::string& style : words.subspan(2)) {
        if (style != "bold" && style != "italic")
            fault(std::string("the form is ") + form);
        (style == "bold" ? choice.bold : choice.italic) = true;
    }
    stage.answers.fonts.emplace_back(choice);
}

void font_cancel(Stage& stage, Words words) {
    want_words(words, 0, "font-cancel");
    stage.answers.fonts.emplace_back(std::nullopt);
}

void copy(Stage& stage, Words words) {
    want_words(words, 2, "copy FROM TO");
    copy_over(place_of(stage, words[0]), place_of(stage, words[1]));
}

void write(Stage& stage, Words words) {
    want_words(words, 2, "write PATH TEXT");
    write_bytes(place_of(stage, words[0]), words[1], std::ios::trunc);
}

void shape(Stage& stage, Words words) {
    if (words.size() < 3)
        fault("the form is shape PATH DESCRIPTION X,Y|X,Y,S ...");
    write_bytes(place_of(stage, words[0]), hand_made_dat(words[1], words.subspan(2)),
                std::ios::trunc);
}

void append(Stage& stage, Words words) {
    want_words(words, 2, "append PATH TEXT");
    write_bytes(place_of(stage, words[0]), words[1], std::ios::app);
}

void delete_file(Stage& stage, Words words) {
    want_words(words, 1, "delete PATH");
    remove_if_there(place_of(stage, words[0]));
}

void cad(Stage& stage, Words words) {
    cad_line(stage.cad, words);
}

constexpr auto kActions = std::to_array<NamedAction>({
    {"locale", locale},
    {"setting", setting},
    {"program-file", program_file},
    {"answer", answer},
    {"input", input},
    {"input-cancel", input_cancel},
    {"pick", pick},
    {"pick-cancel", pick_cancel},
    {"colour", colour},
    {"colour-cancel", colour_cancel},
    {"font", font},
    {"font-cancel", font_cancel},
    {"copy", copy},
    {"write", write},
    {"shape", shape},
    {"append", append},
    {"delete", delete_file},
    {"cad", cad},
});

} // namespace

std::span<const NamedAction> setup_actions() {
    return kActions;
}

} // namespace velmora::driver
