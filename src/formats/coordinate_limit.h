// The largest coordinate that the line readers accept, the question that follows a larger one, and
// the read that starts over with another scale.
#pragma once

#include "document/flag.h"
#include "document/forma.h"
#include "document/state/loading.h"
#include "formats/reader_support.h"

#include <cstdint>
#include <string_view>

namespace velmora {

/// Holds stored coordinates, those divided by EscalaCarga, against LimiteCoord. Only the upper side
/// is looked at: -30000 passes, on purpose.
class CoordinateLimit {
  public:
    explicit CoordinateLimit(std::string_view path) : path_(path) {}

    /// False when X, or else Y, is above the limit.
    [[nodiscard]] bool admits(const Pto& stored);

    /// Asks whether to scale what was not admitted. True when EscalaCarga has grown, by tens, to
    /// where it fits. The answer is compared with 1, which such a box never gives, on purpose: so
    /// both its answers refuse.
    [[nodiscard]] bool offer_scaling() const;

  private:
    std::string_view path_;
    double over_ = 0;
};

/// How one pass over a file ended.
enum class Pass { complete, refused, over_limit };

/// Runs a reader whose points keep to the limit: `pass(limit)` reads the whole file 1 and says how
/// it ended, and is run again with the grown EscalaCarga where the question allows it. Gives -1
/// when a pass was complete; 0 otherwise, after a refused scale with `points` emptied.
template <class ReadPass>
[[nodiscard]] std::int16_t read_within_limit(std::string_view path, Array<Pto>& points,
                                             ReadCounts& counts, ReadPass&& pass) {
    state::loading.EscalaCarga = 1;
    for (;;) {
        counts = {};
        CoordinateLimit limit(path);
        const Pass end = pass(limit);
        if (end != Pass::over_limit)
            return flag(end == Pass::complete);
        const bool again = limit.offer_scaling();
        state::loading.files.close(1);
        if (again)
            continue;
        points.redim(0);
        return False;
    }
}

} // namespace velmora
