#include "formats/file_passes.h"

#include "document/feedback.h"
#include "document/state/loading.h"
#include "document/state/program.h"
#include "formats/draft.h"
#include "formats/open_number.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "runtime/error.h"
#include "runtime/file_beside.h"
#include "runtime/paths.h"
#include "runtime/text.h"

#include <algorithm>
#include <filesystem>

namespace velmora {

namespace {

constexpr int kSource = 1;
constexpr int kTemp = 2;
constexpr int kHeaderLines = 3;
constexpr int kProbedLines = 10;

/// What lines 4 to 13 say about a character.
struct Probe {
    bool found = false;
    bool ended = false; ///< the file ends within these lines, or with the last of them
};

Probe probe(std::string_view path, char wanted) {
    state::loading.files.open_input(kSource, path);
    const OpenNumber source(kSource);
    for (int i = 0; i < kHeaderLines; ++i)
        (void)state::loading.files.line_input(kSource);
    Probe result;
    result.ended = state::loading.files.eof(kSource);
    for (int i = 0; i < kProbedLines && !result.ended; ++i) {
        const std::string_view line = state::loading.files.line_input(kSource);
        result.found = result.found || line.find(wanted) != std::string_view::npos;
        result.ended = state::loading.files.eof(kSource);
    }
    return result;
}

bool same_file(std::string_view a, std::string_view b) {
    std::error_code none;
    return std::filesystem::equivalent(runtime::native_path(a), runtime::native_path(b), none);
}

/// All of file 1 from its present place but for its last `left_out` bytes, with `to` for `from`, to
/// a file of its own.
void write_replaced(const std::string& temp, char from, char to, std::uint64_t left_out) {
    state::loading.files.open_output(kTemp, temp);
    const OpenNumber copy(kTemp);
    const std::uint64_t length = state::loading.files.length(kSource);
    std::uint64_t rest = length - std::min(left_out, length);
    while (rest > 0) {
        const std::string_view chunk = state::loading.files.read_bytes(kSource).substr(0, rest);
        if (chunk.empty())
            raise(error::device_io);
        state::loading.files.write(kTemp, runtime::replaced(chunk, from, to));
        rest -= chunk.size();
        DoEvents();
    }
    state::loading.files.close(kTemp);
}

/// The source's bytes as write_replaced gives them.
void copy_replaced(std::string_view path, const std::string& copy, char from, char to,
                   std::uint64_t left_out) {
    state::loading.files.open_bytes(kSource, path);
    const OpenNumber source(kSource);
    write_replaced(copy, from, to, left_out);
}

/// No pass leaves this file in the program's folder, not even one of another day's.
void delete_left_temp_file(std::string_view source) {
    const std::string left = program_file("\\temp.dat");
    // It would be taken from under the pass.
    if (same_file(source, left))
        raise(error::file_already_open);
    if (runtime::file_exists(left))
        BorraFichero(left);
}

/// The passed copy in the program's folder, under a name that no other program has.
std::string passed_copy(std::string_view path, char from, char to) {
    const std::string copy = runtime::free_name_in(state::program.program_folder, "temp-", ".dat");
    try {
        copy_replaced(path, copy, from, to, 0);
    } catch (...) {
        runtime::remove_file(copy);
        throw;
    }
    return copy;
}

/// Puts a copy in the file's place; where that fails the file stays as it was, and a symbolic link
/// leads to the new one.
void replace_by_copy(std::string_view path, const std::string& copy) {
    Draft fresh(runtime::link_target(path));
    runtime::copy_file(copy, fresh.path());
    fresh.take_permissions();
    fresh.take_place();
}

/// The pass over a whole file, by way of a copy in the program's folder. Gives what is to be read:
/// the file, or the copy where the file can't be rewritten.
std::string rewrite(std::string_view path, char from, char to) {
    delete_left_temp_file(path);
    const std::string copy = passed_copy(path, from, to);
    std::string to_read(path);
    trap(
        [&] {
            replace_by_copy(path, copy);
            BorraFichero(copy);
        },
        [&](const RuntimeError&) { to_read = copy; });
    return to_read;
}

std::string_view after_last(std::string_view text, std::string_view separators) {
    const std::size_t last = text.find_last_of(separators);
    return last == std::string_view::npos ? text : text.substr(last + 1);
}

} // namespace

bool BorraFichero(std::string_view path) {
    return platform().shell.recycle(path);
}

std::string QuitaNombre(std::string_view path) {
    constexpr std::size_t shortest_name = 4;
    for (std::size_t i = path.size(); i-- > 0;)
        if (runtime::is_separator(path[i]) && runtime::Len(path.substr(i + 1)) >= shortest_name)
            return std::string(path.substr(0, i));
    return {};
}

std::string SoloNombre(std::string_view path) {
    return runtime::file_name(path);
}

std::string after_last_backslash(std::string_view text) {
    return std::string(after_last(text, "\\"));
}

std::string SetDecimalSep(std::string_view path) {
    const Probe lines = probe(path, state::program.SepDecimal);
    if (lines.found || lines.ended)
        return std::string(path);
    return state::program.SepDecimal == ',' ? rewrite(path, '.', ',') : rewrite(path, ',', '.');
}

std::string TabToSpace(std::string_view path) {
    const Probe lines = probe(path, '\t');
    const bool needed = lines.found && !lines.ended;
    return needed ? rewrite(path, '\t', ' ') : std::string(path);
}

void SetDotDecimals(std::string_view path) {
    // The final line end is lost, on purpose.
    constexpr std::uint64_t line_end = 2;
    if (!probe(path, ',').found)
        return;
    delete_left_temp_file(path);
    Draft dotted(path);
    copy_replaced(path, dotted.path(), ',', '.', line_end);
    dotted.take_name();
}

} // namespace velmora
