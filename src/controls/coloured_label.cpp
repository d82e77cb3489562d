// The colour of the label.
#include "controls/coloured_label.h"

#include <QEvent>

#include "controls/text_colours.h"

void ColouredLabel::setForeColor(Long colour) {
    foreColor_ = colour;
    followPalette();
}

void ColouredLabel::setFontBold(bool bold) {
    QFont changed = font();
    changed.setBold(bold);
    setFont(changed);
}

void ColouredLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && foreColor_ != 0)
        followPalette();
}

void ColouredLabel::followPalette() {
    QPalette coloured;
    if (foreColor_ != 0)
        coloured.setColor(QPalette::WindowText, textColour(foreColor_, palette()));
    setPalette(coloured);
}
