#include "cad/chain_finder.h"

#include "cad/entities.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/pointer_shape.h"

#include <utility>

namespace velmora {

namespace {

/// How far ahead of its turn an element is looked at: far enough for memory to answer.
constexpr std::int32_t elements_ahead = 12;

} // namespace

ChainFinder::ChainFinder(Array<ObjCad>& objects)
    : objects_(objects), cells_(2 * objects.size()), behind_(2 * objects.size(), nothing),
      cell_of_end_(2 * objects.size(), nothing), used_(objects.size(), true) {
    // From the last to the first, so that each cell's list rises.
    for (std::int32_t i = objects.upper(); i >= 0; --i) {
        expect_ends(i - elements_ahead);
        const ObjCad& object = objects[i];
        if (object.Usado != 0)
            continue;
        used_[static_cast<std::size_t>(i)] = false;
        ++unused_;
        add_end(last_point(object), 2 * i + 1);
        add_end(object.Ptos[0], 2 * i);
    }
}

std::int32_t ChainFinder::BuscaSiguiente(double X, double Y, bool porVertices) {
    const std::int32_t found = touching(cells_.find(X, Y));
    if (found != nothing)
        return found;
    if (unused_ == 1)
        return last_left();
    const std::int32_t polyline = porVertices ? polyline_with_vertex(X, Y) : nothing;
    if (polyline == nothing)
        set_pointer(pointer::standard);
    return polyline;
}

std::int32_t ChainFinder::next_after(std::int32_t index) {
    const std::int32_t cell = cell_of(2 * index + 1);
    // An element that was used from the start has no cell here.
    if (cell == CellIndex::none) {
        const Pto& last = last_point(objects_[index]);
        return BuscaSiguiente(last.X, last.Y, false);
    }
    const std::int32_t found = touching(cell);
    if (found != nothing)
        return found;
    if (unused_ == 1)
        return last_left();
    set_pointer(pointer::standard);
    return nothing;
}

void ChainFinder::take(std::int32_t index) {
    objects_[index].Usado = True;
    if (is_used(index))
        return;
    used_[static_cast<std::size_t>(index)] = true;
    --unused_;
}

void ChainFinder::expect_ends(std::int32_t index) const {
    if (index < 0)
        return;
    const ObjCad& object = objects_[index];
    if (object.Usado != 0 || !object.Ptos.dimensioned())
        return;
    cells_.expect(object.Ptos[0].X, object.Ptos[0].Y);
    cells_.expect(last_point(object).X, last_point(object).Y);
}

void ChainFinder::add_end(const Pto& point, std::int32_t end) {
    const std::int32_t cell = cells_.mention(point.X, point.Y);
    cell_of(end) = cell;
    if (static_cast<std::size_t>(cell) == ends_.size())
        ends_.emplace_back();
    EndsOfCell& ends = ends_[static_cast<std::size_t>(cell)];
    if (ends.second != nothing)
        behind(ends.first) = ends.second;
    ends.second = std::exchange(ends.first, end);
}

ChainFinder::EndsOfCell& ChainFinder::cleared(std::int32_t cell) {
    EndsOfCell& ends = ends_[static_cast<std::size_t>(cell)];
    while (ends.second != nothing && is_used(ends.first / 2)) {
        ends.first = ends.second;
        ends.second = behind(ends.second);
    }
    return ends;
}

/// The lowest unused entity with an end in the cell, turned so that it starts there.
std::int32_t ChainFinder::touching(std::int32_t cell) {
    if (cell == CellIndex::none)
        return nothing;
    const std::int32_t found = cleared(cell).first / 2;
    if (is_used(found))
        return nothing;
    if (cell_of(2 * found) != cell) {
        reverse_points(objects_[found]);
        std::swap(cell_of(2 * found), cell_of(2 * found + 1));
    }
    return found;
}

std::int32_t ChainFinder::last_left() {
    while (is_used(first_unused_))
        ++first_unused_;
    return first_unused_;
}

std::int32_t ChainFinder::polyline_with_vertex(double X, double Y) const {
    for (std::int32_t i = 0; i <= objects_.upper(); ++i) {
        const ObjCad& object = objects_[i];
        if (object.Tipo != TipoCad::AcDbPolyline)
            continue;
        for (std::int32_t vertex = 0; vertex <= object.NPtos; ++vertex) {
            if (touches(object.Ptos[vertex], X, Y))
                return i;
        }
    }
    return nothing;
}

} // namespace velmora
