#include "forms/cut_scene.h"

#include <algorithm>

namespace velmora {

namespace {

using cutting::Box;
using cutting::Plane;
using cutview::Place;

constexpr double kSpare = 0.06; // of the block's larger side, round the outlines

Box joined(Box one, const Box& other) {
    one.add({other.min_X, other.min_Y});
    one.add({other.max_X, other.max_Y});
    return one;
}

} // namespace

Place CutScene::at(Plane plane, cutting::Point point) const {
    return {point.X, point.Y, depth[cutting::index(plane)]};
}

std::optional<CutScene> scene_of(const CutAtHand& cut) {
    if (!cut.in_space || !cut.has_wire())
        return {};
    CutScene scene;
    scene.depth = cut.wire.depth;
    for (std::size_t plane = 0; plane < cutting::planes; ++plane) {
        scene.lines[plane].reserve(cut.wire.size());
        for (const cutting::Point& point : cut.wire.points[plane])
            scene.lines[plane].push_back(scene.at(static_cast<Plane>(plane), point));
    }
    const auto& extents = cut.numbers.extents;
    const Box faces =
        joined(extents[cutting::index(Plane::face_A)], extents[cutting::index(Plane::face_B)]);
    const double spare = kSpare * std::max(faces.width(), faces.height());
    const auto [near_face, far_face] = std::minmax(scene.depth[cutting::index(Plane::face_A)],
                                                   scene.depth[cutting::index(Plane::face_B)]);
    scene.block_least = {faces.min_X - spare, faces.min_Y - spare, near_face};
    scene.block_most = {faces.max_X + spare, faces.max_Y + spare, far_face};
    const Box all = joined(faces, cut.numbers.towers);
    const auto [first, last] = std::ranges::minmax(scene.depth);
    scene.least = {all.min_X - spare, all.min_Y - spare, first};
    scene.most = {all.max_X + spare, all.max_Y + spare, last};
    return scene;
}

std::array<Place, 8> corners_of(const Place& least, const Place& most) {
    std::array<Place, 8> corners;
    for (std::size_t i = 0; i < corners.size(); ++i)
        corners[i] = {(i & 1U) != 0 ? most.x : least.x, (i & 2U) != 0 ? most.y : least.y,
                      (i & 4U) != 0 ? most.z : least.z};
    return corners;
}

} // namespace velmora
