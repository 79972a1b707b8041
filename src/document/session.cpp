#include "document/session.h"

#include "runtime/paths.h"

#include <memory>
#include <new>

namespace velmora {

FormaDocument Forma;
Session session;

std::string program_file(std::string_view name) {
    return runtime::join(session.program_folder, name);
}

std::string box_title() {
    return "Velmora " + session.Ver;
}

void reset_session() {
    Forma = FormaDocument{};
    std::destroy_at(&session);
    std::construct_at(&session);
}

} // namespace velmora
