// The places on paper, and the pages.
#include "reports/report_printing.h"

#include <QRectF>
#include <limits>

#include "controls/rich_text_box.h"
#include "runtime/errors.h"
#include "runtime/host.h"
#include "runtime/numbers.h"

namespace {

using Wide = std::int64_t;

Long checked(Wide length) {
    if (length < std::numeric_limits<Long>::min() || length > std::numeric_limits<Long>::max())
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<Long>(length);
}

Long offsetAtLeft(const Printer& printer) {
    return Round(printer.ScaleX(printer.physicalOffsetX()));
}

Long offsetAtTop(const Printer& printer) {
    return Round(printer.ScaleY(printer.physicalOffsetY()));
}

Long lineWidth(const PrintArea& area) {
    return checked(Wide{area.right} - area.left);
}

QRectF placeOf(const PrintArea& area) {
    return {QPointF(area.left, area.top), QPointF(area.right, area.bottom)};
}

}  // namespace

PrintArea printArea(const Printer& printer, Long leftMargin, Long topMargin, Long rightMargin,
                    Long bottomMargin) {
    const Wide left = offsetAtLeft(printer);
    const Wide top = offsetAtTop(printer);
    return {.left = checked(leftMargin - left),
            .top = checked(topMargin - top),
            .right = checked(checked(Wide{printer.Width()} - rightMargin) - left),
            .bottom = checked(checked(Wide{printer.Height()} - bottomMargin) - top)};
}

namespace modCycles {

Long WysiwygRtf(RichTextBox& rtf, Long leftMargin, Long rightMargin) {
    const std::unique_ptr<Printer> printer = host().printer();
    printer->open();
    const Long width = lineWidth(printArea(*printer, leftMargin, 0, rightMargin, 0));
    rtf.wrapAsOnPaper(width);
    printer->KillDoc();
    return width;
}

void PrintRtf(const RichTextBox& rtf, Long leftMargin, Long topMargin, Long rightMargin,
              Long bottomMargin) {
    const std::unique_ptr<Printer> printer = host().printer();
    printer->open();
    const PrintArea area = printArea(*printer, leftMargin, topMargin, rightMargin, bottomMargin);
    const RichTextPages pages = rtf.pages(lineWidth(area));
    const auto textLength = static_cast<Long>(rtf.Text().size());
    for (Long next = pages.paint(printer->hDC(), placeOf(area), 0); next < textLength;
         next = pages.paint(printer->hDC(), placeOf(area), next))
        printer->NewPage();
    printer->EndDoc();
}

}  // namespace modCycles
