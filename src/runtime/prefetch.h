// A word to the processor about memory that is needed soon. It changes no result; walks over large
// lists in a scattered order wait for memory most of their time.
#pragma once

namespace velmora::runtime {

inline void prefetch(const void* place) {
    __builtin_prefetch(place);
}

} // namespace velmora::runtime
