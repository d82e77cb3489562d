// The colour of the label.
#include "controls/cycle_label.h"

#include <QEvent>

void CycleLabel::setCycle(CycleColour cycle) {
    cycle_ = cycle;
    followPalette();
}

void CycleLabel::setFontBold(bool bold) {
    QFont changed = font();
    changed.setBold(bold);
    setFont(changed);
}

void CycleLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && cycle_)
        followPalette();
}

void CycleLabel::followPalette() {
    QPalette coloured;
    coloured.setColor(QPalette::WindowText, cycleColour(*cycle_, palette()));
    setPalette(coloured);
}
