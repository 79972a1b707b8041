#include "formats/files.h"

#include "document/state/loading.h"
#include "document/state/program.h"
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

/// Closes a number on every way out, so that a fault leaves none behind. A number that was open
/// before is not its own.
class OpenNumber {
  public:
    explicit OpenNumber(int number) : number_(number) {}
    ~OpenNumber() { state::loading.files.abandon(number_); }
    OpenNumber(const OpenNumber&) = delete;
    OpenNumber& operator=(const OpenNumber&) = delete;

  private:
    int number_;
};

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

/// Runs `write`, which makes the file. What a fault broke off goes before the fault rises.
template <class Write>
void write_whole(std::string_view path, Write&& write) {
    try {
        write();
    } catch (...) {
        runtime::remove_broken_off(path);
        throw;
    }
}

/// All of file 1 from where it stands but for its last `left_out` bytes, with `to` for `from`, to a
/// file of its own.
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
    }
    state::loading.files.close(kTemp);
}

/// The source's bytes as write_replaced gives them. The copy is whole and written out when this
/// returns: the source may go only then.
void copy_replaced(std::string_view path, const std::string& temp, char from, char to,
                   std::uint64_t left_out) {
    state::loading.files.open_bytes(kSource, path);
    const OpenNumber source(kSource);
    // The copy would be made of itself.
    if (same_file(path, temp))
        raise(error::file_already_open);
    if (runtime::file_exists(temp))
        BorraFichero(temp);
    write_whole(temp, [&] { write_replaced(temp, from, to, left_out); });
}

/// Puts a copy in the file's place. The copy is made whole beside the file first: where that fails
/// the file stands as it was, and a symbolic link leads to the new one.
void replace_by_copy(std::string_view path, const std::string& copy) {
    const std::string target = runtime::link_target(path);
    runtime::FileBeside fresh(target);
    runtime::copy_file(copy, fresh.path());
    fresh.take_permissions();
    BorraFichero(target);
    fresh.take_name();
}

/// Keeps a passed copy where the next pass does not write its own.
std::string keep_to_be_read(const std::string& copy) {
    const std::string kept = program_file("\\leido.dat");
    std::error_code fault;
    std::filesystem::rename(runtime::native_path(copy), runtime::native_path(kept), fault);
    return fault ? copy : kept;
}

/// The pass over a whole file, by way of a copy in the program's folder. Gives what is to be read:
/// the file, or the copy where the file can't be rewritten.
std::string rewrite(std::string_view path, char from, char to) {
    const std::string temp = program_file("\\temp.dat");
    copy_replaced(path, temp, from, to, 0);
    std::string to_read(path);
    trap(
        [&] {
            replace_by_copy(path, temp);
            BorraFichero(temp);
        },
        [&](const RuntimeError&) { to_read = keep_to_be_read(temp); });
    return to_read;
}

/// Where a folder takes no new file, a full disk apart, the present one may still be written over.
void replace_or_write_over(std::string_view path, const std::string& copy) {
    trap([&] { replace_by_copy(path, copy); },
         [&](const RuntimeError& failure) {
             if (failure.number == error::disk_full)
                 throw;
             runtime::copy_file(copy, path);
         });
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
    return std::string(after_last(path, "\\/"));
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
    // The final line end stays behind, on purpose.
    constexpr std::uint64_t line_end = 2;
    if (!probe(path, ',').found)
        return;
    const std::string temp = program_file("\\temp.dat");
    copy_replaced(path, temp, ',', '.', line_end);
    replace_or_write_over(path, temp);
    BorraFichero(temp);
}

void write_or_make_room(std::string_view path, const std::function<void()>& write) {
    trap(write, [&](const RuntimeError& failure) {
        if (failure.number == error::disk_full) {
            state::loading.files.abandon(kSource);
            runtime::remove_broken_off(path);
        }
        throw;
    });
}

} // namespace velmora
