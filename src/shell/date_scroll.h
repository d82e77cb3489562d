// How the start date moves by the unit that is chosen beside the arrows.
#pragma once

#include <QStringList>
#include <optional>

#include "cycles/date.h"

namespace modCycles {

// The units, in the order of their list.
enum class ScrollUnit { Days, Weeks, Months, Years };

// The entries of their list.
QStringList scrollUnitNames();

// The unit of an entry; none for -1.
std::optional<ScrollUnit> scrollUnitAt(int listIndex);

// What a user who has chosen none is told.
QString scrollUnitIsMissing();

// One unit later. There is no upper bound but that of dates: raises std::overflow_error or
// std::out_of_range beyond it.
Date increasedDate(Date date, ScrollUnit unit);

// One unit earlier, but not before `earliest`.
Date decreasedDate(Date date, ScrollUnit unit, Date earliest);

}  // namespace modCycles
