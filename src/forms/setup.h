// The dialog `setup`, "Parámetros Generales": its boxes are in state::setup.
#pragma once

#include <span>
#include <string_view>

namespace velmora {

/// The names that Cmb_Lang offers, in their order.
[[nodiscard]] std::span<const std::string_view> setup_languages();

void setup_Load();
/// Fills colours, boxes, language and sound from the session.
void setup_Activate();

/// A click on a label `lblcolor_...`: asks for its colour. The choice is in force at once, also
/// when the dialog is cancelled afterwards, on purpose. Another name does nothing.
void lblcolor_Click(std::string_view label);
/// A tab was brought up; tab 1 holds the colours.
void setup_SSTab1_Click(int tab);

/// A key of a numeric box: the key to take, 0 to swallow it.
[[nodiscard]] int Txt_Def_Arc_Val_KeyPress(int key);
[[nodiscard]] int Txt_Def_Circle_Val_KeyPress(int key);
[[nodiscard]] int Txt_Def_Dec_Val_KeyPress(int key);
[[nodiscard]] int Txt_Def_zoom_Val_KeyPress(int key);
/// The focus left the box: a number below 3 is refused. The circle's message says 4, and 3 passes,
/// on purpose.
void Txt_Def_Arc_Val_LostFocus();
void Txt_Def_Circle_Val_LostFocus();

/// Takes the boxes, stores all settings, brings the session and the options window in line, closes.
/// Raises 13 for a box without a number, 6 for one that does not fit; what was taken before stays.
void setup_cmd_ok_Click();
void setup_cmd_cancel_Click();

} // namespace velmora
