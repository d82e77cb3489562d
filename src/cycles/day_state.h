// What a day is for one cycle: critical, a peak, a low, or none of them.
//
// The states are read on the sine of the cycle's angle, -1.0 to 1.0, before it becomes a
// percentage. The bands differ from cycle to cycle and are not symmetrical; they do not overlap.
// They are the bands of one cycle seen by itself: a search for several cycles at once and the daily
// report read theirs by rules of their own.
#pragma once

namespace modCycles {

enum class DayState { Ordinary, Critical, Peak, Low };

constexpr DayState dayState(bool critical, bool peak, bool low) {
    if (critical)
        return DayState::Critical;
    if (peak)
        return DayState::Peak;
    return low ? DayState::Low : DayState::Ordinary;
}

constexpr DayState emotionalState(double sine) {
    return dayState(-0.1 <= sine && sine <= 0.1, sine > 0.99, sine < -0.99);
}

constexpr DayState physicalState(double sine) {
    return dayState(-0.1 <= sine && sine <= 0.14, sine > 0.99, sine < -0.99);
}

// The sine is multiplied first and compared then, which decides at the ends of the bands.
constexpr DayState intellectualState(double sine) {
    const double tenfold = sine * 10;
    return dayState(-0.1 <= tenfold && tenfold <= 1.0, tenfold > 9.9, tenfold < -9.9);
}

}  // namespace modCycles
