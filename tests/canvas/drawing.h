// What the painters' tests share: shapes, colours that tell the pens apart, expected lines.
#pragma once

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/outline.h"

#include <string>
#include <vector>

namespace velmora::test {

using Operations = std::vector<std::string>;

inline void set_colours() {
    session.cl_fondo = 1;
    session.cl_ejes = 2;
    session.cl_lineas = 3;
    session.cl_linea1 = 4;
    session.cl_linea2 = 5;
    session.cl_punto = 6;
    session.cl_puntosinc = 7;
    session.cl_puntosel = 8;
}

/// A platform with zoom 5 and a shape without negative values: (0, 0) is pixel (30, 1970).
struct Canvas : RecordingPlatform {
    explicit Canvas(WithDatabase) : Canvas() { open_database(); }
    Canvas() {
        set_colours();
        session.ZoomFactor = 5;
        session.PtoSel = -1;
        session.CanvasX0 = 30;
        session.CanvasY0 = 1970;
    }
    Operations& operations() { return pic.operations; }
};

} // namespace velmora::test
