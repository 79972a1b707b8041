// A value of automation, and the logic's values made of it. Reading one as what it is not
// raises 13.
#pragma once

#include "adapters/com/windows_headers.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::com {

struct ReleaseObject {
    void operator()(IUnknown* object) const noexcept { object->Release(); }
};
template <class Interface>
using ComPtr = std::unique_ptr<Interface, ReleaseObject>;

class Variant {
  public:
    Variant() noexcept { VariantInit(&value_); }
    ~Variant() { VariantClear(&value_); }
    Variant(Variant&& other) noexcept;
    Variant& operator=(Variant&& other) noexcept;

    [[nodiscard]] static Variant whole(std::int32_t value);
    [[nodiscard]] static Variant real(double value);
    [[nodiscard]] static Variant flag(bool value);
    [[nodiscard]] static Variant text(std::string_view value);
    [[nodiscard]] static Variant array(std::span<const double> values);
    [[nodiscard]] static Variant object(ComPtr<IDispatch> value);
    /// An argument that is left out.
    [[nodiscard]] static Variant missing();
    /// A copy of another's, what it refers to included.
    [[nodiscard]] static Variant copy(const VARIANT& value);

    [[nodiscard]] std::int32_t as_whole() const;
    [[nodiscard]] double as_real() const;
    [[nodiscard]] bool as_flag() const;
    [[nodiscard]] std::string as_text() const;
    /// One dimension, of f64 or of values that become one.
    [[nodiscard]] std::vector<double> as_array() const;
    /// 91 for an object variable without an object, 424 for anything else.
    [[nodiscard]] ComPtr<IDispatch> as_object() const;
    [[nodiscard]] bool is_missing() const;

    [[nodiscard]] const VARIANT& value() const { return value_; }
    /// For a call that fills it.
    [[nodiscard]] VARIANT* receive();
    /// Hands the value over.
    void release_to(VARIANT& target) noexcept;

  private:
    [[nodiscard]] Variant changed_to(VARTYPE type) const;

    VARIANT value_;
};

} // namespace velmora::com
