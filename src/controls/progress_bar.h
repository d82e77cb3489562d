// A bar that fills up.
#pragma once

#include <QProgressBar>

// Its value is one of per cent, and is kept unrounded.
class ProgressBar final : public QProgressBar {
    Q_OBJECT

  public:
    explicit ProgressBar(QWidget* parent = nullptr);

    double Value() const { return value_; }

    // Raises 380 outside 0 to 100.
    void setValue(double percent);

  private:
    double value_ = 0;
};
