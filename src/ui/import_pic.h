// The picture of the window importar: every chain that was found, each in its colour. Those taken
// are drawn broad and carry their place; the start and the direction of the cut are marked. A click
// on a chain is told.
#pragma once

#include "document/windows/importar.h"

#include <QColor>
#include <QFrame>
#include <QPixmap>
#include <QTransform>
#include <optional>
#include <span>

namespace velmora {

/// The colour of a chain, by its place in the list, told apart from this ground.
[[nodiscard]] QColor chain_colour(std::size_t chain, const QColor& ground);

class ImportPic : public QFrame {
    Q_OBJECT
  public:
    explicit ImportPic(QWidget* parent = nullptr);

    void show_chains_of(const ImportarWindow& state);
    /// The chains or the outline changed.
    void start_over();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    void chain_clicked(int chain);

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    void fit();
    void draw();
    void draw_chain(QPainter& painter, const ImportarChain& chain, const QPen& pen) const;
    [[nodiscard]] QPointF place_of_number(const std::vector<ImportarPoint>& points) const;
    void draw_number(QPainter& painter, const ImportarChain& chain, const QColor& colour) const;
    void draw_start(QPainter& painter) const;
    [[nodiscard]] QPointF place(const ImportarPoint& point) const;
    [[nodiscard]] std::optional<int> chain_at(QPointF clicked) const;

    const ImportarWindow* state_ = nullptr;
    QPixmap sheet_;
    QTransform to_sheet_;
};

} // namespace velmora
