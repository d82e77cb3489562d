// The colours of a grid's cells as they are painted.
#pragma once

#include <QColor>

#include "cycles/integers.h"

class QPalette;

// A colour as QColor has it, from 0xBBGGRR.
QColor colourOf(Long colour);

// A cell's background, from 0xBBGGRR, white or a grey, on a palette. On a light one it is that very
// colour. On a dark one, where the texts are light, it is as far from the palette's base as the
// grey is from white.
QColor cellBackground(Long colour, const QPalette& palette);
