// The range of dates that a search for events goes through.
#pragma once

#include <QString>

#include "cycles/date.h"

// The units of its length, in the order in which they are offered.
enum class RangeUnit : Integer { Days, Weeks, Months, Years };

enum class RangeDirection { Forward, Back };

struct EventRange {
    Date RangeStart;
    Date RangeEnd;
    Long SpanDays;  // from the start to the end
    Long DayBase;   // the day count of the start
};

// The range of so many units from a date on, or back from it, though not beyond the birth. Months
// and years keep the day of the month; a day that the month does not have is carried into the next.
// Raises std::overflow_error or std::out_of_range beyond the years of a date.
EventRange eventRange(Date birthdate, Date from, RangeDirection direction, Integer length,
                      RangeUnit unit);

// What the user is told of it.
QString rangeText(const EventRange& range);

// How far a search has come after a day, 0 to 100 per cent. Raises 6 (Overflow) where the
// range has no days.
float rangeProgress(Long day, Long spanDays);
