// The growable array of the logic: lower bound 0, an upper bound that is always the truth about
// the number of elements, every access checked.
#pragma once

#include "runtime/error.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace velmora {

/// An array as the logic knows it. It starts without dimensions; asking for its bound or an
/// element then raises 9, as any index outside the bounds does.
template <class T>
class Array {
  public:
    Array() = default;

    /// Upper bound. Raises 9 while the array has no dimensions.
    [[nodiscard]] std::int32_t upper() const {
        if (items_.empty())
            raise(error::subscript);
        return static_cast<std::int32_t>(items_.size()) - 1;
    }
    [[nodiscard]] bool dimensioned() const { return !items_.empty(); }
    [[nodiscard]] std::size_t size() const { return items_.size(); }

    /// New bounds 0..upper, all elements zeroed. A negative bound raises 9, one beyond 2 GB of
    /// elements 7.
    void redim(std::int32_t upper) {
        check_bound(upper);
        items_.assign(static_cast<std::size_t>(upper) + 1, T{});
    }
    /// New bounds 0..upper, what is inside both stays. Raises likewise.
    void redim_keep(std::int32_t upper) {
        check_bound(upper);
        items_.resize(static_cast<std::size_t>(upper) + 1);
    }
    /// Makes room for so many elements; the bounds stay.
    void reserve(std::size_t elements) { items_.reserve(elements); }
    /// One element more at the end.
    void append(const T& item) { items_.push_back(item); }
    /// Back to having no dimensions.
    void erase() { items_.clear(); }

    T& operator[](std::int32_t index) { return items_[checked(index)]; }
    const T& operator[](std::int32_t index) const { return items_[checked(index)]; }

    /// All elements, for loops that stay inside the bounds by their own form.
    [[nodiscard]] std::span<T> all() { return items_; }
    [[nodiscard]] std::span<const T> all() const { return items_; }

    void swap(Array& other) noexcept { items_.swap(other.items_); }

  private:
    static constexpr std::size_t most_bytes = std::size_t{1} << 31U;

    static void check_bound(std::int32_t upper) {
        if (upper < 0)
            raise(error::subscript);
        // The system promises memory that it does not have, and ends who takes it.
        if (static_cast<std::size_t>(upper) >= most_bytes / sizeof(T))
            raise(error::out_of_memory);
    }
    [[nodiscard]] std::size_t checked(std::int32_t index) const {
        if (index < 0 || static_cast<std::size_t>(index) >= items_.size())
            raise(error::subscript);
        return static_cast<std::size_t>(index);
    }

    std::vector<T> items_;
};

} // namespace velmora
