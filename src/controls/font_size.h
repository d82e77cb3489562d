// The size of a font in points, in whichever unit it was set.
#pragma once

class QFont;

// The size in points, more than 0. Qt itself tells -1 for a font whose size was set in pixels.
double pointsOf(const QFont& font);
