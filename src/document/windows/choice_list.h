// A list of a window, of which one entry is chosen.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace velmora {

/// None is chosen where the text is no entry.
struct ChoiceList {
    std::vector<std::string> entries;
    std::string chosen;
    bool enabled = false;

    /// The place of the entry chosen; 0 where it is none.
    [[nodiscard]] std::size_t place() const {
        const auto found = std::ranges::find(entries, chosen);
        return found == entries.end() ? 0 : static_cast<std::size_t>(found - entries.begin());
    }
    void choose(std::size_t entry) { chosen = entry < entries.size() ? entries[entry] : ""; }
};

} // namespace velmora
