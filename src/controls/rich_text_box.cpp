// The box with styles on Qt's text edit.
#include "controls/rich_text_box.h"

#include <QEvent>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "controls/text_colours.h"
#include "runtime/errors.h"

namespace {

constexpr double kMargin = 8;

// The colour of a text as it was set, beside the one that it is painted in.
constexpr int kColourAsSet = QTextFormat::UserProperty;

void refuseNegative(int value) {
    if (value < 0)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
}

QTextCharFormat inColour(Long colour, const QPalette& palette) {
    QTextCharFormat format;
    format.setProperty(kColourAsSet, colour);
    format.setForeground(textColour(colour, palette));
    return format;
}

}  // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(kMargin);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

// The raw text keeps the characters as they are; the plain text has blanks for some.
QString RichTextBox::Text() const {
    const QString lineEnd = QStringLiteral("\r\n");
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, lineEnd);
    text.replace(QChar::LineSeparator, lineEnd);
    return text;
}

// A text takes over the style at the cursor, so nothing may be selected, and the style is plain.
void RichTextBox::setText(const QString& text) {
    setTextCursor(QTextCursor(document()));
    setCurrentCharFormat({});
    setPlainText(text);
}

void RichTextBox::setSelStart(int start) {
    refuseNegative(start);
    QTextCursor cursor = textCursor();
    cursor.setPosition(std::min(start, document()->characterCount() - 1));
    setTextCursor(cursor);
}

void RichTextBox::setSelLength(int length) {
    refuseNegative(length);
    QTextCursor cursor = textCursor();
    const int start = cursor.selectionStart();
    const int end = document()->characterCount() - 1;
    cursor.setPosition(start);
    cursor.setPosition(length < end - start ? start + length : end, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

bool RichTextBox::SelBold() const {
    return selectedFormat().fontWeight() == QFont::Bold;
}

void RichTextBox::setSelBold(bool bold) {
    QTextCharFormat format;
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    mergeCurrentCharFormat(format);
}

double RichTextBox::SelFontSize() const {
    const QTextCharFormat format = selectedFormat();
    return format.hasProperty(QTextFormat::FontPointSize) ? format.fontPointSize()
                                                          : font().pointSizeF();
}

void RichTextBox::setSelFontSize(double points) {
    QTextCharFormat format;
    format.setFontPointSize(points);
    mergeCurrentCharFormat(format);
}

Long RichTextBox::SelColor() const {
    return selectedFormat().intProperty(kColourAsSet);
}

void RichTextBox::setSelColor(Long colour) {
    mergeCurrentCharFormat(inColour(colour, palette()));
}

// A cursor tells of the character before it, but not of a line end: that has the format of the
// block behind it.
QTextCharFormat RichTextBox::selectedFormat() const {
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection())
        return cursor.charFormat();
    cursor.setPosition(cursor.selectionStart() + 1);
    return cursor.atBlockStart() ? cursor.blockCharFormat() : cursor.charFormat();
}

void RichTextBox::changeEvent(QEvent* event) {
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        followPalette();
}

void RichTextBox::followPalette() {
    QTextCursor cursor(document());
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& run : block.textFormats()) {
            if (!run.format.hasProperty(kColourAsSet))
                continue;
            cursor.setPosition(block.position() + run.start);
            cursor.setPosition(block.position() + run.start + run.length, QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(inColour(run.format.intProperty(kColourAsSet), palette()));
        }
    }
}
