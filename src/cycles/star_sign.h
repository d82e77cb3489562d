// The star sign of a date.
#pragma once

#include <string_view>

#include "cycles/date.h"

namespace modCycles {

// The sign's English name, by month and day alone; the year has no weight.
std::string_view GetStarSign(Date date);

}  // namespace modCycles
