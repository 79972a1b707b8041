#include "formats/recovery.h"

#include "document/session.h"
#include "formats/sync_dat.h"
#include "runtime/files.h"
#include "runtime/paths.h"

#include <filesystem>

namespace velmora {

namespace {

std::string numbered(int number) {
    return program_file("recuperado" + std::to_string(number) + ".dat");
}

void keep_older(const std::string& path) {
    if (!runtime::file_exists(path))
        return;
    int number = 1;
    while (runtime::file_exists(numbered(number)))
        ++number;
    std::filesystem::rename(runtime::native_path(path), runtime::native_path(numbered(number)));
}

/// Through files of its own: the program's may be open, or at fault.
void write_outline(const std::string& path) {
    runtime::FileTable files;
    files.open_random(1, path, FixedRecord::length);
    const auto write = [&files](const FixedRecord& record) {
        files.write(1, record.bytes());
    };
    const auto nothing = [] {
    };
    sync_dat_outline(session.Velmora.TxtDescDat, write, nothing);
    sync_dat_sync_points(write, nothing);
    files.close(1);
}

} // namespace

std::string save_recovery() noexcept {
    try {
        if (!hay_forma())
            return {};
        std::string path = program_file("recuperado.dat");
        keep_older(path);
        write_outline(path);
        return path;
    } catch (...) {
        // The report of the error that brought us here matters more than this one.
        return {};
    }
}

} // namespace velmora
