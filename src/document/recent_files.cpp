#include "document/recent_files.h"

namespace velmora {
void GetRecentFiles() {}
void UpdateFileMenu(std::string_view) {}
} // namespace velmora
