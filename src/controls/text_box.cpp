// The box with one line on Qt's line edit.
#include "controls/text_box.h"

#include <QFocusEvent>
#include <QStyleOptionFrame>

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    setBackgroundRole(QPalette::Base);
}

void TextBox::setLocked(bool locked) {
    setReadOnly(locked);
    setBackgroundRole(locked ? QPalette::Button : QPalette::Base);
}

void TextBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        Q_EMIT LostFocus();
}

void TextBox::initStyleOption(QStyleOptionFrame* option) const {
    QLineEdit::initStyleOption(option);
    option->palette.setBrush(QPalette::Base, option->palette.brush(backgroundRole()));
}
