// The reading of people and categories for lists.
#include "store/list_fillers.h"

#include "store/databases.h"
#include "store/person_entry.h"
#include "store/recordset.h"
#include "store/statements.h"

std::vector<ListEntry> personEntries(Recordset& people) {
    std::vector<ListEntry> entries;
    entries.reserve(static_cast<std::size_t>(people.RecordCount()));
    for (; !people.EndOfFile(); people.MoveNext())
        entries.push_back({displayText(people), people.Fields(u"NameID").toLong()});
    return entries;
}

void fillPeople(ItemList& list) {
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::allPeopleWithNotes());
    list.fill({});
    people.MoveFirst();
    list.fill(personEntries(people));
}

void fillPeopleOfCategory(ItemList& list, Long catId) {
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::peopleOfCategory(catId));
    list.fill(personEntries(people));
}

std::vector<ListEntry> categoryEntries(Recordset& categories) {
    std::vector<ListEntry> entries;
    for (; !categories.EndOfFile(); categories.MoveNext())
        entries.push_back(
            {categories.Fields(u"Category").toText(), categories.Fields(u"CatID").toLong()});
    return entries;
}

std::vector<ListEntry> readCategories() {
    Connection connection = openPersonDatabase();
    Recordset categories(connection, statements::categories());
    categories.MoveFirst();
    return categoryEntries(categories);
}

std::vector<ListEntry> categoryFilter(std::vector<ListEntry> categories) {
    categories.insert(categories.begin(),
                      {.text = QStringLiteral("*"), .itemData = 0, .leads = true});
    return categories;
}

std::vector<ListEntry> readCategoryFilter() {
    return categoryFilter(readCategories());
}
