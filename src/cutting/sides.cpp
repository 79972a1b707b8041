#include "cutting/sides.h"

namespace velmora::cutting {

bool are_paired(const Sides& sides) {
    return sides.paired && sides.A.points.size() == sides.B.points.size() &&
           sides.A.points.size() >= 2;
}

SidePath side_path(const Array<Pto>& points) {
    SidePath path;
    path.points.reserve(points.size());
    for (const Pto& point : points.all()) {
        if (point.Sinc == 1)
            path.sync.push_back(path.points.size());
        path.points.push_back({point.X, point.Y});
    }
    return path;
}

} // namespace velmora::cutting
