// Where the program's own writable files stand: language database, sounds, help, templates.
#pragma once

#include <filesystem>
#include <vector>

namespace velmora {

/// The places to choose from.
struct ProgramPlaces {
    std::filesystem::path executable; ///< folder of the executable
    std::filesystem::path user_data;  ///< the user's data folder for the application
    std::filesystem::path installed;  ///< files shared by all users
    std::vector<std::filesystem::path>
        stand_ins; ///< for a machine where nothing else can be written
};

struct ProgramFolder {
    std::filesystem::path path;
    std::vector<std::filesystem::path> kept_aside; ///< what gave way to the program's newer files
    bool stands_in = false; ///< for the user's data folder, which could not be written
};

/// The executable's folder when the language database lies there and can be written, else the
/// user's data folder, else the first stand-in that can be written and is not somebody else's. It
/// is filled and renewed from the installed files, or from beside the executable. Where nothing can
/// be written, the folder whose database can at least be read.
[[nodiscard]] ProgramFolder choose_program_folder(const ProgramPlaces& places);

/// The choice for this process.
[[nodiscard]] ProgramFolder find_program_folder();

} // namespace velmora
