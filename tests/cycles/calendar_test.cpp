// The calendar, walked day by day, and dates built with carry.
#include "cycles/calendar.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

using namespace modCycles;

static_assert(DateSerial(1899, 12, 30) == Date(0));
static_assert(DateSerial(1753, 1, 1) == Date(-53688));
static_assert(DateSerial(2000, 3, 14) == Date(36599));
static_assert(DateSerial(100, 1, 1) == Date(Date::kEarliestDay));
static_assert(DateSerial(9999, 12, 31) == Date(Date::kLatestDay));

static_assert(DateSerial(2000, 2, 29) + 1 == DateSerial(2000, 3, 1));
static_assert(DateSerial(1900, 2, 28) + 1 == DateSerial(1900, 3, 1));
static_assert(DateSerial(2004, 2, 29) + 1 == DateSerial(2004, 3, 1));
static_assert(DateSerial(2001, 2, 28) + 1 == DateSerial(2001, 3, 1));

static_assert(DayOfWeek(DateSerial(2000, 3, 14)) == 2);   // a Tuesday
static_assert(DayOfWeek(DateSerial(1899, 12, 30)) == 6);  // a Saturday

namespace {

// A calendar that knows no arithmetic: it goes on by one day at a time, as a wall calendar does.
struct WallCalendar {
    int year;
    int month;
    int day;
    int weekday;  // 1 (Monday) to 7

    friend bool operator==(const WallCalendar&, const WallCalendar&) = default;
    friend std::ostream& operator<<(std::ostream& out, const WallCalendar& page) {
        return out << page.year << '-' << page.month << '-' << page.day << ", weekday "
                   << page.weekday;
    }

    bool isLeapYear() const { return year % 400 == 0 || (year % 4 == 0 && year % 100 != 0); }

    int daysInMonth() const {
        switch (month) {
            case 2:
                return isLeapYear() ? 29 : 28;
            case 4:
            case 6:
            case 9:
            case 11:
                return 30;
            default:
                return 31;
        }
    }

    void turn() {
        weekday = weekday % 7 + 1;
        if (++day <= daysInMonth())
            return;
        day = 1;
        if (++month <= 12)
            return;
        month = 1;
        ++year;
    }
};

WallCalendar pageOf(Date date) {
    return {Year(date), Month(date), Day(date), DayOfWeek(date)};
}

}  // namespace

TEST(Calendar, IsRightOnEveryDayFrom100To9999) {
    WallCalendar page{100, 1, 1, 5};  // a Friday
    for (Date date(Date::kEarliestDay);; date = date + 1, page.turn()) {
        ASSERT_EQ(pageOf(date), page);
        ASSERT_EQ(DateSerial(page.year, page.month, page.day), date) << page;
        if (date == Date(Date::kLatestDay))
            break;
    }
    EXPECT_EQ(page, (WallCalendar{9999, 12, 31, 5}));
}

TEST(Calendar, TakesADateWithATimeApartAsItsDay) {
    EXPECT_EQ(pageOf(DateSerial(2000, 2, 29) + 0.999), pageOf(DateSerial(2000, 2, 29)));
    const Date before = DateSerial(1800, 2, 28);
    EXPECT_EQ(pageOf(Date(before.serial() - 0.999)), pageOf(before));
}

TEST(DateSerial, CarriesADayBeyondItsMonth) {
    EXPECT_EQ(DateSerial(2001, 2, 31), DateSerial(2001, 3, 3));
    EXPECT_EQ(DateSerial(2000, 2, 31), DateSerial(2000, 3, 2));
    EXPECT_EQ(DateSerial(2001, 12, 32), DateSerial(2002, 1, 1));
    EXPECT_EQ(DateSerial(2001, 1, 366), DateSerial(2002, 1, 1));
}

TEST(DateSerial, CarriesADayBeforeItsMonth) {
    EXPECT_EQ(DateSerial(2001, 1, 0), DateSerial(2000, 12, 31));
    EXPECT_EQ(DateSerial(2001, 3, 0), DateSerial(2001, 2, 28));
    EXPECT_EQ(DateSerial(2000, 3, -28), DateSerial(2000, 2, 1));
}

TEST(DateSerial, CarriesAMonthBeyondItsYear) {
    EXPECT_EQ(DateSerial(2001, 13, 31), DateSerial(2002, 1, 31));
    EXPECT_EQ(DateSerial(2001, 14, 31), DateSerial(2002, 3, 3));
    EXPECT_EQ(DateSerial(2000, 25, 1), DateSerial(2002, 1, 1));
}

TEST(DateSerial, CarriesAMonthBeforeItsYear) {
    EXPECT_EQ(DateSerial(2001, 0, 31), DateSerial(2000, 12, 31));
    EXPECT_EQ(DateSerial(2001, -10, 31), DateSerial(2000, 3, 2));
    EXPECT_EQ(DateSerial(2001, -12, 1), DateSerial(1999, 12, 1));
}

TEST(DateSerial, RollsAnImpossibleDayOneMonthAwayIntoTheNext) {
    EXPECT_EQ(DateSerial(2001, 3 - 1, 31), DateSerial(2001, 3, 3));
    EXPECT_EQ(DateSerial(2001, 1 + 1, 31), DateSerial(2001, 3, 3));
    EXPECT_EQ(DateSerial(2000 - 1, 2, 29), DateSerial(1999, 3, 1));
}

TEST(DateSerial, AllowsACarryFromOutsideTheRangeIntoIt) {
    EXPECT_EQ(DateSerial(10000, 1, 0), Date(Date::kLatestDay));
    EXPECT_EQ(DateSerial(99, 13, 1), Date(Date::kEarliestDay));
}

TEST(DateSerial, RaisesBeyondTheRange) {
    EXPECT_THROW(DateSerial(9999, 12, 32), std::out_of_range);
    EXPECT_THROW(DateSerial(9999, 13, 1), std::out_of_range);
    EXPECT_THROW(DateSerial(10000, 1, 1), std::out_of_range);
    EXPECT_THROW(DateSerial(100, 1, 0), std::out_of_range);
    EXPECT_THROW(DateSerial(99, 12, 31), std::out_of_range);
}

TEST(DateSerial, RaisesAtTheEndsOfItsArguments) {
    constexpr Long kMost = std::numeric_limits<Long>::max();
    constexpr Long kLeast = std::numeric_limits<Long>::min();
    EXPECT_THROW(DateSerial(kMost, kMost, kMost), std::out_of_range);
    EXPECT_THROW(DateSerial(kLeast, kLeast, kLeast), std::out_of_range);
}
