#include "formats/passed_over.h"

#include "runtime/error.h"
#include "runtime/file_table.h"

namespace velmora {

namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view between = " \t,;";

std::size_t take_all(std::string_view& text, std::string_view characters) {
    const std::size_t end = text.find_first_not_of(characters);
    const std::size_t count = end == std::string_view::npos ? text.size() : end;
    text.remove_prefix(count);
    return count;
}

bool take_one(std::string_view& text, std::string_view characters) {
    const bool there = !text.empty() && characters.find(text.front()) != std::string_view::npos;
    text.remove_prefix(there ? 1 : 0);
    return there;
}

bool take_number(std::string_view& text) {
    (void)take_one(text, "+-");
    std::size_t count = take_all(text, digits);
    if (take_one(text, "."))
        count += take_all(text, digits);
    if (count == 0)
        return false;
    if (take_one(text, "eEdD")) {
        (void)take_one(text, "+-");
        return take_all(text, digits) > 0;
    }
    return true;
}

} // namespace

bool begins_with_two_numbers(std::string_view line) {
    (void)take_all(line, between);
    if (!take_number(line) || take_all(line, between) == 0 || !take_number(line))
        return false;
    return line.empty() || between.find(line.front()) != std::string_view::npos;
}

std::size_t lines_passed_over(std::string_view path, bool (*takes)(std::string_view)) {
    std::size_t count = 0;
    trap(
        [&] {
            runtime::FileTable files;
            files.open_input(1, path);
            while (!files.eof(1)) {
                const std::string_view line = files.line_input(1);
                count += begins_with_two_numbers(line) && !takes(line) ? 1 : 0;
            }
        },
        [](const RuntimeError&) {});
    return count;
}

} // namespace velmora
