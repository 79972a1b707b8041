#include "services/application.h"

namespace velmora {
void intro_Load() {}
void Velmora_Load() {}
void wininfo_Load() {}
void winoptions_Load() {}
void Velmora_Activate() {}
void Velmora_QueryUnload() {}
void SalVelmora(std::int16_t&) {}
void AbreEdicion() {}
} // namespace velmora
