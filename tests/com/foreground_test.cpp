#include "adapters/com/foreground.h"

#include "adapters/com/windows_headers.h"
#include "support/error_number.h"

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

TEST(ActivateWindow, the_whole_title_goes_before_its_beginning_and_that_before_a_part) {
    const Window part = window_titled(L"Mi Sondeo 2024");
    Window whole = window_titled(L"Sondeo");
    Window beginning = window_titled(L"Sondeo 2000 - [Ala.dwg]");
    const Window another = window_titled(L"Otro");
    activate_window(L"SONDEO");
    EXPECT_EQ(GetForegroundWindow(), whole.get());
    whole.reset();
    activate_window(L"sondeo");
    EXPECT_EQ(GetForegroundWindow(), beginning.get());
    beginning.reset();
    activate_window(L"Sondeo");
    EXPECT_EQ(GetForegroundWindow(), part.get());
}

TEST(ActivateWindow, a_hidden_window_is_none_and_none_is_5) {
    const Window hidden = window_titled(L"Sondeo oculto", WS_OVERLAPPEDWINDOW);
    EXPECT_EQ(number_of([] { activate_window(L"Sondeo"); }), 5);
}

} // namespace
} // namespace velmora::com
