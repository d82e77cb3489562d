// The colours of texts as they are painted.
#pragma once

#include <QColor>

#include "cycles/integers.h"

class QPalette;

// A text's colour, from 0xBBGGRR, on the palette's base. Black is the palette's own text colour.
// Any other is that very colour where the base is lighter than the text colour; on a dark base it
// is the nearest shade, mixed with the text colour, that can be read.
QColor textColour(Long colour, const QPalette& palette);
