// What paper is like, whatever the screen is.
#pragma once

#include <QPalette>

class QPaintDevice;

// Black on white.
QPalette paperPalette();

// What lengths on paper are measured with: an inch has 96 pixels.
QPaintDevice& paperMeasure();

// How many whole pixels of paper lines of so many twips have.
int paperPixels(double lineWidth);
