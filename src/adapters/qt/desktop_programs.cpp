#include "adapters/qt/desktop_programs.h"

#include <QFile>
#include <QStandardPaths>
#include <QTextStream>

namespace velmora {

#ifdef Q_OS_WIN

// What Velmora opens there, help files too, has its program in the system.
bool desktop_opens(const QStringList&) {
    return true;
}

#else

namespace {

/// What the user chose first, then what the programs say of themselves.
QStringList association_files() {
    const QStringList desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").toLower().split(':', Qt::SkipEmptyParts);
    QStringList files;
    for (const auto place :
         {QStandardPaths::GenericConfigLocation, QStandardPaths::ApplicationsLocation}) {
        for (const QString& desktop : desktops)
            files += QStandardPaths::locateAll(place, desktop + QStringLiteral("-mimeapps.list"));
        for (const char* name : {"mimeapps.list", "defaults.list", "mimeinfo.cache"})
            files += QStandardPaths::locateAll(place, QString::fromLatin1(name));
    }
    return files;
}

/// An association outlives the program that it names.
bool is_installed(const QString& program) {
    return !QStandardPaths::locate(QStandardPaths::ApplicationsLocation, program).isEmpty();
}

bool names_installed_program(const QString& line, const QStringList& types) {
    const qsizetype sign = line.indexOf('=');
    if (sign < 0 || !types.contains(line.left(sign).trimmed()))
        return false;
    for (const QString& program : line.mid(sign + 1).split(';', Qt::SkipEmptyParts))
        if (is_installed(program.trimmed()))
            return true;
    return false;
}

bool associates(const QString& path, const QStringList& types) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QTextStream lines(&file);
    bool removed = false;
    for (QString line; lines.readLineInto(&line);) {
        if (line.startsWith('['))
            removed = line.startsWith(QStringLiteral("[Removed"));
        else if (!removed && names_installed_program(line, types))
            return true;
    }
    return false;
}

} // namespace

bool desktop_opens(const QStringList& types) {
    const QStringList files = association_files();
    return std::any_of(files.begin(), files.end(),
                       [&](const QString& path) { return associates(path, types); });
}

#endif

} // namespace velmora
