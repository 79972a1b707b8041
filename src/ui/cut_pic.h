// What the two pictures of a cut have in common: the hand on them. The wheel zooms round the
// pointer, a drag moves or turns, a double click fits, a click tells the point under it; keys do
// the same.
#pragma once

#include "ui/cut_colours.h"
#include "ui/cut_shown.h"

#include <QFrame>
#include <cstddef>
#include <optional>

namespace velmora {

class CutPic : public QFrame {
    Q_OBJECT
  public:
    explicit CutPic(QWidget* parent = nullptr);

    /// Another cut: it is fitted into the picture.
    void show_cut(CutShown shown, const QString& instead);
    /// The same one seen otherwise; the view stays.
    void show_again(CutShown shown);
    void show_wire(double along);
    /// The place that is looked at, or none; the view goes there.
    void show_mark(std::optional<cutting::Entry> mark);
    /// All of it as large as the room allows.
    void show_all();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void point_clicked(int point);
    /// So many points on, or back.
    void stepped(int points);

  protected:
    virtual void fit() = 0;
    virtual void zoom(double factor, QPointF around) = 0;
    /// By the hand; `aside` where the picture has two ways to go.
    virtual void drag(QPointF by, bool aside) = 0;
    virtual void go_to_mark() = 0;
    virtual void take_room(QSizeF room) = 0;
    virtual void paint(QPainter& painter) = 0;
    /// Something but the wire changed.
    virtual void start_over() {}
    /// A key of the picture's own; false for others.
    virtual bool take_key(int) { return false; }
    [[nodiscard]] virtual std::optional<std::size_t> point_at(QPointF place) const = 0;
    /// There is something to be drawn.
    [[nodiscard]] virtual bool has_picture() const;

    [[nodiscard]] const CutShown& shown() const { return shown_; }
    [[nodiscard]] const CutColours& colours() const { return colours_; }

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void refresh();
    [[nodiscard]] QPointF inside(const QMouseEvent& event) const;

    CutShown shown_;
    CutColours colours_;
    QString instead_; ///< what is said where there is nothing to be drawn
    QPointF pressed_, last_;
    bool dragging_ = false;
    bool held_ = false;
};

} // namespace velmora
