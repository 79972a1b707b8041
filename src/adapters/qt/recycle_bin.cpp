#include "adapters/qt/recycle_bin.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStorageInfo>

namespace velmora {

namespace {

bool is_gone(const QString& path) {
    const QFileInfo file(path);
    return !file.exists() && !file.isSymLink();
}

#ifndef Q_OS_WIN
bool can_be_filled(const QString& folder) {
    return QDir().mkpath(folder) && QFileInfo(folder).isDir() && QFileInfo(folder).isWritable();
}

/// The bin is ready for a file of this path. Without these folders the toolkit moves the file into
/// the current folder, or tries for ever.
bool bin_is_ready(const QString& path) {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString bin = data + "/Trash";
    if (data.isEmpty() || !can_be_filled(bin + "/files") || !can_be_filled(bin + "/info"))
        return false;
    const QStorageInfo storage(path);
    return storage == QStorageInfo(QDir::homePath()) && storage == QStorageInfo(bin);
}
#else
bool bin_is_ready(const QString&) {
    return true;
}
#endif

} // namespace

bool move_to_bin(const QString& path) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QString in_bin;
    return bin_is_ready(absolute) && QFile::moveToTrash(absolute, &in_bin) && is_gone(absolute);
}

bool recycle_file(const QString& path) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return move_to_bin(absolute) || QFile::remove(absolute) || is_gone(absolute);
}

} // namespace velmora
