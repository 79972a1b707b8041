// A round signal, green with a tick or red with a cross, so that colour does not tell it alone.
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

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool green_ = false;
};

} // namespace velmora
