// The view on the machine from any side, without perspective: what is as long is drawn as long.
#pragma once

#include "cutview/geometry.h"

#include <span>

namespace velmora::cutview {

/// From where the machine is looked at. Front: the wire from left to right, X into the picture.
/// Side: along the wire, from side B, so that the outlines are seen as they are drawn. Plan: from
/// above, X upwards.
struct Turn {
    double around = 0; ///< degrees round the upright axis; 0 is the front
    double over = 0;   ///< degrees from level; 90 is the plan
    bool operator==(const Turn&) const = default;
};

inline constexpr Turn kFront{0, 0};
inline constexpr Turn kSide{-90, 0};
inline constexpr Turn kPlan{0, 90};
inline constexpr Turn kInSpace{-38, 24};

/// A place as it is seen: where on the screen, and how far away.
struct Seen {
    double x = 0;
    double y = 0;
    double depth = 0; ///< larger is farther away
    [[nodiscard]] Spot spot() const { return {x, y}; }
};

class SpaceView {
  public:
    /// The size of the picture.
    void set_room(double width, double height);
    /// All of the places as large as the room allows, seen from the present turn.
    void fit(std::span<const Place> scene);
    /// Nobody zoomed or moved since; a turn by hand counts as neither.
    [[nodiscard]] bool fitted() const { return fitted_; }
    void turn_to(Turn turn);
    /// By hand: degrees to the right and upwards. It does not go over the top.
    void turn_by(double right, double up);
    void zoom(double factor, Spot around);
    void move(Spot by);

    [[nodiscard]] Turn turn() const { return turn_; }
    [[nodiscard]] Seen seen(Place place) const;

  private:
    struct Axes {
        Place right, up, away;
    };
    static Axes axes_of(Turn turn);

    Turn turn_ = kInSpace;
    Axes axes_ = axes_of(kInSpace);
    double width_ = 1;
    double height_ = 1;
    double scale_ = 1;
    double fit_scale_ = 1;
    Place pivot_; ///< the middle of the scene, round which it turns
    bool fitted_ = true;
    Spot moved_; ///< where the pivot stands, from the middle of the room
};

} // namespace velmora::cutview
