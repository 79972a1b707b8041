#include "services/literals.h"

namespace velmora {
void AplicaLiterales(Form&, std::string_view) {}
std::string GetLiteral(std::string_view) {
    return {};
}
std::string GetTip(std::string_view) {
    return {};
}
void CreaLiterales(Form&) {}
} // namespace velmora
