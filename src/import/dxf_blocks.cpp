#include "import/dxf_blocks.h"

#include <utility>

namespace velmora::imports {

namespace {

/// Layer 0 of a block is the layer of its insertion; it has the number 0.
std::uint16_t effective(std::uint16_t own, std::uint16_t of_insertion) {
    return own == 0 ? of_insertion : own;
}

std::size_t weight_of(const DxfShape& shape) {
    if (const auto* path = std::get_if<DxfPath>(&shape.what))
        return 1 + path->vertices.size();
    if (const auto* spline = std::get_if<DxfSpline>(&shape.what))
        return 1 + spline->curve.points.size();
    if (const auto* loop = std::get_if<DxfLoop>(&shape.what))
        return loop->weight();
    return 1;
}

} // namespace

DxfBlock& DxfBlocks::block(std::string_view name) {
    const auto found = blocks_.find(name);
    return found != blocks_.end() ? found->second : blocks_[std::string(name)];
}

void DxfBlocks::draw_shape(const DxfShape& shape, const Map& map, const Target& target) {
    draw_on(shape, map, shape.layer, target);
}

void DxfBlocks::draw_on(const DxfShape& shape, const Map& map, std::uint16_t layer,
                        const Target& target) {
    if (const auto* insert = std::get_if<DxfInsert>(&shape.what))
        return draw_insert(shape, *insert, map, layer, target);
    drawn_ += depth_ > 0 ? weight_of(shape) : 0;
    if (const auto* dot = std::get_if<DxfDot>(&shape.what)) {
        if (target.dots.size() < Pieces::most_points)
            target.dots.push_back(map(dot->at));
        return;
    }
    Pieces& pieces = shape.fill ? target.fills : target.pieces;
    pieces.begin(shape.line, layer);
    pieces.end(draw(shape, map, target.tolerance, pieces));
}

bool DxfBlocks::may_draw(const Target& target) {
    if (drawn_ < most_drawn && !target.pieces.full())
        return true;
    if (!std::exchange(told_of_too_many_, true))
        target.report.add(Fact::too_many_inserts, 0, {}, static_cast<double>(most_drawn));
    return false;
}

void DxfBlocks::draw_insert(const DxfShape& shape, const DxfInsert& insert, const Map& map,
                            std::uint16_t layer, const Target& target) {
    if (layer < target.frozen.size() && target.frozen[layer])
        return;
    const auto found = blocks_.find(insert.block);
    if (found == blocks_.end())
        return target.report.add(Fact::missing_block, shape.line, insert.block);
    DxfBlock& block = found->second;
    if (block.being_drawn)
        return target.report.add(Fact::block_in_itself, shape.line, insert.block);
    if (depth_ >= deepest)
        return target.report.add(Fact::too_deep, shape.line, {}, deepest);
    ++depth_;
    block.being_drawn = true;
    for (int row = 0; row < insert.rows; ++row) {
        for (int column = 0; column < insert.columns && may_draw(target); ++column)
            draw_instance(block, map * insert.placed(column, row, block.base), layer, target);
        if (!may_draw(target))
            break;
    }
    block.being_drawn = false;
    --depth_;
}

void DxfBlocks::draw_instance(DxfBlock& block, const Map& map, std::uint16_t layer,
                              const Target& target) {
    ++drawn_;
    for (const DxfShape& shape : block.shapes) {
        if (!may_draw(target))
            return;
        draw_on(shape, map, effective(shape.layer, layer), target);
    }
}

} // namespace velmora::imports
