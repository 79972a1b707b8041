// F1: the guide, at the page of the window that has the keyboard.
#pragma once

#include <QObject>

namespace velmora {

/// Watches the application's keys. The key goes on to the window, where it is one like any other.
class GuideKey : public QObject {
    Q_OBJECT
  public:
    explicit GuideKey(QObject* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace velmora
