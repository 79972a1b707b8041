// Outlines for tests, short to write down and short to compare.
#pragma once

#include "document/forma.h"

#include <initializer_list>
#include <ostream>
#include <vector>

namespace velmora {

inline void PrintTo(const Pto& point, std::ostream* out) {
    *out << "(" << point.X << ", " << point.Y << ", Sinc " << point.Sinc << ", Marca "
         << point.Marca << ")";
}

} // namespace velmora

namespace velmora::test {

using Points = std::vector<Pto>;

inline void fill(Array<Pto>& array, const Points& points) {
    array.redim(static_cast<std::int32_t>(points.size()) - 1);
    std::int32_t index = 0;
    for (const Pto& point : points)
        array[index++] = point;
}

inline Array<Pto> outline(const Points& points) {
    Array<Pto> array;
    fill(array, points);
    return array;
}

inline void set_shape(const Points& points) {
    fill(Forma.Pto, points);
}

inline Points points_of(const Array<Pto>& array) {
    return {array.all().begin(), array.all().end()};
}

inline Points shape() {
    return points_of(Forma.Pto);
}

/// Points whose X is their index; every third is a sync point, all have a stale mark.
inline Points numbered(int count) {
    Points points;
    for (int i = 0; i < count; ++i)
        points.push_back({static_cast<double>(i), 1, static_cast<std::int16_t>(i % 3 == 0), 1});
    return points;
}

/// The X of each point, which tell numbered points apart.
inline std::vector<double> places(const Array<Pto>& array) {
    std::vector<double> xs;
    for (const Pto& point : array.all())
        xs.push_back(point.X);
    return xs;
}

} // namespace velmora::test
