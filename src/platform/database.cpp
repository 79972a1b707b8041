#include "platform/database.h"

#include "runtime/error.h"
#include "runtime/numbers.h"

namespace velmora {

namespace {

struct TextOf {
    std::string operator()(std::monostate) const { raise(error::invalid_null); }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return runtime::CStr(value, '.'); }
    std::string operator()(const std::string& value) const { return value; }
};

} // namespace

std::string text_of(const Value& value) {
    return std::visit(TextOf{}, value);
}

} // namespace velmora
