// A label that shortens a text for which there is no room.
#pragma once

#include <QLabel>

// Shows as much of its text as fits, with an ellipsis for the rest; text() is always the whole. It
// never asks for room for its text.
class ElidedLabel final : public QLabel {
  public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};
