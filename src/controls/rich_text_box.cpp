// The box with styles on Qt's text edit.
#include "controls/rich_text_box.h"

#include <QEvent>
#include <QFile>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "controls/font_size.h"
#include "controls/paper.h"
#include "controls/picture_object.h"
#include "controls/rich_text_document.h"
#include "controls/twips.h"
#include "rtf/rtf_reader.h"
#include "rtf/rtf_writer.h"
#include "runtime/errors.h"
#include "store/file_error.h"
#include "store/small_text.h"
#include "store/whole_file.h"

namespace {

constexpr double kMargin = 8;

void refuseNegative(int value) {
    if (value < 0)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
}

// The text with CR LF as line ends, and with another text for each picture.
QString textOf(const QTextDocument& document, QLatin1String picture) {
    const QString lineEnd = QStringLiteral("\r\n");
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, lineEnd);
    text.replace(QChar::LineSeparator, lineEnd);
    text.replace(QChar::ObjectReplacementCharacter, picture);
    return text;
}

// The picture's size in twips, by its own dots to the metre.
QSizeF paperSize(const QImage& picture) {
    return {picture.width() * kTwipsPerMetre / picture.dotsPerMeterX(),
            picture.height() * kTwipsPerMetre / picture.dotsPerMeterY()};
}

}  // namespace

RichTextBox::RichTextBox(QWidget* parent) : QTextEdit(parent) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(kMargin);
    PictureObject::paintPicturesOf(*document());
    setTabStopDistance(toPixels(kDefaultTab));
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

// The raw text keeps the characters as they are; the plain text has blanks for some.
QString RichTextBox::Text() const {
    return textOf(*document(), QLatin1String(" "));
}

// A text takes over the style at the cursor, so nothing may be selected, and the style is plain.
void RichTextBox::setText(const QString& text) {
    setTextCursor(QTextCursor(document()));
    setCurrentCharFormat({});
    setPlainText(text);
}

void RichTextBox::setTextRTF(const QString& document) {
    if (!isRtf(document)) {
        setText(document);
        return;
    }
    showRichText(*this->document(), readRtf(document), palette());
    setTextCursor(QTextCursor(this->document()));
}

void RichTextBox::addPicture(const QString& fileName) {
    if (!QFile::exists(fileName))
        throw fileError(ErrorNumber::FileNotFound, QStringLiteral("there is no such picture"),
                        fileName);
    const QImage picture(fileName);
    if (picture.isNull())
        throw fileError(ErrorNumber::InvalidFileFormat, QStringLiteral("it is no picture"),
                        fileName);
    textCursor().insertImage(pictureIn(*document(), picture, paperSize(picture)));
}

void RichTextBox::SaveFile(const QString& fileName, TextFileType type) const {
    writeWholeFile(fileName, type == TextFileType::Rich ? writeRtf(richTextOf(*document()))
                                                        : encodeSmallText(textOf(*document(), {})));
}

void RichTextBox::wrapAsOnPaper(Long lineWidth) {
    document()->setDocumentMargin(0);
    document()->setUseDesignMetrics(true);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    setLineWrapColumnOrWidth(paperPixels(lineWidth));
}

RichTextPages RichTextBox::pages(Long lineWidth) const {
    return RichTextPages(*document(), lineWidth);
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
                                                          : pointsOf(font());
}

void RichTextBox::setSelFontSize(double points) {
    QTextCharFormat format;
    format.setFontPointSize(points);
    mergeCurrentCharFormat(format);
}

Long RichTextBox::SelColor() const {
    return colourAsSet(selectedFormat());
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
        recolour(*document(), palette());
}
