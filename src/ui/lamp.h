// A round signal, green with a tick or red with a cross, so that colour is not its only sign.
#pragma once

#include <QWidget>
#include <cstdint>

namespace velmora {

class Lamp : public QWidget {
    Q_OBJECT
  public:
    explicit Lamp(QWidget* parent = nullptr);
    /// Fill colour: 65280 is the green one, any other the red one.
    void set_colour(std::uint32_t colour);
    [[nodiscard]] std::uint32_t colour() const { return colour_; }

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::uint32_t colour_ = 255;
};

} // namespace velmora
