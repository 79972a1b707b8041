// The program's real windows over answers that a test lays out, in a folder of its own.
#pragma once

#include "app/qt_platform.h"
#include "document/session.h"
#include "fakes/recording_platform.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QAction;
class QLineEdit;
class QWidget;

namespace velmora::test {

class WindowsTest : public testing::Test {
  protected:
    WindowsTest();
    ~WindowsTest() override;

    WindowHost& windows() { return *platform_->windows; }
    RecordingDialogs& dialogs() { return *dialogs_; }
    RecordingShell& shell() { return *shell_; }
    MemorySettings& settings() { return *settings_; }
    [[nodiscard]] std::string path(const std::string& name) const;

    /// The start window, then the main window and its first activation.
    void start_program();
    /// A new program over the same folder: not started, or up to its main window.
    void rebuild();
    void restart();
    /// Lets the windows run until nothing is pending.
    static void settle();
    /// Loads and shows a window, as a handler of the logic does.
    void show(const std::string& window);

    [[nodiscard]] QWidget* window(std::string_view name);
    template <class Control>
    [[nodiscard]] Control& control(std::string_view window, std::string_view name);

    /// A PNG of the window where VELMORA_PICTURES names a folder.
    static void picture(QWidget& window, const std::string& name);

    std::vector<std::string>
        told; ///< "open wininfo", "closed intro", "fault 9", "stopped 9", "ended"

  private:
    QTemporaryDir folder_;
    std::unique_ptr<QtPlatform> platform_;
    RecordingDialogs* dialogs_ = nullptr;
    RecordingShell* shell_ = nullptr;
    MemorySettings* settings_ = nullptr;
};

template <class Control>
Control& WindowsTest::control(std::string_view window, std::string_view name) {
    auto* found = qobject_cast<Control*>(windows().control(window, name));
    if (found == nullptr)
        throw std::runtime_error("no control " + std::string(window) + "." + std::string(name));
    return *found;
}

} // namespace velmora::test
