// A box with a text in several styles and with pictures, which the user reads.
#pragma once

#include <QTextEdit>

#include "controls/rich_text_pages.h"
#include "controls/text_file_type.h"
#include "cycles/integers.h"

// Positions in the text count from 0, and a line end counts as one character. The selection is set
// by SelStart and SelLength; the styles are those of the selected text. Read, a style is that of
// the first selected character, which may be a line end. If none is selected, it is that of the
// character before SelStart, and at the beginning of a line with text that of its first one.
//
// A colour is 0xBBGGRR. It is painted in a shade that can be read on the palette in force, and is
// read as it was set. Tab leaves the box.
class RichTextBox final : public QTextEdit {
    Q_OBJECT

  public:
    explicit RichTextBox(QWidget* parent = nullptr);

    // The lines of the text end in CR LF, but for the last, whatever the system. A picture is a
    // blank.
    QString Text() const;

    // Replaces the text; it stands in the box's own style, and nothing is selected.
    void setText(const QString& text);

    // Shows a rich text document, or a text that is none as setText does.
    void setTextRTF(const QString& document);

    // Puts the picture in a file into the text at SelStart, as large as it says it is. Raises 53
    // for a file that is gone, 321 for one that is no picture.
    void addPicture(const QString& fileName);

    // Writes the whole text into a file, which is as it was if that fails: 61 for a full disk, else
    // 75. Plain text has no pictures.
    void SaveFile(const QString& fileName, TextFileType type) const;

    // Wraps the lines at a width in twips, as on paper, and no more at the box's own.
    void wrapAsOnPaper(Long lineWidth);

    // The text laid out for paper, in lines of so many twips.
    RichTextPages pages(Long lineWidth) const;

    // Setting SelStart selects nothing; beyond the text it is the end. Both raise 380 for a
    // negative value.
    int SelStart() const { return textCursor().selectionStart(); }
    void setSelStart(int start);
    int SelLength() const { return textCursor().selectionEnd() - textCursor().selectionStart(); }
    void setSelLength(int length);

    bool SelBold() const;
    void setSelBold(bool bold);

    // In points.
    double SelFontSize() const;
    void setSelFontSize(double points);

    Long SelColor() const;
    void setSelColor(Long colour);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    QTextCharFormat selectedFormat() const;
};
