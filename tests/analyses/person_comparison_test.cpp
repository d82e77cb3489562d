// Two people compared: the texts and the charts, without a window.
#include "analyses/person_comparison.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/recording_host.h"

using namespace modCycles;

namespace {

const Date kBorn = DateSerial(1972, 10, 20);
const Date kStart = DateSerial(2000, 3, 14);

const ComparedPerson kAnna{.nameId = 1,
                           .name = QStringLiteral("Smith"),
                           .firstName = QStringLiteral("Anna"),
                           .birthdate = kBorn};

class PersonComparisonTest : public testing::Test {
  protected:
    static ComparedPerson zedBorn(Date birthdate) {
        return {
            .nameId = 2, .name = QStringLiteral("Zed"), .firstName = {}, .birthdate = birthdate};
    }

    static PersonComparison withZedBorn(Date birthdate) {
        return comparePeople(kAnna, zedBorn(birthdate), kStart);
    }

    RecordingHost host_;
};

TEST_F(PersonComparisonTest, MatchesTheBirthDatesOfTheTwo) {
    const BirthdateMatch match = withZedBorn(kBorn + 27).match;
    EXPECT_EQ(match.emotional.percent, QStringLiteral("93%"));
    EXPECT_EQ(match.advice, matchBirthdates(kBorn, kBorn + 27).advice);
    EXPECT_EQ(match.sign, QStringLiteral("Star sign: Scorpio"));
}

TEST_F(PersonComparisonTest, OfTwoWhoWereBornOnOneDayIsWholeAndWarned) {
    const PersonComparison comparison = withZedBorn(kBorn);
    EXPECT_EQ(comparison.bars.table.columns,
              (std::vector<std::vector<double>>{{100}, {100}, {100}, {100}}));
    EXPECT_EQ(comparison.thermometer, QStringLiteral("Compatibility thermometer: 100%"));
    EXPECT_TRUE(comparison.match.advice.contains(QStringLiteral("However,")));
}

TEST_F(PersonComparisonTest, ReadsTheAverageRoundedFromTheThermometer) {
    // 85.40 per cent.
    EXPECT_EQ(withZedBorn(kBorn + 2).thermometer, QStringLiteral("Compatibility thermometer: 85%"));
}

TEST_F(PersonComparisonTest, HasOneRowOfFourBarsUnroundedAndWithoutALabel) {
    const ChartTable bars = withZedBorn(kBorn + 27).bars.table;
    EXPECT_EQ(bars.rowLabels, QStringList(QString()));
    const std::vector<std::vector<double>> expected{
        {CalcCompat(27, 0)},
        {CalcCompat(27, 1)},
        {CalcCompat(27, 2)},
        {(CalcCompat(27, 1) + CalcCompat(27, 0) + CalcCompat(27, 2)) / 3}};
    EXPECT_EQ(bars.columns, expected);
}

TEST_F(PersonComparisonTest, RoundsInTheLegendOfTheBars) {
    const std::array<QString, 4> expected{
        QStringLiteral("Emot.: (93%)"), QStringLiteral("Phys.: (65%)"),
        QStringLiteral("Intel.: (64%)"), QStringLiteral("Avg: (74%)")};
    EXPECT_EQ(withZedBorn(kBorn + 27).bars.legend, expected);
}

TEST_F(PersonComparisonTest, NamesBothInTheTitleAndInTheTipOfTheLines) {
    const PersonComparison comparison = withZedBorn(kBorn + 27);
    EXPECT_EQ(comparison.bars.title, QStringLiteral("Anna Smith and Zed"));
    EXPECT_EQ(comparison.lines.toolTip, QStringLiteral("Solid: Anna Smith     Dotted: Zed"));
}

TEST_F(PersonComparisonTest, HasThirtyOneDaysOfTheCyclesOfBoth) {
    const Date born = DateSerial(1985, 1, 31);
    const ChartTable lines = withZedBorn(born).lines.table;
    ASSERT_EQ(lines.rowLabels.size(), 31);
    ASSERT_EQ(lines.columns.size(), 6U);
    EXPECT_EQ(lines.rowLabels.first(), QStringLiteral("14/03/2000"));
    EXPECT_EQ(lines.rowLabels.last(), QStringLiteral("13/04/2000"));
    const Long days = DayCount(kBorn, kStart);
    const Long otherDays = DayCount(born, kStart);
    for (std::size_t row = 0; row < 31; ++row) {
        const auto offset = static_cast<Integer>(row);
        EXPECT_EQ(lines.columns[0][row], CalcCycle(days, offset, "emot"));
        EXPECT_EQ(lines.columns[1][row], CalcCycle(days, offset, "phys"));
        EXPECT_EQ(lines.columns[2][row], CalcCycle(days, offset, "intel"));
        EXPECT_EQ(lines.columns[3][row], CalcCycle(otherDays, offset, "emot"));
        EXPECT_EQ(lines.columns[4][row], CalcCycle(otherDays, offset, "phys"));
        EXPECT_EQ(lines.columns[5][row], CalcCycle(otherDays, offset, "intel"));
    }
}

// Ten days before the birth the cycles stand where they stand ten days after it, and rise on from
// there day by day.
TEST_F(PersonComparisonTest, RunsForwardFromTheMirroredDayOfWhoeverIsBornLater) {
    const ChartTable lines = withZedBorn(kStart + 10).lines.table;
    for (std::size_t row = 0; row < 31; ++row)
        EXPECT_EQ(lines.columns[3][row], CalcCycle(10, static_cast<Integer>(row), "emot"));
}

}  // namespace
