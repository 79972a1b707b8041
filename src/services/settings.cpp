#include "services/settings.h"

namespace velmora {
void LeeSettings() {}
void GuardaSettings() {}
} // namespace velmora
