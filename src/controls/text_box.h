// A box with one line of text.
#pragma once

#include <QLineEdit>

// Its background follows the palette, whether or not it is locked.
//
// LostFocus is fired whenever the user goes on to another control, whether or not the text has
// changed; not while another window or a menu has the keyboard for a while.
class TextBox final : public QLineEdit {
    Q_OBJECT

  public:
    explicit TextBox(QWidget* parent = nullptr);

    // Whether the user is kept from changing the text. A locked box is in the colour of buttons.
    void setLocked(bool locked);

  Q_SIGNALS:
    void LostFocus();

  protected:
    void focusOutEvent(QFocusEvent* event) override;
    void initStyleOption(QStyleOptionFrame* option) const override;
};
