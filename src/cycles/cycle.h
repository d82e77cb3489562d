// The three cycles: their lengths, their factors, the value of a day, and the compatibility of two
// birth dates in one cycle.
#pragma once

#include <numbers>
#include <string_view>

#include "cycles/integers.h"

namespace modCycles {

inline constexpr Long kPhysicalLength = 23;      // days
inline constexpr Long kIntellectualLength = 33;  // days
inline constexpr Long kEmotionalLength = 28;     // days

// The angle, in radians, by which a cycle of `length` days moves in one day. The two divisions come
// first: another order can differ in the last bit.
constexpr double cycleFactor(Long length) {
    return (std::numbers::pi / 180) * (360 / static_cast<double>(length));
}

inline constexpr double PhysicalFactor = cycleFactor(kPhysicalLength);
inline constexpr double IntellectualFactor = cycleFactor(kIntellectualLength);
inline constexpr double EmotionalFactor = cycleFactor(kEmotionalLength);

// The cycles by key.
inline constexpr std::string_view kEmotionalKey = "emot";
inline constexpr std::string_view kPhysicalKey = "phys";
inline constexpr std::string_view kIntellectualKey = "intel";

// The cycles by index.
inline constexpr Integer kEmotionalIndex = 0;
inline constexpr Integer kPhysicalIndex = 1;
inline constexpr Integer kIntellectualIndex = 2;

// The sine of a cycle's angle, -1.0 to 1.0, `offset` days after the day count `days`. The offset is
// added after the remainder is taken and not reduced again, so a whole chart takes one day count. A
// key other than the three, letter for letter, gives 0.0.
double cycleSine(Long days, Integer offset, std::string_view key);

// The value of a cycle, -100.0 to 100.0, unrounded: the sine as a percentage.
double CalcCycle(Long days, Integer offset, std::string_view key);

// One value for each cycle, of a day or of a comparison.
struct CycleValues {
    double emotional;
    double physical;
    double intellectual;

    // Their mean: no cycle of its own, unrounded.
    constexpr double average() const { return (emotional + physical + intellectual) / 3; }
};

// CalcCycle for the three keys.
CycleValues CalcCycles(Long days, Integer offset);

// How far two people are in step in one cycle, 0.0 to 100.0 per cent, unrounded: 100 when their
// birth dates differ by whole cycles, falling in a straight line to half a cycle, then climbing.
// `dayDifference` is a day count, never negative. An index other than the three gives 0.0.
double CalcCompat(Long dayDifference, Integer cycleIndex);

// CalcCompat for the three indexes.
CycleValues CalcCompats(Long dayDifference);

}  // namespace modCycles
