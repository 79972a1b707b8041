#include "adapters/com/late_bound.h"

#include "adapters/com/fault.h"

#include <algorithm>
#include <chrono>

namespace velmora::com {

namespace {

constexpr std::chrono::seconds kPatience{10};
constexpr DWORD kPauseMilliseconds = 50;

bool is_busy(HRESULT result) {
    return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
}

/// A call that was turned away has not been carried out and can be made again.
template <class Call>
HRESULT with_patience(Call call) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    HRESULT result = call();
    while (is_busy(result) && std::chrono::steady_clock::now() < end) {
        Sleep(kPauseMilliseconds);
        result = call();
    }
    return result;
}

} // namespace

DISPID LateBound::id_of(const wchar_t* member) {
    const auto known = std::ranges::find(ids_, member, [](const auto& id) { return id.first; });
    if (known != ids_.end())
        return known->second;
    auto* name = const_cast<wchar_t*>(member); // the interface is older than const
    DISPID id = DISPID_UNKNOWN;
    check(with_patience(
        [&] { return object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id); }));
    ids_.emplace_back(member, id);
    return id;
}

Variant LateBound::invoke(const wchar_t* member, WORD flags,
                          const std::vector<Variant>& arguments) {
    const DISPID id = id_of(member);
    static_assert(sizeof(Variant) == sizeof(VARIANT), "a run of one is a run of the other");
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{};
    parameters.rgvarg = reinterpret_cast<VARIANT*>(const_cast<Variant*>(arguments.data()));
    parameters.cArgs = static_cast<UINT>(arguments.size());
    if (flags == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &put;
        parameters.cNamedArgs = 1;
    }
    Variant value;
    Exception exception;
    const HRESULT result = with_patience([&] {
        return object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                               value.receive(), exception.receive(), nullptr);
    });
    if (FAILED(result))
        throw fault_of(result, exception);
    return value;
}

bool LateBound::may_offer(const wchar_t* member) {
    auto* name = const_cast<wchar_t*>(member); // the interface is older than const
    DISPID id = DISPID_UNKNOWN;
    const HRESULT result = object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
    return SUCCEEDED(result) || is_busy(result);
}

void LateBound::put(const wchar_t* member, Variant value) {
    invoke(member, DISPATCH_PROPERTYPUT, pack(value));
}

} // namespace velmora::com
