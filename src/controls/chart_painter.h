// The painting of a chart, on whatever a painter paints.
#pragma once

#include <QColor>
#include <array>

#include "controls/chart_content.h"

class QPainter;
class QPalette;

struct ChartColours {
    QColor background;
    QColor text;
    QColor grid;
    QColor zeroLine;
    QColor mark;                               // the band of the marked row
    std::array<QColor, kCycleColours> cycles;  // in the order of CycleColour
};

// The colours on a palette's base.
ChartColours chartColours(const QPalette& palette);

// Paints the chart with its top left corner at the painter's origin. The scale is 1 / 15 for the
// screen, the device's dots to the inch / 1440 for a printer, and any other for a picture.
void paintChart(QPainter& painter, const ChartContent& content, const ChartColours& colours,
                double pixelsPerTwip);
