// The cells of explorer_cells.h.
#include "records/explorer_cells.h"

#include <array>
#include <utility>

#include "records/column_drag.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "store/recordset.h"

namespace {

enum Column { kName, kFirstName, kBirthdate, kGender, kCategory, kNameId };
static_assert(kNameId == kHiddenColumn);

constexpr std::array<QStringView, kNameId + 1> kFields = {u"Name",   u"FName", u"Birthdate",
                                                          u"Gender", u"CatID", u"NameID"};

constexpr int kNameWidth = 1725;  // twips, as all widths
constexpr int kBirthdateWidth = 1200;
constexpr int kCategoryWidth = 1200;

constexpr Long kWhite = 0xFFFFFF;
constexpr Long kGrey = 0xC0C0C0;

QString booleanText(const Value& value) {
    return value.toBoolean() ? QStringLiteral("True") : QStringLiteral("False");
}

void appendPerson(std::vector<QString>& texts, const Recordset& person,
                  CategoryLookup& categories) {
    texts.push_back(textOrNothing(person.Fields(kFields[kName])));
    texts.push_back(textOrNothing(person.Fields(kFields[kFirstName])));
    texts.push_back(birthdateText(person.Fields(kFields[kBirthdate]).toDate()));
    texts.push_back(genderWord(booleanText(person.Fields(kFields[kGender]))));
    texts.push_back(categories.nameOf(person.Fields(kFields[kCategory]).toLong()));
    texts.push_back(numberText(person.Fields(kFields[kNameId]).toLong()));
}

void selectRows(GridCells& cells, int first, int last) {
    cells.setRow(first);
    cells.setRowSel(last);
}

}  // namespace

CategoryLookup::CategoryLookup(std::vector<ListEntry> entries) : entries_(std::move(entries)) {
    for (std::size_t entry = 0; entry < entries_.size(); ++entry)
        firstEntries_.try_emplace(entries_[entry].itemData, static_cast<int>(entry));
}

QString CategoryLookup::nameOf(Long catId) {
    const auto found = firstEntries_.find(catId);
    if (found == firstEntries_.end()) {
        lastEntry_ = static_cast<int>(entries_.size()) - 1;
        return numberText(catId);
    }
    lastEntry_ = found->second;
    return entries_[static_cast<std::size_t>(lastEntry_)].text;
}

QString birthdateText(Date birthdate) {
    return Format(birthdate, QStringLiteral("MMM d, yyyy"));
}

QString genderWord(const QString& gender) {
    if (gender == QStringLiteral("True"))
        return QStringLiteral("Female");
    return gender == QStringLiteral("False") ? QStringLiteral("Male") : gender;
}

void bindPeople(GridCells& cells, Recordset& people, CategoryLookup& categories) {
    std::vector<QString> texts;
    texts.reserve(kFields.size() * (static_cast<std::size_t>(people.RecordCount()) + 1));
    for (const QStringView field : kFields)
        texts.push_back(field.toString());
    for (people.MoveFirst(); !people.EndOfFile(); people.MoveNext())
        appendPerson(texts, people, categories);
    cells.bind(static_cast<int>(kFields.size()), std::move(texts));
}

void setUpColumns(GridCells& cells) {
    cells.setColWidth(kName, kNameWidth);
    cells.setColWidth(kBirthdate, kBirthdateWidth);
    cells.setColWidth(kCategory, kCategoryWidth);
    cells.setColWidth(kNameId, 0);
    cells.setTextMatrix(0, kFirstName, QStringLiteral("Firstname"));
    cells.setTextMatrix(0, kCategory, QStringLiteral("Category"));
}

void makeHeaderBold(GridCells& cells) {
    cells.setFillStyle(FillStyle::Repeat);
    selectRows(cells, 0, cells.FixedRows() - 1);
    cells.setCol(0);
    cells.setColSel(cells.Cols() - 1);
    cells.setCellFontBold(true);
    cells.setFillStyle(FillStyle::Single);
}

void paintBands(GridCells& cells) {
    cells.setFillStyle(FillStyle::Repeat);
    selectRows(cells, cells.FixedRows(), cells.Rows() - 1);
    for (int column = cells.FixedCols(); column < cells.Cols(); column += 2) {
        cells.setCol(column);
        cells.setCellBackColor(kGrey);
    }
    cells.setFillStyle(FillStyle::Single);
}

void repaintBands(GridCells& cells) {
    cells.setFillStyle(FillStyle::Repeat);
    selectRows(cells, cells.FixedRows(), cells.Rows() - 1);
    cells.setCol(0);
    cells.setColSel(cells.Cols() - 1);
    cells.setCellBackColor(kWhite);
    paintBands(cells);
}
