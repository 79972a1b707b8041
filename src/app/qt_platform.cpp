#include "app/qt_platform.h"

#include "adapters/qt/image_surface.h"
#include "adapters/qt/qt_dialogs.h"
#include "adapters/qt/qt_printer.h"
#include "adapters/qt/qt_settings.h"
#include "adapters/qt/qt_shell.h"
#include "adapters/qt/qt_text_outlines.h"
#include "adapters/running_cad.h"
#include "adapters/sqlite/sqlite_database.h"
#include "platform/clock.h"
#include "platform/machine.h"
#include "services/guide.h"

#include <QLocale>

namespace velmora {

namespace {

class SteadyClock : public Clock {
  public:
    std::chrono::steady_clock::time_point now() override {
        return std::chrono::steady_clock::now();
    }
};

class QtMachine : public Machine {
  public:
    char decimal_separator() override {
        return QLocale::system().decimalPoint() == "." ? '.' : ',';
    }
};

template <class Service, class Make>
void fill(std::unique_ptr<Service>& place, Make make) {
    if (place == nullptr)
        place = make();
}

} // namespace

QtPlatform::QtPlatform()
    : pic(std::make_unique<ImageSurface>()), windows(std::make_unique<WindowHost>(*pic)) {}

QtPlatform::~QtPlatform() = default;

void QtPlatform::install() {
    fill(dialogs, make_qt_dialogs);
    fill(shell, [] { return make_qt_shell(guide_language); });
    fill(settings, make_qt_settings);
    fill(database, make_sqlite_database);
    fill(machine, [] { return std::make_unique<QtMachine>(); });
    fill(clock, [] { return std::make_unique<SteadyClock>(); });
    fill(cad, make_running_cad);
    fill(printer, [] { return make_qt_printer(); });
    fill(text_outlines, make_qt_text_outlines);
    set_platform({*dialogs, *windows, *shell, *settings, *database, *clock, *machine, *pic, *cad,
                  nullptr, printer.get(), text_outlines.get()});
}

} // namespace velmora
