// The box with several lines on Qt's plain text edit.
#include "controls/multi_line_text_box.h"

MultiLineTextBox::MultiLineTextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
}

// The raw text keeps the characters as they are; the plain text has blanks for some.
QString MultiLineTextBox::Text() const {
    const QString lineEnd = QStringLiteral("\r\n");
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, lineEnd);
    text.replace(QChar::LineSeparator, lineEnd);
    return text;
}

void MultiLineTextBox::append(const QString& text) {
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(text);
}

void MultiLineTextBox::setLocked(bool locked) {
    setReadOnly(locked);
    viewport()->setBackgroundRole(locked ? QPalette::Button : QPalette::Base);
}
