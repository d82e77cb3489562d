// A label that shortens a text for which there is no room.
#pragma once

#include <QLabel>

// Shows as much of its text as fits, with an ellipsis for the rest; text() is always the whole. It
// never asks for room for its text, so no text makes its window wider. Without a tooltip of its own
// its tooltip is the whole text, where that is shortened.
class ElidedLabel final : public QLabel {
  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

    // The text as it is shown.
    QString shownText() const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
