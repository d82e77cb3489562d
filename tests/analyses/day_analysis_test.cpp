// The analysis of a day, without a window.
#include "analyses/day_analysis.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "cycles/calendar.h"
#include "runtime/format.h"
#include "support/recording_host.h"

using namespace modCycles;

namespace {

const Date kLongAgo = DateSerial(1900, 1, 1);  // no day of these tests

// The tests ask the host for the names of days and months.
class Analysis : public testing::Test {
  protected:
    RecordingHost host_;
};

using ReadDay = Analysis;
using SearchSpan = Analysis;

QStringList textsOf(std::span<const FoundDay> slots) {
    QStringList texts;
    for (const FoundDay& day : slots)
        texts += day.text;
    return texts;
}

QStringList texts(std::initializer_list<const char*> list) {
    QStringList texts;
    for (const char* text : list)
        texts += QString::fromLatin1(text);
    return texts;
}

// Which days of a cycle, counted from its beginning, are critical, peaks and lows.
struct Phases {
    Long length;
    std::set<Long> critical;
    Long peak;
    Long low;
};

const Phases kEmotional{28, {0, 14}, 7, 21};
const Phases kPhysical{23, {0, 11}, 6, 17};
const Phases kIntellectual{33, {0, 16}, 8, 25};

// The days that must be found in the 31 days from the start on, and as many free slots behind them
// as make `slots` of them.
std::vector<FoundDay> expectedDays(const Phases& phases, Long days, Date start, bool critical,
                                   std::size_t slots) {
    std::vector<FoundDay> found;
    for (Long i = 0; i < 31; ++i) {
        const Long phase = (days + i) % phases.length;
        if (critical && phases.critical.count(phase))
            found.push_back({.text = Format(start + i, QStringLiteral("ddd, d mmmm")),
                             .state = DayState::Critical});
        if (!critical && (phase == phases.peak || phase == phases.low))
            found.push_back({.text = Format(start + i, QStringLiteral("ddd, d mmm")),
                             .state = phase == phases.peak ? DayState::Peak : DayState::Low});
    }
    EXPECT_LE(found.size(), slots);
    found.resize(slots);
    return found;
}

template <class Finds>
void expectEveryPhase(const Phases& phases, Finds SpanFinds::*cycle) {
    const Date start = DateSerial(2000, 3, 1);
    for (Long phase = 0; phase < phases.length; ++phase) {
        const SpanFinds finds = searchSpan(start + -phase, start, kLongAgo);
        const auto& [critical, peaks] = finds.*cycle;
        EXPECT_EQ(std::vector(critical.begin(), critical.end()),
                  expectedDays(phases, phase, start, true, critical.size()))
            << phase;
        EXPECT_EQ(std::vector(peaks.begin(), peaks.end()),
                  expectedDays(phases, phase, start, false, peaks.size()))
            << phase;
    }
}

}  // namespace

TEST(BarOf, GrowsToTheRightForAPositiveValueAndToTheLeftForANegativeOne) {
    EXPECT_EQ(barOf(100), (Bar{4867, 1747}));
    EXPECT_EQ(barOf(50), (Bar{4867, 873.5}));
    EXPECT_EQ(barOf(-50), (Bar{4867 - 873.5, 873.5}));
    EXPECT_EQ(barOf(-100), (Bar{4867 - 1747, 1747}));
}

TEST(BarOf, IsNothingOnTheBaseLineForNought) {
    EXPECT_EQ(barOf(0), (Bar{4867, 0}));
}

TEST(BarOf, IsDrawnOfTheUnroundedValue) {
    EXPECT_EQ(barOf(0.4).width, 0.4 / 100 * 1747);
}

TEST_F(ReadDay, TellsTheAgeTheDateAndTheValues) {
    const DayReading reading = readDay(DateSerial(1972, 10, 20), DateSerial(2000, 3, 20));
    EXPECT_EQ(reading.age, QStringLiteral("Age: 27 (10013 days)"));
    EXPECT_EQ(reading.date, QStringLiteral("20/03/2000"));
    const CycleValues values = CalcCycles(10013, 0);
    EXPECT_EQ(reading.percent, (std::array{values.emotional, values.physical, values.intellectual,
                                           values.average()}));
    EXPECT_EQ(reading.levels, dayLevels(values));
}

TEST_F(ReadDay, ShowsTheValuesRoundedWithTheirSign) {
    const DayReading reading = readDay(DateSerial(1972, 10, 20), DateSerial(2000, 3, 20));
    for (std::size_t i = 0; i < reading.percent.size(); ++i)
        EXPECT_EQ(reading.percentTexts[i],
                  QString::number(std::nearbyint(reading.percent[i])) + u'%');
    EXPECT_EQ(reading.percentTexts[0], QStringLiteral("-62%"));
}

TEST_F(ReadDay, MirrorsADateBeforeTheBirthAndTellsNegativeYears) {
    const Date birthdate = DateSerial(2000, 3, 14);
    const DayReading before = readDay(birthdate, birthdate + -100);
    EXPECT_EQ(before.age, QStringLiteral("Age: -1 (100 days)"));
    EXPECT_EQ(before.percent, readDay(birthdate, birthdate + 100).percent);
    EXPECT_EQ(readDay(birthdate, DateSerial(1998, 3, 13)).age,
              QStringLiteral("Age: -3 (732 days)"));
}

TEST_F(ReadDay, CountsAYearMoreOnTheFirstOfMarchForWhoWasBornOnALeapDay) {
    const Date leapDay = DateSerial(1972, 2, 29);
    EXPECT_EQ(readDay(leapDay, DateSerial(2001, 2, 28)).age,
              QStringLiteral("Age: 28 (10592 days)"));
    EXPECT_EQ(readDay(leapDay, DateSerial(2001, 3, 1)).age, QStringLiteral("Age: 29 (10593 days)"));
}

TEST_F(ReadDay, IsCriticalInAllCyclesOnTheDayOfBirth) {
    const Date birthdate = DateSerial(2000, 3, 14);
    EXPECT_EQ(readDay(birthdate, birthdate).levels, (DayLevels{0, 0, 0}));
}

TEST_F(SearchSpan, FindsTheEmotionalDaysOfEveryPhase) {
    expectEveryPhase(kEmotional, &SpanFinds::emotional);
}

TEST_F(SearchSpan, FindsThePhysicalDaysOfEveryPhase) {
    expectEveryPhase(kPhysical, &SpanFinds::physical);
}

TEST_F(SearchSpan, FindsTheIntellectualDaysOfEveryPhase) {
    expectEveryPhase(kIntellectual, &SpanFinds::intellectual);
}

TEST_F(SearchSpan, ShowsThreeCriticalDaysInThreeSlotsAndLeavesAFourthEmpty) {
    const Date start = DateSerial(2000, 1, 1);
    const SpanFinds finds = searchSpan(start, start, kLongAgo);
    EXPECT_EQ(textsOf(finds.emotional.critical),
              texts({"Sat, 1 January", "Sat, 15 January", "Sat, 29 January"}));
    EXPECT_EQ(textsOf(finds.physical.critical),
              texts({"Sat, 1 January", "Wed, 12 January", "Mon, 24 January", ""}));
}

TEST_F(SearchSpan, NamesTheMonthInFullForCriticalDaysAndInShortForTheOthers) {
    const Date start = DateSerial(2000, 9, 1);
    const SpanFinds finds = searchSpan(start, start, kLongAgo);
    EXPECT_EQ(finds.emotional.critical[1].text, QStringLiteral("Fri, 15 September"));
    EXPECT_EQ(finds.emotional.peaks[0].text, QStringLiteral("Fri, 8 Sept"));
}

TEST_F(SearchSpan, ListsPeaksAndLowsTogetherInOrderOfDate) {
    const Date start = DateSerial(2000, 3, 1);
    const SpanFinds finds = searchSpan(start + -20, start, kLongAgo);
    const std::array<FoundDay, 3> expected{
        FoundDay{.text = QStringLiteral("Thu, 2 Mar"), .state = DayState::Low},
        FoundDay{.text = QStringLiteral("Thu, 16 Mar"), .state = DayState::Peak},
        FoundDay{.text = QStringLiteral("Thu, 30 Mar"), .state = DayState::Low}};
    EXPECT_EQ(finds.emotional.peaks, expected);
}

TEST_F(SearchSpan, RunsForThirtyOneDaysIntoTheNextMonth) {
    const auto emotionalDays = [](Date start) {
        return textsOf(searchSpan(start + -26, start, kLongAgo).emotional.critical);
    };
    EXPECT_EQ(emotionalDays(DateSerial(2001, 2, 1)),
              texts({"Sat, 3 February", "Sat, 17 February", "Sat, 3 March"}));
    EXPECT_EQ(emotionalDays(DateSerial(2000, 2, 1)),
              texts({"Thu, 3 February", "Thu, 17 February", "Thu, 2 March"}));
    EXPECT_EQ(emotionalDays(DateSerial(2000, 4, 1)),
              texts({"Mon, 3 April", "Mon, 17 April", "Mon, 1 May"}));
}

TEST_F(SearchSpan, CountsForwardFromTheMirroredStartWhereItBeginsBeforeTheBirth) {
    const SpanFinds finds = searchSpan(DateSerial(2000, 3, 15), DateSerial(2000, 3, 1), kLongAgo);
    EXPECT_EQ(textsOf(finds.physical.critical), texts({"Fri, 10 March", "Tue, 21 March", "", ""}));
    EXPECT_EQ(textsOf(finds.intellectual.critical), texts({"Fri, 3 March", "Mon, 20 March"}));
    EXPECT_EQ(textsOf(finds.emotional.critical),
              texts({"Wed, 1 March", "Wed, 15 March", "Wed, 29 March"}));
}

TEST_F(SearchSpan, MarksTodayAloneAmongTheDaysItFinds) {
    const Date start = DateSerial(2000, 1, 1);
    const SpanFinds critical = searchSpan(start, start, DateSerial(2000, 1, 15));
    EXPECT_FALSE(critical.emotional.critical[0].isToday);
    EXPECT_TRUE(critical.emotional.critical[1].isToday);
    EXPECT_FALSE(critical.emotional.critical[2].isToday);
    const SpanFinds peak = searchSpan(start, start, DateSerial(2000, 1, 8));
    EXPECT_TRUE(peak.emotional.peaks[0].isToday);
    EXPECT_FALSE(peak.emotional.peaks[1].isToday);
}

TEST_F(SearchSpan, HasNoEyeForATimeOfDay) {
    const Date start = DateSerial(2000, 1, 1);
    const SpanFinds finds = searchSpan(start + 0.75, start + 0.5, start);
    EXPECT_TRUE(finds.emotional.critical[0].isToday);
    EXPECT_EQ(finds.emotional.critical[0].text, QStringLiteral("Sat, 1 January"));
}

TEST_F(SearchSpan, ReachesTheLastDayThatThereIs) {
    const Date start = DateSerial(9999, 12, 1);
    const SpanFinds finds = searchSpan(start + -26, start, kLongAgo);
    EXPECT_EQ(finds.emotional.critical[2].text, QStringLiteral("Fri, 31 December"));
}

TEST(Enter, TakesTheFirstFreeSlotAndDropsADayThatFindsNone) {
    const auto day = [](const char* text) { return FoundDay{.text = QString::fromLatin1(text)}; };
    std::array<FoundDay, 2> slots;
    enter(slots, day("one"));
    EXPECT_EQ(textsOf(slots), texts({"one", ""}));
    enter(slots, day("two"));
    enter(slots, day("three"));
    EXPECT_EQ(textsOf(slots), texts({"one", "two"}));
}

TEST(Slots, AreAsManyAsAreShown) {
    const SpanFinds finds;
    EXPECT_EQ(finds.emotional.critical.size(), 3U);
    EXPECT_EQ(finds.physical.critical.size(), 4U);
    EXPECT_EQ(finds.intellectual.critical.size(), 2U);
    EXPECT_EQ(finds.emotional.peaks.size(), 3U);
    EXPECT_EQ(finds.physical.peaks.size(), 3U);
    EXPECT_EQ(finds.intellectual.peaks.size(), 2U);
}
