// What the scripted CAD holds: an application with its drawings and their entities, as a script
// describes them and as the program changes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::driver {

/// What an entity's numbers mean.
enum class CadShape {
    line,     ///< X1 Y1 X2 Y2
    point,    ///< X Y
    circle,   ///< CX CY R
    arc,      ///< CX CY R START END, radians
    polyline, ///< X Y ...
    spline,   ///< X Y ... of the control points
    other,    ///< none
};

/// Colour of an entity that nobody coloured: that of its layer.
inline constexpr int kColourByLayer = 256;

struct CadEntity {
    CadShape shape = CadShape::other;
    std::string ObjectName;
    std::vector<double> numbers;
    bool closed = false;
    int color = kColourByLayer;
};

struct CadDrawing {
    std::string name;
    std::vector<std::shared_ptr<CadEntity>> model_space;
};

struct CadApplication {
    std::string name;
    std::string version;
    std::vector<std::shared_ptr<CadDrawing>> drawings;
    std::shared_ptr<CadDrawing> active; ///< null while no drawing is open
    int window_state = 1;
    int added = 0; ///< drawings made from a template so far

    /// A new empty drawing, made the active one.
    CadDrawing& open(std::string drawing_name);
};

/// The class name of a shape that has one of its own.
[[nodiscard]] std::string_view object_name(CadShape shape);

} // namespace velmora::driver
