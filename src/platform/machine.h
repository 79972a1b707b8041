// The machine's own habits.
#pragma once

namespace velmora {

class Machine {
  public:
    virtual ~Machine() = default;
    /// '.' or ',', as the user's locale writes 1.5.
    [[nodiscard]] virtual char decimal_separator() = 0;
};

} // namespace velmora
