#include "ui/guide_key.h"

#include "services/guide.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace velmora {

GuideKey::GuideKey(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool GuideKey::eventFilter(QObject* watched, QEvent* event) {
    // A key comes to the native window once, and then to one widget after the other.
    if (event->type() != QEvent::KeyPress || !watched->isWindowType())
        return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    const QWidget* window = QApplication::activeWindow();
    if (key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier && !key.isAutoRepeat() &&
        window != nullptr)
        open_guide_page(window->objectName().toStdString());
    return false;
}

} // namespace velmora
