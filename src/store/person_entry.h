// The texts by which people are shown.
#pragma once

#include "store/value.h"

class Recordset;

// The display text of a person: "Name, FName", or the name alone where there is no first name. A
// first name of blanks is a first name. Every list shows it, and a favourite is found by it.
QString displayText(const Value& name, const Value& firstName);

// The full name of a person, first name first, without blanks at its ends: for titles and reports.
QString fullName(const Value& name, const Value& firstName);

// The same of the record set's current row.
QString displayText(const Recordset& person);
QString fullName(const Recordset& person);
