#include "canvas/colours.h"

#include <array>
#include <cstddef>

namespace velmora {

namespace {

/// By the system's numbers, from 0 the scroll bar.
constexpr std::array<std::uint32_t, 31> kSystemColours = {
    0xC8C8C8, // scroll bar
    0x000000, // desktop
    0x99B4D1, // caption of the active window
    0xBFCDDB, // caption of another window
    0xF0F0F0, // menu
    0xFFFFFF, // window
    0x646464, // window frame
    0x000000, // menu text
    0x000000, // window text
    0x000000, // text of the active caption
    0xB4B4B4, // border of the active window
    0xF4F7FC, // border of another window
    0xABABAB, // work space
    0x3399FF, // selection
    0xFFFFFF, // selected text
    0xF0F0F0, // button face
    0xA0A0A0, // button shadow
    0x6D6D6D, // disabled text
    0x000000, // button text
    0x434E54, // text of another caption
    0xFFFFFF, // button highlight
    0x696969, // dark shadow
    0xE3E3E3, // light edge
    0x000000, // tool tip text
    0xFFFFE1, // tool tip
    0x000000, // not in use
    0x0066CC, // hot item
    0xB9D1EA, // end of the active caption
    0xD7E4F2, // end of another caption
    0x3399FF, // selected menu entry
    0xF0F0F0, // menu bar
};

} // namespace

std::uint32_t screen_rgb(std::uint32_t colour) {
    if (colour >= 0x80000000) {
        const std::size_t number = colour & 0x7FFFFFFF;
        return number < kSystemColours.size() ? kSystemColours[number] : 0;
    }
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

} // namespace velmora
