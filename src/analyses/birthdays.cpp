// The search of birthdays.h.
#include "analyses/birthdays.h"

#include "cycles/calendar.h"
#include "cycles/star_sign.h"
#include "runtime/text.h"
#include "store/person_entry.h"
#include "store/recordset.h"

namespace {

using namespace modCycles;

bool isBirthday(Date birthdate, Date date) {
    return Day(birthdate) == Day(date) && Month(birthdate) == Month(date);
}

}  // namespace

std::vector<Birthday> birthdaysOn(Date date, Recordset& people) {
    std::vector<Birthday> birthdays;
    for (people.MoveFirst(); !people.EndOfFile(); people.MoveNext()) {
        const Date birthdate = people.Fields(u"birthdate").toDate();
        if (isBirthday(birthdate, date))
            birthdays.push_back({.name = fullName(people),
                                 .signKey = LCase(QString::fromLatin1(GetStarSign(birthdate))),
                                 .age = Year(date) - Year(birthdate)});
    }
    return birthdays;
}
