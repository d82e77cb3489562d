// A quiet button with a picture, a caption or both.
#pragma once

#include <QPushButton>

// It has an outline at rest, and is filled under the mouse and when it is down. Click is fired by
// the mouse, by the blank and Enter where it has the focus, and by the mnemonic of its caption.
class PictureButton final : public QPushButton {
    Q_OBJECT

  public:
    explicit PictureButton(QWidget* parent = nullptr);

  Q_SIGNALS:
    void Click();

  protected:
    void paintEvent(QPaintEvent* event) override;
};
