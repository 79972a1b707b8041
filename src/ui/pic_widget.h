// The canvas `pic` on the screen: 2000 by 2000 pixels that show the surface's image, and the source
// of the pointer's and keys' events. One of its pixels is one of the surface's, at any scale of the
// desktop.
#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>

class QImage;

namespace velmora {

/// A press, move or release at a pixel. Button: 1 left, 2 right, 4 middle, 0 none; at a move the
/// sum of those that are down.
struct PointerEvent {
    int button = 0;
    bool ctrl = false;
    float x = 0;
    float y = 0;
    QPoint on_screen;
    bool twice = false; ///< the second press of a double click
};

class PicWidget : public QWidget {
    Q_OBJECT
  public:
    explicit PicWidget(QWidget* parent = nullptr);

    /// The image to show; it must live as long as the widget.
    void show_image(const QImage& image);

    // Where the events go; each may be empty.
    std::function<void(const PointerEvent&)> pressed;
    std::function<void(const PointerEvent&)> moved;
    std::function<void(const PointerEvent&)> released;
    /// A key's code, as the logic knows it, and whether Ctrl is down.
    std::function<void(int key, bool ctrl)> key_down;
    std::function<void(int key, bool ctrl)> key_up;
    /// From here on the keys go elsewhere, their releases too.
    std::function<void()> focus_lost;
    /// The key that opens context menus.
    std::function<void()> menu_key;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    const QImage* image_ = nullptr;
    int focus_losses_ = 0;
};

} // namespace velmora
