// The measuring of label_room.h.
#include "controls/label_room.h"

#include <QLabel>

void reserveRoom(QLabel& label, const QString& text, int width) {
    const QRect room(0, 0, width, QWIDGETSIZE_MAX);
    label.setMinimumHeight(label.fontMetrics().boundingRect(room, Qt::TextWordWrap, text).height());
}
