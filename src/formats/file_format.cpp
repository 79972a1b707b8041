#include "formats/file_format.h"

#include "document/feedback.h"
#include "document/state/loading.h"
#include "formats/box_text.h"
#include "formats/dxf.h"
#include "formats/fixed_record_readers.h"
#include "formats/free_text_readers.h"
#include "formats/point_lines.h"
#include "formats/scr_cut_readers.h"
#include "runtime/error.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

bool holds(std::string_view text, std::string_view wanted) {
    return text.find(wanted) != std::string_view::npos;
}

std::string next_line() {
    return std::string(state::loading.files.line_input(1));
}

/// A reader whose texts never show another path than the one it reads.
template <std::int16_t (*read)(std::string_view)>
std::int16_t alone(std::string_view path, std::string_view) {
    return read(path);
}

bool has_record_lines(const FirstLines& first) {
    constexpr std::size_t record_text = 42;
    return first.line1.size() == record_text && first.line2.size() == record_text &&
           first.line3.size() == record_text;
}

bool begins_slw(const FirstLines& first) {
    return first.line1.starts_with("SLW - ");
}

bool has_sync_head(const FirstLines& first) {
    return first.line2.starts_with("SLATEWORKS");
}

bool names_meridol(const FirstLines& first) {
    return holds(first.line1, "KORDLINE") || holds(first.line1, "MERIDOL");
}

bool has_upper_surface(const FirstLines& first) {
    return holds(first.line3, "Upper X");
}

bool any_lines(const FirstLines&) {
    return true;
}

bool extension_decides(const FirstLines&) {
    return false;
}

/// The dialects are in the order in which they are tried; one that is known by two signs has two
/// rows.
constexpr auto kFormats = std::to_array<Format>({
    {"DAT", FileFormat::SLWSINC, has_record_lines, Passes::separator, alone<CargaSLWSINC>,
     message::format_slwsinc},
    {"DAT", FileFormat::SLWS, begins_slw, Passes::separator, alone<CargaSLWS>,
     message::format_slws},
    {"DAT", FileFormat::SLWSINC, has_sync_head, Passes::separator, alone<CargaSLWSINC>,
     message::format_slwsinc},
    {"DAT", FileFormat::SLWMD, names_meridol, Passes::separator, CargaSLWMD, message::format_slwmd,
     is_point_line},
    {"DAT", FileFormat::PROFILI, has_upper_surface, Passes::separator_and_tabs, CargaPROFILI,
     message::format_profili, is_point_line},
    {"DAT", FileFormat::NOSLW, any_lines, Passes::separator_and_tabs, CargaNOSLW,
     message::format_noslw, is_point_line},
    {"SCR", FileFormat::undecided, extension_decides, Passes::none, alone<CargaSCR>,
     message::format_scr, is_script_point},
    {"CUT", FileFormat::undecided, extension_decides, Passes::none, alone<CargaCUT>,
     message::format_cut},
    {"DXF", FileFormat::undecided, extension_decides, Passes::none, alone<CargaDXF>,
     message::format_dxf},
});

template <class Fits>
const Format* first_row(Fits&& fits) {
    const auto* const row = std::ranges::find_if(kFormats, fits);
    return row == kFormats.end() ? nullptr : &*row;
}

FileFormat dialect_of(const FirstLines& first) {
    return first_row([&](const Format& format) { return format.known_by(first); })->code;
}

FileFormat read_dialect(std::string_view path) {
    state::loading.files.open_input(1, path);
    // Within braces the lines are read in their order.
    const FirstLines first{next_line(), next_line(), next_line()};
    state::loading.files.close(1);
    return dialect_of(first);
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

const Format* format_of(std::string_view extension) {
    return first_row([&](const Format& format) {
        return format.code == FileFormat::undecided && format.extension == extension;
    });
}

const Format* format_of(FileFormat code) {
    if (code == FileFormat::undecided)
        return nullptr;
    return first_row([&](const Format& format) { return format.code == code; });
}

} // namespace velmora
