// The colours of texts as they are painted.
#pragma once

#include <QColor>

#include "cycles/integers.h"

class QPalette;

// A text's colour, from 0xBBGGRR, on the palette's base. Black is the palette's own text colour.
// Any other is that very colour where it can be read there, and else the nearest shade of it,
// lighter or darker, that can.
QColor textColour(Long colour, const QPalette& palette);
