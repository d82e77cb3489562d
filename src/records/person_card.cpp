// The wording of person_card.h.
#include "records/person_card.h"

#include "cycles/calendar.h"
#include "cycles/star_sign.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/recordset.h"

PersonCard personCard(const Recordset& person, Date today) {
    const Date birthdate = person.Fields(u"birthdate").toDate();
    return {
        .name = cardName(person.Fields(u"fname"), person.Fields(u"Name"), ageOn(today, birthdate)),
        .birth = Format(birthdate, QStringLiteral("dddd, d MMMM yyyy")),
        .notes = textOrNothing(person.Fields(u"Notes")),
        .isMale = person.Fields(u"gender") == Value(0),
        .sign = QString::fromLatin1(modCycles::GetStarSign(birthdate))};
}

Long ageOn(Date today, Date birthdate) {
    using namespace modCycles;
    const Date birthday = DateSerial(Year(today), Month(birthdate), Day(birthdate));
    const Long years = Year(today) - Year(birthdate);
    return today < birthday ? years - 1 : years;
}

QString cardName(const Value& firstName, const Value& name, Long age) {
    return Trim(textOrNothing(firstName) + u' ' + name.toText() + QStringLiteral(" (") +
                numberText(age) + u')');
}
