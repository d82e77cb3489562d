// A person as two people are compared, and who else there is for one.
#pragma once

#include <QString>
#include <vector>

#include "cycles/date.h"
#include "cycles/integers.h"
#include "store/item_list.h"

class Recordset;

struct ComparedPerson {
    Long nameId;
    QString name;
    QString firstName;  // empty if there is none
    Date birthdate;
};

// The record set's current person. Raises 3021 if there is none, and 94 for a name or a birth date
// that is Null.
ComparedPerson comparedPerson(const Recordset& person);

// First name first.
QString fullName(const ComparedPerson& person);

// What a window says that compares this person with others.
QString comparisonCaption(const ComparedPerson& person);

// The people of a set from its current row on, in its order, without this one: each by the display
// text and with the NameID as item data.
std::vector<ListEntry> othersThan(const ComparedPerson& person, Recordset& people);

// Whether the favourite of this name is the person's own: its name is the person's, alone or with a
// comma and the first name behind it, blanks at the ends aside.
bool isFavouriteOf(const ComparedPerson& person, const QString& favourite);
