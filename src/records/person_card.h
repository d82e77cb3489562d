// What a person's card says.
#pragma once

#include <QString>

#include "cycles/date.h"
#include "cycles/integers.h"

class Recordset;
class Value;

struct PersonCard {
    QString name;   // the full name, with the age in brackets
    QString birth;  // the date of birth in full
    QString notes;
    bool isMale;
    QString sign;  // the star sign, as it is spelled
};

// The card of the record set's current person. Raises 3021 if there is none, and 94 for a date of
// birth that is Null. Notes may be Null, which is no note.
PersonCard personCard(const Recordset& person, Date today);

// The full name with the age behind it, in brackets. Blanks are taken away at the ends of the
// whole alone. The first name may be Null or empty.
QString cardName(const Value& firstName, const Value& name, Long age);
