// velmora-cad-server [/register | /unregister]: a CAD's automation for tests. Without an argument
// it runs as the active object of its class until its Quit is called.
#include "server/registration.h"
#include "server/stand_in.h"

#include <cstdlib>
#include <string_view>

namespace {

using velmora::com::ComPtr;
using velmora::test::kStandInClass;
using velmora::test::StandIn;

/// The server's place among the active objects for as long as it lives.
class ActiveObject {
  public:
    explicit ActiveObject(IUnknown* object)
        : result_(RegisterActiveObject(object, kStandInClass, ACTIVEOBJECT_STRONG, &entry_)) {}
    ~ActiveObject() {
        if (SUCCEEDED(result_))
            RevokeActiveObject(entry_, nullptr);
    }
    ActiveObject(const ActiveObject&) = delete;
    ActiveObject& operator=(const ActiveObject&) = delete;
    [[nodiscard]] bool stands() const { return SUCCEEDED(result_); }

  private:
    DWORD entry_ = 0;
    HRESULT result_;
};

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM word, LPARAM parameter) {
    auto* const stand_in = reinterpret_cast<StandIn*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_ACTIVATE && LOWORD(word) != WA_INACTIVE && stand_in != nullptr)
        stand_in->activated();
    return DefWindowProcW(window, message, word, parameter);
}

/// The window that AppActivate looks for. It tells only what comes after it was shown.
void open_window(StandIn& stand_in) {
    WNDCLASSW kind{};
    kind.lpfnWndProc = answer;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = L"velmora-cad-server";
    RegisterClassW(&kind);
    const HWND window =
        CreateWindowExW(0, kind.lpszClassName, L"AutoCAD 2000 - [Ala.dwg]", WS_OVERLAPPEDWINDOW, 0,
                        0, 320, 200, nullptr, nullptr, kind.hInstance, nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&stand_in));
}

/// Whoever started the server waits for this.
void tell_ready() {
    if (const HANDLE ready = OpenEventW(EVENT_MODIFY_STATE, FALSE, L"velmora-cad-server-ready")) {
        SetEvent(ready);
        CloseHandle(ready);
    }
}

/// The window and the objects live until the Quit. False where the class can't be had.
bool serve_until_quit() {
    StandIn stand_in;
    const ComPtr<IDispatch> application = stand_in.application();
    const ActiveObject place(application.get());
    if (!place.stands())
        return false;
    open_window(stand_in);
    tell_ready();
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return true;
}

// Closing COM behind a served call hangs in Wine now and then: the process ends without it.
[[noreturn]] void run() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const bool served = serve_until_quit();
    TerminateProcess(GetCurrentProcess(), served ? 0 : 1);
    std::abort();
}

} // namespace

int main(int count, char** words) {
    const std::string_view wish = count > 1 ? words[1] : "";
    if (wish == "/register")
        return velmora::test::register_class() ? 0 : 1;
    if (wish == "/unregister")
        return velmora::test::unregister_class() ? 0 : 1;
    run();
}
