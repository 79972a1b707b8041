// A label that can be clicked. A click leaves the focus where it is; Tab reaches the label, and
// Enter or the space bar click it then.
#pragma once

#include <QLabel>

namespace velmora {

class ClickLabel : public QLabel {
    Q_OBJECT
  public:
    explicit ClickLabel(QWidget* parent = nullptr);

  signals:
    void clicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace velmora
