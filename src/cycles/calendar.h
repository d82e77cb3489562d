// The calendar: dates made of year, month and day, and taken apart again.
#pragma once

#include <cstdint>
#include <stdexcept>

#include "cycles/date.h"

// The arithmetic behind it. Years are counted from 1 March, so that the leap day is the last of its
// year, and in eras of 400 years, which all have the same number of days.
namespace civil {

using Int = std::int64_t;

inline constexpr Int kDaysPerEra = 146097;
inline constexpr Int kYearsPerEra = 400;

struct YearMonthDay {
    Int year;
    Int month;  // 1 to 12
    Int day;    // 1 to 31
};

// Division that rounds towards minus infinity.
constexpr Int floorDivide(Int dividend, Int divisor) {
    const Int quotient = dividend / divisor;
    return dividend % divisor < 0 ? quotient - 1 : quotient;
}

// Days from 1 March of the year 0 to the given day; the month must be 1 to 12, the day may be any.
constexpr Int daysSinceMarchOfYearZero(YearMonthDay date) {
    const Int marchYear = date.month > 2 ? date.year : date.year - 1;
    const Int era = floorDivide(marchYear, kYearsPerEra);
    const Int yearOfEra = marchYear - era * kYearsPerEra;
    const Int monthFromMarch = date.month > 2 ? date.month - 3 : date.month + 9;
    const Int dayOfYear = (153 * monthFromMarch + 2) / 5 + date.day - 1;
    const Int leapDays = yearOfEra / 4 - yearOfEra / 100;
    return era * kDaysPerEra + yearOfEra * 365 + leapDays + dayOfYear;
}

inline constexpr Int kDayZero = daysSinceMarchOfYearZero({1899, 12, 30});

constexpr YearMonthDay fromDayNumber(Int dayNumber) {
    const Int days = dayNumber + kDayZero;
    const Int era = floorDivide(days, kDaysPerEra);
    const Int dayOfEra = days - era * kDaysPerEra;
    const Int yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const Int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const Int monthFromMarch = (5 * dayOfYear + 2) / 153;
    const Int month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    const Int year = era * kYearsPerEra + yearOfEra + (month <= 2 ? 1 : 0);
    return {year, month, dayOfYear - (153 * monthFromMarch + 2) / 5 + 1};
}

}  // namespace civil

namespace modCycles {

// Builds a date and carries a month or day beyond its unit into the next, in both directions:
// DateSerial(2001, 2, 31) is 3 March 2001, DateSerial(2001, 1, 0) is 31 December 2000.
// Raises std::out_of_range if the result is outside the years 100 to 9999.
constexpr Date DateSerial(Long year, Long month, Long day) {
    const civil::Int monthsFromJanuary = civil::Int{month} - 1;
    const civil::Int carriedYears = civil::floorDivide(monthsFromJanuary, 12);
    const civil::YearMonthDay date{year + carriedYears, monthsFromJanuary - carriedYears * 12 + 1,
                                   day};
    const civil::Int dayNumber = civil::daysSinceMarchOfYearZero(date) - civil::kDayZero;
    if (dayNumber < static_cast<civil::Int>(Date::kEarliestDay) ||
        dayNumber > static_cast<civil::Int>(Date::kLatestDay))
        throw std::out_of_range("date out of range");
    return Date(static_cast<double>(dayNumber));
}

// The year, 100 to 9999.
constexpr Integer Year(Date date) {
    return static_cast<Integer>(civil::fromDayNumber(date.dayNumber()).year);
}

// The month, 1 to 12.
constexpr Integer Month(Date date) {
    return static_cast<Integer>(civil::fromDayNumber(date.dayNumber()).month);
}

// The day of the month, 1 to 31.
constexpr Integer Day(Date date) {
    return static_cast<Integer>(civil::fromDayNumber(date.dayNumber()).day);
}

// The day of the week, 1 (Monday) to 7 (Sunday).
constexpr Integer DayOfWeek(Date date) {
    constexpr civil::Int kMondayBeforeDayZero = -5;  // 30 December 1899 was a Saturday
    const civil::Int days = date.dayNumber() - kMondayBeforeDayZero;
    return static_cast<Integer>(days - civil::floorDivide(days, 7) * 7 + 1);
}

// What the program's calendars and date inputs offer.
inline constexpr Date kEarliestCalendarDate = DateSerial(1753, 1, 1);
inline constexpr Date kLatestCalendarDate = DateSerial(9999, 12, 31);

}  // namespace modCycles
