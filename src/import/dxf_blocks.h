// Blocks of a DXF file: what is in them, and their drawing wherever they are put in.
#pragma once

#include "import/drawing.h"
#include "import/dxf_shapes.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::imports {

struct DxfBlock {
    Point base;
    std::vector<DxfShape> shapes;
    bool being_drawn = false;
};

class DxfBlocks {
  public:
    /// The block of a name, made where there is none.
    DxfBlock& block(std::string_view name);

    /// What a drawing of inserted blocks needs and fills. `fills` takes shapes of areas, `frozen`
    /// is by layer: nothing of an insertion on a frozen layer is drawn.
    struct Target {
        Pieces& pieces;
        Pieces& fills;
        std::vector<Point>& dots;
        const std::vector<bool>& frozen;
        double tolerance;
        Report& report;
    };
    /// Draws a shape; an insertion with all that is in it. `layer_0` is the layer that takes what
    /// is on layer 0 of a block. Blocks in themselves, missing ones, too deep a nesting and too
    /// many shapes end with a remark.
    void draw_shape(const DxfShape& shape, const Map& map, const Target& target);

  private:
    static constexpr int deepest = 32;
    static constexpr std::size_t most_drawn = 4'000'000;

    void draw_insert(const DxfShape& shape, const DxfInsert& insert, const Map& map,
                     std::uint16_t layer, const Target& target);
    void draw_instance(DxfBlock& block, const Map& map, std::uint16_t layer, const Target& target);
    void draw_on(const DxfShape& shape, const Map& map, std::uint16_t layer, const Target& target);
    [[nodiscard]] bool may_draw(const Target& target);

    std::map<std::string, DxfBlock, std::less<>> blocks_;
    std::size_t drawn_ = 0;
    int depth_ = 0;
    bool told_of_too_many_ = false;
};

} // namespace velmora::imports
