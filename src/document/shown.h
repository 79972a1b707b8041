// A number of the session and the box that shows it. The two don't always agree, on purpose: each
// verb says which of them it changes.
#pragma once

#include "document/number_text.h"

#include <cstdint>
#include <string>
#include <type_traits>

namespace velmora {

/// A count as its box shows it; no allocation, for use at every step.
void show_count(std::string& box, std::int64_t count);
/// The box, read as a number, moved by `step`. Raises 6 for a text beyond f64.
void step_count(std::string& box, std::int32_t step);
/// The box read as a count. Raises 6.
[[nodiscard]] std::int32_t count_in(const std::string& box);

template <class Number>
class Shown {
  public:
    Shown(Number& kept, std::string& box) : kept_(kept), box_(box) {}

    void keep(Number value) { kept_ = value; }
    void show(Number value) {
        if constexpr (std::is_integral_v<Number>)
            show_count(box_, value);
        else
            box_ = CStr(value);
    }
    /// Kept and shown.
    void put(Number value) {
        keep(value);
        show(value);
    }
    /// Each moves from its own value, and nothing recounts them. Raises 6 for a text beyond f64.
    void step(Number step) {
        step_count(box_, step);
        kept_ += step;
    }
    /// One more than is kept is kept and shown.
    void count() { put(kept_ + 1); }
    /// What the box shows is kept. Raises 6.
    void keep_shown() { keep(count_in(box_)); }

  private:
    Number& kept_;
    std::string& box_;
};

using ShownCount = Shown<std::int32_t>;
using ShownFigure = Shown<double>;

/// The pairs that several rooms set, by the name of the number.
namespace shown {

ShownCount TotalPtos();
ShownCount TotalSinc(); ///< in TxtTotalCtrlPtos
ShownCount PtosSuprimidos();
ShownCount TotalObjs(); ///< in TxtProcesed
ShownFigure OrigX();
ShownFigure OrigY();
ShownFigure Longitud();
ShownFigure Altura();
ShownFigure ZoomFactor();
ShownCount PutArc();
ShownCount PutCircle();

} // namespace shown

} // namespace velmora
