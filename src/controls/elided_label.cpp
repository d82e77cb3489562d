// The painting of the shortened text.
#include "controls/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth(), QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::shownText() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || shownText() == text())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(),
                          static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading), palette(),
                          isEnabled(), shownText(), foregroundRole());
}
