#include "cad/chain_finder.h"

#include "cad/entities.h"
#include "document/feedback.h"
#include "document/session.h"
#include "runtime/numbers.h"

#include <bit>

namespace velmora {

namespace {

std::uint64_t mixed(std::uint64_t bits) {
    bits ^= bits >> 32;
    bits *= 0xD6E8FEB86659FD93U;
    bits ^= bits >> 32;
    return bits;
}

std::uint64_t hash_of(double X, double Y) {
    const std::uint64_t of_x = mixed(std::bit_cast<std::uint64_t>(X));
    return mixed(of_x + 0x9E3779B97F4A7C15U + std::bit_cast<std::uint64_t>(Y));
}

} // namespace

ChainFinder::ChainFinder(Array<ObjCad>& objects) : objects_(objects) {
    // Two ends for each entity, and half of the table or more stays free.
    cells_.resize(std::bit_ceil(objects.size() * 4 + 1));
    next_in_cell_.resize(objects.size() * 2, nothing);
    // From the last to the first, so that each cell's list rises.
    for (std::int32_t i = objects.upper(); i >= 0; --i) {
        const ObjCad& object = objects[i];
        if (object.Usado != 0)
            continue;
        ++unused_;
        add_end(last_point(object), 2 * i + 1);
        add_end(object.Ptos[0], 2 * i);
    }
}

std::int32_t ChainFinder::BuscaSiguiente(double X, double Y, bool porVertices) {
    const std::int32_t lowest = lowest_at(X, Y);
    if (lowest != nothing) {
        if (!touches(objects_[lowest].Ptos[0], X, Y))
            reverse_points(objects_[lowest]);
        return lowest;
    }
    if (unused_ == 1)
        return first_unused();
    const std::int32_t found = porVertices ? polyline_with_vertex(X, Y) : nothing;
    if (found == nothing)
        set_pointer(0);
    return found;
}

void ChainFinder::take(std::int32_t index) {
    ObjCad& object = objects_[index];
    if (object.Usado == 0)
        --unused_;
    object.Usado = True;
}

ChainFinder::Cell ChainFinder::cell_of(double X, double Y) {
    // A sum with 0 makes one cell of the two zeros.
    return {runtime::Int(X) + 0.0, runtime::Int(Y) + 0.0, nothing};
}

ChainFinder::Cell& ChainFinder::slot_of(const Cell& cell) {
    const std::size_t mask = cells_.size() - 1;
    std::size_t at = hash_of(cell.X, cell.Y) & mask;
    while (cells_[at].first != nothing && (cells_[at].X != cell.X || cells_[at].Y != cell.Y))
        at = (at + 1) & mask;
    return cells_[at];
}

void ChainFinder::add_end(const Pto& point, std::int32_t end) {
    Cell cell = cell_of(point.X, point.Y);
    Cell& slot = slot_of(cell);
    next_in_cell_[static_cast<std::size_t>(end)] = slot.first;
    cell.first = end;
    slot = cell;
}

std::int32_t ChainFinder::lowest_at(double X, double Y) {
    Cell& slot = slot_of(cell_of(X, Y));
    if (slot.first == nothing)
        return nothing;
    // Ends of used entities leave the list when they are met, but for its last one, which keeps the
    // cell in the table.
    const auto used = [&](std::int32_t end) {
        return objects_[end / 2].Usado != 0;
    };
    std::int32_t next = next_in_cell_[static_cast<std::size_t>(slot.first)];
    while (used(slot.first) && next != nothing) {
        slot.first = next;
        next = next_in_cell_[static_cast<std::size_t>(next)];
    }
    return used(slot.first) ? nothing : slot.first / 2;
}

std::int32_t ChainFinder::first_unused() {
    while (objects_[first_unused_].Usado != 0)
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
