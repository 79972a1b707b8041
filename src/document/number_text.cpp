#include "document/number_text.h"
#include "document/state/program.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

namespace velmora {
namespace {

/// The `length` characters of `text` from a position, counted from 1.
std::string piece(const std::string& text, std::size_t position, std::ptrdiff_t length) {
    if (length < 0)
        raise(error::invalid_call);
    return text.substr(position - 1, static_cast<std::size_t>(length));
}

} // namespace

std::string CStr(double value) {
    return runtime::CStr(value, state::program.SepDecimal);
}

std::string CStr(std::int32_t value) {
    return runtime::CStr(value);
}

double CDbl(std::string_view text) {
    return runtime::CDbl(text, state::program.SepDecimal);
}

std::string Format5(double value) {
    return runtime::Format5(value, state::program.SepDecimal);
}

std::string NumACadena(double value) {
    return runtime::NumACadena(value, state::program.SepDecimal);
}

double Normaliza15(double value) {
    return runtime::normalized_15(value);
}

// The digits after the comma are cut by as many places as the exponent has, so that the result
// keeps the length of the mantissa; a mantissa too short for that is an error, on purpose.
double CadenaAReal(std::string& s) {
    const auto exponent_mark = s.find("E-");
    if (exponent_mark == std::string::npos)
        return CDbl(s);
    const auto e =
        runtime::CLng(std::string_view(s).substr(exponent_mark + 2), state::program.SepDecimal);
    const auto comma = s.find(',');
    const std::size_t p = comma == std::string::npos ? 1 : comma + 2;
    const auto length = static_cast<std::ptrdiff_t>(exponent_mark + 1 - p) - e;
    const std::string frac = piece(s, p, length);
    const bool negative = s.starts_with('-');
    if (negative)
        s.erase(0, 1);
    if (comma == std::string::npos)
        raise(error::invalid_call);
    std::string whole = s.substr(0, s.find(','));
    if (const auto places = static_cast<std::ptrdiff_t>(whole.size()); places < e)
        whole.insert(0, static_cast<std::size_t>(e - places), '0');
    return CDbl((negative ? "-0," : "0,") + whole + frac);
}

} // namespace velmora
