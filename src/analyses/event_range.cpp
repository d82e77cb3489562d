// The dates of event_range.h.
#include "analyses/event_range.h"

#include <algorithm>

#include "cycles/calendar.h"
#include "runtime/errors.h"
#include "runtime/format.h"

namespace {

using namespace modCycles;

constexpr Long kDaysOfWeek = 7;

Date otherEnd(Date from, Long length, RangeUnit unit) {
    switch (unit) {
        case RangeUnit::Days:
            return from + length;
        case RangeUnit::Weeks:
            return from + kDaysOfWeek * length;
        case RangeUnit::Months:
            return DateSerial(Year(from), Month(from) + length, Day(from));
        case RangeUnit::Years:
            break;
    }
    return DateSerial(Year(from) + length, Month(from), Day(from));
}

EventRange rangeBetween(Date birthdate, Date start, Date end) {
    return {.RangeStart = start,
            .RangeEnd = end,
            .SpanDays = DayCount(start, end),
            .DayBase = DayCount(birthdate, start)};
}

}  // namespace

EventRange eventRange(Date birthdate, Date from, RangeDirection direction, Integer length,
                      RangeUnit unit) {
    if (direction == RangeDirection::Forward)
        return rangeBetween(birthdate, from, otherEnd(from, length, unit));
    return rangeBetween(birthdate, std::max(otherEnd(from, -length, unit), birthdate), from);
}

QString rangeText(const EventRange& range) {
    const QString pattern = QStringLiteral("d mmmm yyyy");
    return QStringLiteral("Searching from ") + Format(range.RangeStart, pattern) +
           QStringLiteral(" to ") + Format(range.RangeEnd, pattern);
}

float rangeProgress(Long day, Long spanDays) {
    if (spanDays == 0)
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<float>(static_cast<double>(day) / spanDays * 100);
}
