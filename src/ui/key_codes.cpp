#include "ui/key_codes.h"

#include <algorithm>
#include <span>
#include <utility>

namespace velmora {

namespace {

using Code = std::pair<int, int>;

// Alt is reported as Meta while Shift is held.
constexpr Code kKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Clear, 12},   {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},    {Qt::Key_AltGr, 18},
    {Qt::Key_Meta, 18},     {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},  {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},   {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},   {Qt::Key_Down, 40},   {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},
};

/// The number pad's, where they are not those of the keys above: with Num Lock on, and its signs.
constexpr Code kPadKeys[] = {
    {Qt::Key_0, 96},      {Qt::Key_1, 97},       {Qt::Key_2, 98},         {Qt::Key_3, 99},
    {Qt::Key_4, 100},     {Qt::Key_5, 101},      {Qt::Key_6, 102},        {Qt::Key_7, 103},
    {Qt::Key_8, 104},     {Qt::Key_9, 105},      {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},
    {Qt::Key_Minus, 109}, {Qt::Key_Period, 110}, {Qt::Key_Comma, 110},    {Qt::Key_Slash, 111},
};

int code_in(std::span<const Code> codes, int key) {
    const auto found = std::ranges::find(codes, key, &Code::first);
    return found == codes.end() ? 0 : found->second;
}

bool is_letter_or_digit(int key) {
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

} // namespace

int key_code(int key, Qt::KeyboardModifiers modifiers) {
    if (modifiers.testFlag(Qt::KeypadModifier))
        if (const int code = code_in(kPadKeys, key))
            return code;
    return is_letter_or_digit(key) ? key : code_in(kKeys, key);
}

} // namespace velmora
