// The record sets of new_records.h.
#include "records/new_records.h"

#include "store/recordset.h"
#include "store/statements.h"

void writePerson(Connection people, const NewPerson& person, Long catId) {
    Recordset table(people, statements::wholeTable());
    table.AddNew();
    for (const auto& [field, value] : newPersonFields(person, catId))
        table.Collect(field, value);
    table.Update();
}

void writeCategory(Connection people, const QString& category) {
    Recordset categories(people, statements::categories());
    categories.AddNew();
    categories.Collect(u"Category", category);
    categories.Update();
}
