// What comes out of a file, and what may be chosen before: plain data, free of windows.
#pragma once

#include "import/geometry.h"
#include "import/report.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmora::imports {

enum class Kind : unsigned char { unknown, points, dxf, svg, gcode };

/// An outline or an open line. The point that would close it is not stored.
struct Chain {
    std::vector<Point> points = {};
    bool closed = false;
    std::string name = {}; ///< layer, element, or side of the wire; may be empty
    std::size_t line = 0;  ///< where its first piece is in the file, 0 where there are none
};

enum class Question : unsigned char {
    kind,    ///< options are names of kinds
    element, ///< which of several outlines in one table of points
    order,   ///< the rows' order is not clear
    scale,   ///< the chord is neither 1 nor 100: its unit
    unit,    ///< the file names none
    axes     ///< which axes move which end of the wire
};

/// What the content does not decide. `best` was taken meanwhile.
struct Ask {
    Question question;
    bool needed = false; ///< without an answer the result is a guess that may be wrong
    std::size_t line = 0;
    std::vector<std::string> options = {};
    std::size_t best = 0;
};

/// The order of rows of points.
enum class RowOrder : unsigned char { by_itself, selig, lednicer, from_the_nose, as_it_is };

struct Choices {
    std::optional<Kind> kind = {};
    std::optional<double> tolerance = {};    ///< of flattening, in the file's unit
    std::optional<double> tolerance_mm = {}; ///< the same in millimetres, where the unit is known
    std::optional<double> gap = {};          ///< up to which ends are joined, in the file's unit
    std::optional<double> unit_mm = {};      ///< the file's unit, in place of what it says
    std::optional<std::size_t> element = {};
    RowOrder order = RowOrder::by_itself;
    bool remove_doubles = true;
    bool hidden_layers = false; ///< take what is off or frozen too
    bool trim_approach = true;  ///< leave out the rapid moves before and after a cut
    std::string axes = {};      ///< of a four-axis program: any four, as "XYUV"; empty: by itself
};

struct Imported {
    Kind kind = Kind::unknown;
    std::vector<Kind> guesses; ///< the best first
    std::string title;
    std::vector<Chain>
        chains;         ///< in millimetres where the unit is known, else as the file has them
    double unit_mm = 0; ///< 0: not known
    Report report;
    std::vector<Ask> asks;
};

} // namespace velmora::imports
