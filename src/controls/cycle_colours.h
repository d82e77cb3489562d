// The colours of the cycles in charts and in the thermometer.
#pragma once

#include <QColor>

class QPalette;

enum class CycleColour { Emotional, Physical, Intellectual, Average };

inline constexpr int kCycleColours = 4;

// Blue, red, green and purple, in the shade that is legible on the palette's base.
QColor cycleColour(CycleColour colour, const QPalette& palette);
