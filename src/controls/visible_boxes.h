// The desktop's style, with boxes to check that are seen on a dark desktop too.
#pragma once

#include <QProxyStyle>

// Qt's own style outlines check boxes and option buttons in a shade darker than the window, which
// is next to nothing on a dark desktop. There they have a lighter outline; on a light one all is as
// it was.
class VisibleBoxes final : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
