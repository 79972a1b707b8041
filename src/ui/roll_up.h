// A floating window that rolls up to its title, and that keeps to the main window's right side.
#pragma once

class QWidget;

namespace velmora {

class RollUp {
  public:
    /// `content` holds all that is seen of the window.
    RollUp(QWidget& window, QWidget& content);

    /// The height with the title, in twips; the content always has the room that it needs. Rolled
    /// up, nothing but the desktop's title bar stays, however high that is.
    void set_height(int twips, bool rolled_up);
    /// Moves the window to the right side of `main`, `row` twips below its top.
    void keep_to(const QWidget& main, int row);

  private:
    /// Screen pixels of twips.
    [[nodiscard]] int pixels(int twips) const;

    QWidget& window_;
    QWidget& content_;
    bool sized_ = false; ///< the width is the user's from the first time on
};

} // namespace velmora
