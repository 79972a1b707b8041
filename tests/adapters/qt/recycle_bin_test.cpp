#include "adapters/qt/recycle_bin.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace velmora {

namespace {

/// A home of its own, so that the user's bin stays as it is.
class RecycleBinTest : public testing::Test {
  protected:
    RecycleBinTest() {
        qputenv("HOME", home_.path().toUtf8());
        qputenv("XDG_DATA_HOME", data().toUtf8());
        QDir::setCurrent(home_.path());
    }
    ~RecycleBinTest() override {
        QDir::setCurrent("/");
        qputenv("HOME", former_home_);
        qunsetenv("XDG_DATA_HOME");
    }
    QString data() const { return home_.filePath("data"); }
    QString write(const QString& name) const {
        QFile file(home_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("x");
        return file.fileName();
    }
    QStringList in_bin() const {
        return QDir(data() + "/Trash/files").entryList(QDir::Files, QDir::Name);
    }

    QTemporaryDir home_;
    QByteArray former_home_ = qgetenv("HOME");
};

TEST_F(RecycleBinTest, moves_a_file_into_the_bin_of_a_user_who_has_none) {
    const QString file = write("ala.dat");
    EXPECT_TRUE(recycle_file(file));
    EXPECT_FALSE(QFileInfo::exists(file));
    EXPECT_EQ(in_bin(), QStringList{"ala.dat"});
    EXPECT_TRUE(QFileInfo::exists(data() + "/Trash/info/ala.dat.trashinfo"));
    EXPECT_FALSE(QFileInfo::exists(home_.filePath("files"))) << "the current folder is no bin";
}

TEST_F(RecycleBinTest, keeps_two_files_of_one_name) {
    EXPECT_TRUE(recycle_file(write("ala.dat")));
    EXPECT_TRUE(recycle_file(write("ala.dat")));
    EXPECT_EQ(in_bin().size(), 2);
}

TEST_F(RecycleBinTest, deletes_where_the_bin_cannot_be_made) {
    QFile in_the_way(data());
    ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly)); // a file where the folder should be
    const QString file = write("ala.dat");
    EXPECT_TRUE(recycle_file(file));
    EXPECT_FALSE(QFileInfo::exists(file));
}

TEST_F(RecycleBinTest, deletes_where_the_bins_list_cannot_be_made) {
    ASSERT_TRUE(QDir().mkpath(data() + "/Trash"));
    QFile in_the_way(data() + "/Trash/info");
    ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
    const QString file = write("ala.dat");
    EXPECT_TRUE(recycle_file(file));
    EXPECT_FALSE(QFileInfo::exists(file));
}

// A bin in the root of another disk would be one that its owner never looks into.
TEST_F(RecycleBinTest, deletes_on_another_disk_than_the_bins) {
    const QTemporaryDir elsewhere("/dev/shm/velmora-XXXXXX");
    if (!elsewhere.isValid() || QStorageInfo(elsewhere.path()) == QStorageInfo(home_.path()))
        GTEST_SKIP() << "there is no other disk to write on";
    const auto bins = [] {
        return QDir("/dev/shm").entryList({".Trash*"}, QDir::AllEntries | QDir::Hidden);
    };
    const QStringList before = bins();
    QFile file(elsewhere.filePath("ala.dat"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_TRUE(recycle_file(file.fileName()));
    EXPECT_FALSE(file.exists());
    EXPECT_EQ(bins(), before);
    EXPECT_TRUE(in_bin().isEmpty());
}

TEST_F(RecycleBinTest, a_file_that_is_not_there_is_gone) {
    EXPECT_TRUE(recycle_file(home_.filePath("nobody.dat")));
}

TEST_F(RecycleBinTest, a_file_that_cannot_go_stays) {
    // A folder with something in it is none that a delete of files takes.
    ASSERT_TRUE(QDir().mkpath(home_.filePath("folder/inner")));
    QFile in_the_way(data());
    ASSERT_TRUE(in_the_way.open(QIODevice::WriteOnly));
    EXPECT_FALSE(recycle_file(home_.filePath("folder")));
    EXPECT_TRUE(QFileInfo::exists(home_.filePath("folder/inner")));
}

} // namespace

} // namespace velmora
