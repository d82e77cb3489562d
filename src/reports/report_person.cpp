// The values of a person's row as words.
#include "reports/report_person.h"

#include "cycles/star_sign.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/person_entry.h"
#include "store/recordset.h"

namespace {

QString genderWord(const Value& gender) {
    const bool isMale = !gender.isNull() && !gender.toBoolean();
    return isMale ? QStringLiteral("Male") : QStringLiteral("Female");
}

QString categoryOf(const Recordset& person, Recordset& categories) {
    categories.MoveFirst();
    categories.Find(QStringLiteral("CatID = ") + numberText(person.Fields(u"CatID").toLong()));
    return Trim(textOrNothing(categories.Fields(u"Category")));
}

}  // namespace

ReportPerson reportPerson(const Recordset& person, Recordset& categories) {
    const Date birthdate = person.Fields(u"Birthdate").toDate();
    return {.fullName = fullName(person),
            .birthText = Format(birthdate, QStringLiteral("dddd, d MMMM yyyy")),
            .starSign = QString::fromLatin1(modCycles::GetStarSign(birthdate)),
            .gender = genderWord(person.Fields(u"Gender")),
            .category = categoryOf(person, categories),
            .notes = textOrNothing(person.Fields(u"Notes"))};
}
