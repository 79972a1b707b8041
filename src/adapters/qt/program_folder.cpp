#include "adapters/qt/program_folder.h"

#include "runtime/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace velmora {

namespace {

namespace fs = std::filesystem;

constexpr const char* kDatabase = "VELMORA.MDB";
constexpr const char* kFiles[] = {kDatabase,     "mdbwav0.wav",    "mdbwav1.wav", "mdbwav7.wav",
                                  "velmora.chm", "deployment.txt", "acad.dwt"};
constexpr const char* kHelpPages = "help";

QString qt_path(const fs::path& path) {
    return QString::fromStdString(runtime::path_text(path));
}

fs::path path_of(const QString& path) {
    return runtime::native_path(path.toStdString());
}

/// The database takes a journal beside it, so its folder must be writable too.
bool is_portable(const fs::path& folder) {
    return QFileInfo(qt_path(folder / kDatabase)).isWritable() &&
           QFileInfo(qt_path(folder)).isWritable();
}

void copy_missing(const fs::path& from, const fs::path& to) {
    std::error_code ignored;
    for (const char* name : kFiles) {
        if (fs::exists(to / name, ignored) || !fs::copy_file(from / name, to / name, ignored))
            continue;
        fs::permissions(to / name, fs::perms::owner_write, fs::perm_options::add, ignored);
    }
    fs::copy(from / kHelpPages, to / kHelpPages,
             fs::copy_options::recursive | fs::copy_options::skip_existing, ignored);
}

} // namespace

fs::path choose_program_folder(const ProgramPlaces& places) {
    if (is_portable(places.executable))
        return places.executable;
    std::error_code ignored;
    fs::create_directories(places.user_data, ignored);
    copy_missing(places.installed, places.user_data);
    copy_missing(places.executable, places.user_data);
    return places.user_data;
}

std::string find_program_folder() {
    const fs::path executable = path_of(QCoreApplication::applicationDirPath());
    const fs::path user_data =
        path_of(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return runtime::path_text(
        choose_program_folder({executable, user_data, executable / ".." / "share" / "velmora"}));
}

} // namespace velmora
