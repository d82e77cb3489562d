// The comparison of birthdate_match.h.
#include "analyses/birthdate_match.h"

#include "analyses/compat_verdict.h"
#include "cycles/star_sign.h"
#include "runtime/numbers.h"

using namespace modCycles;

namespace {

CycleMatch cycleMatch(double percent) {
    return {.percent = percentText(percent), .level = CompatLevelText(percent)};
}

QString adviceFor(const CycleValues& percentages) {
    return CompatAdviceText(RoundToInteger(percentages.emotional),
                            RoundToInteger(percentages.physical),
                            RoundToInteger(percentages.intellectual));
}

}  // namespace

BirthdateMatch matchBirthdates(Date birthdate, Date other) {
    const CycleValues percentages = CalcCompats(DayCount(birthdate, other));
    return {.percentages = percentages,
            .emotional = cycleMatch(percentages.emotional),
            .physical = cycleMatch(percentages.physical),
            .intellectual = cycleMatch(percentages.intellectual),
            .average = percentText(percentages.average()),
            .advice = adviceFor(percentages),
            .sign = QStringLiteral("Star sign: ") + QString::fromLatin1(GetStarSign(other))};
}
