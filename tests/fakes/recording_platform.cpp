#include "fakes/recording_platform.h"

#include "adapters/sqlite/sqlite_database.h"
#include "document/session.h"
#include "runtime/error.h"
#include "runtime/paths.h"
#include "services/messages.h"
#include "support/places.h"

#include <atomic>
#include <fstream>
#include <iterator>
#include <sstream>

namespace velmora::test {

namespace {

template <class T>
T take(std::deque<T>& queue, T otherwise) {
    if (queue.empty())
        return otherwise;
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
}

template <class... Words>
std::string line_of(const Words&... words) {
    std::ostringstream line;
    const char* joint = "";
    ((line << joint << words, joint = " "), ...);
    return line.str();
}

} // namespace

int RecordingDialogs::message(std::string_view text, int buttons, std::string_view title) {
    boxes.push_back({std::string(text), buttons, std::string(title)});
    const int kind = buttons & 15;
    return take(answers, kind == buttons::yes_no || kind == buttons::yes_no_cancel ? answer::yes
                                                                                   : answer::ok);
}

int RecordingDialogs::message_with_icon(int icon, std::string_view text, int buttons,
                                        std::string_view title) {
    icons.push_back(icon);
    return message(text, buttons, title);
}

std::optional<std::string> RecordingDialogs::input(std::string_view prompt, std::string_view title,
                                                   std::string_view preset) {
    input_calls.push_back({std::string(prompt), std::string(title), std::string(preset)});
    return take(inputs, std::optional<std::string>{});
}

std::string RecordingDialogs::open_file(const FileRequest& request) {
    open_calls.push_back(request);
    return take(paths, std::string{});
}

std::string RecordingDialogs::save_file(const FileRequest& request) {
    save_calls.push_back(request);
    return take(paths, std::string{});
}

std::optional<std::uint32_t> RecordingDialogs::choose_colour(std::uint32_t) {
    return take(colours, std::optional<std::uint32_t>{});
}

std::optional<FontChoice> RecordingDialogs::choose_font(const FontChoice&) {
    return take(fonts, std::optional<FontChoice>{});
}

void RecordingWindows::show(std::string_view window) {
    calls.push_back(line_of("show", window));
}

void RecordingWindows::show_modal(std::string_view window) {
    calls.push_back(line_of("show_modal", window));
    if (on_show_modal)
        on_show_modal(window);
}

void RecordingWindows::unload(std::string_view window) {
    calls.push_back(line_of("unload", window));
}

void RecordingWindows::minimize(std::string_view window) {
    calls.push_back(line_of("minimize", window));
}

void RecordingWindows::set_focus(std::string_view window, std::string_view control) {
    calls.push_back(line_of("focus", std::string(window) + "." + std::string(control)));
}

void RecordingWindows::popup_menu(std::string_view menu) {
    calls.push_back(line_of("popup", menu));
}

Form* RecordingWindows::form(std::string_view window) {
    const auto found = forms.find(window);
    return found == forms.end() ? nullptr : found->second;
}

void RecordingWindows::status_changed() {
    statuses.push_back(session.Velmora.StatusBar1);
}

void RecordingWindows::pointer_changed() {
    pointers.push_back(session.Velmora.MousePointer);
}

void RecordingWindows::wait(int milliseconds) {
    calls.push_back(line_of("wait", milliseconds));
}

void RecordingWindows::end_program() {
    calls.push_back("end");
}

int RecordingShell::open(std::string_view target) {
    opened.emplace_back(target);
    return open_result;
}

void RecordingShell::play(std::string_view file) {
    played.emplace_back(file);
}

bool RecordingShell::recycle(std::string_view path) {
    recycled.emplace_back(path);
    return !recycle_fails && runtime::remove_file(path);
}

std::optional<std::string> MemorySettings::get(std::string_view section, std::string_view key) {
    const auto found = values.find({std::string(section), std::string(key)});
    if (found == values.end())
        return std::nullopt;
    return found->second;
}

void MemorySettings::save(std::string_view section, std::string_view key, std::string_view value) {
    values[{std::string(section), std::string(key)}] = value;
}

void RecordingSurface::note(std::string operation) {
    operations.push_back(std::move(operation));
}

void RecordingSurface::Cls() {
    note("cls");
}

void RecordingSurface::set_back_color(std::uint32_t colour) {
    note(line_of("back", colour));
}

void RecordingSurface::set_pen(std::uint32_t colour) {
    note(line_of("pen", colour));
}

void RecordingSurface::set_draw_mode(DrawMode mode) {
    note(line_of("mode", static_cast<int>(mode)));
}

void RecordingSurface::MoveToEx(std::int32_t x, std::int32_t y) {
    note(line_of("move", x, y));
}

void RecordingSurface::LineTo(std::int32_t x, std::int32_t y) {
    note(line_of("lineto", x, y));
}

void RecordingSurface::Polyline(std::span<const PixelPoint> points) {
    std::string line = "polyline";
    for (const PixelPoint& point : points)
        line += line_of("", point.x, point.y);
    note(std::move(line));
}

void RecordingSurface::Arc(std::int32_t left, std::int32_t top, std::int32_t right,
                           std::int32_t bottom) {
    note(line_of("arc", left, top, right, bottom));
}

void RecordingSurface::Line(float x1, float y1, float x2, float y2) {
    note(line_of("line", x1, y1, x2, y2));
}

void RecordingSurface::FillBox(float x1, float y1, float x2, float y2, std::uint32_t colour) {
    note(line_of("box", x1, y1, x2, y2, colour));
}

void RecordingSurface::set_picture(std::string_view file) {
    note(line_of("picture", file));
}

void RecordingSurface::save_part(std::string_view file, PixelPoint corner, PixelPoint size) {
    note("save " + std::string(file) + ' ' + std::to_string(corner.x) + ' ' +
         std::to_string(corner.y) + ' ' + std::to_string(size.x) + ' ' + std::to_string(size.y));
}

void RecordingSurface::present() {
    note("present");
}

void RecordingPrinter::set_Orientation(Orientation orientation) {
    turned_ = orientation == Orientation::landscape;
    operations.push_back(line_of("orientation", static_cast<int>(orientation)));
}

void RecordingPrinter::Line(float x1, float y1, float x2, float y2) {
    operations.push_back(line_of("line", x1, y1, x2, y2));
}

void RecordingPrinter::Circle(float x, float y, float radius, std::uint32_t colour) {
    operations.push_back(line_of("circle", x, y, radius, colour));
}

void RecordingPrinter::EndDoc() {
    if (end_error != 0)
        raise(end_error);
    operations.emplace_back("end");
}

std::vector<Figure> RecordingOutlines::figures(std::string_view text, const FontChoice& font,
                                               OutlinePoint corner) {
    calls.push_back(line_of(text, font.name, font.size) + (font.bold ? " bold" : "") +
                    (font.italic ? " italic" : "") + line_of("", corner.x, corner.y));
    if (failure != 0)
        raise(failure);
    const auto found = letters.find(std::string(text));
    return found == letters.end() ? std::vector<Figure>{} : found->second;
}

std::shared_ptr<AcadApplication> NoCad::GetObject() {
    raise(error::cannot_create_object);
}

void NoCad::AppActivate() {
    raise(error::invalid_call);
}

RecordingPlatform::RecordingPlatform() {
    static std::atomic<unsigned> count = 0;
    const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
    folder = std::filesystem::temp_directory_path() /
             ("velmora-test-" + std::to_string(stamp) + "-" + std::to_string(count++));
    std::filesystem::create_directories(folder);
    database = make_sqlite_database();
    reset_session();
    set_platform({dialogs, windows, shell, settings, *database, clock, machine, pic, cad, nullptr,
                  &printer, &outlines});
    session.program_folder = runtime::path_text(folder);
}

void RecordingPlatform::open_database() {
    std::filesystem::copy_file(built_database(), folder / "VELMORA.MDB");
    database->open(program_file("\\VELMORA.MDB"));
    session.language_database_open = true;
}

RecordingPlatform::~RecordingPlatform() {
    close_messages();
    database->close();
    reset_session();
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

std::string RecordingPlatform::path(const std::string& name) const {
    return runtime::join(runtime::path_text(folder), name);
}

std::string RecordingPlatform::write(const std::string& name, std::string_view bytes) const {
    std::ofstream(runtime::native_path(path(name)), std::ios::binary) << bytes;
    return path(name);
}

std::string RecordingPlatform::read(const std::string& path) {
    std::ifstream file(runtime::native_path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace velmora::test
