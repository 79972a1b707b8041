// The keys of the canvas. They work only with a selected point; bit 2 of the shift state is Ctrl.
#pragma once

namespace velmora {

namespace key {
inline constexpr int Shift = 16;
inline constexpr int Control = 17;
inline constexpr int Alt = 18;
inline constexpr int Esc = 27;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Insert = 45;
inline constexpr int Delete = 46;
inline constexpr int M = 77;
inline constexpr int N = 78;
inline constexpr int S = 83;
} // namespace key

/// Carries a key out and repaints, after any key but Ctrl, Shift and Alt, which do nothing by
/// themselves. With an index beyond the array selected, Delete, Insert, S and the arrows change
/// nothing. The list is not refreshed, on purpose.
void pic_KeyDown(int KeyCode, int Shift);
void pic_KeyUp(int KeyCode, int Shift);
/// The release of Ctrl goes to another control or window: it counts as released.
void pic_LostFocus();

} // namespace velmora
