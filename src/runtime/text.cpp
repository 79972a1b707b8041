#include "runtime/text.h"
namespace velmora::runtime {
std::string_view Trim(std::string_view text) {
    return text;
}
std::string UCase(std::string_view text) {
    return std::string(text);
}
std::size_t Len(std::string_view text) {
    return text.size();
}
std::string Left(std::string_view text, int) {
    return std::string(text);
}
std::string Right(std::string_view text, int) {
    return std::string(text);
}
std::string from_1252(std::string_view bytes) {
    return std::string(bytes);
}
std::string to_1252(std::string_view utf8) {
    return std::string(utf8);
}
std::string replaced(std::string_view text, char, char) {
    return std::string(text);
}
} // namespace velmora::runtime
