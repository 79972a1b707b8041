#include "formats/reading.h"

#include "document/feedback.h"
#include "document/state/program.h"
#include "formats/box_text.h"
#include "platform/dialogs.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <cstdint>
#include <filesystem>

namespace velmora {

namespace {

constexpr std::uintmax_t kMegabyte = 1024 * 1024;
/// Some five million points; a drawing says more about each.
constexpr std::uintmax_t kLargestOutline = 256 * kMegabyte;
constexpr std::uintmax_t kLargestDrawing = 1024 * kMegabyte;

std::uintmax_t largest(const std::string& path) {
    return runtime::UCase(runtime::Right(path, 3)) == "DXF" ? kLargestDrawing : kLargestOutline;
}

void refuse_what_is_no_file(const std::string& path) {
    MsgBox(joined_by_blanks({GetMensaje(message::the_file), path, GetMensaje(message::no_file)}),
           buttons::critical, box_title());
}

bool is_wanted(const std::string& path, std::uintmax_t size) {
    const std::string question =
        joined_by_blanks({GetMensaje(message::the_file), path, GetMensaje(message::very_large),
                          std::to_string(size / kMegabyte)});
    return MsgBox(question, buttons::yes_no + buttons::question, box_title()) == answer::yes;
}

} // namespace

bool may_be_read(const std::string& path) {
    std::error_code fault;
    const auto native = runtime::native_path(path);
    const auto status = std::filesystem::status(native, fault);
    if (!std::filesystem::exists(status))
        return true;
    if (!std::filesystem::is_regular_file(status)) {
        refuse_what_is_no_file(path);
        return false;
    }
    const auto size = std::filesystem::file_size(native, fault);
    return fault || size <= largest(path) || is_wanted(path, size);
}

} // namespace velmora
