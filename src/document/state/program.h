// The program as it runs: version, language, the machine's separator, the way out.
#pragma once

#include "document/flag.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

struct ProgramState {
    std::string Ver = "1.0";
    std::int16_t SubVer = 1011;
    std::int16_t Sound = 1;
    std::string Idioma = "E";
    char SepDecimal = '.';
    std::string program_folder;    ///< where the program's own writable files stand
    bool folder_stands_in = false; ///< the user's data folder can't be written; that one serves
    bool language_database_open = false;
    std::string language_database_fault; ///< why it could not be opened; empty otherwise
    std::vector<std::string> kept_aside; ///< the user's files that gave way to newer ones, by path
    std::int16_t ExitConfirmed = 0;
    Flag FirstActivate = True;
    std::int16_t Respuesta = 0;   ///< last message box answer: 1 OK, 2 Cancel, 6 Yes, 7 No
    double PI = 3.14159265358979; ///< these 15 digits, not the nearest f64 to pi
};

namespace state {
extern ProgramState& program;
}

/// A file of the program's folder, "\velmora.chm" or "velmora.chm".
[[nodiscard]] std::string program_file(std::string_view name);

/// "Velmora " + Ver, the title of composed boxes.
[[nodiscard]] std::string box_title();

} // namespace velmora
