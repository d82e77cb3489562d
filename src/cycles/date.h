// The date: a 64-bit float of days since 30 December 1899, and the differences between dates.
#pragma once

#include <compare>
#include <stdexcept>

#include "cycles/integers.h"

// A date, with or without a time, in no time zone. The whole part of the serial counts days from
// 30 December 1899; the fraction is the time of that day and counts forward, also before day 0.
// It lies within 1 January 100 to 31 December 9999 of the proleptic Gregorian calendar.
// Two dates cannot be subtracted: DateDiff counts calendar days, and is the one way to.
class Date {
  public:
    static constexpr double kEarliestDay = -657434;  // 1 January 100
    static constexpr double kLatestDay = 2958465;    // 31 December 9999

    // The date of this serial; raises std::overflow_error beyond the range or if it is no number.
    explicit constexpr Date(double serial) : serial_(serial) {
        if (!(serial > kEarliestDay - 1 && serial < kLatestDay + 1))
            throw std::overflow_error("date out of range");
    }

    // Days since 30 December 1899.
    constexpr double serial() const { return serial_; }

    // The calendar day: days since 30 December 1899, without the time.
    constexpr Long dayNumber() const { return static_cast<Long>(serial_); }

    // The date `days` later (earlier, if negative); raises std::overflow_error beyond the range.
    friend constexpr Date operator+(Date date, double days) { return Date(date.serial_ + days); }

    friend constexpr bool operator==(Date, Date) = default;
    friend constexpr auto operator<=>(Date, Date) = default;

  private:
    double serial_;
};

namespace modCycles {

// The difference in calendar days from `from` to `to`, negative if `to` is earlier; a time part of
// either has no weight.
constexpr Long DateDiff(Date from, Date to) {
    return to.dayNumber() - from.dayNumber();
}

// The day count: the calendar days between a birth date and a date, whichever comes first. The one
// way in which a person is related to a date; the day of birth is day 0.
constexpr Long DayCount(Date birthdate, Date date) {
    const Long difference = DateDiff(birthdate, date);
    return difference < 0 ? -difference : difference;
}

}  // namespace modCycles
