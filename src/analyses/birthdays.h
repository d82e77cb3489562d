// The birthdays of a day.
#pragma once

#include <QString>
#include <vector>

#include "cycles/date.h"
#include "cycles/integers.h"

class Recordset;

struct Birthday {
    QString name;     // first name first
    QString signKey;  // the star sign in small letters
    Long age;         // the one reached in the year of the day; negative before the year of birth

    friend bool operator==(const Birthday&, const Birthday&) = default;
};

// Those of the people whose day and month of birth are those of `date`, in the order of the set.
// Whoever was born on 29 February is among them in leap years alone. Walks the whole set, and
// raises 3021 if there is nobody in it.
std::vector<Birthday> birthdaysOn(Date date, Recordset& people);
