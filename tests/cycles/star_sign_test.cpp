// The star signs, on both sides of every change.
#include "cycles/star_sign.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

#include "cycles/calendar.h"

using namespace modCycles;

namespace {

// A person without a birth date has no sign: there is no date to ask with.
static_assert(!std::is_invocable_v<decltype(GetStarSign), std::nullptr_t>);
static_assert(!std::is_invocable_v<decltype(GetStarSign)>);

struct Change {
    Integer month;
    Integer lastDay;
    std::string_view until;
    std::string_view after;
};

constexpr std::array<Change, 12> kChanges{{
    {1, 19, "Capricorn", "Aquarius"},
    {2, 18, "Aquarius", "Pisces"},
    {3, 20, "Pisces", "Aries"},
    {4, 19, "Aries", "Taurus"},
    {5, 20, "Taurus", "Gemini"},
    {6, 20, "Gemini", "Cancer"},
    {7, 22, "Cancer", "Leo"},
    {8, 22, "Leo", "Virgo"},
    {9, 22, "Virgo", "Libra"},
    {10, 22, "Libra", "Scorpio"},
    {11, 21, "Scorpio", "Sagittarius"},
    {12, 21, "Sagittarius", "Capricorn"},
}};

}  // namespace

TEST(GetStarSign, ChangesOnceAMonth) {
    for (const Change& change : kChanges) {
        const Date lastDay = DateSerial(2001, change.month, change.lastDay);
        EXPECT_EQ(GetStarSign(lastDay), change.until) << change.month;
        EXPECT_EQ(GetStarSign(lastDay + 1), change.after) << change.month;
    }
}

TEST(GetStarSign, StaysTheSameOverTheEndOfEveryMonth) {
    for (const Change& change : kChanges) {
        EXPECT_EQ(GetStarSign(DateSerial(2001, change.month, 1)), change.until);
        EXPECT_EQ(GetStarSign(DateSerial(2001, change.month + 1, 0)), change.after);
    }
}

TEST(GetStarSign, IsCapricornOnBothSidesOfNewYear) {
    EXPECT_EQ(GetStarSign(DateSerial(2000, 12, 31)), "Capricorn");
    EXPECT_EQ(GetStarSign(DateSerial(2001, 1, 1)), "Capricorn");
}

TEST(GetStarSign, IsPiscesOnTheLeapDay) {
    EXPECT_EQ(GetStarSign(DateSerial(2000, 2, 29)), "Pisces");
}

TEST(GetStarSign, DoesNotDependOnTheYearOrTheTime) {
    for (const Long year : {100, 1753, 1899, 1900, 2000, 2004, 9999}) {
        for (const Change& change : kChanges) {
            const Date lastDay = DateSerial(year, change.month, change.lastDay);
            EXPECT_EQ(GetStarSign(lastDay), change.until) << year;
            EXPECT_EQ(GetStarSign(Date(lastDay.serial() + (lastDay < Date(0) ? -0.9 : 0.9))),
                      change.until)
                << year;
        }
    }
}
