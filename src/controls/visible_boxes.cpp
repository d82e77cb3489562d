// The outlines and the room of visible_boxes.h.
#include "controls/visible_boxes.h"

#include <QStyleOptionButton>
#include <QStyleOptionViewItem>
#include <algorithm>

namespace {

constexpr int kBetweenBoxes = 4;  // pixels

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

}  // namespace

// The style darkens whatever it takes for the window's colour, so the ink makes an outline that is
// quieter than the texts.
void VisibleBoxes::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (!isBox || !box || !isDark(box->palette)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QStyleOptionButton outlined = *box;
    outlined.palette.setBrush(QPalette::Window, box->palette.text());
    QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
}

QSize VisibleBoxes::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
    QSize room = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (item && item->features.testFlag(QStyleOptionViewItem::HasCheckIndicator)) {
        const int box = pixelMetric(PM_IndicatorHeight, option, widget);
        room.setHeight(std::max(room.height(), box + kBetweenBoxes));
    }
    return room;
}
