// The steps of date_scroll.h.
#include "shell/date_scroll.h"

#include <algorithm>

#include "cycles/calendar.h"

namespace modCycles {

namespace {

constexpr Integer kDaysPerWeek = 7;

// `steps` units later; a day that the month does not have rolls over into the next month.
Date moved(Date date, ScrollUnit unit, Integer steps) {
    switch (unit) {
        case ScrollUnit::Days:
            return date + steps;
        case ScrollUnit::Weeks:
            return date + steps * kDaysPerWeek;
        case ScrollUnit::Months:
            return DateSerial(Year(date), Month(date) + steps, Day(date));
        case ScrollUnit::Years:
            return DateSerial(Year(date) + steps, Month(date), Day(date));
    }
    return date;
}

}  // namespace

QStringList scrollUnitNames() {
    return {QStringLiteral("Days"), QStringLiteral("Weeks"), QStringLiteral("Months"),
            QStringLiteral("Years")};
}

std::optional<ScrollUnit> scrollUnitAt(int listIndex) {
    return listIndex == -1 ? std::nullopt : std::optional(static_cast<ScrollUnit>(listIndex));
}

QString scrollUnitIsMissing() {
    return QStringLiteral("Please select a unit from the dropdown box");
}

Date increasedDate(Date date, ScrollUnit unit) {
    return moved(date, unit, 1);
}

Date decreasedDate(Date date, ScrollUnit unit, Date earliest) {
    return std::max(moved(date, unit, -1), earliest);
}

}  // namespace modCycles
