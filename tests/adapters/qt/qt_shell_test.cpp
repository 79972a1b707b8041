// What the shell hands to the desktop. The desktop is a folder of its own, and a handler that takes
// what would be opened.
#include "adapters/qt/qt_shell.h"
#include "platform/shell.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <QUrlQuery>
#include <gtest/gtest.h>

namespace velmora {

namespace {

/// Takes the place of the programs that the desktop would start.
class Opened : public QObject {
    Q_OBJECT
  public:
    QList<QUrl> urls;
  public slots:
    void take(const QUrl& url) { urls << url; }
};

/// Sets a variable of the environment for a test.
class Variable {
  public:
    Variable(const char* name, const QString& value) : name_(name), before_(qgetenv(name)) {
        qputenv(name, value.toUtf8());
    }
    ~Variable() { before_.isNull() ? qunsetenv(name_) : qputenv(name_, before_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* name_;
    QByteArray before_;
};

class QtShellTest : public testing::Test {
  protected:
    QtShellTest() {
        for (const char* scheme : {"file", "mailto", "https"})
            QDesktopServices::setUrlHandler(scheme, &opened, "take");
    }
    ~QtShellTest() override {
        for (const char* scheme : {"file", "mailto", "https"})
            QDesktopServices::unsetUrlHandler(scheme);
    }
    QString write(const QString& name, const QByteArray& text) const {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return path;
    }
    int open(const QString& target) { return shell->open(target.toStdString()); }
    void with_help() const {
        write("velmora.chm", "ITSF");
        write("help/es/index.html", "<html></html>");
    }

    QTemporaryDir folder;
    Variable data_home{"XDG_DATA_HOME", folder.filePath("data")};
    Variable data_dirs{"XDG_DATA_DIRS", folder.filePath("system")};
    Variable config_home{"XDG_CONFIG_HOME", folder.filePath("config")};
    Variable config_dirs{"XDG_CONFIG_DIRS", folder.filePath("etc")};
    Variable desktop{"XDG_CURRENT_DESKTOP", "Taller"};
    Opened opened;
    std::string language = "es";
    std::unique_ptr<Shell> shell = make_qt_shell([this] { return language; });
    QString help_file = folder.filePath("velmora.chm");
    QUrl file_itself = QUrl::fromLocalFile(help_file);
    QUrl pages = QUrl::fromLocalFile(folder.filePath("help/es/index.html"));
};

TEST_F(QtShellTest, a_file_opens_by_its_path_and_a_missing_one_does_not) {
    EXPECT_GE(open(write("mi ala.dat", "0 0")), 33);
    EXPECT_EQ(opened.urls, QList{QUrl::fromLocalFile(folder.filePath("mi ala.dat"))});
    EXPECT_LT(open(folder.filePath("no.dat")), 33);
    EXPECT_EQ(opened.urls.size(), 1);
}

TEST_F(QtShellTest, an_ampersand_ends_the_subject_of_a_mail_early) {
    EXPECT_GE(open("mailto:a@b.c?subject=uno & dos&body="), 33);
    ASSERT_EQ(opened.urls.size(), 1);
    EXPECT_EQ(opened.urls[0].scheme(), "mailto");
    EXPECT_EQ(QUrlQuery(opened.urls[0]).queryItemValue("subject", QUrl::FullyDecoded), "uno ");
}

TEST_F(QtShellTest, the_help_file_opens_in_the_program_that_says_it_shows_them) {
    with_help();
    write("system/applications/lector.desktop", "[Desktop Entry]\n");
    write("system/applications/mimeinfo.cache",
          "[MIME Cache]\ntext/plain=nota.desktop;\napplication/vnd.ms-htmlhelp=lector.desktop;\n");
    EXPECT_GE(open(help_file), 33);
    EXPECT_EQ(opened.urls, QList{file_itself});
}

TEST_F(QtShellTest, the_help_file_opens_in_the_program_that_the_user_chose) {
    with_help();
    write("data/applications/mio.desktop", "[Desktop Entry]\n");
    for (const char* list : {"config/taller-mimeapps.list", "config/mimeapps.list"}) {
        opened.urls.clear();
        write(list, "[Default Applications]\napplication/x-chm = mio.desktop\n");
        (void)open(help_file);
        EXPECT_EQ(opened.urls, QList{file_itself}) << list;
        QFile::remove(folder.filePath(list));
    }
}

TEST_F(QtShellTest, without_a_program_for_help_files_the_pages_open_in_the_browser) {
    with_help();
    EXPECT_GE(open(help_file), 33);
    EXPECT_EQ(opened.urls, QList{pages});
}

TEST_F(QtShellTest, a_program_that_is_gone_or_was_taken_away_counts_as_none) {
    with_help();
    write("system/applications/mimeinfo.cache",
          "[MIME Cache]\napplication/vnd.ms-htmlhelp=ido.desktop;\n");
    write("data/applications/otro.desktop", "[Desktop Entry]\n");
    write("config/mimeapps.list",
          "[Removed Associations]\napplication/vnd.ms-htmlhelp=otro.desktop;\n");
    (void)open(help_file);
    EXPECT_EQ(opened.urls, QList{pages});
}

TEST_F(QtShellTest, where_the_help_file_is_missing_the_pages_open) {
    write("help/es/index.html", "<html></html>");
    EXPECT_GE(open(help_file), 33);
    EXPECT_EQ(opened.urls, QList{pages});
}

TEST_F(QtShellTest, the_guide_opens_in_the_language_of_the_program) {
    with_help();
    language = "fr";
    const QString french_pages = write("help/fr/index.html", "<html></html>");
    (void)open(help_file);
    EXPECT_EQ(opened.urls.back(), QUrl::fromLocalFile(french_pages));
    const QString french_file = write("velmora_fr.chm", "ITSF");
    write("system/applications/lector.desktop", "[Desktop Entry]\n");
    write("system/applications/mimeinfo.cache", "[MIME Cache]\napplication/chm=lector.desktop;\n");
    (void)open(help_file);
    EXPECT_EQ(opened.urls.back(), QUrl::fromLocalFile(french_file));
}

TEST_F(QtShellTest, a_language_without_a_guide_has_the_Spanish_one) {
    with_help();
    language = "it";
    (void)open(help_file);
    EXPECT_EQ(opened.urls, QList{pages});
}

TEST_F(QtShellTest, without_help_file_and_pages_nothing_opens) {
    EXPECT_LT(open(help_file), 33);
    EXPECT_TRUE(opened.urls.isEmpty());
}

TEST_F(QtShellTest, without_pages_the_help_file_is_left_to_the_desktop) {
    write("velmora.chm", "ITSF");
    EXPECT_GE(open(help_file), 33);
    EXPECT_EQ(opened.urls, QList{file_itself});
}

} // namespace

} // namespace velmora

#include "qt_shell_test.moc"
