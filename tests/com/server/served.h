// An object of the stand-in CAD as automation sees it: a table of members by name.
#pragma once

#include "adapters/com/variant.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::test {

using Arguments = std::vector<com::Variant>;

/// A property or method. `write` is empty for what can't be written.
struct Member {
    std::wstring_view name;
    std::function<com::Variant(const Arguments&)> read = {};
    std::function<void(const com::Variant&)> write = {};
};

/// How the server answers, as a test lays it out, and what it was asked.
struct Manners {
    bool plain_results = false;  ///< a failure is the call's own result, not an exception's
    bool variant_arrays = false; ///< numbers travel as values of any kind
    int busy = 0;                ///< calls still to be turned away
    std::wstring hidden_member;  ///< is not there
    std::wstring awaited_member; ///< what is laid out happens before its next use
    std::function<void()> laid_out;
    std::string prompt; ///< of the last GetPoint
};

/// The object; it refers to `manners` for its life. A RuntimeError of a member becomes the call's
/// failure: a negative number as it is, any other as 800Axxxx.
[[nodiscard]] com::ComPtr<IDispatch> serve(Manners& manners, std::vector<Member> members);

} // namespace velmora::test
