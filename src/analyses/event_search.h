// The search for events: the days on which something happens in a person's cycles, found by looking
// at one day after the other.
//
// A scan looks at the days 0 to `span`, both included, counted from its first date. `dayBase` is
// the day count of that date. The remainder of the base by a cycle's length is taken once, and the
// angle grows from there without being reduced again. A day counts for the value of its sine.
//
// After each day the scan asks `goOn(day)`, which may tell how far it has come and let others act;
// false ends it. What was found by then stays.
#pragma once

#include <QLatin1String>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

#include "cycles/cycle.h"
#include "cycles/day_state.h"

// What a search for several cycles at once looks for; any other number finds nothing.
inline constexpr Integer kPeakKind = 1;
inline constexpr Integer kLowKind = 2;
inline constexpr Integer kCriticalKind = 3;

inline constexpr QLatin1String kPeak("Peak");
inline constexpr QLatin1String kLow("Low");
inline constexpr QLatin1String kCritical("Critical");

// Two cycles by their first letters.
inline constexpr QLatin1String kEmotionalPhysical("EP");
inline constexpr QLatin1String kEmotionalIntellectual("EI");
inline constexpr QLatin1String kPhysicalIntellectual("PI");

// A day offset in decimal digits. It lies in its row, as a scan finds thousands of them.
class OffsetText {
  public:
    OffsetText() = default;
    explicit OffsetText(Long offset) {
        size_ = static_cast<std::uint8_t>(
            std::to_chars(digits_.data(), digits_.data() + digits_.size(), offset).ptr -
            digits_.data());
    }

    operator std::string_view() const { return {digits_.data(), size_}; }

    friend bool operator==(const OffsetText&, const OffsetText&) = default;

  private:
    std::array<char, std::numeric_limits<Long>::digits10 + 2> digits_{};  // with a sign
    std::uint8_t size_ = 0;
};

// A day that was found: its offset from the first date, and what it is.
struct HitRow {
    OffsetText offset = {};
    QLatin1String word = {};

    friend bool operator==(const HitRow&, const HitRow&) = default;
};

// What the last scans found, in order of date. The element 0 of each array stands for nothing, so
// there are results from a size of 2 on.
struct EventHits {
    std::vector<Long> TripleHits = std::vector<Long>(1);  // day offsets
    std::vector<HitRow> DoubleHits = std::vector<HitRow>(1);
    std::vector<HitRow> EmotHits = std::vector<HitRow>(1);
    std::vector<HitRow> PhysHits = std::vector<HitRow>(1);
    std::vector<HitRow> IntelHits = std::vector<HitRow>(1);
};

namespace search_detail {

// The sine that a peak lies above, and its negative a low below.
inline constexpr double kPeakSine = 0.99;

// For which of the cycles something holds on a day.
struct Together {
    bool emotional;
    bool physical;
    bool intellectual;
};

// The rules of the search for several cycles at once, which are its own: unlike those of one cycle
// by itself (day_state.h) the upper ends of the critical bands are open.
constexpr Together peaksTogether(double emotional, double physical, double intellectual) {
    return {emotional > kPeakSine, physical > kPeakSine, intellectual > kPeakSine};
}

constexpr Together lowsTogether(double emotional, double physical, double intellectual) {
    return {emotional < -kPeakSine, physical < -kPeakSine, intellectual < -kPeakSine};
}

// The intellectual sine is multiplied first and compared then, which decides at the ends.
constexpr Together criticalTogether(double emotional, double physical, double intellectual) {
    const double tenfold = intellectual * 10;
    return {-0.1 <= emotional && emotional < 0.1, -0.1 <= physical && physical < 0.14,
            -0.1 <= tenfold && tenfold < 1.0};
}

// Takes everything away that an array holds but for its first element.
template <class Element>
void forget(std::vector<Element>& hits) {
    hits.resize(1);
}

// The sines of one cycle from a day count on.
class Sines {
  public:
    Sines(Long dayBase, Long length, double factor) : base_(dayBase % length), factor_(factor) {}

    double at(Long day) const { return std::sin((base_ + day) * factor_); }

  private:
    Long base_;
    double factor_;
};

inline Sines emotionalSines(Long dayBase) {
    return {dayBase, modCycles::kEmotionalLength, modCycles::EmotionalFactor};
}

inline Sines physicalSines(Long dayBase) {
    return {dayBase, modCycles::kPhysicalLength, modCycles::PhysicalFactor};
}

inline Sines intellectualSines(Long dayBase) {
    return {dayBase, modCycles::kIntellectualLength, modCycles::IntellectualFactor};
}

// The word of a state; empty for a day like any other.
constexpr QLatin1String wordOf(modCycles::DayState state) {
    switch (state) {
        case modCycles::DayState::Critical:
            return kCritical;
        case modCycles::DayState::Low:
            return kLow;
        case modCycles::DayState::Peak:
            return kPeak;
        case modCycles::DayState::Ordinary:
            break;
    }
    return {};
}

// The pair of cycles for which it holds; none also for all three, as what holds for all of them is
// no event of two.
constexpr std::optional<QLatin1String> pairOf(const Together& together) {
    const bool emotionalPhysical = together.emotional && together.physical;
    const bool emotionalIntellectual = together.emotional && together.intellectual;
    const bool physicalIntellectual = together.physical && together.intellectual;
    if (emotionalPhysical == emotionalIntellectual && emotionalIntellectual == physicalIntellectual)
        return std::nullopt;
    if (emotionalPhysical)
        return kEmotionalPhysical;
    return emotionalIntellectual ? kEmotionalIntellectual : kPhysicalIntellectual;
}

template <auto stateOf, class GoOn>
void scanCycle(Long span, const Sines& sines, std::vector<HitRow>& hits, GoOn& goOn) {
    for (Long day = 0; day <= span; ++day) {
        const modCycles::DayState state = stateOf(sines.at(day));
        if (state != modCycles::DayState::Ordinary)
            hits.push_back({OffsetText(day), wordOf(state)});
        if (!goOn(day))
            return;
    }
}

template <auto together, class GoOn>
void scanTogether(Long span, Long dayBase, bool triple, EventHits& hits, GoOn& goOn) {
    const Sines emotional = emotionalSines(dayBase);
    const Sines physical = physicalSines(dayBase);
    const Sines intellectual = intellectualSines(dayBase);
    for (Long day = 0; day <= span; ++day) {
        const Together found = together(emotional.at(day), physical.at(day), intellectual.at(day));
        if (triple) {
            if (found.emotional && found.physical && found.intellectual)
                hits.TripleHits.push_back(day);
        } else if (const std::optional<QLatin1String> pair = pairOf(found)) {
            hits.DoubleHits.push_back({OffsetText(day), *pair});
        }
        if (!goOn(day))
            return;
    }
}

}  // namespace search_detail

// Searches one cycle, by its key, for critical days, lows and peaks into the array of that cycle.
// Those of all three are emptied first, also for another key, which searches nothing.
template <class GoOn>
void SearchCycle(Long span, Long dayBase, std::string_view cycleKey, EventHits& hits, GoOn goOn) {
    using namespace search_detail;
    for (auto* array : {&hits.EmotHits, &hits.PhysHits, &hits.IntelHits})
        forget(*array);
    if (cycleKey == modCycles::kEmotionalKey)
        scanCycle<modCycles::emotionalState>(span, emotionalSines(dayBase), hits.EmotHits, goOn);
    else if (cycleKey == modCycles::kPhysicalKey)
        scanCycle<modCycles::physicalState>(span, physicalSines(dayBase), hits.PhysHits, goOn);
    else if (cycleKey == modCycles::kIntellectualKey)
        scanCycle<modCycles::intellectualState>(span, intellectualSines(dayBase), hits.IntelHits,
                                                goOn);
}

// Searches all three cycles for days of a kind that they share: with `triple` those that all three
// do, into TripleHits, without it those that just two do, into DoubleHits. Both are emptied first.
template <class GoOn>
void SearchCombined(Long span, Long dayBase, bool triple, Integer kind, EventHits& hits,
                    GoOn goOn) {
    using namespace search_detail;
    forget(hits.TripleHits);
    forget(hits.DoubleHits);
    if (kind == kPeakKind)
        scanTogether<peaksTogether>(span, dayBase, triple, hits, goOn);
    else if (kind == kLowKind)
        scanTogether<lowsTogether>(span, dayBase, triple, hits, goOn);
    else if (kind == kCriticalKind)
        scanTogether<criticalTogether>(span, dayBase, triple, hits, goOn);
}
