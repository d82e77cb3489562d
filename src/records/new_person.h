// A person as the wizard asks for one: the summary, and the fields of the record.
#pragma once

#include <QString>
#include <utility>
#include <vector>

#include "cycles/date.h"
#include "cycles/integers.h"
#include "store/value.h"

// What has been entered, with the blanks at its ends.
struct NewPerson {
    QString firstName;
    QString name;
    Date birthdate;
    bool isFemale;
    QString notes;
};

// The word for a gender.
QString genderCaption(bool isFemale);

// What the user checks before the person is written. Its lines end in CR LF.
QString newPersonSummary(const NewPerson& person, const QString& category);

// The fields to write, in their order. First name and notes are among them only where they have a
// text, so that they stay Null otherwise; a name may be empty.
std::vector<std::pair<QString, Value>> newPersonFields(const NewPerson& person, Long catId);
