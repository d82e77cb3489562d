// The levels of a day: which days a report calls critical, and which interpretation is shown for
// one.
//
// They are read on the unrounded percentages of the three cycles: 0 within the critical band, whose
// lower end belongs to it and whose upper end does not, else the sign. The bands are those of
// day_state.h but for the upper end; the two rules are separate.
#pragma once

#include "cycles/cycle.h"

namespace modCycles {

// -1 low, 0 critical, 1 high.
constexpr Integer dayLevel(double percent, double lowest, double beyond) {
    if (lowest <= percent && percent < beyond)
        return 0;
    return percent < 0 ? -1 : 1;
}

constexpr Integer emotionalLevel(double percent) {
    return dayLevel(percent, -10, 10);
}

constexpr Integer physicalLevel(double percent) {
    return dayLevel(percent, -10, 14);
}

constexpr Integer intellectualLevel(double percent) {
    return dayLevel(percent, -1, 10);
}

struct DayLevels {
    Integer emotional;
    Integer physical;
    Integer intellectual;

    friend bool operator==(const DayLevels&, const DayLevels&) = default;
};

constexpr DayLevels dayLevels(const CycleValues& values) {
    return {emotionalLevel(values.emotional), physicalLevel(values.physical),
            intellectualLevel(values.intellectual)};
}

}  // namespace modCycles
