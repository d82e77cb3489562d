// A document laid out for paper.
#pragma once

#include <QRectF>
#include <QTextDocument>
#include <memory>
#include <vector>

#include "cycles/integers.h"

class QPainter;

// Wraps the lines of a document at a width, whatever device they are painted on: letters have the
// widths that their font was designed with. The colours are those of paper, as they were set.
//
// Positions count the characters of the text with two for a line end, as RichTextBox::Text has it.
class RichTextPages {
  public:
    // A copy of the document, with its lines as wide, in twips.
    RichTextPages(const QTextDocument& document, double lineWidth);

    // Paints as many whole lines as fit into the place, from the line that begins at or behind a
    // position on, and returns where the next one begins; behind the last line that is the end of
    // the text. One line is painted in any case. The place is in twips from the painter's origin.
    Long paint(QPainter& painter, const QRectF& place, Long from) const;

  private:
    struct Line {
        Long start;  // position
        double top;  // pixels
        double bottom;
    };

    void addLines(const QTextBlock& block);

    std::unique_ptr<QTextDocument> document_;
    std::vector<Line> lines_;
    Long end_ = 0;
};
