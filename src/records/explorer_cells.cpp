// The cells of explorer_cells.h.
#include "records/explorer_cells.h"

#include <array>
#include <unordered_map>

#include "records/column_drag.h"
#include "runtime/errors.h"
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

QString textOrNothing(const Value& value) {
    return value.isNull() ? QString() : value.toText();
}

QString booleanText(const Value& value) {
    return value.toBoolean() ? QStringLiteral("True") : QStringLiteral("False");
}

void appendPerson(std::vector<QString>& texts, const Recordset& person) {
    texts.push_back(textOrNothing(person.Fields(kFields[kName])));
    texts.push_back(textOrNothing(person.Fields(kFields[kFirstName])));
    texts.emplace_back();
    texts.push_back(booleanText(person.Fields(kFields[kGender])));
    texts.push_back(numberText(person.Fields(kFields[kCategory]).toLong()));
    texts.push_back(numberText(person.Fields(kFields[kNameId]).toLong()));
}

// The first entry of each category.
std::unordered_map<Long, int> firstEntries(const std::vector<ListEntry>& categories) {
    std::unordered_map<Long, int> entries;
    for (std::size_t entry = 0; entry < categories.size(); ++entry)
        entries.try_emplace(categories[entry].itemData, static_cast<int>(entry));
    return entries;
}

void selectRows(GridCells& cells, int first, int last) {
    cells.setRow(first);
    cells.setRowSel(last);
}

}  // namespace

void bindPeople(GridCells& cells, Recordset& people) {
    std::vector<QString> texts;
    texts.reserve(kFields.size() * (static_cast<std::size_t>(people.RecordCount()) + 1));
    for (const QStringView field : kFields)
        texts.push_back(field.toString());
    for (; !people.EndOfFile(); people.MoveNext())
        appendPerson(texts, people);
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

void showBirthdates(GridCells& cells, Recordset& people) {
    people.MoveFirst();
    for (int row = cells.FixedRows(); row < cells.Rows(); ++row) {
        cells.setTextMatrix(row, kBirthdate, birthdateText(people.Fields(u"birthdate").toDate()));
        people.MoveNext();
    }
}

QString birthdateText(Date birthdate) {
    return Format(birthdate, QStringLiteral("MMM d, yyyy"));
}

void showGenders(GridCells& cells) {
    for (int row = cells.FixedRows(); row < cells.Rows(); ++row)
        cells.setTextMatrix(row, kGender, genderWord(cells.TextMatrix(row, kGender)));
}

QString genderWord(const QString& gender) {
    if (gender == QStringLiteral("True"))
        return QStringLiteral("Female");
    return gender == QStringLiteral("False") ? QStringLiteral("Male") : gender;
}

int showCategories(GridCells& cells, const std::vector<ListEntry>& categories) {
    const auto entries = firstEntries(categories);
    const int last = static_cast<int>(categories.size()) - 1;
    int lookedAt = -1;
    for (int row = cells.FixedRows(); row < cells.Rows(); ++row) {
        const auto found = entries.find(numberOfCell(cells.TextMatrix(row, kCategory)));
        lookedAt = found == entries.end() ? last : found->second;
        if (found != entries.end())
            cells.setTextMatrix(row, kCategory,
                                categories[static_cast<std::size_t>(lookedAt)].text);
    }
    return lookedAt;
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

Long numberOfCell(const QString& text) {
    bool isNumber = false;
    const Long number = text.toInt(&isNumber);
    if (!isNumber)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return number;
}
