#include "adapters/com/foreground.h"

#include "adapters/com/windows_headers.h"
#include "runtime/error.h"

#include <array>
#include <string>
#include <string_view>

namespace velmora::com {

namespace {

enum class Match { none, part, beginning, whole };

std::wstring title_of(HWND window) {
    std::array<wchar_t, 512> title{};
    const int length = GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
    return {title.data(), static_cast<std::size_t>(length)};
}

Match match(std::wstring_view title, std::wstring_view wanted) {
    const int at = FindStringOrdinal(FIND_FROMSTART, title.data(), static_cast<int>(title.size()),
                                     wanted.data(), static_cast<int>(wanted.size()), TRUE);
    if (at < 0)
        return Match::none;
    if (at > 0)
        return Match::part;
    return title.size() == wanted.size() ? Match::whole : Match::beginning;
}

struct Search {
    std::wstring_view wanted;
    HWND window = nullptr;
    Match best = Match::none;
};

// The windows come from the front to the back: of two that match alike the first one counts.
BOOL CALLBACK look_at(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (IsWindowVisible(window) == FALSE)
        return TRUE;
    const Match found = match(title_of(window), search.wanted);
    if (found > search.best) {
        search.best = found;
        search.window = window;
    }
    return TRUE;
}

} // namespace

void activate_window(const wchar_t* title) {
    Search search{.wanted = title};
    EnumWindows(look_at, reinterpret_cast<LPARAM>(&search));
    if (search.window == nullptr)
        raise(error::invalid_call);
    SetForegroundWindow(search.window);
}

} // namespace velmora::com
