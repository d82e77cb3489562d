// What a chart shows, as plain data.
#pragma once

#include <QColor>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "controls/cycle_colours.h"

// The values: one label a row, and a column for each series, with one value a row.
struct ChartTable {
    QStringList rowLabels;
    std::vector<std::vector<double>> columns;

    friend bool operator==(const ChartTable&, const ChartTable&) = default;
};

inline constexpr int kMostSeries = 7;

enum class ChartType { Bars = 1, Lines = 3 };

enum class PenPattern { Solid = 1, Dashed = 2, Dotted = 3, Ditted = 6 };

enum class BrushStyle { Solid = 1, Pattern = 2 };

// The lines of a pattern: level, standing, falling to the right, or level and standing ones.
enum class Hatch { Level = 10, Standing = 11, Falling = 12, Crossed = 14 };

// What a bar is filled with. A pattern is a hatch in its own colour on the fill.
struct ChartBrush {
    QColor fill;
    BrushStyle style = BrushStyle::Solid;
    Hatch hatch = Hatch::Level;
    QColor patternColour = {};

    friend bool operator==(const ChartBrush&, const ChartBrush&) = default;
};

// A series is drawn in the shade of its cycle, or as its pen, brush and edge have it.
struct ChartSeries {
    QString legendText = {};
    CycleColour colour = CycleColour::Emotional;
    PenPattern pattern = PenPattern::Solid;
    std::optional<QColor> penColour = {};
    std::optional<ChartBrush> brush = {};
    std::optional<QColor> edgeColour = {};
};

enum class LegendLocation { Right = 4, Bottom = 7 };

// A chart of values of per cent: lines from -100 to 100, or bars from 0 or from -100 to 100.
// Lengths are twips from the top left corner.
struct ChartContent {
    ChartType type = ChartType::Lines;
    bool hasNegativeBars = false;
    QSizeF size;
    QRectF plotArea;  // the rows lie in it as bands of equal width
    ChartTable table;
    std::vector<ChartSeries> series;  // at least as many as the table has columns
    QString title;
    bool showLegend = false;
    LegendLocation legendLocation = LegendLocation::Bottom;
    QString fontFamily;  // empty: the application's
    int fontPoints = 8;
    std::optional<int> markedRow;  // counted from 0
};
