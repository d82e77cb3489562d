// The compatibility verdict: each band and each rule, at their edges.
#include "analyses/compat_verdict.h"

#include <gtest/gtest.h>

#include "support/errors.h"
#include "support/printing.h"

using namespace modCycles;

namespace {

const QString kNone = QStringLiteral("No or extremely low compatibility");
const QString kSometimes = QStringLiteral("Sometimes Compatible");
const QString kHalf = QStringLiteral("Half the time compatible");
const QString kMost = QStringLiteral("Most of the time compatible");
const QString kAlways = QStringLiteral("Always or almost always compatible");

const QString kVery = QStringLiteral(
    "These two people are very compatible. Most successful marriages have this compatibility "
    "pattern. An example is the relationship between Tobias and Ada Merrow, who were married for "
    "82 years.");
const QString kWarning = QStringLiteral(
    " However, since one or more of the cycles have an extreme compatibility (90% or higher), "
    "rivalry or arguements are likely to occur in due time. Extreme compatibility should be "
    "avoided, since neither partner will find the relationship completely satisfying.");
const QString kNoChance = QStringLiteral(
    "This relationship probably doesn't stand much of a chance. Extreme compatibilities, either "
    "high or low, should be avoided.");
const QString kAverage = QStringLiteral("This relationship is rather average.");
const QString kTwoHigh = QStringLiteral(
    "Many relationships have high compatibility in two cycles. Both partners are satisfied enough "
    "to spend their life together.");
const QString kOneHigh = QStringLiteral(
    "Relationships with one cycle compatibility of 50% or higher can last, but are rarely "
    "satisfying for both partners.");

struct Percentages {
    Integer emotional;
    Integer physical;
    Integer intellectual;
};

// The advice is the same whichever cycle has which percentage.
void expectAdvice(const Percentages& percent, const QString& advice) {
    const auto& [a, b, c] = percent;
    for (const Percentages& order :
         {Percentages{a, b, c}, Percentages{b, c, a}, Percentages{c, a, b}, Percentages{c, b, a}})
        EXPECT_EQ(CompatAdviceText(order.emotional, order.physical, order.intellectual), advice)
            << order.emotional << ' ' << order.physical << ' ' << order.intellectual;
}

}  // namespace

TEST(CompatLevelText, ChangesAtTheEndOfEachBand) {
    const std::pair<double, QString> levels[] = {
        {0, kNone},  {19, kNone}, {20, kSometimes}, {39, kSometimes}, {40, kHalf},
        {59, kHalf}, {60, kMost}, {79, kMost},      {80, kAlways},    {100, kAlways}};
    for (const auto& [percent, phrase] : levels)
        EXPECT_EQ(CompatLevelText(percent), phrase) << percent;
}

TEST(CompatLevelText, IsEmptyOutsideTheBands) {
    for (const double percent : {-1.0, 101.0, 100.6, -0.6, 32000.0})
        EXPECT_EQ(CompatLevelText(percent), QString()) << percent;
}

TEST(CompatLevelText, RoundsHalfToEvenFirst) {
    EXPECT_EQ(CompatLevelText(19.5), kSometimes);
    EXPECT_EQ(CompatLevelText(19.4), kNone);
    EXPECT_EQ(CompatLevelText(39.5), kHalf);
    EXPECT_EQ(CompatLevelText(20.5), kSometimes);
    EXPECT_EQ(CompatLevelText(79.49), kMost);
    EXPECT_EQ(CompatLevelText(100.5), kAlways);
    EXPECT_EQ(CompatLevelText(-0.5), kNone);
}

TEST(CompatLevelText, RaisesAnErrorForWhatIsNoPercentageAtAll) {
    EXPECT_EQ(errorOf([] { CompatLevelText(1e300); }), 6);
}

TEST(CompatAdviceText, PraisesThreeHighCycles) {
    expectAdvice({50, 50, 50}, kVery);
    expectAdvice({89, 89, 89}, kVery);
    expectAdvice({50, 70, 89}, kVery);
}

TEST(CompatAdviceText, WarnsOfAnExtremeOneAmongThreeHighCycles) {
    expectAdvice({90, 50, 50}, kVery + kWarning);
    expectAdvice({90, 90, 50}, kVery + kWarning);
    expectAdvice({100, 100, 100}, kVery + kWarning);
}

TEST(CompatAdviceText, WarnsInItsOwnSpellingBehindOneBlank) {
    const QString text = CompatAdviceText(100, 100, 100);
    EXPECT_TRUE(text.contains(QStringLiteral("82 years. However, since")));
    EXPECT_TRUE(text.contains(QStringLiteral("rivalry or arguements are")));
}

TEST(CompatAdviceText, WarnsOnlyWhereAllThreeAreHigh) {
    expectAdvice({95, 40, 40}, kOneHigh);
    expectAdvice({95, 95, 49}, kTwoHigh);
}

TEST(CompatAdviceText, GivesThreeVeryLowCyclesNoChance) {
    expectAdvice({10, 10, 10}, kNoChance);
    expectAdvice({0, 5, 10}, kNoChance);
    expectAdvice({0, 0, 0}, kNoChance);
}

TEST(CompatAdviceText, CallsThreeLowCyclesAverage) {
    expectAdvice({11, 10, 10}, kAverage);
    expectAdvice({49, 0, 0}, kAverage);
    expectAdvice({49, 49, 49}, kAverage);
}

TEST(CompatAdviceText, TellsOfTwoHighCycles) {
    expectAdvice({50, 50, 49}, kTwoHigh);
    expectAdvice({100, 0, 50}, kTwoHigh);
}

TEST(CompatAdviceText, TellsOfOneHighCycle) {
    expectAdvice({49, 49, 50}, kOneHigh);
    expectAdvice({100, 0, 0}, kOneHigh);
    expectAdvice({10, 10, 50}, kOneHigh);
}
