// A label of one line that shows as much of its text as fits, and the whole of it as a tip.
#pragma once

#include <QLabel>

namespace velmora {

class ElidedLabel : public QLabel {
    Q_OBJECT
  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velmora
