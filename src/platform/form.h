// A window's controls as AplicaLiterales and CreaLiterales see them: names, kinds, texts, tips.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

enum class ControlKind {
    status_bar, ///< parts are its panels, counted from 1
    tab_strip,  ///< parts are its tabs, from 0
    tool_bar,   ///< parts are its buttons; part n is the button n + 1
    text_box,   ///< the text is the box's Text
    other,      ///< the text is the Caption
};

/// One control. `part` is meant for status bars, tab strips and tool bars, counted from 0 here, and
/// left at 0 for the rest. A property that the control lacks raises 438.
class FormControl {
  public:
    virtual ~FormControl() = default;
    [[nodiscard]] virtual std::string name() const = 0;
    /// The index in a control array. Raises 343 when the control is in none.
    [[nodiscard]] virtual int index() const = 0;
    [[nodiscard]] virtual ControlKind kind() const = 0;
    [[nodiscard]] virtual int parts() const = 0;
    [[nodiscard]] virtual std::string text(int part) const = 0;
    virtual void set_text(int part, std::string_view text) = 0;
    [[nodiscard]] virtual std::string tip(int part) const = 0;
    virtual void set_tip(int part, std::string_view tip) = 0;
};

class Form {
  public:
    virtual ~Form() = default;
    [[nodiscard]] virtual std::string name() const = 0;
    [[nodiscard]] virtual std::string caption() const = 0;
    virtual void set_caption(std::string_view caption) = 0;
    [[nodiscard]] virtual int control_count() const = 0;
    /// Controls from 0, in the form's own order.
    virtual FormControl& control(int position) = 0;
};

} // namespace velmora
