// Outlines for the tests of what is cut.
#pragma once

#include "cutting/sides.h"

#include <cmath>
#include <cstddef>
#include <numbers>
#include <random>
#include <utility>
#include <vector>

namespace velmora::cutting {

inline SidePath path_of(std::vector<Point> points, std::vector<std::size_t> sync = {}) {
    return {.points = std::move(points), .sync = std::move(sync)};
}

/// A drop: round in front, a sharp edge at the first point, counter-clockwise, steps of unequal
/// length, sync points at the edge and at the nose.
inline SidePath drop(std::size_t count, double chord) {
    SidePath path;
    for (std::size_t i = 0; i < count; ++i) {
        const double t = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
        const double x = (1 + std::cos(t)) / 2;
        path.points.push_back({chord * x, chord * 0.3 * std::sin(t) * (1 - x) + 0.02 * chord * x});
    }
    path.sync = {0, count / 2};
    return path;
}

/// From the same first point the other way round, with the same sync points.
inline SidePath turned_round(const SidePath& path) {
    SidePath turned;
    const std::size_t count = path.points.size();
    std::vector<bool> sync(count, false);
    for (const std::size_t place : path.sync)
        sync[place] = true;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t from = (count - i) % count;
        if (sync[from])
            turned.sync.push_back(i);
        turned.points.push_back(path.points[from]);
    }
    return turned;
}

inline std::vector<Point> random_points(std::size_t count, unsigned seed, int grid) {
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> at(0, grid);
    std::vector<Point> points;
    for (std::size_t i = 0; i < count; ++i) {
        const double X = at(random);
        points.push_back({X, static_cast<double>(at(random))});
    }
    return points;
}

} // namespace velmora::cutting
