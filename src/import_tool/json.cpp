#include "import_tool/json.h"

#include "import/kind.h"
#include "import/report.h"
#include "runtime/numbers.h"

#include <array>
#include <cstddef>

namespace velmora::import_tool {

namespace {

using namespace imports;

constexpr std::array<std::string_view, 6> questions = {"kind",  "element", "order",
                                                       "scale", "unit",    "axes"};

std::string quoted(std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            result.append({'\\', c});
        else if (byte < 32)
            result.append("\\u00").append({digits[byte >> 4], digits[byte & 15]});
        else
            result += c;
    }
    return result + '"';
}

std::string number(double value) {
    return runtime::CStr(value, '.');
}

template <class List, class Write>
std::string list(const List& values, Write&& write) {
    std::string text = "[";
    for (const auto& value : values) {
        if (text.size() > 1)
            text += ',';
        text += write(value);
    }
    return text + "]";
}

std::string point_text(const Point& point) {
    return std::string("[") + number(point.X) + "," + number(point.Y) + "]";
}

std::string chain_text(const Chain& chain, bool with_points) {
    std::string text = std::string("{\"points\":") + std::to_string(chain.points.size()) +
                       ",\"closed\":" + (chain.closed ? "true" : "false") +
                       ",\"name\":" + quoted(chain.name) +
                       ",\"line\":" + std::to_string(chain.line);
    if (with_points)
        text += ",\"at\":" + list(chain.points, point_text);
    return text + "}";
}

std::string remark_text(const Remark& remark) {
    return std::string("{\"fact\":") + quoted(key(remark.fact)) +
           ",\"line\":" + std::to_string(remark.line) + ",\"words\":" + quoted(sentence(remark)) +
           "}";
}

std::string ask_text(const Ask& ask) {
    return std::string("{\"question\":") +
           quoted(questions[static_cast<std::size_t>(ask.question)]) +
           ",\"needed\":" + (ask.needed ? "true" : "false") +
           ",\"line\":" + std::to_string(ask.line) + ",\"options\":" + list(ask.options, quoted) +
           "}";
}

} // namespace

std::string json_of(const Outcome& outcome, bool with_points) {
    const Imported& imported = outcome.imported;
    return std::string("{\"file\":") + quoted(outcome.file) +
           ",\"ok\":" + (outcome.done ? "true" : "false") + ",\"fault\":" + quoted(outcome.fault) +
           ",\"kind\":" + quoted(kind_name(imported.kind)) +
           ",\"unit_mm\":" + number(imported.unit_mm) +
           ",\"written\":" + list(outcome.written, quoted) + ",\"chains\":" +
           list(imported.chains,
                [&](const Chain& chain) { return chain_text(chain, with_points); }) +
           ",\"asks\":" + list(imported.asks, ask_text) +
           ",\"report\":" + list(imported.report.remarks(), remark_text) + "}\n";
}

std::string words_of(const Outcome& outcome) {
    std::string text = outcome.file + ": ";
    if (!outcome.done)
        text += outcome.fault;
    else if (outcome.written.empty())
        text += std::to_string(outcome.imported.chains.size()) + " chains";
    for (const std::string& path : outcome.written)
        text.append(&path == outcome.written.data() ? "-> " : ", ").append(path);
    for (const Remark& remark : outcome.imported.report.remarks())
        text.append("; ").append(sentence(remark));
    for (const Ask& ask : outcome.imported.asks)
        text.append("; asks: ").append(questions[static_cast<std::size_t>(ask.question)]);
    return text + "\n";
}

} // namespace velmora::import_tool
