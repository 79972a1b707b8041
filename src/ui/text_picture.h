// The picture Pictext: the outlines of the text, pixel by pixel, with scroll bars where the text is
// longer than the window.
#pragma once

#include "document/windows/seltexto.h"

#include <QAbstractScrollArea>
#include <QLine>
#include <QList>
#include <span>

namespace velmora {

class TextPicture : public QAbstractScrollArea {
    Q_OBJECT
  public:
    explicit TextPicture(QWidget* parent = nullptr);
    /// Shows these segments and nothing else.
    void show_segments(std::span<const SeltextoWindow::Segment> segments);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fit_bars();

    QList<QLine> lines_;
    QSize content_; ///< of the drawing with its margins
};

} // namespace velmora
