// The colours of texts as they are painted.
#pragma once

#include <QColor>
#include <QPalette>

#include "cycles/integers.h"

// A text's colour, from 0xBBGGRR, on one of the palette's grounds, whose own text colour is `ink`.
// Black is that ink. Any other is that very colour where the ground is lighter than the ink; on a
// dark ground it is the nearest shade, mixed with the ink, that can be read.
QColor textColour(Long colour, const QPalette& palette, QPalette::ColorRole ground = QPalette::Base,
                  QPalette::ColorRole ink = QPalette::Text);
