// Another program's window brought to the front.
#pragma once

namespace velmora::com {

/// Activates the window whose title is the text, else one whose title begins with it, else one that
/// has it somewhere ("Autodesk AutoCAD 2024"); capitals make no difference. Raises 5 without one.
void activate_window(const wchar_t* title);

} // namespace velmora::com
