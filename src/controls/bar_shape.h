// A bar of a certain length at a certain place of its window.
#pragma once

#include <QWidget>

#include "cycles/integers.h"

// Paints as much of the bar as lies within the widget, over the widget's whole height. Left and
// Width are twips and count from the left edge of the window, wherever the widget lies there, so
// bars in several rows of a layout hang on one line. It is painted in a shade of its colour that
// stands out from the palette in force; without a colour in that of lines.
class BarShape final : public QWidget {
    Q_OBJECT

  public:
    explicit BarShape(QWidget* parent = nullptr);

    double Left() const { return left_; }
    void setLeft(double left);
    double Width() const { return width_; }
    void setWidth(double width);

    Long Colour() const { return colour_; }
    void setColour(Long colour);  // 0xBBGGRR; 0 for none

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double left_ = 0;
    double width_ = 0;
    Long colour_ = 0;
};
