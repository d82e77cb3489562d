// The painting of the shortened text.
#include "controls/elided_label.h"

#include <QPainter>
#include <QStyle>

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth(), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect room = contentsRect();
    style()->drawItemText(&painter, room, static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading),
                          palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
                          foregroundRole());
}
