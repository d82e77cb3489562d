// What the charts of the reports show, and how they are drawn.
#pragma once

#include "controls/chart_content.h"
#include "cycles/cycle.h"

inline constexpr int kReportSeries = 4;  // emotional, physical, intellectual, average

inline constexpr int kReportCycles = 3;  // those before the average

// What a series is called. Series count from 1 here.
QString reportSeriesName(int series);

// The day in bars, a series for each value.
ChartTable dailyChart(const modCycles::CycleValues& values, double average);

// How they are filled and edged, in colour or in black and white (report_colour.h).
ChartBrush dailyBrush(int series, Integer colour);
inline const QColor kDailyEdge = Qt::black;

struct ChartPen {
    QColor colour;
    PenPattern pattern;

    friend bool operator==(const ChartPen&, const ChartPen&) = default;
};

// How the line of a cycle is drawn, in colour or in black and white. That of the average has the
// same pen in both.
ChartPen monthlyPen(int series, Integer colour);
inline const ChartPen kAveragePen{Qt::black, PenPattern::Solid};
