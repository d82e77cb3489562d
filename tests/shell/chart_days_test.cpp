// The days and texts of the main chart.
#include "shell/chart_days.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/recording_host.h"

using namespace modCycles;

namespace {

constexpr Date kBirthdate = DateSerial(1972, 10, 27);
constexpr Date kTenThousandDaysLater = kBirthdate + 10000;

TEST(ChartDays, StartOnTheStartDateAndEndThirtyDaysLater) {
    const auto days = chartDays(kBirthdate, kTenThousandDaysLater);
    ASSERT_EQ(days.size(), 31U);
    EXPECT_EQ(days.front().date, kTenThousandDaysLater);
    EXPECT_EQ(days.back().date, kTenThousandDaysLater + 30);
}

TEST(ChartDays, HoldTheUnroundedValuesOfOneDayCountAndAnOffset) {
    const auto days = chartDays(kBirthdate, kTenThousandDaysLater);
    EXPECT_EQ(days[0].values.emotional, 78.18314824680299);
    EXPECT_EQ(days[7].values.emotional, 62.34898018587336);
    EXPECT_EQ(days[7].values.physical, 51.95839500354331);
    EXPECT_EQ(days[7].values.intellectual, 99.88673391830079);
    EXPECT_EQ(days[7].values.average(), 71.39803636923915);
    for (Integer row = 0; row < kChartDays; ++row)
        EXPECT_EQ(days[static_cast<std::size_t>(row)].values.physical,
                  CalcCycle(10000, row, kPhysicalKey));
}

TEST(ChartDays, AreAllZeroOnTheDayOfBirth) {
    const auto days = chartDays(kBirthdate, kBirthdate);
    EXPECT_EQ(days[0].values.emotional, 0.0);
    EXPECT_EQ(days[0].values.physical, 0.0);
    EXPECT_EQ(days[0].values.intellectual, 0.0);
    EXPECT_EQ(days[0].values.average(), 0.0);
}

TEST(ChartDays, OfTheBlankChartAreThoseOfSomebodyBornToday) {
    const auto blank = blankChartDays(kTenThousandDaysLater);
    EXPECT_EQ(blank.front().date, kTenThousandDaysLater);
    for (Integer row = 0; row < kChartDays; ++row)
        EXPECT_EQ(blank[static_cast<std::size_t>(row)].values.emotional,
                  CalcCycle(0, row, kEmotionalKey));
}

TEST(ChartDays, BeyondTheLastDateRaise) {
    EXPECT_THROW(chartDays(kBirthdate, DateSerial(9999, 12, 2)), std::overflow_error);
    EXPECT_NO_THROW(chartDays(kBirthdate, DateSerial(9999, 12, 1)));
}

TEST(ChartTitle, NamesThePerson) {
    EXPECT_EQ(chartTitle(QStringLiteral("Anna Smith")), QStringLiteral("Biorhythm for Anna Smith"));
}

TEST(ChartTitle, TellsAQuickChartAndABlankOneFromAPersons) {
    EXPECT_EQ(quickChartTitle(), QStringLiteral("Quick biorhythm"));
    EXPECT_EQ(blankChartTitle(), QStringLiteral("Biorhythm for <unspecified>"));
}

TEST(QuickDate, IsRefusedOnlyBeforeTheEarliestDateOfTheCalendar) {
    EXPECT_TRUE(isQuickDateRefused(kBirthdate + -1, kBirthdate));
    EXPECT_FALSE(isQuickDateRefused(kBirthdate, kBirthdate));
    EXPECT_FALSE(isQuickDateRefused(kEarliestCalendarDate, kEarliestCalendarDate));
    EXPECT_EQ(quickDateRefusal(), QStringLiteral("Invalid date."));
}

class DayTexts : public testing::Test {
  protected:
    RecordingHost host_;
};

TEST_F(DayTexts, GiveTheDayAndItsFourRoundedValues) {
    const ChartDay day{DateSerial(2000, 3, 14),
                       {62.34898018587336, 51.95839500354331, 99.88673391830079}};
    EXPECT_EQ(dayPanelText(day),
              QStringLiteral("14/03/2000:   Emotional: 62%, Physical: 52%, Intellectual: 100%, "
                             "Average: 71%"));
}

TEST_F(DayTexts, GiveAPointWithoutItsAverage) {
    EXPECT_EQ(pointText(DateSerial(2000, 3, 14), {62.3, -51.9, 99.8}),
              QStringLiteral("14/03/2000: Emot.: 62%, Phys.: -52%, Intel.: 100%"));
}

TEST_F(DayTexts, NeverSayMinusZero) {
    const CycleValues values = CalcCycles(0, 28);
    ASSERT_LT(values.emotional, 0);
    EXPECT_TRUE(pointText(DateSerial(2000, 3, 14), values)
                    .startsWith(QStringLiteral("14/03/2000: Emot.: 0%, ")));
    EXPECT_TRUE(dayPanelText(chartDays(kBirthdate, kTenThousandDaysLater)[0])
                    .endsWith(QStringLiteral("Average: 0%")));
}

}  // namespace
