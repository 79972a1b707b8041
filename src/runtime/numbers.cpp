#include "runtime/numbers.h"

#include <string>
namespace velmora::runtime {
double CDbl(std::string_view, char) {
    return 0;
}
double Val(std::string_view) {
    return 0;
}
std::int16_t CInt(std::string_view, char) {
    return 0;
}
std::int32_t CLng(std::string_view, char) {
    return 0;
}
std::int16_t to_int16(double) {
    return 0;
}
std::int32_t to_int32(double) {
    return 0;
}
std::string CStr(double, char) {
    return {};
}
std::string CStr(std::int32_t value) {
    return std::to_string(value);
}
std::string NumACadena(double, char) {
    return {};
}
std::string Format5(double, char) {
    return {};
}
double Round(double value, int) {
    return value;
}
double Int(double value) {
    return value;
}
double checked(double value) {
    return value;
}
double divide(double x, double y) {
    return x / y;
}
} // namespace velmora::runtime
