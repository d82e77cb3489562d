// The hatches of bars.
#pragma once

#include "controls/chart_content.h"

class QPainter;
class QRectF;

// Paints the lines of a brush's pattern over a bar. The hatches by number: 10 lies level, 11
// stands, 12 falls to the right, 13 rises to it, and 14 crosses level and standing lines; any other
// number is none. They are as wide apart on paper as on the screen.
void paintHatch(QPainter& painter, const QRectF& bar, const ChartBrush& brush,
                double pixelsPerTwip);
