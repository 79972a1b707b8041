// The program's real windows in one language, with an outline loaded, to be looked at. Answers,
// settings and the outside world are those of the tests; nothing of the user's is touched.
#pragma once

#include "app/qt_platform.h"
#include "fakes/recording_platform.h"

#include <QTemporaryDir>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class QWidget;

namespace velmora::pictures {

class Stage {
  public:
    /// `idioma` is the program's letter of the language. The start window is shown.
    explicit Stage(std::string_view idioma);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// On to the main window, with an outline, a selected point and the label of another.
    void open_main();
    /// Loads and shows a window that has the activation then; nullptr where it cannot be shown.
    QWidget* show(std::string_view window);
    /// The cut of the sample wing, its wire on the way.
    QWidget* show_cut();
    /// A drawing of two outlines and an open line in the import's window.
    QWidget* show_import();
    void unload(std::string_view window);
    /// A click on a button, or a tick, by its control's name.
    void click(std::string_view window, std::string_view control);
    /// The file dialog answers with this sample next.
    void pick(const std::string& sample);
    /// Puts a text into a box.
    void fill(std::string_view window, std::string_view box, std::string_view text);

    [[nodiscard]] QWidget* window(std::string_view name) const;
    /// Run-time errors that happened, "NAME: number".
    [[nodiscard]] const std::vector<std::string>& faults() const { return faults_; }

    /// Lets the windows run until nothing is pending.
    static void settle();

  private:
    /// The sample wing in the workbench: both sides in millimetres, matched for a machine.
    void match_sides();
    void fill_platform(std::string_view idioma);
    void open_outline();

    QTemporaryDir folder_;
    std::unique_ptr<QtPlatform> platform_;
    test::RecordingDialogs* dialogs_ = nullptr;
    std::vector<std::string> faults_;
};

} // namespace velmora::pictures
