#include "adapters/com/fault.h"

#include "adapters/com/wide_text.h"
#include "cad/autocad.h"

#include <algorithm>
#include <array>
#include <memory>

namespace velmora::com {

namespace {

struct Meaning {
    HRESULT result;
    int number;
};

constexpr HRESULT of_windows(unsigned long code) {
    return static_cast<HRESULT>(0x80070000UL | code);
}

const auto kMeanings = std::to_array<Meaning>({
    {RPC_E_DISCONNECTED, error::server_unavailable},
    {RPC_E_SERVER_DIED, error::server_unavailable},
    {RPC_E_SERVER_DIED_DNE, error::server_unavailable},
    {RPC_E_CONNECTION_TERMINATED, error::server_unavailable},
    {CO_E_OBJNOTCONNECTED, error::server_unavailable},
    {of_windows(RPC_S_SERVER_UNAVAILABLE), error::server_unavailable},
    {of_windows(RPC_S_CALL_FAILED), error::server_unavailable},
    {of_windows(RPC_S_CALL_FAILED_DNE), error::server_unavailable},
    {RPC_E_CALL_REJECTED, error::cad_busy},
    {RPC_E_SERVERCALL_RETRYLATER, error::cad_busy},
    {DISP_E_UNKNOWNNAME, error::no_such_member},
    {DISP_E_MEMBERNOTFOUND, error::no_such_member},
    {DISP_E_TYPEMISMATCH, error::type_mismatch},
    {DISP_E_BADINDEX, error::subscript},
    {DISP_E_OVERFLOW, error::overflow},
    {E_INVALIDARG, error::invalid_call},
    {E_OUTOFMEMORY, error::out_of_memory},
    {E_ACCESSDENIED, error::permission_denied},
});

int number_of(HRESULT result) {
    if (HRESULT_FACILITY(result) == FACILITY_CONTROL)
        return HRESULT_CODE(result);
    const auto* const known = std::ranges::find(kMeanings, result, &Meaning::result);
    return known == kMeanings.end() ? static_cast<int>(result) : known->number;
}

struct FreeLocal {
    void operator()(wchar_t* text) const noexcept { LocalFree(text); }
};

/// The system's own text, without its line end; empty where it knows none.
std::string system_text(HRESULT result) {
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, static_cast<DWORD>(result), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::unique_ptr<wchar_t, FreeLocal> owner(text);
    std::wstring_view line(text, length);
    while (line.ends_with(L'\n') || line.ends_with(L'\r') || line.ends_with(L' '))
        line.remove_suffix(1);
    return utf8_text(line);
}

// The run-time's own numbers have their text in the program's language.
std::string description_of(int number) {
    return number < 0 ? system_text(static_cast<HRESULT>(number)) : std::string{};
}

std::string text_of(BSTR text) {
    return text == nullptr ? std::string{} : utf8_text({text, SysStringLen(text)});
}

int number_of(const EXCEPINFO& info) {
    if (info.wCode != 0)
        return info.wCode;
    return number_of(FAILED(info.scode) ? info.scode : DISP_E_EXCEPTION);
}

} // namespace

Exception::~Exception() {
    SysFreeString(info_.bstrSource);
    SysFreeString(info_.bstrDescription);
    SysFreeString(info_.bstrHelpFile);
}

void Exception::complete() {
    if (info_.pfnDeferredFillIn != nullptr)
        info_.pfnDeferredFillIn(&info_);
}

RuntimeError fault_of(HRESULT result) {
    const int number = number_of(result);
    return RuntimeError(number, description_of(number));
}

RuntimeError fault_of(HRESULT result, Exception& exception) {
    if (result != DISP_E_EXCEPTION)
        return fault_of(result);
    exception.complete();
    const int number = number_of(exception.info());
    const std::string own = text_of(exception.info().bstrDescription);
    return RuntimeError(number, own.empty() ? description_of(number) : own);
}

void check(HRESULT result) {
    if (FAILED(result))
        throw fault_of(result);
}

} // namespace velmora::com
