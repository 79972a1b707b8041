#include "formats/files.h"

#include "document/session.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "runtime/error.h"
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
    ~OpenNumber() { session.files.abandon(number_); }
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
    session.files.open_input(kSource, path);
    const OpenNumber source(kSource);
    for (int i = 0; i < kHeaderLines; ++i)
        (void)session.files.line_input(kSource);
    Probe result;
    result.ended = session.files.eof(kSource);
    for (int i = 0; i < kProbedLines && !result.ended; ++i) {
        const std::string_view line = session.files.line_input(kSource);
        result.found = result.found || line.find(wanted) != std::string_view::npos;
        result.ended = session.files.eof(kSource);
    }
    return result;
}

bool same_file(std::string_view a, std::string_view b) {
    std::error_code none;
    return std::filesystem::equivalent(runtime::native_path(a), runtime::native_path(b), none);
}

/// The source's bytes but for the last `left_out`, with `to` for `from`. The copy is whole and
/// written out when this returns: the source may go only then.
void copy_replaced(std::string_view path, const std::string& temp, char from, char to,
                   std::uint64_t left_out) {
    session.files.open_bytes(kSource, path);
    const OpenNumber source(kSource);
    // The copy would be made of itself.
    if (same_file(path, temp))
        raise(error::file_already_open);
    if (runtime::file_exists(temp))
        BorraFichero(temp);
    session.files.open_output(kTemp, temp);
    const OpenNumber copy(kTemp);
    const std::uint64_t length = session.files.length(kSource);
    std::uint64_t rest = length - std::min(left_out, length);
    while (rest > 0) {
        const std::string_view chunk = session.files.read_bytes(kSource).substr(0, rest);
        if (chunk.empty())
            raise(error::device_io);
        session.files.write(kTemp, runtime::replaced(chunk, from, to));
        rest -= chunk.size();
    }
    session.files.close(kTemp);
}

/// The pass over a whole file, by way of a copy in the program's folder.
void rewrite(std::string_view path, char from, char to, std::uint64_t left_out = 0) {
    const std::string temp = program_file("\\temp.dat");
    copy_replaced(path, temp, from, to, left_out);
    BorraFichero(path);
    runtime::copy_file(temp, path);
    BorraFichero(temp);
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

void SetDecimalSep(std::string_view path) {
    const Probe lines = probe(path, session.SepDecimal);
    if (lines.found || lines.ended)
        return;
    if (session.SepDecimal == ',')
        rewrite(path, '.', ',');
    else
        rewrite(path, ',', '.');
}

void TabToSpace(std::string_view path) {
    const Probe lines = probe(path, '\t');
    if (lines.found && !lines.ended)
        rewrite(path, '\t', ' ');
}

void SetDotDecimals(std::string_view path) {
    // The final line end stays behind, on purpose.
    constexpr std::uint64_t line_end = 2;
    if (probe(path, ',').found)
        rewrite(path, ',', '.', line_end);
}

} // namespace velmora
