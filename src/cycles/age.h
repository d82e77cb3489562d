// The age of a person.
#pragma once

#include "cycles/calendar.h"

namespace modCycles {

// The age in years on a day; negative before the birth. Somebody born on 29 February grows older on
// 1 March of a common year.
constexpr Long ageOn(Date day, Date birthdate) {
    const Date birthday = DateSerial(Year(day), Month(birthdate), Day(birthdate));
    const Long years = Year(day) - Year(birthdate);
    return day < birthday ? years - 1 : years;
}

}  // namespace modCycles
