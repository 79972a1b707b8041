// The picture that explains the three distances of the adjustment: tower, block, block, tower along
// the wire, X + Z, Z and Y + Z apart.
#pragma once

#include <QWidget>

namespace velmora {

/// Drawn in lines of the window's own text colour, at whatever size and resolution.
class DistancesPic : public QWidget {
    Q_OBJECT
  public:
    explicit DistancesPic(QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velmora
