#include "toolkit/line_clip.h"

#include <algorithm>

namespace velmora {

namespace {

/// The shares of a segment, 0 its begin and 1 its end, that are left after some edges.
struct Shares {
    double first = 0;
    double last = 1;

    [[nodiscard]] bool none() const { return first > last; }
    /// Keeps what lies between `low` and `high` along one axis.
    void keep(double from, double step, double low, double high) {
        if (step == 0) {
            if (from < low || from > high)
                last = -1;
            return;
        }
        const double a = (low - from) / step;
        const double b = (high - from) / step;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
    }
};

} // namespace

std::optional<QLineF> part_inside(const QLineF& line, const QRectF& box) {
    Shares shares;
    shares.keep(line.x1(), line.dx(), box.left(), box.right());
    shares.keep(line.y1(), line.dy(), box.top(), box.bottom());
    if (shares.none())
        return {};
    return QLineF(line.pointAt(shares.first), line.pointAt(shares.last));
}

} // namespace velmora
