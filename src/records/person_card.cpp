// The wording of person_card.h.
#include "records/person_card.h"

#include "cycles/age.h"
#include "cycles/star_sign.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/recordset.h"

PersonCard personCard(const Recordset& person, Date today) {
    const Date birthdate = person.Fields(u"birthdate").toDate();
    return {.name = cardName(person.Fields(u"fname"), person.Fields(u"Name"),
                             modCycles::ageOn(today, birthdate)),
            .birth = Format(birthdate, QStringLiteral("dddd, d MMMM yyyy")),
            .notes = textOrNothing(person.Fields(u"Notes")),
            .isMale = person.Fields(u"gender") == Value(0),
            .sign = QString::fromLatin1(modCycles::GetStarSign(birthdate))};
}

QString cardName(const Value& firstName, const Value& name, Long age) {
    return Trim(textOrNothing(firstName) + u' ' + name.toText() + QStringLiteral(" (") +
                numberText(age) + u')');
}
