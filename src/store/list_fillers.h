// What fills the lists of people and of categories. Each reads the person database afresh.
#pragma once

#include "cycles/integers.h"
#include "store/item_list.h"

class Recordset;

// Fills a list with all people: the display text, and the NameID as item data.
// Raises 3021 if there is nobody; the list is empty then.
void fillPeople(ItemList& list);

// The same with the people of one category, who may be nobody.
void fillPeopleOfCategory(ItemList& list, Long catId);

// The people of a set from its current row on, each by the display text and with the NameID as item
// data.
std::vector<ListEntry> personEntries(Recordset& people);

// The categories of a set from its current row on, each with its CatID as item data.
std::vector<ListEntry> categoryEntries(Recordset& categories);

// All categories in the order of the store, with the CatID as item data. Raises 3021 if there is
// none.
std::vector<ListEntry> readCategories();

// Where "*" stands in a filter.
inline constexpr int kEverybody = 0;

// Categories behind the pseudo-entry "*" with item data 0, which stands for everybody.
std::vector<ListEntry> categoryFilter(std::vector<ListEntry> categories);

// The filter of all categories, in the order of the store. Raises 3021 if there is none.
std::vector<ListEntry> readCategoryFilter();
