// Rich texts in Qt's documents, and read from them again.
#pragma once

#include <QTextCharFormat>

#include "rtf/rich_text.h"

class QPalette;
class QTextDocument;

// A colour, 0xBBGGRR, in a shade that can be read on the palette, and as it was set.
QTextCharFormat inColour(Long colour, const QPalette& palette);

// The colour as it was set; black where none was.
Long colourAsSet(const QTextFormat& format);

// Paints every colour of a document in the shade for another palette.
void recolour(QTextDocument& document, const QPalette& palette);

// Replaces what a document shows. Pictures that cannot be read are left out, and so are those that
// together have more than 64 million pixels.
void showRichText(QTextDocument& document, const RichText& text, const QPalette& palette);

// What a document shows, with its pictures as PNG files.
RichText richTextOf(const QTextDocument& document);

// A picture that belongs to a document, for its place in the text. The size is in twips.
QTextImageFormat pictureIn(QTextDocument& document, const QImage& picture, QSizeF size);
