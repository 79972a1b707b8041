#include "adapters/qt/qt_shell.h"

#include "adapters/qt/desktop_programs.h"
#include "adapters/qt/recycle_bin.h"
#include "adapters/qt/settling.h"
#include "adapters/qt/sound.h"
#include "runtime/paths.h"
#include "toolkit/qt_text.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

namespace velmora {

namespace {

// Results of an opening; 33 and more is success.
constexpr int kFileNotFound = 2;
constexpr int kNoProgram = 31;
constexpr int kStarted = 33;

QString path_of(std::string_view path) {
    return QString::fromStdString(runtime::path_text(runtime::native_path(path)));
}

/// "mailto:", "https:"; one letter before the colon is a drive.
bool is_address(const QString& target) {
    static const QRegularExpression scheme("^[A-Za-z][A-Za-z0-9+.-]+:");
    return scheme.match(target).hasMatch();
}

constexpr const char* kSpanish = "es";

bool desktop_shows_help_files() {
    return desktop_opens({"application/vnd.ms-htmlhelp", "application/x-chm", "application/chm"});
}

/// The help file of a language, or its pages where that is missing or nothing shows it; empty
/// without both.
QString guide_in(const QString& language, const QString& spanish_file) {
    const QFileInfo spanish(spanish_file);
    const QString file =
        language == kSpanish
            ? spanish_file
            : spanish.dir().filePath(spanish.completeBaseName() + '_' + language + ".chm");
    if (QFileInfo::exists(file) && desktop_shows_help_files())
        return file;
    const QString pages = spanish.dir().filePath("help/" + language + "/index.html");
    return QFileInfo::exists(pages) ? pages : QString();
}

/// Where no guide can be shown the help file is left to the desktop.
QString shown_help(const QString& help_file, const QString& language) {
    for (const QString& tongue : {language, QString(kSpanish)})
        if (const QString guide = guide_in(tongue, help_file); !guide.isEmpty())
            return guide;
    return help_file;
}

class QtShell : public Shell {
  public:
    explicit QtShell(std::function<std::string()> guide_language)
        : guide_language_(std::move(guide_language)) {}

    int open(std::string_view target) override {
        const QString text = qt_text(target);
        if (is_address(text))
            return started(QUrl(text, QUrl::TolerantMode));
        QString path = path_of(target);
        if (path.endsWith(".chm", Qt::CaseInsensitive))
            path = shown_help(path, QString::fromStdString(guide_language_()));
        if (!QFileInfo::exists(path))
            return kFileNotFound;
        return started(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
    }

    void play(std::string_view file) override {
        if (runtime::file_exists(file))
            sound_->play(path_of(file).toStdString());
    }

    bool recycle(std::string_view path) override { return recycle_file(path_of(path)); }

    bool to_bin(std::string_view path) override { return move_to_bin(path_of(path)); }

    void settle(std::string_view path) override { settle_on_disk(path_of(path)); }

  private:
    static int started(const QUrl& url) {
        return QDesktopServices::openUrl(url) ? kStarted : kNoProgram;
    }

    std::function<std::string()> guide_language_;
    std::unique_ptr<SoundPlayer> sound_ = make_sound_player();
};

} // namespace

std::unique_ptr<Shell> make_qt_shell(std::function<std::string()> guide_language) {
    return std::make_unique<QtShell>(std::move(guide_language));
}

} // namespace velmora
