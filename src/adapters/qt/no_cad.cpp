#include "adapters/qt/no_cad.h"

#include "runtime/error.h"

namespace velmora {

std::shared_ptr<AcadApplication> NoAutocad::GetObject() {
    raise(error::cannot_create_object);
}

void NoAutocad::AppActivate() {
    raise(error::invalid_call);
}

} // namespace velmora
