// Two birth dates compared, as it is shown.
#pragma once

#include <QString>

#include "cycles/cycle.h"
#include "cycles/date.h"

// How well two people match in one cycle.
struct CycleMatch {
    QString percent;  // rounded
    QString level;    // the same in words

    friend bool operator==(const CycleMatch&, const CycleMatch&) = default;
};

struct BirthdateMatch {
    modCycles::CycleValues percentages;  // unrounded
    CycleMatch emotional;
    CycleMatch physical;
    CycleMatch intellectual;
    QString average;  // rounded from the unrounded average
    QString advice;
    QString sign;  // the line that names the star sign of the second date
};

// Compares a person's birth date with another date. Which of them is earlier has no weight.
BirthdateMatch matchBirthdates(Date birthdate, Date other);
