#include "formats/recovery.h"

#include "document/forma.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "formats/file_passes.h"
#include "formats/sync_dat.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "runtime/file_beside.h"
#include "runtime/file_table.h"
#include "runtime/paths.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <vector>

namespace velmora {

namespace {

/// Where the shape may be kept, the best place first.
std::vector<std::string> places() {
    std::error_code none;
    return {state::program.program_folder, QuitaNombre(state::Velmora.TxtDat_File),
            state::document.LastDir,
            runtime::path_text(std::filesystem::temp_directory_path(none))};
}

std::string numbered(const std::string& folder, int number) {
    return runtime::join(folder, "recuperado" + std::to_string(number) + ".dat");
}

/// An older one goes under a free number. Where it must stay, another user's for one, it stays.
void make_way(const std::string& folder, const std::string& path) {
    if (!runtime::file_exists(path))
        return;
    for (int number = 1;; ++number)
        if (const std::string other = numbered(folder, number); !runtime::file_exists(other)) {
            std::error_code fault;
            std::filesystem::rename(runtime::native_path(path), runtime::native_path(other), fault);
            return;
        }
}

/// The name for the new one; what could not make way leaves it a number.
std::string free_name(const std::string& folder) {
    std::string path = runtime::join(folder, "recuperado.dat");
    make_way(folder, path);
    for (int number = 1; runtime::file_exists(path); ++number)
        path = numbered(folder, number);
    return path;
}

/// Through files of its own: the program's may be open, or at fault.
void write_outline(const KeptOutline& outline, const std::string& path) {
    runtime::FileTable files;
    files.open_random(1, path, FixedRecord::length);
    const auto write = [&files](const FixedRecord& record) {
        files.write(1, record.bytes());
    };
    const auto nothing = [] {
    };
    sync_dat_outline(outline.description, write, nothing, outline.points);
    sync_dat_sync_points(write, nothing, outline.points);
    files.close(1);
}

/// The name is taken when the file is whole, so that one which lacks room leaves nothing
/// unreadable.
std::string save_in(const std::string& folder) {
    runtime::FileBeside fresh(runtime::join(folder, "recuperado.dat"));
    write_outline(present_outline(), fresh.path());
    platform().shell.settle(fresh.path());
    std::string path = free_name(folder);
    fresh.take_name(path);
    platform().shell.settle(folder);
    return path;
}

/// Empty where the folder takes no file. The report of the error that brought us here matters more
/// than this one.
std::string try_to_save_in(const std::string& folder) noexcept {
    try {
        return folder.empty() ? std::string() : save_in(folder);
    } catch (...) {
        return {};
    }
}

/// In the code, since the database may be what failed. By the letters of the languages.
struct KeptText {
    char language;
    std::string_view text;
};

constexpr auto kKeptTexts = std::to_array<KeptText>({
    {'E', "La forma está a salvo. Se ha guardado en:"},
    {'I', "The shape is safe. It has been saved in:"},
    {'F', "La forme est en sécurité. Elle a été enregistrée dans :"},
    {'P', "A forma está a salvo. Foi guardada em:"},
    {'T', "La forma è al sicuro. È stata salvata in:"},
});

} // namespace

KeptOutline present_outline() {
    return {Forma.Pto, state::Velmora.TxtDescDat};
}

void write_kept(const KeptOutline& outline, const std::string& path) {
    runtime::FileBeside fresh(path);
    write_outline(outline, fresh.path());
    platform().shell.settle(fresh.path());
    fresh.take_name();
}

std::string take_over(const std::string& left) {
    const std::string folder = runtime::path_text(runtime::native_path(left).parent_path());
    std::string path = free_name(folder);
    std::error_code fault;
    std::filesystem::rename(runtime::native_path(left), runtime::native_path(path), fault);
    return fault ? left : path;
}

std::string save_recovery() noexcept {
    try {
        if (!has_shape())
            return {};
        for (const std::string& folder : places())
            if (std::string path = try_to_save_in(folder); !path.empty())
                return path;
    } catch (...) {
        // As above.
    }
    return {};
}

std::string kept_shape_text(const std::string& path) {
    const char language = state::program.Idioma.empty() ? 'E' : state::program.Idioma[0];
    const auto* const found = std::ranges::find(kKeptTexts, language, &KeptText::language);
    const KeptText& kept = found == kKeptTexts.end() ? kKeptTexts.front() : *found;
    return std::string(kept.text) + "\n" + path;
}

} // namespace velmora
