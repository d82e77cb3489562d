// The mouse over the picture.
#include "controls/picture_box.h"

#include <QMouseEvent>

// A label passes the mouse on to its parent, which would then get the release too.
void PictureBox::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        Q_EMIT Click();
}
