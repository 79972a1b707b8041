#include "document/options.h"
#include "document/session.h"

namespace velmora {
void set_TxtPrecision(std::string_view text) {
    session.winoptions.TxtPrecision = text;
}
void take_defaults() {}
} // namespace velmora
