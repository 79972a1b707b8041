// What a move of the pointer costs a user: the event, the handler, the windows brought up to date
// and the paint, over outlines of growing size.
#include "adapters/qt/image_surface.h"
#include "app/qt_platform.h"
#include "canvas/view.h"
#include "commands/handlers.h"
#include "document/refresh.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "services/messages.h"
#include "support/places.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWidget>
#include <benchmark/benchmark.h>
#include <cmath>
#include <filesystem>

namespace velmora {
namespace {

void need_application() {
    static int count = 1;
    static char name[] = "velmora-bench";
    static char* words[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(count, words);
}

/// The program's windows with a ring of so many points on the canvas, the last one selected.
class RingInWindows {
  public:
    explicit RingInWindows(std::int32_t points) {
        need_application();
        reset_session();
        const auto folder = std::filesystem::path(folder_.path().toStdString());
        std::filesystem::copy_file(test::built_database(), folder / "VELMORA.MDB");
        session.program_folder = folder.string();
        platform_.dialogs = std::make_unique<test::RecordingDialogs>();
        platform_.shell = std::make_unique<test::RecordingShell>();
        platform_.settings = std::make_unique<test::MemorySettings>();
        platform_.cad = std::make_unique<test::NoCad>();
        platform_.install();
        platform_.windows->start();
        QMetaObject::invokeMethod(platform_.windows->control("intro", "Image1"), "clicked");
        QCoreApplication::processEvents();
        draw_ring(points);
    }
    ~RingInWindows() { close_messages(); }

    void run(void (*handler)()) { platform_.windows->run(handler); }
    void send(QEvent::Type type, QPointF at, Qt::MouseButton button) {
        auto& pic = static_cast<QWidget&>(*platform_.windows->control("Velmora", "pic"));
        QMouseEvent event(type, at, pic.mapToGlobal(at), button,
                          button == Qt::NoButton ? Qt::NoButton : button, Qt::NoModifier);
        QCoreApplication::sendEvent(&pic, &event);
        QCoreApplication::processEvents(); // the paint
    }

  private:
    void draw_ring(std::int32_t points) {
        session.ZoomFactor = 1;
        Forma.Pto.redim(points - 1);
        for (std::int32_t i = 0; i < points; ++i) {
            const double turn = 2 * session.PI * i / points;
            Forma.Pto[i] = {500 + 250 * std::cos(turn), 300 + 250 * std::sin(turn)};
        }
        session.PtoSel = points - 1;
        run([] {
            Define_Layout();
            Dibuja();
            Carga_List_Coords("NEWFILE");
        });
        QCoreApplication::processEvents();
    }

    QTemporaryDir folder_;
    QtPlatform platform_;
};

QPointF selected_point() {
    const Pto& point = Forma.Pto[session.PtoSel];
    return {canvas_x(point.X), canvas_y(point.Y)};
}

void hover(benchmark::State& state) {
    RingInWindows ring(static_cast<std::int32_t>(state.range(0)));
    double x = 400;
    for ([[maybe_unused]] auto _ : state)
        ring.send(QEvent::MouseMove, {x = 801 - x, 1500}, Qt::NoButton);
}

void drag(benchmark::State& state) {
    RingInWindows ring(static_cast<std::int32_t>(state.range(0)));
    const QPointF start = selected_point();
    ring.send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    double way = 3;
    for ([[maybe_unused]] auto _ : state)
        ring.send(QEvent::MouseMove, start + QPointF(way = 9 - way, 0), Qt::LeftButton);
    ring.send(QEvent::MouseButtonRelease, start, Qt::LeftButton);
}

void rubber_band(benchmark::State& state) {
    RingInWindows ring(static_cast<std::int32_t>(state.range(0)));
    ring.run(Insert_N_Ptos);
    const QPointF start = selected_point();
    double way = 30;
    for ([[maybe_unused]] auto _ : state)
        ring.send(QEvent::MouseMove, start + QPointF(way = 90 - way, 40), Qt::NoButton);
}

constexpr int kSizes[] = {1000, 8000, 32000};

void sizes(benchmark::internal::Benchmark* bench) {
    for (const int points : kSizes)
        bench->Arg(points);
    bench->ArgName("points")->Unit(benchmark::kMicrosecond);
}

BENCHMARK(hover)->Name("Pointer over empty canvas, event to paint")->Apply(sizes);
BENCHMARK(drag)->Name("Drag of a point, event to paint")->Apply(sizes);
BENCHMARK(rubber_band)->Name("Rubber band, event to paint")->Apply(sizes);

} // namespace
} // namespace velmora
