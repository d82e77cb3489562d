// A picture that can be clicked.
#pragma once

#include <QLabel>

// Click is fired by the left mouse button, let go over the picture where it was pressed.
class PictureBox final : public QLabel {
    Q_OBJECT

  public:
    explicit PictureBox(QWidget* parent = nullptr) : QLabel(parent) {}

  Q_SIGNALS:
    void Click();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};
