#include "document/state/loading.h"
#include "formats/load.h"

#include "document/feedback.h"
#include "formats/box_text.h"
#include "runtime/error.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

bool holds(std::string_view text, std::string_view wanted) {
    return text.find(wanted) != std::string_view::npos;
}

std::string next_line() {
    return std::string(state::loading.files.line_input(1));
}

FileFormat dialect_of(const std::string& line1, const std::string& line2,
                      const std::string& line3) {
    constexpr std::size_t record_text = 42;
    if (line1.size() == line2.size() && line2.size() == line3.size() && line3.size() == record_text)
        return FileFormat::SLWSINC;
    if (line1.starts_with("SLW - "))
        return FileFormat::SLWS;
    if (line2.starts_with("SLATEWORKS"))
        return FileFormat::SLWSINC;
    if (holds(line1, "KORDLINE") || holds(line1, "MERIDOL"))
        return FileFormat::SLWMD;
    if (holds(line3, "Upper X"))
        return FileFormat::PROFILI;
    return FileFormat::NOSLW;
}

FileFormat read_dialect(std::string_view path) {
    state::loading.files.open_input(1, path);
    const std::string line1 = next_line();
    const std::string line2 = next_line();
    const std::string line3 = next_line();
    state::loading.files.close(1);
    return dialect_of(line1, line2, line3);
}

void report_undecided(std::string_view shown_path, const RuntimeError& failure) {
    state::loading.files.abandon(1);
    MsgBox(joined_by_blanks({GetMensaje(message::the_file), shown_path,
                             GetMensaje(message::too_few_lines),
                             "Error GetFileFormat  nº:" + std::to_string(failure.number),
                             "Desc: " + description_of(failure)}));
}

} // namespace

FileFormat GetFileFormat(std::string_view path) {
    return GetFileFormat(path, path);
}

FileFormat GetFileFormat(std::string_view path, std::string_view shown_path) {
    FileFormat format = FileFormat::undecided;
    trap([&] { format = read_dialect(path); },
         [&](const RuntimeError& failure) { report_undecided(shown_path, failure); });
    return format;
}

} // namespace velmora
