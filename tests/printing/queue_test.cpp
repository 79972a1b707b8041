// What comes out of the desktop's default printer. on_queue.sh makes it one that prints into PDF
// files, and names their folder in VELMORA_QUEUE_FOLDER.
#include "adapters/qt/qt_printer.h"
#include "printing/printing_test.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>
#include <stdexcept>

namespace velmora::test {

namespace {

using testing::IsEmpty;

constexpr int kPatience = 60000; ///< milliseconds until a sheet is there
constexpr int kPause = 100;
constexpr qint64 kTail = 32; ///< bytes that hold the mark at the end of a whole file

class QueueTest : public PrintingTest {
  protected:
    QueueTest() { use(make_qt_printer()); }

    /// Prints under a title of its own, and gives what came out.
    PrintedSheet printed(const Points& points, const QString& title) {
        QCoreApplication::setApplicationName(
            QString("velmora_%1_%2").arg(title).arg(QCoreApplication::applicationPid()));
        print(points, True);
        EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
        const QString file = file_of(QCoreApplication::applicationName());
        PrintedSheet page(file);
        QFile::remove(file);
        return page;
    }

  private:
    static bool is_whole(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) && file.seek(std::max(0LL, file.size() - kTail)) &&
               file.readAll().contains("%%EOF");
    }
    static QString file_of(const QString& title) {
        const QDir folder(qEnvironmentVariable("VELMORA_QUEUE_FOLDER"));
        QElapsedTimer waited;
        for (waited.start(); waited.elapsed() < kPatience; QThread::msleep(kPause)) {
            const QStringList found = folder.entryList({title + "*.pdf"});
            if (!found.isEmpty() && is_whole(folder.filePath(found.first())))
                return folder.filePath(found.first());
        }
        throw std::runtime_error("no sheet " + title.toStdString() + " in " +
                                 folder.path().toStdString());
    }
};

TEST_F(QueueTest, a_tall_shape_comes_out_upright) {
    const PrintedSheet page = printed(kTall, "tall");
    page.keep("queue-tall");
    expect_tall(page);
}

TEST_F(QueueTest, a_wide_shape_comes_out_along_the_paper) {
    const PrintedSheet page = printed(kWide, "wide").turned();
    page.keep("queue-wide");
    expect_wide(page);
}

} // namespace

} // namespace velmora::test
