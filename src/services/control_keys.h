// The keys under which a control's texts are stored in a form's table, and the two run-time errors
// that a walk over unlike controls passes over.
#pragma once

#include "platform/form.h"
#include "runtime/error.h"

#include <string>

namespace velmora {

/// Runs one step; 343 and 438 end the step alone. A picture has no caption, most controls are in
/// no array.
template <class Step>
void passing_over(Step&& step) {
    try {
        step();
    } catch (const RuntimeError& failure) {
        if (failure.number != error::not_an_array && failure.number != error::no_such_member)
            throw;
    }
}

/// Name of a control, with its index when it is a member of a control array.
[[nodiscard]] std::string key_of(const FormControl& control);

/// Number of the first part in its key: panels count from 1, tabs and buttons from 0.
[[nodiscard]] inline int first_number(ControlKind kind) {
    return kind == ControlKind::status_bar ? 1 : 0;
}

/// Calls `visit(part, key)` for every text of a control, parts from 0.
template <class Visit>
void for_each_key(const FormControl& control, Visit&& visit) {
    const ControlKind kind = control.kind();
    if (kind == ControlKind::text_box || kind == ControlKind::other) {
        visit(0, key_of(control));
        return;
    }
    for (int part = 0; part < control.parts(); ++part)
        visit(part, control.name() + std::to_string(part + first_number(kind)));
}

} // namespace velmora
