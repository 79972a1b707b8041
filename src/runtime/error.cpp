#include "runtime/error.h"

namespace velmora {

RuntimeError::RuntimeError(int error_number, std::string own_description)
    : number(error_number), description(std::move(own_description)),
      what_("run-time error " + std::to_string(error_number)) {}

void raise(int number) {
    throw RuntimeError(number);
}

void raise(int number, std::string description) {
    throw RuntimeError(number, std::move(description));
}

} // namespace velmora
