// The dispatcher of WindowHost: events to handlers, faults, yields, the end of the program.
#include "document/feedback.h"
#include "document/state/loading.h"
#include "formats/recovery.h"
#include "platform/cancelled.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/settings_store.h"
#include "services/settings.h"
#include "ui/window_host_state.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>
#include <array>
#include <new>
#include <optional>

namespace velmora {

namespace {

constexpr std::chrono::milliseconds kYieldInterval(16);
constexpr int kInternalError = 51;
constexpr int kFaultStatus = 1;

/// Says first that the shape is kept, and where; then what failed, with what the user has to mend.
/// The other way round it reads as if the keeping had failed.
void report(const RuntimeError& failure, const std::string& recovered) {
    std::string text = recovered.empty() ? "" : kept_shape_text(recovered) + "\n\n";
    text += "Run-time error '" + std::to_string(failure.number) + "':\n\n";
    text += description_of(failure);
    if (!failure.place.empty())
        text += "\n" + failure.place;
    platform().dialogs.message(text, buttons::critical, "Velmora");
}

/// By the letters of the languages, in the code: the database is not open yet.
struct OfferText {
    char language;
    std::string_view text;
};

constexpr auto kOfferTexts = std::to_array<OfferText>({
    {'E', "¿Deseas que Velmora use desde ahora el valor por defecto de este parámetro?"},
    {'I', "Shall Velmora use the default of this setting from now on?"},
    {'F', "Velmora doit-il utiliser désormais la valeur par défaut de ce paramètre ?"},
    {'P', "Deseja que o Velmora use a partir de agora o valor predefinido deste parâmetro?"},
    {'T', "Velmora deve usare d’ora in poi il valore predefinito di questo parametro?"},
});

std::string_view offer_text() {
    const std::string language = platform().settings.get("Values", "Idioma").value_or("E");
    const auto* const found =
        std::ranges::find(kOfferTexts, language.empty() ? 'E' : language[0], &OfferText::language);
    return found == kOfferTexts.end() ? kOfferTexts.front().text : found->text;
}

/// A setting that ends the start would end every other start too: its default is offered.
bool take_default_for(const RuntimeError& failure) {
    const auto setting = setting_at_fault(failure);
    if (!setting)
        return false;
    const std::string question =
        std::string(offer_text()) + "\n\n" + setting->key + " = " + setting->value;
    if (platform().dialogs.message(question, buttons::yes_no + buttons::question, "Velmora") !=
        answer::yes)
        return false;
    platform().settings.save(setting->section, setting->key, setting->value);
    return platform().settings.keep();
}

/// What a handler failed with, nothing where it did not. The end of the program goes through.
std::optional<RuntimeError> failure_of(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const RuntimeError& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return RuntimeError(error::out_of_memory);
    } catch (const Cancelled&) {
        // Whoever waits for a CAD outside of a capture: the command ends there.
    } catch (const std::exception& other) {
        return RuntimeError(kInternalError, other.what());
    }
    return {};
}

/// Esc ends a reading under way, whichever window has it.
class EscapeWatch : public QObject {
  public:
    EscapeWatch() {
        if (state::loading.reading)
            QCoreApplication::instance()->installEventFilter(this);
    }

  private:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
            return false;
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
            return false;
        state::loading.cancel_asked = true;
        return true;
    }
};

void exit_event_loops(int status) {
    QCoreApplication::exit(status);
    // Before the application's own loop runs, the exit above is lost.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [status] { QCoreApplication::exit(status); },
        Qt::QueuedConnection);
}

} // namespace

void WindowHost::run(const std::function<void()>& handler) {
    if (d->ended)
        return;
    if (d->open_popup)
        d->open_popup->close();
    ++d->running;
    d->pull();
    try {
        if (const auto failure = failure_of(handler))
            d->fail(*failure);
    } catch (const EndOfProgram&) {
        // The end was announced where it was asked for.
    }
    --d->running;
    if (d->running == 0 && events.handled)
        events.handled();
    if (d->ending_depth > d->running)
        d->finish(0);
    if (d->ended)
        return;
    d->push();
    d->ask_for_activation();
    d->show_popup();
}

void WindowHost::run_alone(const std::function<void()>& handler) {
    run([&] {
        if (const auto failure = failure_of(handler))
            d->tell_stopped(*failure);
    });
}

bool WindowHost::idle() const {
    return d->running == (d->modals.empty() ? 0 : d->modals.back().depth);
}

void WindowHost::refresh() {
    d->pull();
    d->push();
}

void WindowHost::yield() {
    const auto now = platform().clock.now();
    if (now - d->last_yield < kYieldInterval)
        return;
    refresh();
    {
        const EscapeWatch watch;
        QCoreApplication::processEvents();
    }
    d->last_yield = platform().clock.now();
    d->leave_if_ended();
}

void WindowHost::wait(int milliseconds) {
    refresh();
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    d->leave_if_ended();
}

void WindowHost::end_program() {
    if (d->running == 0)
        return d->finish(0);
    if (d->ending_depth == 0)
        d->ending_depth = d->running;
}

void WindowHost::Private::pull() const {
    for (const auto& window : all())
        if (window)
            window->bindings().pull();
}

void WindowHost::Private::push() const {
    for (const auto& window : all())
        if (window)
            window->bindings().push();
}

void WindowHost::Private::fail(const RuntimeError& failure) {
    if (ended)
        return;
    const std::string recovered = save_recovery();
    if (host.events.fault)
        host.events.fault(failure);
    else
        report(failure, recovered);
    if (!host.events.fault && take_default_for(failure) && find("Velmora") == nullptr)
        return start_again();
    finish(kFaultStatus);
}

// What was shown of the start goes; the next try comes when this event is over.
void WindowHost::Private::start_again() {
    for (auto& [name, window] : windows)
        window.release()->deleteLater();
    windows.clear();
    active = nullptr;
    QTimer::singleShot(0, &host, [this] { host.start(); });
}

void WindowHost::Private::tell_stopped(const RuntimeError& failure) const {
    if (host.events.stopped)
        host.events.stopped(failure);
    else
        report(failure, {});
}

void WindowHost::Private::finish(int status) {
    if (ended)
        return;
    ended = true;
    ending_depth = 0;
    if (status == 0 && host.events.ended)
        host.events.ended();
    exit_event_loops(status);
}

void WindowHost::Private::leave_if_ended() const {
    if (ended)
        throw EndOfProgram{};
}

} // namespace velmora
