// The hatches of bars.
#pragma once

#include "controls/chart_content.h"

class QPainter;
class QRectF;

// Paints the lines of a brush's pattern over a bar, as wide apart on paper as on the screen.
void paintHatch(QPainter& painter, const QRectF& bar, const ChartBrush& brush,
                double pixelsPerTwip);
