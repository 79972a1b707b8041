#include "app/program_folder.h"

#include "app/data_files.h"
#include "runtime/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <optional>

namespace velmora {

namespace {

namespace fs = std::filesystem;

QString qt_path(const fs::path& path) {
    return QString::fromStdString(runtime::path_text(path));
}

fs::path path_of(const QString& path) {
    return runtime::native_path(path.toStdString());
}

bool has_database(const fs::path& folder) {
    return QFileInfo(qt_path(folder / kLanguageDatabase)).isFile();
}

/// The database takes a journal beside it, so its folder must be writable too.
bool is_portable(const fs::path& folder) {
    return QFileInfo(qt_path(folder / kLanguageDatabase)).isWritable() &&
           QFileInfo(qt_path(folder)).isWritable();
}

/// Anybody may make a folder of that name where all users write; only its owner sets permissions.
bool is_own(const fs::path& folder) {
    constexpr auto kOwnerAlone =
        QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    return !QFileInfo(qt_path(folder)).isSymLink() &&
           QFile::setPermissions(qt_path(folder), kOwnerAlone);
}

std::optional<ProgramFolder> filled(const fs::path& folder, const std::vector<fs::path>& sources) {
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    if (!QFileInfo(qt_path(folder)).isWritable())
        return std::nullopt;
    ProgramFolder result{folder, bring_data_files(sources, folder), false};
    const bool expected = has_database(sources[0]) || has_database(sources[1]);
    return is_portable(folder) || !expected ? std::optional(result) : std::nullopt;
}

fs::path readable(const ProgramPlaces& places) {
    return has_database(places.installed) ? places.installed : places.executable;
}

/// Empty where the desktop names none.
std::vector<fs::path> stand_ins() {
    std::vector<fs::path> folders;
    for (const QString& place :
         {QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation), QDir::tempPath()})
        if (!place.isEmpty())
            folders.push_back(path_of(place) / "Velmora");
    return folders;
}

} // namespace

ProgramFolder choose_program_folder(const ProgramPlaces& places) {
    if (is_portable(places.executable))
        return {places.executable, {}, false};
    const std::vector<fs::path> sources{places.installed, places.executable};
    if (const auto folder = filled(places.user_data, sources))
        return *folder;
    for (const fs::path& stand_in : places.stand_ins) {
        std::error_code ignored;
        fs::create_directories(stand_in, ignored);
        if (!is_own(stand_in))
            continue;
        if (auto folder = filled(stand_in, sources)) {
            folder->stands_in = true;
            return *folder;
        }
    }
    return {readable(places), {}, true};
}

ProgramFolder find_program_folder() {
    const fs::path executable = path_of(QCoreApplication::applicationDirPath());
    const fs::path user_data =
        path_of(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return choose_program_folder(
        {executable, user_data, executable / ".." / "share" / "velmora", stand_ins()});
}

} // namespace velmora
