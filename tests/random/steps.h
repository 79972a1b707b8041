// Random steps of someone at the windows: each is a line of a scenario that fits what is open.
#pragma once

#include "windows/stage.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

class QWidget;

namespace velmora::random {

class Steps {
  public:
    Steps(const driver::Stage& stage, std::uint64_t seed) : stage_(stage), random_(seed) {}

    /// What stands before the first step: files to open, a CAD, the start.
    [[nodiscard]] static std::vector<std::string> opening();
    [[nodiscard]] std::string next();

  private:
    [[nodiscard]] std::size_t below(std::size_t limit) { return random_() % limit; }
    [[nodiscard]] bool one_in(std::size_t chances) { return below(chances) == 0; }
    template <class Choices>
    [[nodiscard]] std::string one_of(const Choices& choices) {
        return std::string(choices[below(std::size(choices))]);
    }
    [[nodiscard]] std::string coming_answer();
    [[nodiscard]] std::string in_main_window();
    [[nodiscard]] std::string in_window(const std::string& name);
    [[nodiscard]] std::string on_control(const QWidget& control, const std::string& word);
    [[nodiscard]] std::string on_canvas();
    [[nodiscard]] std::string typed();

    const driver::Stage& stage_;
    std::mt19937_64 random_;
};

} // namespace velmora::random
