// The compatibility verdict: what percentages of two people mean, in words.
#pragma once

#include <QString>

#include "cycles/integers.h"

namespace modCycles {

// How compatible two people are in one cycle, by the percentage rounded half to even. Empty for one
// that is then below 0 or above 100. Raises 6 (Overflow) outside 32 bits.
QString CompatLevelText(double percent);

// What is to be expected of two people, from the rounded percentages of the three cycles.
QString CompatAdviceText(Integer emotional, Integer physical, Integer intellectual);

}  // namespace modCycles
