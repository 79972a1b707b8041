#include "windows/folders.h"

#include "runtime/paths.h"

#include <QByteArray>
#include <QTemporaryDir>
#include <QtGlobal>
#include <cstdio>
#include <stdexcept>

namespace velmora::driver {

namespace fs = std::filesystem;

namespace {

fs::path fresh_folder() {
    const auto pattern = fs::temp_directory_path() / "velmora-scenario-XXXXXX";
    QTemporaryDir made(QString::fromStdString(pattern.string()));
    if (!made.isValid())
        throw std::runtime_error("no temporary folder: " + made.errorString().toStdString());
    made.setAutoRemove(false);
    return fs::canonical(made.path().toStdString());
}

void set_folder(const char* variable, const fs::path& folder) {
    fs::create_directories(folder);
    qputenv(variable, QByteArray::fromStdString(folder.string()));
}

/// A program is no file that travels with the program.
bool is_installed_file(const fs::directory_entry& entry) {
    constexpr auto runnable = fs::perms::owner_exec;
    return entry.is_regular_file() && (entry.status().permissions() & runnable) == fs::perms::none;
}

} // namespace

Folders::Folders(const fs::path& work, bool keep) : own_(fresh_folder()), keep_(keep) {
    fs::create_directories(own_ / "program");
    work_ = work.empty() ? own_ / "work" : fs::absolute(work).lexically_normal();
    if (!work_.has_filename())
        work_ = work_.parent_path();
    fs::create_directories(work_);
}

std::string Folders::work() const {
    return runtime::path_text(work_);
}

std::string Folders::program() const {
    return runtime::path_text(own_ / "program");
}

void Folders::enter() const {
    // A display asks for what lies in the home that is left here.
    if (!qEnvironmentVariableIsSet("XAUTHORITY"))
        qputenv("XAUTHORITY", qgetenv("HOME") + "/.Xauthority");
    set_folder("HOME", own_ / "home");
    set_folder("XDG_DATA_HOME", own_ / "home" / "data");
    set_folder("XDG_CONFIG_HOME", own_ / "home" / "config");
    set_folder("XDG_CACHE_HOME", own_ / "home" / "cache");
    set_folder("XDG_STATE_HOME", own_ / "home" / "state");
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        set_folder("XDG_RUNTIME_DIR", own_ / "run");
        fs::permissions(own_ / "run", fs::perms::owner_all);
    }
    // Nor are the user's printers: without a server of the caller's there is none.
    if (!qEnvironmentVariableIsSet("CUPS_SERVER"))
        qputenv("CUPS_SERVER", QByteArray::fromStdString((own_ / "no-printers").string()));
    fs::current_path(work_);
}

void Folders::install(const fs::path& from) const {
    for (const auto& entry : fs::directory_iterator(from))
        if (is_installed_file(entry))
            fs::copy_file(entry.path(), own_ / "program" / entry.path().filename());
}

void Folders::remove() const noexcept {
    std::error_code ignored;
    if (!keep_ || work_ != own_ / "work") {
        fs::remove_all(own_, ignored);
        return;
    }
    for (const char* part : {"program", "home", "run"})
        fs::remove_all(own_ / part, ignored);
    std::fprintf(stderr, "kept %s\n", work_.c_str());
}

} // namespace velmora::driver
