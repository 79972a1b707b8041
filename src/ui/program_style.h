// The desktop's style, with what it draws too faintly made visible: the edges of check boxes and
// radio buttons, boxes that only show something, the ring of the focus.
#pragma once

#include <QProxyStyle>

namespace velmora {

/// A frame with this dynamic property has the ring when the focus is in it.
inline constexpr auto kFocusRing = "focusRing";

class ProgramStyle : public QProxyStyle {
    Q_OBJECT
  public:
    /// Over the style of that name, over the desktop's own without one.
    explicit ProgramStyle(const QString& name = {});

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace velmora
