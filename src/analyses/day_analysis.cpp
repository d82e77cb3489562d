// The reading and the search of day_analysis.h.
#include "analyses/day_analysis.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "cycles/age.h"
#include "runtime/format.h"
#include "runtime/host.h"
#include "runtime/numbers.h"

namespace {

using namespace modCycles;

QString ageText(Date birthdate, Date selected) {
    return QStringLiteral("Age: ") + numberText(ageOn(selected, birthdate)) + QStringLiteral(" (") +
           numberText(DayCount(birthdate, selected)) + QStringLiteral(" days)");
}

struct Rhythm {
    std::string_view key;
    DayState (*stateOf)(double sine);
};

constexpr Rhythm kEmotional{kEmotionalKey, emotionalState};
constexpr Rhythm kPhysical{kPhysicalKey, physicalState};
constexpr Rhythm kIntellectual{kIntellectualKey, intellectualState};

struct Span {
    Date start;
    Long days;  // the day count of the start
    Date today;
};

FoundDay foundDay(Date date, DayState state, Date today) {
    const QString pattern =
        state == DayState::Critical ? QStringLiteral("ddd, d mmmm") : QStringLiteral("ddd, d mmm");
    return {.text = Format(date, pattern), .isToday = date == today, .state = state};
}

template <class Finds>
void search(const Span& span, const Rhythm& rhythm, Finds& finds) {
    for (Integer i = 0; i < kSpanDays; ++i) {
        const DayState state = rhythm.stateOf(cycleSine(span.days, i, rhythm.key));
        if (state == DayState::Critical)
            enter(finds.critical, foundDay(span.start + i, state, span.today));
        else if (state != DayState::Ordinary)
            enter(finds.peaks, foundDay(span.start + i, state, span.today));
    }
}

}  // namespace

Bar barOf(double percent) {
    const double width = std::abs(percent) / 100 * kFullScale;
    return {.left = percent < 0 ? kBaseLine - width : kBaseLine, .width = width};
}

DayReading readDay(Date birthdate, Date selected) {
    const CycleValues values = CalcCycles(DayCount(birthdate, selected), 0);
    DayReading reading{
        .date = host().shortDate(selected),
        .age = ageText(birthdate, selected),
        .percent = {values.emotional, values.physical, values.intellectual, values.average()},
        .percentTexts = {},
        .levels = dayLevels(values)};
    std::transform(reading.percent.begin(), reading.percent.end(), reading.percentTexts.begin(),
                   percentText);
    return reading;
}

SpanFinds searchSpan(Date birthdate, Date start, Date today) {
    const Span span{
        .start = Date(start.dayNumber()), .days = DayCount(birthdate, start), .today = today};
    SpanFinds finds;
    search(span, kEmotional, finds.emotional);
    search(span, kPhysical, finds.physical);
    search(span, kIntellectual, finds.intellectual);
    return finds;
}

void enter(std::span<FoundDay> slots, const FoundDay& day) {
    const auto slot = std::find_if(slots.begin(), slots.end(),
                                   [](const FoundDay& each) { return each.text.isEmpty(); });
    if (slot != slots.end())
        *slot = day;
}
