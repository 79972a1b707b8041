// The two sides of the adjustment, each described by its arrays, so that what both sides have in
// common is written once.
#pragma once

#include "document/forma.h"

#include <string_view>

namespace velmora {

/// References into the session; cheap to make, good for as long as the session lives.
struct Side {
    std::string_view lado; ///< "A" or "B"; also the selector of Ptos
    Array<Pto>& Ptos;      ///< as loaded
    Array<Pto>& Trabajo;   ///< working copy
    Array<Pto>& Ptos2;     ///< the result
};

/// Side A for "A", side B for any other text.
[[nodiscard]] Side side_of(std::string_view lado);

} // namespace velmora
