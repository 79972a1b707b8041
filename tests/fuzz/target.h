// What a fuzz target is: it takes bytes as they may come from outside and does with them what the
// program would. A run-time error is an answer; a broken promise ends the process, as the
// sanitizers do.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace velmora::fuzz {

struct Target {
    std::string_view name; ///< also of its folder in corpus/ and of its dictionary
    void (*run)(std::string_view bytes);
};

[[nodiscard]] std::span<const Target> targets();
/// nullptr for a name that no target has.
[[nodiscard]] const Target* target_named(std::string_view name);

/// Ends the process with these words where a promise does not hold.
void promise(bool holds, std::string_view words);

/// The first byte of an input chooses; the rest is what is read.
class Choice {
  public:
    explicit Choice(std::string_view bytes);
    /// A number below `limit`, out of what the byte still holds.
    std::size_t below(std::size_t limit);
    [[nodiscard]] std::string_view rest() const { return rest_; }

  private:
    std::size_t left_ = 0;
    std::string_view rest_;
};

} // namespace velmora::fuzz
