// The chart of the main window.
#pragma once

#include <QString>

#include "cycles/date.h"

class Chart;

namespace modCycles {

// Draws the 31 days from `startdate` for a birth date. Only the chart changes: calendar, title and
// status bar stay as they are.
void RedrawMainChart(Date birthdate, Date startdate);

// Draws the chart with no person: that of somebody born today. The calendar goes to today, or to
// its earliest date if that is later; the earliest date is left alone.
void ShowBlankChart();

// Sets the legend of a chart of the four series, after its data.
void SetupChartSeries(Chart& chart);

// The tooltip of a point of the main chart, 0 to 30: the values are those drawn, the date counts
// from the calendar's present one.
QString ChartPointText(Integer index);

}  // namespace modCycles
