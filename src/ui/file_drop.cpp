#include "ui/file_drop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace velmora {

namespace {

/// Empty where it is not one local file.
QString file_of(const QDropEvent& drop) {
    const QList<QUrl> urls = drop.mimeData()->urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

FileDrop::FileDrop(QWidget& window, std::function<void(const std::string& path)> dropped)
    : QObject(&window), dropped_(std::move(dropped)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
        event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto& drop = static_cast<QDropEvent&>(*event);
    const QString file = file_of(drop);
    if (file.isEmpty())
        return QObject::eventFilter(watched, event);
    drop.acceptProposedAction();
    // The program that is dragged from waits until the drop is over.
    if (event->type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, path = file.toStdString()] { dropped_(path); });
    return true;
}

} // namespace velmora
