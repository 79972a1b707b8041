#include "adapters/qt/ending_signals.h"

#include <QFile>
#include <QSocketNotifier>

#ifndef Q_OS_WIN
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>
#endif

namespace velmora {

#ifdef Q_OS_WIN

struct EndingSignals::Private {};
EndingSignals::EndingSignals(std::function<void()>, void (*)()) {}
EndingSignals::~EndingSignals() = default;
void dump_bytes(const char*, std::span<const std::byte>, std::span<const std::byte>) noexcept {}
bool runs_here(long) {
    return true;
}

#else

namespace {

constexpr std::array requests{SIGTERM, SIGHUP, SIGINT};
constexpr std::array faults{SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL};

std::array<int, 2> line{-1, -1};
std::atomic<bool> waiting{false};
void (*when_broken)() = nullptr;

void go_by(int signal) {
    std::signal(signal, SIG_DFL);
    raise(signal);
}

void on_fault(int signal) {
    // A fault in the keeping itself ends it.
    for (const int other : faults)
        std::signal(other, SIG_DFL);
    if (when_broken != nullptr)
        when_broken();
    go_by(signal);
}

void on_request(int signal) {
    const int error = errno;
    const auto name = static_cast<unsigned char>(signal);
    if (waiting.exchange(true) || write(line[1], &name, 1) != 1)
        on_fault(signal);
    errno = error;
}

void hear(int signal, void (*handler)(int)) {
    struct sigaction present = {};
    sigaction(signal, nullptr, &present);
    if (present.sa_handler == SIG_IGN) // "nohup"
        return;
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
}

/// An overflow of the stack leaves none for its handler.
void set_stack_apart() {
    static std::array<std::byte, 64 * 1024> apart;
    stack_t stack = {};
    stack.ss_sp = apart.data();
    stack.ss_size = apart.size();
    sigaltstack(&stack, nullptr);
}

void write_all(int file, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t done = write(file, bytes.data(), bytes.size());
        if (done < 0 && errno != EINTR)
            return;
        if (done > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(done));
    }
}

} // namespace

struct EndingSignals::Private {
    std::unique_ptr<QSocketNotifier> notifier;
};

EndingSignals::EndingSignals(std::function<void()> asked, void (*broken)())
    : d(std::make_unique<Private>()) {
    if (pipe2(line.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    when_broken = broken;
    d->notifier = std::make_unique<QSocketNotifier>(line[0], QSocketNotifier::Read);
    connect(d->notifier.get(), &QSocketNotifier::activated, this, [asked = std::move(asked)] {
        unsigned char name = 0;
        if (read(line[0], &name, 1) != 1)
            return;
        asked();
        go_by(name);
    });
    set_stack_apart();
    for (const int signal : requests)
        hear(signal, on_request);
    for (const int signal : faults)
        hear(signal, on_fault);
}

EndingSignals::~EndingSignals() {
    for (const int signal : requests)
        std::signal(signal, SIG_DFL);
    for (const int signal : faults)
        std::signal(signal, SIG_DFL);
    when_broken = nullptr;
    for (int& end : line)
        close(std::exchange(end, -1));
}

void dump_bytes(const char* path, std::span<const std::byte> head,
                std::span<const std::byte> body) noexcept {
    const int file = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    write_all(file, head);
    write_all(file, body);
    fsync(file);
    close(file);
}

bool runs_here(long process) {
    if (kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH)
        return false;
    QFile name(QString("/proc/%1/comm").arg(process));
    return !name.open(QIODevice::ReadOnly) || name.readAll().startsWith("velmora");
}

#endif

} // namespace velmora
