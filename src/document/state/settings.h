// The stored settings as they were read: colours and defaults.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace velmora {

struct SettingState {
    std::uint32_t cl_fondo = 0x80000000, cl_ejes = 0xFFFFFF, cl_lineas = 0, cl_linea1 = 255,
                  cl_linea2 = 0xFF0000, cl_punto = 0, cl_puntosinc = 0, cl_puntosel = 0,
                  cl_coords = 0;
    std::int32_t Def_Dec = 6, Def_Arc = 25, Def_ACircle = 50;
    double Def_Zoom = 30000;

    /// A value as it was read last: the store's text, and the program's own for it.
    struct Read {
        std::string stored, own;
    };
    std::map<std::string, Read, std::less<>> as_read; ///< by key
};

namespace state {
extern SettingState& settings;
}

} // namespace velmora
