// The lines on paper.
#include "controls/rich_text_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>

#include "controls/paper.h"
#include "controls/picture_object.h"
#include "controls/rich_text_document.h"
#include "controls/twips.h"

RichTextPages::RichTextPages(const QTextDocument& document, double lineWidth)
    : document_(document.clone()) {
    document_->documentLayout()->setPaintDevice(&paperMeasure());
    PictureObject::paintPicturesOf(*document_);
    recolour(*document_, paperPalette());
    document_->setDocumentMargin(0);
    document_->setUseDesignMetrics(true);
    document_->setTextWidth(paperPixels(lineWidth));
    for (QTextBlock block = document_->begin(); block.isValid(); block = block.next())
        addLines(block);
}

// A block's lines count from its top. What ends a line within a block is a character of its own,
// which counts twice as well; the last line has none.
void RichTextPages::addLines(const QTextBlock& block) {
    const QTextLayout& layout = *block.layout();
    const QPointF origin = document_->documentLayout()->blockBoundingRect(block).topLeft();
    const QString text = block.text();
    qsizetype counted = 0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const QStringView before = QStringView(text).mid(counted, line.textStart() - counted);
        end_ += static_cast<Long>(before.size() + before.count(QChar::LineSeparator));
        counted = line.textStart();
        lines_.push_back({end_, origin.y() + line.y(), origin.y() + line.y() + line.height()});
    }
    end_ += static_cast<Long>(text.size() - counted);
    if (block.next().isValid())
        end_ += 2;
}

Long RichTextPages::paint(QPainter& painter, const QRectF& place, Long from) const {
    const auto first =
        std::lower_bound(lines_.begin(), lines_.end(), from,
                         [](const Line& line, Long position) { return line.start < position; });
    if (first == lines_.end())
        return end_;
    const double bottom = first->top + exactPixels(place.height());
    const auto behind = std::find_if(first + 1, lines_.end(),
                                     [bottom](const Line& line) { return line.bottom > bottom; });
    const QRectF painted(0, first->top, document_->textWidth(), (behind - 1)->bottom - first->top);
    painter.save();
    painter.scale(kTwipsPerPixel * 1.0, kTwipsPerPixel * 1.0);
    painter.translate(exactPixels(place.left()), exactPixels(place.top()) - first->top);
    painter.setClipRect(painted);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = paperPalette();
    // A line that only touches what is to be painted would be painted as well.
    context.clip = painted.adjusted(0, 0.5, 0, -0.5);
    document_->documentLayout()->draw(&painter, context);
    painter.restore();
    return behind == lines_.end() ? end_ : behind->start;
}
