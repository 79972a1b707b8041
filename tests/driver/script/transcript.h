// The transcript on standard output: one line at a time, out at once, so that what happened before
// an end stands there however it ended.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace velmora::driver {

class Transcript {
  public:
    using Sink = std::function<void(std::string_view line)>;
    explicit Transcript(Sink sink) : sink_(std::move(sink)) {}

    /// Prints the words with a blank between them; each stands as it is.
    template <class... Words>
    void line(std::string_view first, const Words&... words) {
        std::string text(first);
        ((text += ' ', text += words), ...);
        sink_(text);
    }

  private:
    Sink sink_;
};

/// A sink that writes to standard output and flushes.
void print_line(std::string_view line);

} // namespace velmora::driver
