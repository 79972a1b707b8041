// Where the program's own writable files stand: language database, sounds, help, templates.
#pragma once

#include <filesystem>
#include <string>

namespace velmora {

/// The places to choose from.
struct ProgramPlaces {
    std::filesystem::path executable; ///< folder of the executable
    std::filesystem::path user_data;  ///< the user's data folder for the application
    std::filesystem::path installed;  ///< files shared by all users
};

/// The executable's folder when the language database lies there and can be written, else the
/// user's data folder. What is missing there is copied from the installed files, or from beside the
/// executable, and made writable.
[[nodiscard]] std::filesystem::path choose_program_folder(const ProgramPlaces& places);

/// The choice for this process.
[[nodiscard]] std::string find_program_folder();

} // namespace velmora
