#include "server/registration.h"

#include <array>
#include <string>

namespace velmora::test {

namespace {

constexpr auto kClasses = L"Software\\Classes\\";
constexpr auto kClassName = L"AutoCAD.Application";
constexpr auto kClassId = L"{5C0E62D1-93B7-4E0C-A1F4-2B7D8E6A4C19}";

std::wstring key_of_name() {
    return std::wstring(kClasses) + kClassName;
}

std::wstring key_of_class() {
    return std::wstring(kClasses) + L"CLSID\\" + kClassId;
}

bool write(const std::wstring& key, const std::wstring& value) {
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, value.c_str(),
                           bytes) == ERROR_SUCCESS;
}

bool remove(const std::wstring& key) {
    return RegDeleteTreeW(HKEY_LOCAL_MACHINE, key.c_str()) == ERROR_SUCCESS;
}

std::wstring own_path() {
    std::array<wchar_t, 1024> path{};
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return {path.data(), length};
}

enum class Owner { nobody, stand_in, another };

Owner owner_of_name() {
    CLSID id{};
    if (FAILED(CLSIDFromProgID(kClassName, &id)))
        return Owner::nobody;
    return id == kStandInClass ? Owner::stand_in : Owner::another;
}

} // namespace

bool register_class() {
    return owner_of_name() != Owner::another && write(key_of_name(), L"Stand-in CAD") &&
           write(key_of_name() + L"\\CLSID", kClassId) && write(key_of_class(), L"Stand-in CAD") &&
           write(key_of_class() + L"\\ProgID", kClassName) &&
           write(key_of_class() + L"\\LocalServer32", L"\"" + own_path() + L"\"");
}

bool unregister_class() {
    return owner_of_name() == Owner::stand_in && remove(key_of_name()) && remove(key_of_class());
}

} // namespace velmora::test
