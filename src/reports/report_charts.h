// What the charts of the reports show, and how they are drawn.
#pragma once

#include <span>

#include "controls/chart_content.h"
#include "cycles/cycle.h"
#include "shell/chart_days.h"

inline constexpr int kReportSeries = 4;  // emotional, physical, intellectual, average

// The day in bars, a series for each value, and the month in lines.
ChartTable dailyChart(const modCycles::CycleValues& values, double average);
ChartTable monthlyChart(std::span<const modCycles::ChartDay> days);

// The fill of a series' bar, in a colour that is one, counted from 1.
ChartBrush dailyBrush(int series, Integer colour);

struct ChartPen {
    QColor colour;
    PenPattern pattern;

    friend bool operator==(const ChartPen&, const ChartPen&) = default;
};

// The line of a cycle, in a colour that is one, counted from 1. That of the average has no colour.
ChartPen monthlyPen(int series, Integer colour);
