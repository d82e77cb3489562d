// The words of event_search.h.
#include "analyses/event_search.h"

namespace search_detail {

QLatin1String wordOf(modCycles::DayState state) {
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

QLatin1String pairOf(const Together& together) {
    const bool emotionalPhysical = together.emotional && together.physical;
    const bool emotionalIntellectual = together.emotional && together.intellectual;
    const bool physicalIntellectual = together.physical && together.intellectual;
    if (emotionalPhysical == emotionalIntellectual && emotionalIntellectual == physicalIntellectual)
        return {};
    if (emotionalPhysical)
        return kEmotionalPhysical;
    return emotionalIntellectual ? kEmotionalIntellectual : kPhysicalIntellectual;
}

}  // namespace search_detail
