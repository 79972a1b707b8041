// Outlines at a scale on paper, tiled over sheets, as plain data: lines, marks and texts of each
// sheet in millimetres of the paper, from its upper left corner, Y downwards.
#pragma once

#include "cutting/sides.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmora::cutting {

struct Paper {
    double width = 210; ///< as it lies
    double height = 297;
    double margin = 10;  ///< on all four edges, which a printer leaves white
    double overlap = 10; ///< that neighbouring sheets show both, for gluing
};

struct TemplateChoices {
    Paper paper = {};
    double scale = 1; ///< paper to shape
    bool closed = true;
    bool points = false;          ///< a small cross at each point
    bool sync = true;             ///< a circle round each sync point, with its ordinal from 1
    std::size_t numbers_each = 0; ///< a number at each n-th point, from 1; 0: none
    bool one_sheet = false;       ///< a single sheet as large as all needs, in place of tiles
};

enum class Ink : unsigned char { side_A, side_B, point, sync, joint };

struct SheetLine {
    Ink ink = Ink::side_A;
    bool closed = false;
    std::vector<Point> points;
};

struct SheetCircle {
    Ink ink = Ink::sync;
    Point centre;
    double radius = 0;
};

struct SheetText {
    Ink ink = Ink::sync;
    Point at; ///< left end of the line that the letters stand on
    double height = 3;
    std::string text = {}; ///< figures and capitals
};

struct Sheet {
    std::size_t column = 0; ///< from 0, left to right
    std::size_t row = 0;    ///< from 0, top to bottom
    std::vector<SheetLine> lines = {};
    std::vector<SheetCircle> circles = {};
    std::vector<SheetText> texts = {};
};

enum class SheetFault : unsigned char {
    none,
    no_points,
    bad_scale,       ///< not positive
    no_room,         ///< the margins and the overlap leave nothing of the paper
    too_many_sheets, ///< more than `SheetLayout::most`
    beyond_numbers
};

struct SheetLayout {
    static constexpr std::size_t most = 400;

    SheetFault fault = SheetFault::none;
    double width = 0; ///< of each sheet
    double height = 0;
    std::size_t columns = 0;
    std::size_t rows = 0;
    std::vector<Sheet> sheets = {}; ///< row by row; without those that nothing lies on
};

/// One outline, or two that keep their places to one another; an empty one is none. Where there are
/// several sheets each has its name in a corner ("A1", rows by letters), crosses in the middle of
/// what neighbours show both, and at each edge the name of the neighbour.
[[nodiscard]] SheetLayout template_of(const SidePath& A, const SidePath& B,
                                      const TemplateChoices& choices);

} // namespace velmora::cutting
