// The rows of a group, without a window.
#include "analyses/group_row.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "cycles/calendar.h"
#include "runtime/numbers.h"

using modCycles::DateSerial;

namespace {

constexpr QStringView kBefore = u"-";
constexpr QStringView kAfter = u"+";

const Date kBirth = DateSerial(1970, 5, 20);

// The cells of somebody of the name "x", divided by bars.
QString rowOn(Long day) {
    return groupRow(QStringLiteral("x"), kBirth, kBirth + day).replace(u'\t', u'|');
}

TEST(Marks, TellWhichOfTwoDaysIsHigher) {
    EXPECT_EQ(markBefore(0.2, 0.1), QStringLiteral("^"));
    EXPECT_EQ(markBefore(0.1, 0.2), QStringLiteral("v"));
    EXPECT_EQ(markAfter(0.2, 0.1), QStringLiteral("v"));
    EXPECT_EQ(markAfter(0.1, 0.2), QStringLiteral("^"));
}

TEST(Marks, OfEqualDaysAreDownBeforeAndUpAfter) {
    EXPECT_EQ(markBefore(0.1, 0.1), QStringLiteral("v"));
    EXPECT_EQ(markAfter(0.1, 0.1), QStringLiteral("^"));
}

TEST(UpDown, RisesIntoTheBirthAndOutOfIt) {
    for (const char* cycle : {"emot", "phys", "intel"}) {
        EXPECT_EQ(UpDown(0, kBefore, cycle), QStringLiteral("^"));
        EXPECT_EQ(UpDown(0, kAfter, cycle), QStringLiteral("^"));
    }
}

TEST(UpDown, TurnsAtAPeakAndAtALow) {
    EXPECT_EQ(UpDown(7, kBefore, "emot"), QStringLiteral("^"));
    EXPECT_EQ(UpDown(7, kAfter, "emot"), QStringLiteral("v"));
    EXPECT_EQ(UpDown(21, kBefore, "emot"), QStringLiteral("v"));
    EXPECT_EQ(UpDown(21, kAfter, "emot"), QStringLiteral("^"));
}

TEST(UpDown, FollowsTheUnroundedValuesOfEveryDay) {
    for (Long day = 1; day < 28; ++day) {
        const bool falls = day > 7 && day <= 21;
        EXPECT_EQ(UpDown(day, kBefore, "emot"), falls ? QStringLiteral("v") : QStringLiteral("^"))
            << day;
    }
    for (Long day = 0; day < 28; ++day) {
        const bool falls = day >= 7 && day < 21;
        EXPECT_EQ(UpDown(day, kAfter, "emot"), falls ? QStringLiteral("v") : QStringLiteral("^"))
            << day;
    }
}

TEST(UpDown, TakesWhateverIsNotBeforeForAfter) {
    EXPECT_EQ(UpDown(7, u"", "emot"), QStringLiteral("v"));
    EXPECT_EQ(UpDown(7, u"x", "emot"), QStringLiteral("v"));
}

TEST(UpDown, IsEmptyForNoKeyOfACycle) {
    EXPECT_EQ(UpDown(7, kBefore, "Emot"), QString());
    EXPECT_EQ(UpDown(7, kAfter, ""), QString());
}

TEST(GroupRow, IsTheNameAndThreeCellsForEachCycle) {
    EXPECT_EQ(rowOn(7), QStringLiteral("x|^|100%|v|v|94%|v|^|97%|^"));
}

TEST(GroupRow, RoundsItsPercentages) {
    EXPECT_EQ(rowOn(5), QStringLiteral("x|^|90%|^|^|98%|^|^|81%|^"));
    EXPECT_EQ(rowOn(19), QStringLiteral("x|v|-90%|v|^|-89%|^|v|-46%|v"));
}

TEST(GroupRow, ShowsItsTextAsItStands) {
    EXPECT_TRUE(
        groupRow(QStringLiteral(" x "), kBirth, kBirth).startsWith(QStringLiteral(" x \t")));
}

TEST(GroupRow, IsZeroOnTheDayOfBirth) {
    EXPECT_EQ(rowOn(0), QStringLiteral("x|^|0%|^|^|0%|^|^|0%|^"));
}

// Five days before the birth the day count is 5, and falls with time.
TEST(GroupRow, PointsAgainstTheCalendarBeforeTheBirth) {
    EXPECT_EQ(rowOn(-5), rowOn(5));
}

TEST(GroupRow, HasNoMinusBeforeAZero) {
    EXPECT_TRUE(rowOn(14).startsWith(QStringLiteral("x|v|0%|v|")));
    EXPECT_TRUE(rowOn(28).startsWith(QStringLiteral("x|^|0%|^|")));
}

TEST(SetColour, GoesByTheSignOfTheNumber) {
    EXPECT_EQ(SetColour(u"-12%"), 0xFF0000);
    EXPECT_EQ(SetColour(u"0%"), 0x0000FF);
    EXPECT_EQ(SetColour(u"1%"), 0xFF00FF);
    EXPECT_EQ(SetColour(u"100%"), 0xFF00FF);
    EXPECT_EQ(SetColour(u""), 0x0000FF);
}

TEST(SetColour, GoesByTheRoundedNumber) {
    for (const double percent : {-0.4, -0.5, 0.5})
        EXPECT_EQ(SetColour(percentText(percent)), 0x0000FF) << percent;
    EXPECT_EQ(SetColour(percentText(-1.5)), 0xFF0000);
    EXPECT_EQ(SetColour(percentText(1.5)), 0xFF00FF);
}

}  // namespace
