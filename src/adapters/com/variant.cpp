#include "adapters/com/variant.h"

#include "adapters/com/fault.h"
#include "adapters/com/wide_text.h"

#include <algorithm>
#include <utility>

namespace velmora::com {

namespace {

/// The elements of an array for as long as it lives.
template <class Element>
class Elements {
  public:
    Elements(SAFEARRAY* array, std::size_t count) : array_(array), count_(count) {
        check(SafeArrayAccessData(array_, reinterpret_cast<void**>(&data_)));
    }
    ~Elements() { SafeArrayUnaccessData(array_); }
    Elements(const Elements&) = delete;
    Elements& operator=(const Elements&) = delete;

    [[nodiscard]] std::span<Element> all() const { return {data_, count_}; }

  private:
    SAFEARRAY* array_;
    std::size_t count_;
    Element* data_ = nullptr;
};

/// For the system's readers, which are older than const.
VARIANT* unlocked(const VARIANT& value) {
    return const_cast<VARIANT*>(&value);
}

std::size_t length_of(SAFEARRAY* array) {
    if (array == nullptr)
        return 0;
    if (SafeArrayGetDim(array) != 1)
        raise(error::type_mismatch);
    LONG lower = 0;
    LONG upper = -1;
    check(SafeArrayGetLBound(array, 1, &lower));
    check(SafeArrayGetUBound(array, 1, &upper));
    return static_cast<std::size_t>(upper - lower + 1);
}

std::vector<double> numbers_of(SAFEARRAY* array, VARTYPE element) {
    const std::size_t count = length_of(array);
    std::vector<double> numbers;
    if (count == 0)
        return numbers;
    if (element == VT_R8) {
        const Elements<double> elements(array, count);
        numbers.assign(elements.all().begin(), elements.all().end());
        return numbers;
    }
    if (element != VT_VARIANT)
        raise(error::type_mismatch);
    const Elements<VARIANT> elements(array, count);
    std::ranges::transform(elements.all(), std::back_inserter(numbers),
                           [](const VARIANT& value) { return Variant::copy(value).as_real(); });
    return numbers;
}

} // namespace

Variant::Variant(Variant&& other) noexcept : Variant() {
    std::swap(value_, other.value_);
}

Variant& Variant::operator=(Variant&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
}

Variant Variant::whole(std::int32_t value) {
    Variant made;
    made.value_.vt = VT_I4;
    made.value_.lVal = value;
    return made;
}

Variant Variant::real(double value) {
    Variant made;
    made.value_.vt = VT_R8;
    made.value_.dblVal = value;
    return made;
}

Variant Variant::flag(bool value) {
    Variant made;
    made.value_.vt = VT_BOOL;
    made.value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    return made;
}

Variant Variant::text(std::string_view value) {
    const std::wstring wide = wide_text(value);
    Variant made;
    made.value_.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (made.value_.bstrVal == nullptr)
        raise(error::out_of_memory);
    made.value_.vt = VT_BSTR;
    return made;
}

Variant Variant::array(std::span<const double> values) {
    Variant made;
    made.value_.parray = SafeArrayCreateVector(VT_R8, 0, static_cast<ULONG>(values.size()));
    if (made.value_.parray == nullptr)
        raise(error::out_of_memory);
    made.value_.vt = VT_ARRAY | VT_R8;
    if (!values.empty())
        std::ranges::copy(values,
                          Elements<double>(made.value_.parray, values.size()).all().begin());
    return made;
}

Variant Variant::object(ComPtr<IDispatch> value) {
    Variant made;
    made.value_.vt = VT_DISPATCH;
    made.value_.pdispVal = value.release();
    return made;
}

Variant Variant::missing() {
    Variant made;
    made.value_.vt = VT_ERROR;
    made.value_.scode = DISP_E_PARAMNOTFOUND;
    return made;
}

Variant Variant::copy(const VARIANT& value) {
    Variant made;
    check(VariantCopyInd(&made.value_, unlocked(value)));
    return made;
}

// Numbers in texts have a point, whatever the user's locale.
Variant Variant::changed_to(VARTYPE type) const {
    Variant changed;
    check(VariantChangeTypeEx(&changed.value_, unlocked(value_), LOCALE_INVARIANT, 0, type));
    return changed;
}

std::int32_t Variant::as_whole() const {
    return changed_to(VT_I4).value_.lVal;
}

double Variant::as_real() const {
    return changed_to(VT_R8).value_.dblVal;
}

bool Variant::as_flag() const {
    return changed_to(VT_BOOL).value_.boolVal != VARIANT_FALSE;
}

std::string Variant::as_text() const {
    const Variant changed = changed_to(VT_BSTR);
    const BSTR text = changed.value_.bstrVal;
    return text == nullptr ? std::string{} : utf8_text({text, SysStringLen(text)});
}

std::vector<double> Variant::as_array() const {
    if ((value_.vt & VT_ARRAY) == 0)
        raise(error::type_mismatch);
    SAFEARRAY* const array = (value_.vt & VT_BYREF) != 0 ? *value_.pparray : value_.parray;
    return numbers_of(array, value_.vt & VT_TYPEMASK);
}

ComPtr<IDispatch> Variant::as_object() const {
    if (value_.vt != VT_DISPATCH && value_.vt != VT_UNKNOWN)
        raise(error::object_required);
    if (value_.punkVal == nullptr)
        raise(error::object_not_set);
    void* object = nullptr;
    check(value_.punkVal->QueryInterface(IID_IDispatch, &object));
    return ComPtr<IDispatch>(static_cast<IDispatch*>(object));
}

bool Variant::is_missing() const {
    return value_.vt == VT_ERROR && value_.scode == DISP_E_PARAMNOTFOUND;
}

VARIANT* Variant::receive() {
    VariantClear(&value_);
    return &value_;
}

void Variant::release_to(VARIANT& target) noexcept {
    target = std::exchange(value_, VARIANT{});
}

} // namespace velmora::com
