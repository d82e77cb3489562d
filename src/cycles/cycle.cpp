// The cycle arithmetic of cycle.h.
#include "cycles/cycle.h"

#include <cmath>

namespace modCycles {

namespace {

// A remainder and an offset of 16 bits never leave the 32 bits of their sum.
double sineAt(Long days, Integer offset, Long length, double factor) {
    return std::sin((days % length + offset) * factor);
}

double compatibilityPercent(Long dayDifference, Long length) {
    const double half = static_cast<double>(length) / 2;
    const Long remainder = dayDifference % length;
    if (remainder < half)
        return 100 - (remainder / half) * 100;
    return ((remainder - half) / half) * 100;
}

}  // namespace

double cycleSine(Long days, Integer offset, std::string_view key) {
    if (key == kEmotionalKey)
        return sineAt(days, offset, kEmotionalLength, EmotionalFactor);
    if (key == kPhysicalKey)
        return sineAt(days, offset, kPhysicalLength, PhysicalFactor);
    if (key == kIntellectualKey)
        return sineAt(days, offset, kIntellectualLength, IntellectualFactor);
    return 0.0;
}

double CalcCycle(Long days, Integer offset, std::string_view key) {
    return cycleSine(days, offset, key) * 100;
}

CycleValues CalcCycles(Long days, Integer offset) {
    return {CalcCycle(days, offset, kEmotionalKey), CalcCycle(days, offset, kPhysicalKey),
            CalcCycle(days, offset, kIntellectualKey)};
}

double CalcCompat(Long dayDifference, Integer cycleIndex) {
    switch (cycleIndex) {
        case kEmotionalIndex:
            return compatibilityPercent(dayDifference, kEmotionalLength);
        case kPhysicalIndex:
            return compatibilityPercent(dayDifference, kPhysicalLength);
        case kIntellectualIndex:
            return compatibilityPercent(dayDifference, kIntellectualLength);
        default:
            return 0.0;
    }
}

CycleValues CalcCompats(Long dayDifference) {
    return {CalcCompat(dayDifference, kEmotionalIndex), CalcCompat(dayDifference, kPhysicalIndex),
            CalcCompat(dayDifference, kIntellectualIndex)};
}

}  // namespace modCycles
