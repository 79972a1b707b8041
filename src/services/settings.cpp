#include "services/settings.h"

#include "document/feedback.h"
#include "document/state/program.h"
#include "document/state/settings.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/settings_store.h"
#include "runtime/error.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <array>

namespace velmora {

namespace {

constexpr std::string_view kColors = "Colors";
constexpr std::string_view kValues = "Values";
constexpr double kZoom = 30000;

struct Colour {
    std::string_view key;
    std::uint32_t SettingState::*value;
    std::uint32_t preset;
};

constexpr auto kColours = std::to_array<Colour>({
    {"cl_fondo", &SettingState::cl_fondo, 0x80000000},
    {"cl_ejes", &SettingState::cl_ejes, 0xFFFFFF},
    {"cl_lineas", &SettingState::cl_lineas, 0},
    {"cl_linea1", &SettingState::cl_linea1, 255},
    {"cl_linea2", &SettingState::cl_linea2, 0xFF0000},
    {"cl_punto", &SettingState::cl_punto, 0},
    {"cl_puntosinc", &SettingState::cl_puntosinc, 0},
    {"cl_puntosel", &SettingState::cl_puntosel, 0},
    {"cl_coords", &SettingState::cl_coords, 0},
});

struct WholeNumber {
    std::string_view key;
    std::int32_t SettingState::*value;
    std::int32_t preset;
};

constexpr auto kWholeNumbers = std::to_array<WholeNumber>({
    {"Def_Dec", &SettingState::Def_Dec, 6},
    {"Def_Arc", &SettingState::Def_Arc, 25},
    {"Def_ACircle", &SettingState::Def_ACircle, 50},
});

// Reads a number by `read`, with either separator. A text that is none fails the caller; the report
// names the setting, for the user to mend it.
template <class Number, class Read>
Number number(std::string_view section, std::string_view key, Number preset, Read&& read) {
    const auto stored = platform().settings.get(section, key);
    if (!stored)
        return preset;
    try {
        return read(runtime::replaced(*stored, ',', '.'), '.');
    } catch (RuntimeError& failure) {
        failure.place = std::string(section) + "/" + std::string(key) + "=" + *stored;
        throw;
    }
}

std::int32_t whole_number(std::string_view section, std::string_view key, std::int32_t preset) {
    return number(section, key, preset, runtime::CLng);
}

void save(std::string_view section, std::string_view key, std::string_view value) {
    platform().settings.save(section, key, value);
}

/// Each setting as GuardaSettings stores it: section, key, text.
template <class Use>
void each_setting(Use&& use) {
    for (const auto& [key, value, preset] : kColours)
        use(kColors, key, runtime::CStr(static_cast<std::int32_t>(state::settings.*value)));
    for (const auto& [key, value, preset] : kWholeNumbers)
        use(kValues, key, runtime::CStr(state::settings.*value));
    use(kValues, "Idioma", state::program.Idioma);
    use(kValues, "Def_Zoom", runtime::CStr(state::settings.Def_Zoom, '.'));
    use(kValues, "sound", runtime::CStr(std::int32_t{state::program.Sound}));
}

void note_as_read() {
    each_setting([](std::string_view section, std::string_view key, const std::string& own) {
        state::settings.as_read[std::string(key)] = {
            platform().settings.get(section, key).value_or(""), own};
    });
}

/// Another window of the program stored this value since it was read here, and here it is as it
/// was: that one stands.
bool another_changed(std::string_view section, std::string_view key, const std::string& own) {
    const auto read = state::settings.as_read.find(key);
    if (read == state::settings.as_read.end() || read->second.own != own)
        return false;
    return platform().settings.get(section, key).value_or("") != read->second.stored;
}

/// The text of a default, empty for a key that is none of the numbers.
std::string preset_of(std::string_view key) {
    for (const auto& colour : kColours)
        if (colour.key == key)
            return runtime::CStr(static_cast<std::int32_t>(colour.preset));
    for (const auto& whole : kWholeNumbers)
        if (whole.key == key)
            return runtime::CStr(whole.preset);
    if (key == "Def_Zoom")
        return runtime::CStr(kZoom, '.');
    return key == "sound" ? "1" : "";
}

} // namespace

std::int16_t read_sound() {
    return number<std::int16_t>(kValues, "sound", 1, runtime::CInt);
}

void LeeSettings() {
    // A colour is a signed number in the store: the system colours from 0x80000000 on are below 0.
    for (const auto& [key, value, preset] : kColours)
        state::settings.*value = static_cast<std::uint32_t>(
            whole_number(kColors, key, static_cast<std::int32_t>(preset)));
    for (const auto& [key, value, preset] : kWholeNumbers)
        state::settings.*value = whole_number(kValues, key, preset);
    state::program.Idioma = platform().settings.get(kValues, "Idioma").value_or("E");
    state::settings.Def_Zoom = number<double>(kValues, "Def_Zoom", kZoom, runtime::CDbl);
    state::program.Sound = read_sound();
    note_as_read();
}

void GuardaSettings() {
    // Another window of the program may have changed the store meanwhile.
    (void)platform().settings.keep();
    each_setting([](std::string_view section, std::string_view key, const std::string& own) {
        if (!another_changed(section, key, own))
            save(section, key, own);
    });
    keep_settings();
    note_as_read();
}

void keep_settings() {
    if (!platform().settings.keep())
        MsgBox(GetMensaje(message::settings_not_kept) + "\n\n" + platform().settings.place(),
               buttons::exclamation, "Velmora");
}

std::optional<StoredSetting> setting_at_fault(const RuntimeError& failure) {
    const std::size_t slash = failure.place.find('/');
    const std::size_t equal = failure.place.find('=');
    if (slash == std::string::npos || equal == std::string::npos || slash > equal)
        return {};
    StoredSetting setting{failure.place.substr(0, slash),
                          failure.place.substr(slash + 1, equal - slash - 1), ""};
    setting.value = preset_of(setting.key);
    return setting.value.empty() ? std::nullopt : std::optional(setting);
}

void save_version() {
    save(kValues, "Ver", state::program.Ver);
    save(kValues, "SubVer", runtime::CStr(std::int32_t{state::program.SubVer}));
}

} // namespace velmora
