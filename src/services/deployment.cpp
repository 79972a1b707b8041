#include "services/deployment.h"

#include "document/state/program.h"
#include "runtime/paths.h"

#include <fstream>
#include <istream>
#include <string_view>

namespace velmora {

namespace {

// Editors on several systems put a mark at the start and carriage returns at the ends of lines.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

void take(Deployment& into, std::string_view key, std::string_view value) {
    if (value.empty())
        return;
    if (key == "support_address")
        into.support_address = value;
    else if (key == "web_page")
        into.web_page = value;
    else if (key == "helper")
        into.helpers.append(into.helpers.empty() ? "" : "\n").append(value);
}

} // namespace

Deployment read_deployment(std::istream& lines) {
    Deployment found;
    for (std::string line; std::getline(lines, line);) {
        std::string_view text = line;
        if (text.starts_with(kByteOrderMark))
            text.remove_prefix(kByteOrderMark.size());
        const std::size_t sign = text.find('=');
        if (trimmed(text).starts_with('#') || sign == std::string_view::npos)
            continue;
        take(found, trimmed(text.substr(0, sign)), trimmed(text.substr(sign + 1)));
    }
    return found;
}

Deployment deployment() {
    std::ifstream file(runtime::native_path(program_file("\\deployment.txt")));
    return read_deployment(file);
}

} // namespace velmora
