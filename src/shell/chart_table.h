// The values of days as a chart takes them.
#pragma once

#include <span>

#include "controls/chart_content.h"
#include "shell/chart_days.h"

namespace modCycles {

// The labels of the rows: each day's date in the system's short form.
QStringList dateLabels(std::span<const ChartDay> days);

// Adds a column for each cycle: emotional, physical, intellectual.
void addCycleColumns(ChartTable& table, std::span<const ChartDay> days);

// Adds a column for the average of the three.
void addAverageColumn(ChartTable& table, std::span<const ChartDay> days);

// A row for each day: the three cycles and their average.
ChartTable chartTable(std::span<const ChartDay> days);

}  // namespace modCycles
