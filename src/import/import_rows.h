// The people to import as rows of a list: how they come out of an old database, how they are
// changed, and what of them is written.
#pragma once

#include <QString>
#include <functional>
#include <utility>
#include <vector>

#include "controls/list_view_model.h"
#include "cycles/date.h"
#include "store/item_list.h"
#include "store/value.h"

class Recordset;

// The columns of the list; its check box stands for a female. The number of the category and its
// index in the list of categories are hidden.
namespace import_column {
inline constexpr int kName = 0;
inline constexpr int kFirstName = 1;
inline constexpr int kBirthdate = 2;
inline constexpr int kCatId = 3;
inline constexpr int kCategory = 4;
inline constexpr int kCategoryIndex = 5;
}  // namespace import_column

std::vector<ListColumn> importColumns();

// The names of an old database, from its first row on. Raises 3021 where it has none.
void readOldNames(Recordset& oldPeople, const std::function<void(const QString&)>& take);

// Whether any entry is selected.
bool isAnySelected(const std::vector<ListEntry>& names);

// Gives the rows of those away who are selected, as long as there is no error: a person without a
// birth date raises 94, an entry beyond the end of the old database 3021. An entry is found by its
// place, which is that of its record.
void readImportRows(Recordset& oldPeople, const std::vector<ListEntry>& names,
                    const std::function<void(ListRow)>& take);

// What the inputs show of a row.
struct ImportFields {
    QString name;
    QString firstName;
    Date birthdate;
    int categoryIndex;
};

// The fields of a row.
ImportFields importFields(const ListRow& row);

// The row with other fields and another category; the gender stays.
ListRow updatedRow(ListRow row, const ImportFields& fields, const ListEntry& category);

// The row with another category. The index of the category stays what it was.
ListRow assignedRow(ListRow row, const ListEntry& category);

bool isUnassigned(const ListRow& row);

// The line of one who has been imported, which ends in CR LF.
QString importedLine(const ListRow& row);

// The fields to write, in their order. A first name is always among them, notes never.
std::vector<std::pair<QString, Value>> importedRecord(const ListRow& row);
