// The 31 days of the main chart, and the texts that tell of a day.
#pragma once

#include <QString>
#include <array>

#include "cycles/cycle.h"
#include "cycles/date.h"

namespace modCycles {

inline constexpr Integer kChartDays = 31;

struct ChartDay {
    Date date;
    CycleValues values;  // per cent, unrounded
};

// The days from `startdate` on: the first is the start date itself, the last is 30 days later.
std::array<ChartDay, kChartDays> chartDays(Date birthdate, Date startdate);

// The days of the blank chart: those of a person who is born today.
std::array<ChartDay, kChartDays> blankChartDays(Date today);

// The title above a person's chart, above one of a date that was typed, and above the blank one.
QString chartTitle(const QString& fullName);
QString quickChartTitle();
QString blankChartTitle();

// Whether a typed birth date is refused: it may not lie before the earliest date that the calendar
// has at that moment. And what is said then.
bool isQuickDateRefused(Date birthdate, Date earliest);
QString quickDateRefusal();

// A day's four values, rounded, for the status bar.
QString dayPanelText(const ChartDay& day);

// The values of a point, rounded, for the chart's tooltip; the average is not among them.
QString pointText(Date date, const CycleValues& values);

}  // namespace modCycles
