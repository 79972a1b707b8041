// A picture that fills its label and can be clicked.
#pragma once

#include <QIcon>
#include <QLabel>

namespace velmora {

class PictureLabel : public QLabel {
    Q_OBJECT
  public:
    explicit PictureLabel(QWidget* parent = nullptr) : QLabel(parent) {}
    /// Drawn over the whole label, in the resolution of its screen.
    void set_picture(const QIcon& picture);

  signals:
    void clicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QIcon picture_;
};

} // namespace velmora
