// An object reached late bound: its members by name, at the moment of each use.
#pragma once

#include "adapters/com/apartment.h"
#include "adapters/com/variant.h"

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora::com {

/// Each use raises what the object answers (fault.h). An object that is busy is asked again for
/// some seconds before its refusal counts. Holds its thread's COM open.
class LateBound {
  public:
    LateBound(std::shared_ptr<const Apartment> apartment, ComPtr<IDispatch> object)
        : apartment_(std::move(apartment)), object_(std::move(object)) {}

    /// The value of a property, or of a method that has one.
    template <class... Arguments>
    [[nodiscard]] Variant get(const wchar_t* member, Arguments... arguments) {
        return invoke(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, pack(arguments...));
    }
    /// The object that a property or a method has for its value.
    template <class... Arguments>
    [[nodiscard]] LateBound get_object(const wchar_t* member, Arguments... arguments) {
        return {apartment_, get(member, std::move(arguments)...).as_object()};
    }
    template <class... Arguments>
    void call(const wchar_t* member, Arguments... arguments) {
        invoke(member, DISPATCH_METHOD, pack(arguments...));
    }
    void put(const wchar_t* member, Variant value);
    /// Whether it has the member, as far as can be told at once: one that is busy may have it.
    /// False where it can't be asked any more.
    [[nodiscard]] bool may_offer(const wchar_t* member);

  private:
    /// As automation takes them: the last one first.
    template <class... Arguments>
    static std::vector<Variant> pack(Arguments&... arguments) {
        std::vector<Variant> packed(sizeof...(arguments));
        [[maybe_unused]] auto place = packed.rbegin();
        ((*place++ = std::move(arguments)), ...);
        return packed;
    }
    Variant invoke(const wchar_t* member, WORD flags, const std::vector<Variant>& arguments);
    [[nodiscard]] DISPID id_of(const wchar_t* member);

    std::shared_ptr<const Apartment> apartment_; ///< outlives the object
    ComPtr<IDispatch> object_;
    std::vector<std::pair<const wchar_t*, DISPID>> ids_; ///< the members asked for before
};

} // namespace velmora::com
