#include "generators/text_path.h"

#include "runtime/numbers.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace velmora {

namespace {

using PathPoint = SeltextoWindow::PathPoint;

bool is_drawn(const Figure& figure) {
    return std::ranges::adjacent_find(figure, std::not_equal_to<>()) != figure.end();
}

std::vector<PathPoint> at_whole_pixels(const Figure& figure) {
    std::vector<PathPoint> places;
    places.reserve(figure.size());
    for (const OutlinePoint& point : figure) {
        const PathPoint place{runtime::to_int32(point.x), runtime::to_int32(point.y)};
        if (places.empty() || places.back() != place)
            places.push_back(place);
    }
    if (places.size() > 1 && places.back() == places.front())
        places.pop_back();
    return places;
}

void write_types(std::span<std::uint8_t> types) {
    std::ranges::fill(types, path_type::line);
    types.back() = path_type::line_and_close;
    types.front() = path_type::move;
}

} // namespace

std::int32_t GetPath(std::span<const Figure> figures, std::span<PathPoint> points,
                     std::span<std::uint8_t> types) {
    std::size_t count = 0;
    const std::size_t room = std::min(points.size(), types.size());
    for (const Figure& figure : figures) {
        if (!is_drawn(figure))
            continue;
        const std::vector<PathPoint> places = at_whole_pixels(figure);
        if (places.size() > room - count)
            return -1;
        std::ranges::copy(places, points.subspan(count).begin());
        write_types(types.subspan(count, places.size()));
        count += places.size();
    }
    return static_cast<std::int32_t>(count);
}

} // namespace velmora
