#include "formats/dxf_text.h"

#include "document/feedback.h"
#include "document/number_text.h"
#include "document/separator.h"
#include "document/state/loading.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace velmora {

namespace {

/// With no more characters than this a text has at most 15 digits, and no more than 28 decimals
/// unless it has an exponent: its number is normalised already.
constexpr std::size_t normal_length = 15;

bool is_normal(std::string_view text) {
    return text.size() <= normal_length && text.find_first_of("Ee") == std::string_view::npos;
}

} // namespace

std::string_view DxfText::counted_line() {
    line();
    ++counted_;
    return last_;
}

std::string_view DxfText::line() {
    constexpr int many = 1024;
    // What is passed over, however much, leaves the user his way out.
    if (++lines_ % many == 0)
        DoEvents();
    last_ = state::loading.files.line_input(1);
    return last_;
}

double DxfText::coordinate() {
    const std::string_view text = runtime::Trim(number_text());
    const double value = CDbl(text);
    // The text of minus zero is "0": a sum with 0 drops the sign.
    return is_normal(text) ? value + 0.0 : Normaliza15(value);
}

double DxfText::measure() {
    std::string text(number_text());
    return CadenaAReal(text);
}

double DxfText::angle() {
    return CDbl(number_text());
}

double DxfText::count() {
    skip();
    return runtime::Val(line());
}

bool DxfText::at_section_end() const {
    return last_.find("ENDSEC") != std::string_view::npos;
}

std::string_view DxfText::number_text() {
    skip();
    return to_machine_separator(line(), room_);
}

} // namespace velmora
