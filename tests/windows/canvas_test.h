// The main window with a square on its canvas, 10 pixels a unit, and the pointer over it.
#pragma once

#include "document/refresh.h"
#include "ui/pic_widget.h"
#include "windows/windows_test.h"

#include <QApplication>
#include <QMouseEvent>
#include <QtTest>

namespace velmora::test {

class CanvasTest : public WindowsTest {
  protected:
    void SetUp() override {
        start_program();
        open_shape({{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    }
    void open_shape(const std::vector<Pto>& points) {
        Forma.Pto.redim(static_cast<std::int32_t>(points.size()) - 1);
        std::ranges::copy(points, Forma.Pto.all().begin());
        session.ZoomFactor = 10;
        windows().run([] {
            Define_Layout();
            Dibuja();
            Carga_List_Coords("NEWFILE");
        });
        dialogs().boxes.clear();
    }
    PicWidget& pic() { return control<PicWidget>("Velmora", "pic"); }
    /// Pixels of pic for points of a shape without negatives: the origin stands 30 from the left
    /// and the bottom.
    static QPoint place(double x, double y) {
        return {static_cast<int>(30 + 10 * x), static_cast<int>(1970 - 10 * y)};
    }
    void move_to(QPoint at, Qt::MouseButtons down = Qt::NoButton) {
        QMouseEvent event(QEvent::MouseMove, at, pic().mapToGlobal(at), Qt::NoButton, down,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&pic(), &event);
    }
};

} // namespace velmora::test
