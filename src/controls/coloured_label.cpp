// The colour of the label.
#include "controls/coloured_label.h"

#include <QEvent>
#include <QGuiApplication>

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

// The label's own palette has the colour already; the ink around it is the parent's.
void ColouredLabel::followPalette() {
    const QPalette around = parentWidget() ? parentWidget()->palette() : QGuiApplication::palette();
    QPalette coloured;
    if (foreColor_ != 0)
        coloured.setColor(QPalette::WindowText,
                          textColour(foreColor_, around, QPalette::Window, QPalette::WindowText));
    setPalette(coloured);
}
