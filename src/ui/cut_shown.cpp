#include "ui/cut_shown.h"

namespace velmora {

std::vector<std::size_t> marked_points(const cutting::Entry& entry, std::size_t count) {
    std::vector<std::size_t> points;
    // Of an outline that crosses itself the two ends are steps of their own.
    if (entry.kind == cutting::Finding::crosses_itself || entry.first >= count)
        return points;
    std::size_t point = entry.first;
    while (points.size() < count) {
        points.push_back(point);
        if (point == entry.last)
            break;
        point = (point + 1) % count;
    }
    return points.size() < count || entry.last == entry.first ? points : std::vector<std::size_t>{};
}

} // namespace velmora
