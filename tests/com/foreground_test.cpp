#include "adapters/com/foreground.h"

#include "adapters/com/windows_headers.h"
#include "support/error_number.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <memory>

namespace velmora::com {
namespace {

using test::number_of;

struct DestroyWindowOfTest {
    void operator()(HWND window) const noexcept { DestroyWindow(window); }
};
using Window = std::unique_ptr<std::remove_pointer_t<HWND>, DestroyWindowOfTest>;

Window window_titled(const wchar_t* title, DWORD style = WS_OVERLAPPEDWINDOW | WS_VISIBLE) {
    return Window(CreateWindowExW(0, L"Static", title, style, 0, 0, 100, 100, nullptr, nullptr,
                                  nullptr, nullptr));
}

/// In the order of their rank.
constexpr std::array kTitles = {L"Sondeo", L"Sondeo 2000 - [Ala.dwg]", L"Mi Sondeo 2024"};

TEST(ActivateWindow, the_whole_title_goes_before_its_beginning_and_that_before_a_part) {
    const Window another = window_titled(L"Otro");
    std::array<std::size_t, kTitles.size()> from_back_to_front = {0, 1, 2};
    do {
        std::array<Window, kTitles.size()> windows;
        for (const std::size_t rank : from_back_to_front)
            windows.at(rank) = window_titled(kTitles.at(rank));
        for (Window& best : windows) {
            activate_window(L"SONDEO");
            EXPECT_EQ(GetForegroundWindow(), best.get())
                << testing::PrintToString(from_back_to_front);
            best.reset();
        }
    } while (std::ranges::next_permutation(from_back_to_front).found);
}

TEST(ActivateWindow, a_hidden_window_is_none_and_none_is_5) {
    const Window hidden = window_titled(L"Sondeo oculto", WS_OVERLAPPEDWINDOW);
    EXPECT_EQ(number_of([] { activate_window(L"Sondeo"); }), 5);
}

} // namespace
} // namespace velmora::com
