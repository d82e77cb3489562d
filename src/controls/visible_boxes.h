// The desktop's style, with boxes to check that are told apart, on a dark desktop too.
#pragma once

#include <QProxyStyle>

// Qt's own style outlines check boxes and option buttons in a shade darker than the window, which
// is next to nothing on a dark desktop. There they have a lighter outline; on a light one they are
// as they were. In a list of small letters the boxes of neighbours would touch: their rows are
// higher.
class VisibleBoxes final : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
};
