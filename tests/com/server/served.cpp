#include "server/served.h"

#include "runtime/error.h"

#include <algorithm>
#include <atomic>

namespace velmora::test {

namespace {

using com::Variant;

bool same_name(std::wstring_view a, std::wstring_view b) {
    return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                                static_cast<int>(b.size()), TRUE) == CSTR_EQUAL;
}

HRESULT result_of(int number) {
    return number < 0 ? static_cast<HRESULT>(number)
                      : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

Arguments arguments_of(const DISPPARAMS& parameters) {
    Arguments arguments;
    for (UINT i = parameters.cArgs; i > 0; --i)
        arguments.push_back(Variant::copy(parameters.rgvarg[i - 1]));
    return arguments;
}

class Served : public IDispatch {
  public:
    Served(Manners& manners, std::vector<Member> members)
        : manners_(manners), members_(std::move(members)) {}
    virtual ~Served() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch;
        *object = known ? static_cast<IDispatch*>(this) : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* value, EXCEPINFO* exception, UINT*) override;

  private:
    void use(const Member& member, WORD flags, const DISPPARAMS& parameters, VARIANT* value);
    HRESULT answer_failure(const RuntimeError& failure, EXCEPINFO* exception) const;

    Manners& manners_;
    std::vector<Member> members_;
    std::atomic<ULONG> references_ = 1;
};

HRESULT Served::GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) {
    if (manners_.busy > 0) {
        --manners_.busy;
        return RPC_E_CALL_REJECTED;
    }
    const auto found = std::ranges::find_if(
        members_, [&](const Member& member) { return same_name(member.name, names[0]); });
    if (found == members_.end() || found->name == manners_.hidden_member) {
        ids[0] = DISPID_UNKNOWN;
        return DISP_E_UNKNOWNNAME;
    }
    ids[0] = static_cast<DISPID>(found - members_.begin()) + 1;
    return S_OK;
}

void Served::use(const Member& member, WORD flags, const DISPPARAMS& parameters, VARIANT* value) {
    if (manners_.awaited_member == member.name) {
        manners_.awaited_member.clear();
        manners_.laid_out();
    }
    const Arguments arguments = arguments_of(parameters);
    const bool writes = (flags & DISPATCH_PROPERTYPUT) != 0;
    if (writes ? !member.write : !member.read)
        raise(DISP_E_MEMBERNOTFOUND);
    if (writes) {
        member.write(arguments.at(0));
        return;
    }
    Variant answer = member.read(arguments);
    if (value != nullptr)
        answer.release_to(*value);
}

HRESULT Served::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* value,
                       EXCEPINFO* exception, UINT*) {
    if (manners_.busy > 0) {
        --manners_.busy;
        return RPC_E_CALL_REJECTED;
    }
    if (id < 1 || static_cast<std::size_t>(id) > members_.size())
        return DISP_E_MEMBERNOTFOUND;
    HRESULT result = S_OK;
    trap([&] { use(members_[static_cast<std::size_t>(id) - 1], flags, *parameters, value); },
         [&](const RuntimeError& failure) { result = answer_failure(failure, exception); });
    return result;
}

HRESULT Served::answer_failure(const RuntimeError& failure, EXCEPINFO* exception) const {
    if (manners_.plain_results || exception == nullptr)
        return result_of(failure.number);
    *exception = {};
    exception->scode = result_of(failure.number);
    if (!failure.description.empty()) {
        VARIANT text{};
        Variant::text(failure.description).release_to(text);
        exception->bstrDescription = text.bstrVal;
    }
    return DISP_E_EXCEPTION;
}

} // namespace

com::ComPtr<IDispatch> serve(Manners& manners, std::vector<Member> members) {
    return com::ComPtr<IDispatch>(new Served(manners, std::move(members)));
}

} // namespace velmora::test
