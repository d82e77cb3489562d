// A label with a colour of its own.
#pragma once

#include <QLabel>

#include "cycles/integers.h"

// The text is painted in a shade of the colour that can be read on the palette in force.
class ColouredLabel final : public QLabel {
    Q_OBJECT

  public:
    explicit ColouredLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    // 0xBBGGRR; 0, as at first, is the palette's own.
    Long ForeColor() const { return foreColor_; }
    void setForeColor(Long colour);

    bool FontBold() const { return font().bold(); }
    void setFontBold(bool bold);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void followPalette();

    Long foreColor_ = 0;
};
