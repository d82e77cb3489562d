// The copying of adopted_people.h.
#include "store/adopted_people.h"

#include "store/old_categories.h"
#include "store/row_numbers.h"
#include "store/statements.h"

namespace {

QString peopleTable() {
    return QStringLiteral("Data");
}

QString personNumber() {
    return QStringLiteral("NameID");
}

JetRows oldPeople(const OldDatabase& old) {
    return old.rows(peopleTable(), {{personNumber(), OldField::Number},
                                    {QStringLiteral("Name"), OldField::Text},
                                    {QStringLiteral("FName"), OldField::Text},
                                    {QStringLiteral("Birthdate"), OldField::Date},
                                    {QStringLiteral("Gender"), OldField::Truth},
                                    {QStringLiteral("CatID"), OldField::Number},
                                    {QStringLiteral("Notes"), OldField::Text}});
}

OldPerson personOf(const std::vector<Value>& values, RowNumbers& numbers) {
    return {.nameId = numbers.take(values[0]),
            .name = values[1],
            .firstName = values[2],
            .birthdate = values[3],
            .isFemale = values[4].toBoolean(),
            .catId = values[5],
            .notes = values[6]};
}

void addCategories(const OldCategories& categories, NewDatabase& made) {
    RowAdder rows(made, statements::addCategory());
    for (const auto& [number, name] : categories.names())
        rows.add({number, name});
    made.run(statements::setLastNumber(), {categories.largest(), QStringLiteral("Category")});
}

void addPerson(const OldPerson& person, const OldCategories& categories, RowAdder& rows) {
    rows.add({person.nameId, textOrNothing(person.name), person.firstName, person.birthdate,
              Value(person.isFemale), categories.numberOf(person.catId), person.notes});
}

}  // namespace

LeftOut addAdoptedPeople(const OldDatabase& old, NewDatabase& made) {
    const OldCategories categories(old);
    addCategories(categories, made);
    RowNumbers numbers(old, peopleTable(), personNumber());
    RowAdder rows(made, statements::addPerson());
    LeftOut leftOut;
    bool isEmpty = true;
    for (JetRows people = oldPeople(old); people.next();) {
        const OldPerson person = personOf(people.values(), numbers);
        if (person.birthdate.isNull()) {
            leftOut.add(person, categories.nameOf(person.catId));
            continue;
        }
        addPerson(person, categories, rows);
        isEmpty = false;
    }
    if (isEmpty)
        throw old.objection(ErrorNumber::Automation,
                            QStringLiteral("there is nobody with a birth date in it"));
    made.run(statements::setLastNumber(), {numbers.largest(), peopleTable()});
    return leftOut;
}
