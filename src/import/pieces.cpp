#include "import/pieces.h"

#include "import/number_text.h"

namespace velmora::imports {

namespace {

bool is_within_numbers(const Point& point) {
    return std::abs(point.X) <= largest_number && std::abs(point.Y) <= largest_number;
}

} // namespace

void Pieces::begin(std::size_t line, std::uint16_t layer) {
    open_ = {.first = static_cast<std::uint32_t>(points_.size()),
             .line = static_cast<std::uint32_t>(line),
             .layer = layer};
}

void Pieces::add(const Point& point) {
    const bool first = points_.size() == open_.first;
    if (full())
        return;
    ++offered_;
    if (is_within_numbers(point) && (first || points_.back() != point))
        points_.push_back(point);
}

void Pieces::end(bool closed) {
    open_.count = static_cast<std::uint32_t>(points_.size()) - open_.first;
    open_.closed = closed;
    if (open_.count > 0)
        pieces_.push_back(open_);
    open_ = {.first = static_cast<std::uint32_t>(points_.size())};
}

} // namespace velmora::imports
