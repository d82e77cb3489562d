// The cycle arithmetic of cycle.h.
#include "cycles/cycle.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace modCycles {

namespace {

Long sumOf(Long remainder, Integer offset) {
    const std::int64_t sum = std::int64_t{remainder} + offset;
    if (sum > std::numeric_limits<Long>::max() || sum < std::numeric_limits<Long>::min())
        throw std::overflow_error("day offset out of range");
    return static_cast<Long>(sum);
}

double percentAt(Long days, Integer offset, Long length, double factor) {
    return std::sin(sumOf(days % length, offset) * factor) * 100;
}

double compatibilityPercent(Long dayDifference, Long length) {
    const double half = static_cast<double>(length) / 2;
    const Long remainder = dayDifference % length;
    if (remainder < half)
        return 100 - (remainder / half) * 100;
    return ((remainder - half) / half) * 100;
}

}  // namespace

double CalcCycle(Long days, Integer offset, std::string_view key) {
    if (key == kEmotionalKey)
        return percentAt(days, offset, kEmotionalLength, EmotionalFactor);
    if (key == kPhysicalKey)
        return percentAt(days, offset, kPhysicalLength, PhysicalFactor);
    if (key == kIntellectualKey)
        return percentAt(days, offset, kIntellectualLength, IntellectualFactor);
    return 0.0;
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

}  // namespace modCycles
