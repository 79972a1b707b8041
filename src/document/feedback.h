// What long operations show the user: the status panel, the pointer, progress, the boxes of traps.
#pragma once

#include "runtime/error.h"

#include <string>
#include <string_view>

namespace velmora {

/// First panel of StatusBar1.
void set_status(std::string_view text);
/// The screen's pointer: 0 default, 2 cross, 11 hourglass.
void set_pointer(int pointer);
/// Lets the windows run. Cheap enough for every step of a long loop. While a file is read
/// or a drawing captured it throws Cancelled once the user asked for that.
void DoEvents();

/// A message box; an empty title is "Velmora". The answer is returned, and stays in Respuesta.
int MsgBox(std::string_view text, int buttons = 0, std::string_view title = {});
/// The same with an icon to look at, which `buttons` does not name.
int MsgBoxWithIcon(int icon, std::string_view text, int buttons, std::string_view title);
/// An input box; the empty text when cancelled.
std::string InputBox(std::string_view prompt, std::string_view title, std::string_view preset);

/// The error's text in the program's language.
[[nodiscard]] std::string description_of(const RuntimeError& failure);
/// The plain box of an error route: prefix ("Error GetMinX nº: "), number, "  - Desc: ", text,
/// and `tail`.
void show_trap(std::string_view prefix, const RuntimeError& failure, std::string_view tail = {});

/// Start message, then the hourglass; at the end the end message, then the default pointer. What
/// leaves without `finish` leaves both as they are, on purpose.
class LongOperation {
  public:
    explicit LongOperation(std::string_view start_message);
    void finish(std::string_view end_message);
};

} // namespace velmora
