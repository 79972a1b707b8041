// Short ways to ask what a reader made of a text.
#pragma once

#include "import/imported.h"

#include <algorithm>
#include <string>
#include <vector>

namespace velmora::imports {

inline bool said(const Imported& imported, Fact fact, std::size_t line) {
    return std::ranges::any_of(imported.report.remarks(), [&](const Remark& remark) {
        return remark.fact == fact && remark.line == line;
    });
}

inline std::size_t times(const Imported& imported, Fact fact) {
    return imported.report.count(fact);
}

/// The number of the first remark of a fact; -1 where it was not said.
inline double number_said(const Imported& imported, Fact fact) {
    for (const Remark& remark : imported.report.remarks()) {
        if (remark.fact == fact)
            return remark.number;
    }
    return -1;
}

inline bool asked(const Imported& imported, Question question) {
    return std::ranges::any_of(imported.asks,
                               [&](const Ask& ask) { return ask.question == question; });
}

} // namespace velmora::imports
