#include "windows/windows_test.h"

#include "services/messages.h"
#include "support/places.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QTimer>
#include <QWidget>
#include <filesystem>

namespace velmora::test {

namespace {

/// An ended program leaves the application's loops told to end; a run of the outermost one takes
/// that back.
void forget_exit() {
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
}

} // namespace

WindowsTest::WindowsTest() {
    std::filesystem::copy_file(test::built_database(), path("VELMORA.MDB"));
    rebuild();
}

void WindowsTest::rebuild() {
    close_messages();
    platform_.reset(); // the windows go before the session that they show
    forget_exit();
    reset_session();
    platform_ = std::make_unique<QtPlatform>();
    auto dialogs = std::make_unique<RecordingDialogs>();
    auto shell = std::make_unique<RecordingShell>();
    auto settings = std::make_unique<MemorySettings>();
    dialogs_ = dialogs.get();
    shell_ = shell.get();
    settings_ = settings.get();
    platform_->dialogs = std::move(dialogs);
    platform_->shell = std::move(shell);
    platform_->settings = std::move(settings);
    platform_->machine = std::make_unique<FixedMachine>();
    platform_->install();
    session.program_folder = folder_.path().toStdString();

    WindowEvents& events = windows().events;
    events.opened = [this](const std::string& name) {
        told.push_back("open " + name);
    };
    events.closed = [this](const std::string& name) {
        told.push_back("closed " + name);
    };
    events.fault = [this](const RuntimeError& failure) {
        told.push_back("fault " + std::to_string(failure.number));
    };
    events.stopped = [this](const RuntimeError& failure) {
        told.push_back("stopped " + std::to_string(failure.number));
    };
    events.ended = [this] {
        told.emplace_back("ended");
    };
}

void WindowsTest::restart() {
    rebuild();
    start_program();
}

WindowsTest::~WindowsTest() {
    close_messages();
    platform_.reset();
    forget_exit();
    QGuiApplication::restoreOverrideCursor();
}

std::string WindowsTest::path(const std::string& name) const {
    return folder_.filePath(QString::fromStdString(name)).toStdString();
}

void WindowsTest::start_program() {
    windows().start();
    settle();
    auto* picture = window("intro");
    ASSERT_NE(picture, nullptr);
    QMetaObject::invokeMethod(windows().control("intro", "Image1"), "clicked");
    settle();
}

void WindowsTest::settle() {
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void WindowsTest::show(const std::string& name) {
    windows().run([&] { windows().show(name); });
    settle();
}

QWidget* WindowsTest::window(std::string_view name) {
    return windows().window(name);
}

void WindowsTest::picture(QWidget& window, const std::string& name) {
    const QString folder = qEnvironmentVariable("VELMORA_PICTURES");
    if (!folder.isEmpty())
        window.grab().save(QDir(folder).filePath(QString::fromStdString(name) + ".png"));
}

} // namespace velmora::test
