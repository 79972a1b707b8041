#include "document/number_text.h"
#include "document/session.h"
#include "runtime/numbers.h"

namespace velmora {
std::string CStr(double value) {
    return runtime::CStr(value, session.SepDecimal);
}
std::string CStr(std::int32_t value) {
    return runtime::CStr(value);
}
double CDbl(std::string_view text) {
    return runtime::CDbl(text, session.SepDecimal);
}
std::string Format5(double value) {
    return runtime::Format5(value, session.SepDecimal);
}
std::string NumACadena(double value) {
    return runtime::NumACadena(value, session.SepDecimal);
}
double Normaliza15(double value) {
    return value;
}
double CadenaAReal(std::string& s) {
    return CDbl(s);
}
} // namespace velmora
