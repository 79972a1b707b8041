// Numbers and their texts, held against the C library's in the C locale.
#include "document/number_text.h"
#include "document/session.h"
#include "fuzz/stage.h"
#include "fuzz/target.h"
#include "fuzz/targets.h"
#include "import/number_text.h"
#include "runtime/numbers.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace velmora::fuzz {

namespace {

bool equal_bits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool is_plain(char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == '+' || c == '-' || c == 'e' || c == 'E';
}

/// What the C library makes of the whole text, where it knows no more than we do: no blanks, names,
/// or hexadecimals.
std::optional<double> library_number(const std::string& text) {
    for (const char c : text) {
        if (!is_plain(c))
            return {};
    }
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !std::isfinite(value))
        return {};
    return value;
}

void read_text(const std::string& text) {
    const auto expected = library_number(text);
    std::optional<double> own;
    answer([&] { own = runtime::CDbl(text, '.'); });
    if (expected && own)
        promise(*expected == *own, "CDbl reads what strtod reads");
    if (expected && !own)
        promise(false, "what strtod reads is a number");
    if (const auto imported = imports::number_of(text); imported && expected)
        promise(*imported == *expected, "an import reads what strtod reads");
    answer([&] { promise(std::isfinite(runtime::Val(text)), "Val is finite"); });
    answer([&] { (void)runtime::CLng(text, '.'); });
    answer([&] { (void)runtime::CInt(text, ','); });
    session.SepDecimal = ',';
    std::string copy = text;
    answer([&] { (void)CadenaAReal(copy); });
    session.SepDecimal = '.';
    std::string_view rest = text;
    while (imports::take_number(rest)) {
    }
}

/// At most 15 significant digits, as "%.15g" gives them.
void write_number(double value) {
    const std::string own = runtime::CStr(value, '.');
    char library[64];
    std::snprintf(library, sizeof library, "%.15g", value);
    promise(std::strtod(own.c_str(), nullptr) == std::strtod(library, nullptr),
            "CStr names the number that %.15g names");
    promise(equal_bits(runtime::CDbl(own, '.'), std::strtod(own.c_str(), nullptr)),
            "CStr is read back");
    answer([&] {
        const std::string positional = runtime::NumACadena(value, '.');
        promise(std::strtod(positional.c_str(), nullptr) == runtime::normalized_15(value),
                "normalized_15 is the number of NumACadena's text");
    });
    answer([&] { (void)runtime::Format5(value, ','); });
    for (const int decimals : {0, 3, 6, 22}) {
        answer([&] {
            const double rounded = runtime::Round(value, decimals);
            char text[400];
            std::snprintf(text, sizeof text, "%.*f", decimals, value);
            promise(rounded == std::strtod(text, nullptr), "Round rounds as printf does");
        });
    }
}

} // namespace

void numbers(std::string_view bytes) {
    read_text(std::string(bytes.substr(0, 400)));
    double value = 0;
    if (bytes.size() >= sizeof value) {
        std::memcpy(&value, bytes.data(), sizeof value);
        if (std::isfinite(value))
            write_number(value);
    }
}

} // namespace velmora::fuzz
