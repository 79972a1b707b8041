#include "app/session_guard.h"

#include "commands/open_recovered.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/state/loading.h"
#include "document/state/program.h"
#include "formats/recovery.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/settings_store.h"
#include "runtime/file_beside.h"
#include "runtime/paths.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "ui/window_host.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QThreadPool>
#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <cstring>
#include <fstream>
#include <iterator>
#include <utility>

namespace velmora {

namespace {

/// In front of the points of a dump.
struct DumpHead {
    std::array<char, 8> sign;
    std::uint64_t points;
};

constexpr std::array<char, 8> dump_sign{'V', 'E', 'L', 'P', 'T', 'O', 'S', '1'};

/// By which an outline is known again; arithmetic alone, for a handler's sake.
std::uint64_t mark_of(std::span<const Pto> points) {
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;
    std::uint64_t mark = points.size();
    const auto add = [&mark](std::uint64_t value) {
        mark = (mark ^ value) * odd;
        mark ^= mark >> 29U;
    };
    for (const Pto& point : points) {
        add(std::bit_cast<std::uint64_t>(point.X));
        add(std::bit_cast<std::uint64_t>(point.Y));
        add(static_cast<std::uint16_t>(point.Sinc));
    }
    return mark;
}

std::span<const Pto> outline() {
    return std::as_const(Forma.Pto).all();
}

// What a handler, a thread and the end of the process see of the one guard.
SessionGuard* guard = nullptr;
std::array<char, 4096> dump_path{};
std::uint64_t clean = 0; ///< mark of the outline as its file holds it
std::uint64_t seen_times = 0;
std::atomic<bool> writing{false};

void dump_outline() {
    const auto points = outline();
    if (guard == nullptr || points.size() < 2 || mark_of(points) == clean)
        return;
    const DumpHead head{dump_sign, points.size()};
    dump_bytes(dump_path.data(), std::as_bytes(std::span(&head, 1)), std::as_bytes(points));
}

/// A toolkit that lost its display leaves by the C library's exit.
void keep_at_exit() {
    if (guard != nullptr)
        guard->keep_now();
}

std::string left_file(const char* extension) {
    return runtime::join(state::program.program_folder,
                         "sesion-" + std::to_string(QCoreApplication::applicationPid()) +
                             extension);
}

void prepare_dump() {
    const std::string path = left_file(".ptos");
    if (path.size() < dump_path.size())
        std::ranges::copy(runtime::path_text(runtime::native_path(path)) + '\0', dump_path.begin());
}

/// The points of a dump, none where it broke off.
Array<Pto> points_of(const std::string& dump) {
    std::ifstream file(runtime::native_path(dump), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    DumpHead head{};
    Array<Pto> points;
    if (bytes.size() < sizeof head)
        return points;
    std::memcpy(&head, bytes.data(), sizeof head);
    const std::size_t room = (bytes.size() - sizeof head) / sizeof(Pto);
    if (head.sign != dump_sign || head.points != room || room < 2)
        return points;
    points.redim(static_cast<std::int32_t>(room) - 1);
    std::memcpy(points.all().data(), bytes.data() + sizeof head, room * sizeof(Pto));
    return points;
}

/// A dump is younger than what was kept beside it.
void turn_dump_to_outline(const std::string& dump, const std::string& kept) {
    const Array<Pto> points = points_of(dump);
    if (points.dimensioned())
        write_kept({points, ""}, kept);
    runtime::remove_file(dump);
}

} // namespace

SessionGuard::SessionGuard(WindowHost& windows, std::chrono::milliseconds interval)
    : windows_(windows), file_(left_file(".dat")), signals_([this] { keep_now(); }, dump_outline) {
    guard = this;
    clean = mark_of(outline());
    prepare_dump();
    std::atexit(keep_at_exit);
    windows_.events.handled = [this] {
        follow_handler();
    };
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { keep_now(); });
    connect(&timer_, &QTimer::timeout, this, [this] { keep_beside(); });
    timer_.start(interval);
    for (const std::string& left : left_outlines(state::program.program_folder))
        offer(left);
}

SessionGuard::~SessionGuard() {
    guard = nullptr;
    windows_.events.handled = nullptr;
    QThreadPool::globalInstance()->waitForDone();
    runtime::remove_file(file_);
}

bool SessionGuard::is_edited() const {
    return has_shape() && mark_of(outline()) != clean;
}

void SessionGuard::keep_now() noexcept {
    try {
        (void)platform().settings.keep();
        if (!is_edited())
            return;
        QThreadPool::globalInstance()->waitForDone();
        trap([&] { write_kept(present_outline(), file_); },
             [](const RuntimeError&) { (void)save_recovery(); });
    } catch (...) {
        // There is nobody left to be told.
    }
}

// What a load or a save leaves is what its file holds, with the rounding that follows it. What was
// imported is in no file yet.
void SessionGuard::follow_handler() {
    if (seen_times == state::loading.seen_times)
        return;
    seen_times = state::loading.seen_times;
    clean = state::loading.seen.path.empty() ? 0 : mark_of(outline());
    if (!writing)
        runtime::remove_file(file_);
}

/// The outline is copied here and written by another thread: a million points take the first a few
/// milliseconds and the second a second.
void SessionGuard::keep_beside() {
    if (!is_edited() || writing || kept_ == mark_of(outline()))
        return;
    kept_ = mark_of(outline());
    writing = true;
    QThreadPool::globalInstance()->start([kept = present_outline(), path = file_] {
        trap([&] { write_kept(kept, path); }, [](const RuntimeError&) {});
        writing = false;
    });
}

void SessionGuard::offer(const std::string& left) {
    constexpr std::chrono::milliseconds soon(50);
    // Once the main window is there, and not into the boxes that the start shows.
    if (windows_.window("Velmora") == nullptr || !windows_.idle()) {
        QTimer::singleShot(soon, this, [this, left] { offer(left); });
        return;
    }
    windows_.run([&left] {
        const std::string question = GetMensaje(message::offer_recovery) + "\n\n" + left;
        if (MsgBox(question, buttons::yes_no + buttons::question, box_title()) == answer::yes)
            open_recovered(left);
    });
}

std::vector<std::string> left_outlines(const std::string& folder) {
    static const QRegularExpression pattern("^sesion-(\\d+)\\.(dat|ptos)$");
    const QDir place(QString::fromStdString(folder));
    std::vector<std::string> left;
    const auto of_the_dead = [&](const QString& name) {
        const long process = pattern.match(name).captured(1).toLong();
        return pattern.match(name).hasMatch() && !runs_here(process);
    };
    for (const QString& name : place.entryList({"sesion-*.ptos"}, QDir::Files))
        if (of_the_dead(name)) {
            const std::string dump = place.filePath(name).toStdString();
            const std::string kept = dump.substr(0, dump.size() - 4) + "dat";
            trap([&] { turn_dump_to_outline(dump, kept); }, [](const RuntimeError&) {});
        }
    for (const QString& name : place.entryList({"sesion-*.dat"}, QDir::Files))
        if (of_the_dead(name))
            left.push_back(take_over(place.filePath(name).toStdString()));
    return left;
}

} // namespace velmora
