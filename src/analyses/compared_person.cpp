// The reading and the texts of compared_person.h.
#include "analyses/compared_person.h"

#include "analyses/person_title.h"
#include "runtime/text.h"
#include "store/list_fillers.h"
#include "store/person_entry.h"
#include "store/recordset.h"

ComparedPerson comparedPerson(const Recordset& person) {
    const Value firstName = person.Fields(u"FName");
    return {.nameId = person.Fields(u"NameID").toLong(),
            .name = person.Fields(u"Name").toText(),
            .firstName = isNullOrEmpty(firstName) ? QString() : firstName.toText(),
            .birthdate = person.Fields(u"Birthdate").toDate()};
}

QString fullName(const ComparedPerson& person) {
    return fullName(Value(person.name), Value(person.firstName));
}

QString comparisonCaption(const ComparedPerson& person) {
    return QStringLiteral("Compatibility: ") + personTitle(fullName(person), person.birthdate) +
           QStringLiteral(" and ...");
}

std::vector<ListEntry> othersThan(const ComparedPerson& person, Recordset& people) {
    std::vector<ListEntry> entries = personEntries(people);
    std::erase_if(entries, [&](const ListEntry& entry) { return entry.itemData == person.nameId; });
    return entries;
}

// Without a first name the comma stays behind the name.
bool isFavouriteOf(const ComparedPerson& person, const QString& favourite) {
    const QString name = Trim(favourite);
    return name == Trim(person.name + QStringLiteral(", ") + person.firstName) ||
           name == Trim(person.name);
}
