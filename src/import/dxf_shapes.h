// What an entity of a DXF file draws, in the coordinates of the block or drawing that it is in.
#pragma once

#include "import/curves.h"
#include "import/dxf_entity.h"
#include "import/nurbs.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace velmora::imports {

/// Straight lines and arcs through vertices, in a plane of its own.
struct DxfPath {
    std::vector<DxfVertex> vertices;
    Map plane;
    bool closed = false;
};
struct DxfArc {
    EllipseArc arc;
    bool closed = false;
};
struct DxfSpline {
    Nurbs curve;
    bool closed = false;
};
struct DxfFitSpline {
    std::vector<Bezier> curves;
    bool closed = false;
};
struct DxfLine {
    Point from;
    Point to;
};
/// Edges one behind the other round an area, in a plane of its own.
struct DxfLoop {
    std::vector<std::variant<DxfLine, EllipseArc, Nurbs>> edges;
    Map plane;

    /// How much there is to draw.
    [[nodiscard]] std::size_t weight() const;
};
struct DxfDot {
    Point at;
};
/// A block put in once or in rows and columns.
struct DxfInsert {
    std::string block;
    Map plane; ///< from the rotated and displaced block into the drawing
    double scale_X = 1;
    double scale_Y = 1;
    int columns = 1;
    int rows = 1;
    Point spacing;

    /// Of the instance in a column and row, for a block with its base point there.
    [[nodiscard]] Map placed(int column, int row, const Point& base) const;
};

struct DxfShape {
    std::variant<DxfPath, DxfArc, DxfSpline, DxfFitSpline, DxfLoop, DxfDot, DxfInsert> what;
    std::uint32_t line = 0;
    std::uint16_t layer = 0;
    bool fill = false; ///< of an area: it usually lies over an outline
};

/// From the coordinates of an entity's own plane, at an elevation, to those of the drawing.
[[nodiscard]] Map plane_map(const DxfEntity& entity);

/// Whether entities of this kind draw a shape by themselves.
[[nodiscard]] bool draws_shape(std::string_view kind);
/// None where numbers are missing that it needs. Layer and line are left to the caller.
[[nodiscard]] std::optional<DxfShape> shape_of(const DxfEntity& entity);

/// Adds the points of all but insertions; whether they are closed.
[[nodiscard]] bool draw(const DxfShape& shape, const Map& map, double tolerance, Pieces& pieces);

} // namespace velmora::imports
