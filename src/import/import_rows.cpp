// The texts and the fields of import_rows.h.
#include "import/import_rows.h"

#include <algorithm>

#include "import/name_split.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/person_entry.h"
#include "store/recordset.h"

using namespace import_column;

namespace {

constexpr int kBirthdateWidth = 1500;  // twips
constexpr int kCategoryWidth = 1800;
constexpr int kHidden = 0;

QString unassigned() {
    return QStringLiteral("?");
}

ListRow importRow(const QString& oldName, Date birthdate) {
    return {.texts = {ParseLastName(oldName), ParseFirstName(oldName),
                      Format(birthdate, kDateAsText), QString(), unassigned(), numberText(0)}};
}

}  // namespace

std::vector<ListColumn> importColumns() {
    return {{.header = QStringLiteral("Name")},
            {.header = QStringLiteral("First name")},
            {.header = QStringLiteral("Birthdate"), .width = kBirthdateWidth},
            {.header = QStringLiteral("CatID"), .width = kHidden},
            {.header = QStringLiteral("Category"), .width = kCategoryWidth},
            {.header = QStringLiteral("cbidx"), .width = kHidden}};
}

void readOldNames(Recordset& oldPeople, const std::function<void(const QString&)>& take) {
    for (oldPeople.MoveFirst(); !oldPeople.EndOfFile(); oldPeople.MoveNext())
        take(oldPeople.Fields(u"Name").toText());
}

bool isAnySelected(const std::vector<ListEntry>& names) {
    return std::any_of(names.begin(), names.end(),
                       [](const ListEntry& name) { return name.selected; });
}

void readImportRows(Recordset& oldPeople, const std::vector<ListEntry>& names,
                    const std::function<void(ListRow)>& take) {
    oldPeople.MoveFirst();
    std::size_t last = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (!names[i].selected)
            continue;
        oldPeople.Move(static_cast<Long>(i - last));
        take(
            importRow(oldPeople.Fields(u"Name").toText(), oldPeople.Fields(u"birthdate").toDate()));
        last = i;
    }
}

ImportFields importFields(const ListRow& row) {
    return {.name = row.texts[kName],
            .firstName = row.texts[kFirstName],
            .birthdate = readDate(row.texts[kBirthdate]),
            .categoryIndex = wholeNumber(row.texts[kCategoryIndex])};
}

ListRow updatedRow(ListRow row, const ImportFields& fields, const ListEntry& category) {
    row.texts[kName] = Trim(fields.name);
    row.texts[kFirstName] = Trim(fields.firstName);
    row.texts[kBirthdate] = Format(fields.birthdate, kDateAsText);
    row.texts[kCategoryIndex] = numberText(fields.categoryIndex);
    return assignedRow(std::move(row), category);
}

ListRow assignedRow(ListRow row, const ListEntry& category) {
    row.texts[kCatId] = numberText(category.itemData);
    row.texts[kCategory] = category.text;
    return row;
}

bool isUnassigned(const ListRow& row) {
    return row.texts[kCategory] == unassigned();
}

QString importedLine(const ListRow& row) {
    return fullName(Value(row.texts[kName]), Value(row.texts[kFirstName])) + QStringLiteral("\r\n");
}

std::vector<std::pair<QString, Value>> importedRecord(const ListRow& row) {
    return {{QStringLiteral("Name"), Trim(row.texts[kName])},
            {QStringLiteral("FName"), Trim(row.texts[kFirstName])},
            {QStringLiteral("Gender"), Value(row.checked)},
            {QStringLiteral("Birthdate"), Value(readDate(row.texts[kBirthdate]))},
            {QStringLiteral("CatID"), wholeNumber(row.texts[kCatId])}};
}
