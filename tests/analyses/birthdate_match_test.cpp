// Two birth dates compared, without a window.
#include "analyses/birthdate_match.h"

#include <gtest/gtest.h>

#include "analyses/compat_verdict.h"
#include "cycles/calendar.h"
#include "support/printing.h"

using namespace modCycles;

namespace {

const Date kBorn = DateSerial(1972, 10, 20);

BirthdateMatch matchAfter(int days) {
    return matchBirthdates(kBorn, kBorn + days);
}

}  // namespace

TEST(BirthdateMatch, OfADateWithItselfIsWholeAndWarned) {
    const BirthdateMatch match = matchAfter(0);
    const CycleMatch whole{QStringLiteral("100%"),
                           QStringLiteral("Always or almost always compatible")};
    EXPECT_EQ(match.emotional, whole);
    EXPECT_EQ(match.physical, whole);
    EXPECT_EQ(match.intellectual, whole);
    EXPECT_EQ(match.average, QStringLiteral("100%"));
    EXPECT_EQ(match.advice, CompatAdviceText(100, 100, 100));
    EXPECT_TRUE(match.advice.contains(QStringLiteral("(90% or higher)")));
}

TEST(BirthdateMatch, KeepsEachCycleApartAndItsPercentageUnrounded) {
    const BirthdateMatch match = matchAfter(27);
    EXPECT_EQ(match.percentages.emotional, CalcCompat(27, 0));
    EXPECT_EQ(match.percentages.physical, CalcCompat(27, 1));
    EXPECT_EQ(match.percentages.intellectual, CalcCompat(27, 2));
    EXPECT_EQ(match.emotional.percent, QStringLiteral("93%"));
    EXPECT_EQ(match.physical.percent, QStringLiteral("65%"));
    EXPECT_EQ(match.intellectual.percent, QStringLiteral("64%"));
    EXPECT_EQ(match.emotional.level, QStringLiteral("Always or almost always compatible"));
    EXPECT_EQ(match.physical.level, QStringLiteral("Most of the time compatible"));
    EXPECT_EQ(match.intellectual.level, QStringLiteral("Most of the time compatible"));
    EXPECT_EQ(match.average, QStringLiteral("74%"));
}

TEST(BirthdateMatch, IsTheSameSoManyDaysBeforeAsAfter) {
    for (const int days : {1, 14, 100, 9999}) {
        const BirthdateMatch after = matchAfter(days);
        const BirthdateMatch before = matchAfter(-days);
        EXPECT_EQ(after.emotional, before.emotional) << days;
        EXPECT_EQ(after.physical, before.physical) << days;
        EXPECT_EQ(after.intellectual, before.intellectual) << days;
        EXPECT_EQ(after.average, before.average) << days;
        EXPECT_EQ(after.advice, before.advice) << days;
    }
}

TEST(BirthdateMatch, RoundsTheAverageOfTheUnroundedPercentages) {
    // 85.71, 82.61 and 87.88 per cent: 85.40 on average, though 85.67 of the rounded ones.
    const BirthdateMatch match = matchAfter(2);
    EXPECT_EQ(match.average, QStringLiteral("85%"));
    EXPECT_EQ(match.percentages.average(),
              (CalcCompat(2, 1) + CalcCompat(2, 0) + CalcCompat(2, 2)) / 3);
}

TEST(BirthdateMatch, TakesItsAdviceFromTheRoundedPercentagesOfTheCyclesAlone) {
    for (int days = 0; days < 28 * 23 * 33; ++days) {
        const BirthdateMatch match = matchAfter(days);
        const auto rounded = [](const CycleMatch& cycle) {
            return static_cast<Integer>(QString(cycle.percent).remove(u'%').toInt());
        };
        ASSERT_EQ(match.advice, CompatAdviceText(rounded(match.emotional), rounded(match.physical),
                                                 rounded(match.intellectual)))
            << days;
    }
}

TEST(BirthdateMatch, TellsTheStarSignOfTheOtherDate) {
    EXPECT_EQ(matchBirthdates(kBorn, DateSerial(1990, 5, 5)).sign,
              QStringLiteral("Star sign: Taurus"));
    EXPECT_EQ(matchBirthdates(DateSerial(1990, 5, 5), kBorn).sign,
              QStringLiteral("Star sign: Libra"));
}
