#include "place.h"

#include "adapters/qt/qt_shell.h"
#include "document/session.h"
#include "runtime/paths.h"
#include "services/guide.h"

#include <QByteArray>
#include <QtGlobal>
#include <fstream>

namespace velmora::test {

namespace fs = std::filesystem;

namespace {

void empty(const fs::path& folder) {
    fs::remove_all(folder);
    fs::create_directories(folder);
}

std::string bytes_of(const fs::path& path) {
    return RecordingPlatform::read(runtime::path_text(path));
}

} // namespace

Place::Place(Bin bin) : root_(machine.folder / "place"), desktop_(make_qt_shell(guide_language)) {
    fs::create_directories(root_ / "home");
    qputenv("HOME", (root_ / "home").c_str());
    qputenv("XDG_DATA_HOME", (root_ / "data").c_str());
    if (bin == Bin::none)
        std::ofstream(root_ / "data") << "no folder";
    else
        fs::create_directories(root_ / "data");
    session.program_folder = runtime::path_text(root_ / "program");
    const Platform& now = platform();
    set_platform({now.dialogs, now.windows, *desktop_, now.settings, now.database, now.clock,
                  now.machine, now.pic, now.cad, now.previews, now.printer, now.text_outlines});
    clear();
}

Place::~Place() {
    qunsetenv("XDG_DATA_HOME");
}

void Place::clear() const {
    empty(root_ / "alas");
    empty(root_ / "program");
    if (fs::is_directory(root_ / "data"))
        empty(root_ / "data");
}

std::string Place::path(const std::string& name) const {
    return runtime::path_text(root_ / "alas" / name);
}

void Place::put(const std::string& name, const std::string& bytes) const {
    std::ofstream(root_ / "alas" / name, std::ios::binary) << bytes;
}

std::string Place::bytes(const std::string& name) const {
    const fs::path file = root_ / "alas" / name;
    return fs::exists(file) ? bytes_of(file) : "none";
}

bool Place::in_bin(const std::string& bytes) const {
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(root_ / "data" / "Trash" / "files", none))
        if (bytes_of(entry.path()) == bytes)
            return true;
    return false;
}

std::vector<std::string> Place::left_over() const {
    std::vector<std::string> names;
    for (const char* folder : {"alas", "program"})
        for (const auto& entry : fs::directory_iterator(root_ / folder))
            if (const std::string name = entry.path().filename().string();
                name.starts_with("velmora-") || name.starts_with("temp"))
                names.push_back(name);
    return names;
}

} // namespace velmora::test
