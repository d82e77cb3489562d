// A bar that fills up.
#pragma once

#include <QProgressBar>
#include <optional>

#include "controls/cycle_colours.h"

// Its value is in per cent, 0 to 100, and kept unrounded; value() of Qt counts pixels. It can have
// a cycle's colour.
class ProgressBar final : public QProgressBar {
    Q_OBJECT

  public:
    explicit ProgressBar(QWidget* parent = nullptr);

    double Value() const { return value_; }

    // Raises 380 outside 0 to 100.
    void setValue(double percent);

    void setCycle(CycleColour cycle);

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void showValue();
    void followWidth();
    void followPalette();

    double value_ = 0;
    std::optional<CycleColour> cycle_;
};
