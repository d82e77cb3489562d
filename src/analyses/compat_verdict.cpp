// The bounds and the wording of the verdict.
#include "analyses/compat_verdict.h"

#include <algorithm>
#include <array>

#include "runtime/numbers.h"

namespace modCycles {

namespace {

// Whole per cent. A cycle counts as high from the first on, as extreme from the second on, and as
// too low up to the third.
constexpr Integer kHigh = 50;
constexpr Integer kExtreme = 90;
constexpr Integer kTooLow = 10;

struct Level {
    Long highest;  // whole per cent
    const char* phrase;
};

constexpr std::array<Level, 5> kLevels{{{19, "No or extremely low compatibility"},
                                        {39, "Sometimes Compatible"},
                                        {59, "Half the time compatible"},
                                        {79, "Most of the time compatible"},
                                        {100, "Always or almost always compatible"}}};

QString veryCompatible() {
    return QStringLiteral(
        "These two people are very compatible. Most successful marriages have this compatibility "
        "pattern. An example is the relationship between Tobias and Ada Merrow, who were married "
        "for 82 years.");
}

QString warningOfExtremes() {
    return QStringLiteral(
        " However, since one or more of the cycles have an extreme compatibility (90% or higher), "
        "rivalry or arguements are likely to occur in due time. Extreme compatibility should be "
        "avoided, since neither partner will find the relationship completely satisfying.");
}

QString noChance() {
    return QStringLiteral(
        "This relationship probably doesn't stand much of a chance. Extreme compatibilities, "
        "either high or low, should be avoided.");
}

QString ratherAverage() {
    return QStringLiteral("This relationship is rather average.");
}

QString highInTwoCycles() {
    return QStringLiteral(
        "Many relationships have high compatibility in two cycles. Both partners are satisfied "
        "enough to spend their life together.");
}

QString highInOneCycle() {
    return QStringLiteral(
        "Relationships with one cycle compatibility of 50% or higher can last, but are rarely "
        "satisfying for both partners.");
}

}  // namespace

QString CompatLevelText(double percent) {
    const Long rounded = Round(percent);
    if (rounded < 0)
        return {};
    const auto level = std::find_if(kLevels.begin(), kLevels.end(),
                                    [&](const Level& one) { return rounded <= one.highest; });
    return level == kLevels.end() ? QString() : QString::fromLatin1(level->phrase);
}

QString CompatAdviceText(Integer emotional, Integer physical, Integer intellectual) {
    const auto [lowest, highest] = std::minmax({emotional, physical, intellectual});
    if (lowest >= kHigh)
        return highest >= kExtreme ? veryCompatible() + warningOfExtremes() : veryCompatible();
    if (highest <= kTooLow)
        return noChance();
    if (highest < kHigh)
        return ratherAverage();
    const int high = int{emotional >= kHigh} + int{physical >= kHigh} + int{intellectual >= kHigh};
    return high == 2 ? highInTwoCycles() : highInOneCycle();
}

}  // namespace modCycles
