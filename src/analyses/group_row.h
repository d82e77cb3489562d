// A person's row in the comparison of a group: the three cycles on one date, and which way each of
// them goes into that day and out of it.
#pragma once

#include <QString>
#include <string_view>

#include "cycles/date.h"

// The mark of a day's value beside that of the day before, "^" up or "v" down, and beside that of
// the day after. Where they are equal, the first is "v" and the second "^".
QString markBefore(double value, double dayBefore);
QString markAfter(double value, double dayAfter);

// Which way a cycle goes into the day of the day count `d` where `before_after` is "-", out of it
// otherwise, by its unrounded values. Empty for no key of a cycle.
QString UpDown(Long d, QStringView before_after, std::string_view cycle);

// The ten cells of a row, divided by tabs: the display text, and for each cycle the mark before,
// the percentage and the mark after. Before the birth the day count falls with time, and so the
// marks point against the calendar.
QString groupRow(const QString& displayText, Date birthdate, Date date);

// The colour, 0xBBGGRR, of a percentage, by the sign of the number at its beginning.
Long SetColour(QStringView txt);
