// The main window's place and size from one run to the next.
#pragma once

#include <QObject>
#include <QPoint>
#include <QSize>
#include <QTimer>
#include <optional>

class QWidget;

namespace velmora {

struct WindowPlace {
    QPoint corner; ///< of the frame
    QSize size;    ///< of what is inside it
    bool maximized = false;

    bool operator==(const WindowPlace&) const = default;
};

/// As it was stored last; nothing where it never was, or where the text is none.
[[nodiscard]] std::optional<WindowPlace> stored_window_place();
void store_window_place(const WindowPlace& place);

/// The place as far as there is a screen for it: moved and made smaller until the window stands on
/// one. Nothing where no screen holds its middle.
[[nodiscard]] std::optional<WindowPlace> on_a_screen(const WindowPlace& place);

/// Stores the place of a window a moment after the user gave it another one, and not at the
/// program's end, which writes nothing. It begins after some time: first the desktop and the
/// program find the window's place together.
class WindowPlaceKeeper : public QObject {
    Q_OBJECT
  public:
    explicit WindowPlaceKeeper(QWidget& window, int milliseconds = 1000);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void begin();
    void store();

    QWidget& window_;
    QTimer soon_;
    WindowPlace kept_;
};

} // namespace velmora
