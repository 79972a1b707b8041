// The files that travel with the program: how they come into the folder that the program writes in,
// and how they are renewed there when a newer program brings others.
#pragma once

#include <filesystem>
#include <vector>

namespace velmora {

/// Language database, by its name beside the program.
inline constexpr const char* kLanguageDatabase = "VELMORA.MDB";

/// Brings what the sources have into the folder; of a file that several have, the first one's. A
/// file arrives whole or not at all, and can be written there. Beside the files the folder keeps a
/// record of what came, by which a copy that nobody touched is known and renewed. What the user put
/// in a file's place stays; but a database that differs gives way to a newer program's, as does one
/// that is damaged, and is kept aside under another name. The answer is what was kept aside.
std::vector<std::filesystem::path>
bring_data_files(const std::vector<std::filesystem::path>& sources,
                 const std::filesystem::path& folder);

} // namespace velmora
