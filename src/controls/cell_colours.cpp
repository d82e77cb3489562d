// The colours of cell_colours.h.
#include "controls/cell_colours.h"

#include <QPalette>

#include "controls/colour_mix.h"

QColor colourOf(Long colour) {
    constexpr int kByte = 0xFF;
    return QColor(colour & kByte, colour >> 8 & kByte, colour >> 16 & kByte);
}

QColor cellBackground(Long colour, const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    const QColor onWhite = colourOf(colour);
    if (base.lightness() > ink.lightness())
        return onWhite;
    return mixed(base, ink, 1 - onWhite.lightnessF());
}
