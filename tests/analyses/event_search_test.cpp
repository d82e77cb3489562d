// The search for events over day counts alone.
#include "analyses/event_search.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <string>

namespace {

using search_detail::criticalTogether;
using search_detail::lowsTogether;
using search_detail::pairOf;
using search_detail::peaksTogether;
using search_detail::Together;

constexpr Long kHundredYears = 36525;  // days
constexpr Long kTripleLength = 28 * 23 * 33;

// What never ends a scan.
bool alwaysOn(Long) {
    return true;
}

// The words by their days, of results that begin behind an element for nothing.
std::map<Long, QString> byDay(const std::vector<HitRow>& hits) {
    EXPECT_EQ(hits.front(), HitRow());
    std::map<Long, QString> days;
    for (auto hit = hits.begin() + 1; hit != hits.end(); ++hit)
        days[std::stoi(std::string(hit->offset))] = hit->word;
    EXPECT_EQ(days.size(), hits.size() - 1);
    return days;
}

std::vector<Long> triples(const EventHits& hits) {
    return {hits.TripleHits.begin() + 1, hits.TripleHits.end()};
}

// The phases of a cycle at which something happens.
struct Phases {
    Long length;
    std::set<Long> critical;
    Long peak;
    Long low;

    QString at(Long day) const {
        const Long phase = day % length;
        if (critical.count(phase))
            return kCritical;
        if (phase == peak)
            return kPeak;
        return phase == low ? QString(kLow) : QString();
    }
};

const Phases kEmotional{28, {0, 14}, 7, 21};
const Phases kPhysical{23, {0, 11}, 6, 17};
const Phases kIntellectual{33, {0, 16}, 8, 25};

std::map<Long, QString> expectedDays(const Phases& phases, Long base, Long span) {
    std::map<Long, QString> days;
    for (Long day = 0; day <= span; ++day) {
        if (const QString word = phases.at(base + day); !word.isEmpty())
            days[day] = word;
    }
    return days;
}

void expectEveryPhase(std::string_view key, const Phases& phases,
                      std::vector<HitRow> EventHits::*array) {
    for (Long base = 0; base < 2 * phases.length; ++base) {
        EventHits hits;
        SearchCycle(100, base, key, hits, alwaysOn);
        EXPECT_EQ(byDay(hits.*array), expectedDays(phases, base, 100)) << base;
    }
    EventHits hits;
    SearchCycle(kHundredYears, 17, key, hits, alwaysOn);
    EXPECT_EQ(byDay(hits.*array), expectedDays(phases, 17, kHundredYears));
}

TEST(SearchCycle, FindsTheSamePhasesFromEveryDayToTheEndOfAHundredYears) {
    expectEveryPhase("emot", kEmotional, &EventHits::EmotHits);
    expectEveryPhase("phys", kPhysical, &EventHits::PhysHits);
    expectEveryPhase("intel", kIntellectual, &EventHits::IntelHits);
}

TEST(SearchCycle, FindsTheBirthAndThePeakAWeekLater) {
    EventHits hits;
    SearchCycle(7, 0, "emot", hits, alwaysOn);
    EXPECT_EQ(byDay(hits.EmotHits), (std::map<Long, QString>{{0, kCritical}, {7, kPeak}}));
}

TEST(SearchCycle, WritesOffsetsInDecimalDigits) {
    EventHits hits;
    SearchCycle(kHundredYears, 0, "emot", hits, alwaysOn);
    EXPECT_EQ(std::string_view(hits.EmotHits[1].offset), "0");
    EXPECT_EQ(std::string_view(hits.EmotHits.back().offset), "36519");
}

TEST(SearchCycle, EmptiesTheArraysOfAllThree) {
    EventHits hits;
    SearchCycle(40, 0, "emot", hits, alwaysOn);
    SearchCycle(40, 0, "phys", hits, alwaysOn);
    EXPECT_EQ(hits.EmotHits, std::vector<HitRow>(1));
    EXPECT_GT(hits.PhysHits.size(), 1u);
    SearchCycle(40, 0, "intel", hits, alwaysOn);
    EXPECT_EQ(hits.PhysHits, std::vector<HitRow>(1));
    SearchCycle(40, 0, "emot", hits, alwaysOn);
    EXPECT_EQ(hits.IntelHits, std::vector<HitRow>(1));
}

TEST(SearchCycle, SearchesNothingForAnotherKey) {
    EventHits hits;
    SearchCycle(40, 0, "phys", hits, alwaysOn);
    SearchCycle(40, 0, "Emot", hits, [](Long) {
        ADD_FAILURE() << "no day to look at";
        return true;
    });
    EXPECT_EQ(hits.PhysHits, std::vector<HitRow>(1));
    EXPECT_EQ(hits.EmotHits, std::vector<HitRow>(1));
}

TEST(SearchCycle, LooksAtBothEndsAndTellsEachDay) {
    EventHits hits;
    std::vector<Long> days;
    SearchCycle(3, 0, "emot", hits, [&days](Long day) {
        days.push_back(day);
        return true;
    });
    EXPECT_EQ(days, (std::vector<Long>{0, 1, 2, 3}));
    SearchCycle(14, 0, "emot", hits, alwaysOn);
    EXPECT_EQ(byDay(hits.EmotHits).count(14), 1u);
}

TEST(SearchCycle, EndsAfterTheDayThatIsToBeTheLast) {
    EventHits hits;
    SearchCycle(kHundredYears, 0, "emot", hits, [](Long day) { return day < 14; });
    EXPECT_EQ(byDay(hits.EmotHits),
              (std::map<Long, QString>{{0, kCritical}, {7, kPeak}, {14, kCritical}}));
}

TEST(SearchCombined, FindsTheTriplesOfEveryPeriod) {
    const std::vector<Long> critical{0, 7210, 7854, 9982, 10626, 17836, 18480, 20608};
    std::vector<Long> expected;
    for (Long period = 0; period <= kHundredYears; period += kTripleLength) {
        for (const Long day : critical) {
            if (period + day <= kHundredYears)
                expected.push_back(period + day);
        }
    }
    EventHits hits;
    SearchCombined(kHundredYears, 0, true, kCriticalKind, hits, alwaysOn);
    EXPECT_EQ(triples(hits), expected);
}

// Which cycles share a word on a day.
Together together(Long day, const QString& word) {
    return {kEmotional.at(day) == word, kPhysical.at(day) == word, kIntellectual.at(day) == word};
}

void expectSharedDays(Integer kind, const QString& word) {
    constexpr Long kBase = 123;
    std::map<Long, QString> pairs;
    std::vector<Long> threes;
    for (Long day = 0; day <= kHundredYears; ++day) {
        const Together shared = together(kBase + day, word);
        if (shared.emotional && shared.physical && shared.intellectual)
            threes.push_back(day);
        else if (shared.emotional && shared.physical)
            pairs[day] = QStringLiteral("EP");
        else if (shared.emotional && shared.intellectual)
            pairs[day] = QStringLiteral("EI");
        else if (shared.physical && shared.intellectual)
            pairs[day] = QStringLiteral("PI");
    }
    ASSERT_FALSE(threes.empty());
    EventHits hits;
    SearchCombined(kHundredYears, kBase, false, kind, hits, alwaysOn);
    EXPECT_EQ(byDay(hits.DoubleHits), pairs);
    SearchCombined(kHundredYears, kBase, true, kind, hits, alwaysOn);
    EXPECT_EQ(triples(hits), threes);
}

TEST(SearchCombined, TellsPairsAndTriplesOfEachKindApart) {
    expectSharedDays(kPeakKind, kPeak);
    expectSharedDays(kLowKind, kLow);
    expectSharedDays(kCriticalKind, kCritical);
}

TEST(SearchCombined, FindsATripleAsLateAsItIs) {
    EventHits hits;
    SearchCombined(kHundredYears, 3000, true, kCriticalKind, hits, alwaysOn);
    EXPECT_EQ(triples(hits).back(), 36088);
}

TEST(SearchCombined, LooksAtBothEndsAndTellsEachDay) {
    EventHits hits;
    std::vector<Long> days;
    SearchCombined(3, kTripleLength - 3, true, kCriticalKind, hits, [&days](Long day) {
        days.push_back(day);
        return true;
    });
    EXPECT_EQ(days, (std::vector<Long>{0, 1, 2, 3}));
    EXPECT_EQ(triples(hits), std::vector<Long>{3});
}

TEST(SearchCombined, LeavesATripleOutOfADouble) {
    EventHits hits;
    SearchCombined(5, 0, false, kCriticalKind, hits, alwaysOn);
    EXPECT_EQ(byDay(hits.DoubleHits), (std::map<Long, QString>()));
    SearchCombined(5, 0, true, kCriticalKind, hits, alwaysOn);
    EXPECT_EQ(triples(hits), std::vector<Long>{0});
}

TEST(SearchCombined, EmptiesBothOfItsArraysAndNoOther) {
    EventHits hits;
    SearchCycle(40, 0, "emot", hits, alwaysOn);
    const std::vector<HitRow> emotional = hits.EmotHits;
    SearchCombined(40, 0, true, kCriticalKind, hits, alwaysOn);
    SearchCombined(1000, 0, false, kPeakKind, hits, alwaysOn);
    EXPECT_EQ(hits.TripleHits, std::vector<Long>(1));
    EXPECT_GT(hits.DoubleHits.size(), 1u);
    SearchCombined(40, 0, true, kCriticalKind, hits, alwaysOn);
    EXPECT_EQ(hits.DoubleHits, std::vector<HitRow>(1));
    EXPECT_EQ(hits.EmotHits, emotional);
}

TEST(SearchCombined, SearchesNothingForAnotherKind) {
    for (const Integer kind : {Integer{0}, Integer{4}}) {
        EventHits hits;
        SearchCombined(40, 0, true, kCriticalKind, hits, alwaysOn);
        SearchCombined(40, 0, true, kind, hits, [](Long) {
            ADD_FAILURE() << "no day to look at";
            return true;
        });
        EXPECT_EQ(hits.TripleHits, std::vector<Long>(1));
    }
}

TEST(SearchCombined, EndsAfterTheDayThatIsToBeTheLast) {
    EventHits hits;
    SearchCombined(kHundredYears, 0, true, kCriticalKind, hits,
                   [](Long day) { return day < 7210; });
    EXPECT_EQ(triples(hits), (std::vector<Long>{0, 7210}));
}

TEST(PeaksTogether, LieAboveNinetyNinePerCentInEachCycle) {
    constexpr double kPeak = 0.99;
    constexpr double kAbove = 0.9901;
    const auto peaks = [](double emotional, double physical, double intellectual) {
        const Together together = peaksTogether(emotional, physical, intellectual);
        return std::array{together.emotional, together.physical, together.intellectual};
    };
    EXPECT_EQ(peaks(kPeak, kPeak, kPeak), (std::array{false, false, false}));
    EXPECT_EQ(peaks(kAbove, kPeak, kPeak), (std::array{true, false, false}));
    EXPECT_EQ(peaks(kPeak, kAbove, kPeak), (std::array{false, true, false}));
    EXPECT_EQ(peaks(kPeak, kPeak, kAbove), (std::array{false, false, true}));
}

TEST(LowsTogether, LieBelowMinusNinetyNinePerCentInEachCycle) {
    constexpr double kLow = -0.99;
    constexpr double kBelow = -0.9901;
    const auto lows = [](double emotional, double physical, double intellectual) {
        const Together together = lowsTogether(emotional, physical, intellectual);
        return std::array{together.emotional, together.physical, together.intellectual};
    };
    EXPECT_EQ(lows(kLow, kLow, kLow), (std::array{false, false, false}));
    EXPECT_EQ(lows(kBelow, kLow, kLow), (std::array{true, false, false}));
    EXPECT_EQ(lows(kLow, kBelow, kLow), (std::array{false, true, false}));
    EXPECT_EQ(lows(kLow, kLow, kBelow), (std::array{false, false, true}));
}

TEST(CriticalTogether, HasOpenUpperEndsWhereOneCycleHasClosedOnes) {
    EXPECT_EQ(modCycles::emotionalState(0.1), modCycles::DayState::Critical);
    EXPECT_FALSE(criticalTogether(0.1, 1, 1).emotional);
    EXPECT_EQ(modCycles::physicalState(0.14), modCycles::DayState::Critical);
    EXPECT_FALSE(criticalTogether(1, 0.14, 1).physical);
    EXPECT_EQ(modCycles::intellectualState(0.1), modCycles::DayState::Critical);
    EXPECT_FALSE(criticalTogether(1, 1, 0.1).intellectual);
}

TEST(CriticalTogether, HasClosedLowerEnds) {
    const Together lowest = criticalTogether(-0.1, -0.1, -0.01);
    EXPECT_TRUE(lowest.emotional && lowest.physical && lowest.intellectual);
    const Together below = criticalTogether(-0.1001, -0.1001, -0.01001);
    EXPECT_FALSE(below.emotional || below.physical || below.intellectual);
}

TEST(PairOf, IsTriedInOrderAndIsNoneForOneCycleOrThree) {
    EXPECT_EQ(pairOf({true, true, false}), QLatin1String("EP"));
    EXPECT_EQ(pairOf({true, false, true}), QLatin1String("EI"));
    EXPECT_EQ(pairOf({false, true, true}), QLatin1String("PI"));
    EXPECT_FALSE(pairOf({true, false, false}));
    EXPECT_FALSE(pairOf({false, false, false}));
    EXPECT_FALSE(pairOf({true, true, true}));
}

}  // namespace
