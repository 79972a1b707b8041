// The platform of the unit tests: it records what the logic asks for and gives the answers that a
// test laid out. Nothing here is null; what no test expects is answered as a person would who
// presses Enter.
#pragma once

#include "cad/autocad.h"
#include "canvas/printer.h"
#include "canvas/surface.h"
#include "generators/text_outlines.h"
#include "platform/clock.h"
#include "platform/database.h"
#include "platform/dialogs.h"
#include "platform/form.h"
#include "platform/machine.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "platform/settings_store.h"
#include "platform/shell.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmora::test {

struct ShownBox {
    std::string text;
    int buttons = 0;
    std::string title;
    bool operator==(const ShownBox&) const = default;
};

class RecordingDialogs : public Dialogs {
  public:
    std::deque<int> answers;                          ///< queue; empty: OK, else Yes
    std::deque<std::optional<std::string>> inputs;    ///< queue; empty: cancelled
    std::deque<std::string> paths;                    ///< queue; empty: cancelled
    std::deque<std::optional<std::uint32_t>> colours; ///< queue; empty: cancelled
    std::deque<std::optional<FontChoice>> fonts;      ///< queue; empty: cancelled
    std::vector<ShownBox> boxes;
    std::vector<int> icons; ///< of the boxes with an icon that no code names
    std::vector<std::vector<std::string>> input_calls; ///< prompt, title, preset
    std::vector<FileRequest> open_calls, save_calls;

    int message(std::string_view text, int buttons, std::string_view title) override;
    int message_with_icon(int icon, std::string_view text, int buttons,
                          std::string_view title) override;
    std::optional<std::string> input(std::string_view prompt, std::string_view title,
                                     std::string_view preset) override;
    std::string open_file(const FileRequest& request) override;
    std::string save_file(const FileRequest& request) override;
    std::optional<std::uint32_t> choose_colour(std::uint32_t present) override;
    std::optional<FontChoice> choose_font(const FontChoice& present) override;
};

class RecordingWindows : public ProgramWindows {
  public:
    std::vector<std::string>
        calls; ///< "show wininfo", "focus winoptions.TxtPrecision", "popup OPT_PTO"
    std::vector<std::string> statuses; ///< each text of the panel
    std::vector<int> pointers;
    int yields = 0;
    std::map<std::string, Form*, std::less<>> forms;
    std::function<void(std::string_view)> on_show_modal;

    void show(std::string_view window) override;
    void show_modal(std::string_view window) override;
    void unload(std::string_view window) override;
    void minimize(std::string_view window) override;
    void set_focus(std::string_view window, std::string_view control) override;
    void popup_menu(std::string_view menu) override;
    Form* form(std::string_view window) override;
    void status_changed() override;
    void pointer_changed() override;
    void yield() override { ++yields; }
    void wait(int milliseconds) override;
    void end_program() override;
};

class RecordingShell : public Shell {
  public:
    std::vector<std::string> opened, played, recycled;
    int open_result = 42;
    bool recycle_fails = false; ///< leaves the file where it is

    int open(std::string_view target) override;
    void play(std::string_view file) override;
    bool recycle(std::string_view path) override;
};

class MemorySettings : public SettingsStore {
  public:
    std::map<std::pair<std::string, std::string>, std::string> values;
    std::optional<std::string> get(std::string_view section, std::string_view key) override;
    void save(std::string_view section, std::string_view key, std::string_view value) override;
};

class FixedMachine : public Machine {
  public:
    char separator = '.';
    char decimal_separator() override { return separator; }
};

class SteadyClock : public Clock {
  public:
    std::chrono::steady_clock::time_point now() override { return time; }
    std::chrono::steady_clock::time_point time{};
};

/// Writes each operation down as a line: "pen 255", "line 30 0 80 1870", "arc 77 1867 83 1873".
class RecordingSurface : public Surface {
  public:
    std::vector<std::string> operations;
    double width = 30000;
    double height = 30000;

    double Width() const override { return width; }
    double Height() const override { return height; }
    void Cls() override;
    void set_back_color(std::uint32_t colour) override;
    void set_pen(std::uint32_t colour) override;
    void set_draw_mode(DrawMode mode) override;
    void MoveToEx(std::int32_t x, std::int32_t y) override;
    void LineTo(std::int32_t x, std::int32_t y) override;
    void Polyline(std::span<const PixelPoint> points) override;
    void Arc(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) override;
    void Line(float x1, float y1, float x2, float y2) override;
    void FillBox(float x1, float y1, float x2, float y2, std::uint32_t colour) override;
    void set_picture(std::string_view file) override;
    void save_part(std::string_view file, PixelPoint corner, PixelPoint size) override;
    void present() override;

  private:
    void note(std::string operation);
};

/// A sheet of `width` by `height` in portrait; turned, the sides change places. Each operation is a
/// line: "orientation 1", "line 500 0 500 16840", "circle 600 16240 30 255", "end". Raises
/// `end_error` at the end of a sheet, where there is one.
class RecordingPrinter : public Printer {
  public:
    std::vector<std::string> operations;
    double width = 11900;
    double height = 16840;
    int end_error = 0;

    void set_Orientation(Orientation orientation) override;
    double Width() const override { return turned_ ? height : width; }
    double Height() const override { return turned_ ? width : height; }
    void set_CurrentX(float x) override { x_ = x; }
    void set_CurrentY(float y) override { y_ = y; }
    float CurrentX() const override { return x_; }
    float CurrentY() const override { return y_; }
    void Line(float x1, float y1, float x2, float y2) override;
    void Circle(float x, float y, float radius, std::uint32_t colour) override;
    void EndDoc() override;

  private:
    bool turned_ = false;
    float x_ = 0;
    float y_ = 0;
};

/// A font of which each test says what it prints.
class RecordingOutlines : public TextOutlines {
  public:
    std::map<std::string, std::vector<Figure>> letters; ///< by whole texts; others have no figure
    std::vector<std::string> calls;                     ///< "Ala Arial 10 bold 20 20"
    int failure = 0;                                    ///< raised, where there is one

    std::vector<Figure> figures(std::string_view text, const FontChoice& font,
                                OutlinePoint corner) override;
};

/// No CAD runs.
class NoCad : public Autocad {
  public:
    std::shared_ptr<AcadApplication> GetObject() override;
    void AppActivate() override;
};

struct WithDatabase {};
inline constexpr WithDatabase with_database;

/// The services of one test, installed for its life, with a fresh session and a folder of its own.
/// The database is the real SQLite one, shut. A test that meets a message, a caption or a help text
/// asks for the program's own tables: `RecordingPlatform machine{with_database};`.
class RecordingPlatform {
  public:
    RecordingPlatform();
    explicit RecordingPlatform(WithDatabase) : RecordingPlatform() { open_database(); }
    ~RecordingPlatform();
    RecordingPlatform(const RecordingPlatform&) = delete;
    RecordingPlatform& operator=(const RecordingPlatform&) = delete;

    std::filesystem::path folder; ///< made for this test, removed at its end
    RecordingDialogs dialogs;
    RecordingWindows windows;
    RecordingShell shell;
    MemorySettings settings;
    FixedMachine machine;
    SteadyClock clock;
    RecordingSurface pic;
    NoCad cad;
    RecordingPrinter printer;
    RecordingOutlines outlines;
    std::unique_ptr<Database> database;

    /// Lays the program's own VELMORA.MDB into the folder and opens it, as the start does.
    void open_database();
    /// Writes a file of the folder, bytes as they stand; its path as UTF-8 text.
    std::string write(const std::string& name, std::string_view bytes) const;
    /// The bytes of a file, by path.
    static std::string read(const std::string& path);
    [[nodiscard]] std::string path(const std::string& name) const;
};

} // namespace velmora::test
