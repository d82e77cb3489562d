// The table behind GetStarSign.
#include "cycles/star_sign.h"

#include <array>

#include "cycles/calendar.h"

namespace modCycles {

namespace {

struct SignsOfMonth {
    Integer lastDayOfFirst;
    std::string_view first;
    std::string_view second;
};

constexpr std::array<SignsOfMonth, 12> kSignsByMonth{{
    {19, "Capricorn", "Aquarius"},
    {18, "Aquarius", "Pisces"},
    {20, "Pisces", "Aries"},
    {19, "Aries", "Taurus"},
    {20, "Taurus", "Gemini"},
    {20, "Gemini", "Cancer"},
    {22, "Cancer", "Leo"},
    {22, "Leo", "Virgo"},
    {22, "Virgo", "Libra"},
    {22, "Libra", "Scorpio"},
    {21, "Scorpio", "Sagittarius"},
    {21, "Sagittarius", "Capricorn"},
}};

}  // namespace

std::string_view GetStarSign(Date date) {
    const SignsOfMonth& signs = kSignsByMonth[static_cast<std::size_t>(Month(date) - 1)];
    return Day(date) <= signs.lastDayOfFirst ? signs.first : signs.second;
}

}  // namespace modCycles
