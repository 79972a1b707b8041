// What the canvas does with the pointer. Positions are pixels of pic; button 1 is the left one, 2
// the right one; bit 2 of the shift state is Ctrl. None of the handlers has an error route of its
// own: what Define_Layout, Dibuja and the others raise rises to the event's dispatcher.
#pragma once

#include <cstdint>

namespace velmora {

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

/// Index of the first point less than 2 pixels away on both axes, -1 when there is none. The
/// lowest index wins, also over a nearer point. Raises 6 for a position beyond f64.
[[nodiscard]] std::int32_t HitPto(float X, float Y);

/// Selects the point under the pointer, which is not painted yet, and with the left button takes
/// hold of it.
void pic_MouseDown(int Button, int Shift, float X, float Y);
/// The rubber band, the label of the point under the pointer, the drag. Raises 11 with a zoom of 0.
void pic_MouseMove(int Button, int Shift, float X, float Y);
/// The target of Move_Shape, a point more or less in insertion mode, the end of a drag (the list is
/// left stale, on purpose), the point menu. Raises 11 with a zoom of 0.
void pic_MouseUp(int Button, int Shift, float X, float Y);
/// The point menu of the selected point, asked for without the pointer. Nothing where the pointer
/// could pick no point either.
void pic_MenuKey();

} // namespace velmora
