// The rules of ordered_match.h.
#include "analyses/ordered_match.h"

#include <QStringList>
#include <array>

#include "analyses/compared_person.h"
#include "cycles/cycle.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "store/person_entry.h"
#include "store/recordset.h"
#include "store/statements.h"

namespace {

constexpr int kRowsWithoutPeople = 2;

constexpr int kNameWidth = 1800;  // twips
constexpr int kNumberWidth = 1000;

// The bands of percentages, whole numbers both ends included, and their colours.
constexpr double kLeastHigh = 50;
constexpr double kMostMiddling = 49;
constexpr double kLeastMiddling = 11;
constexpr double kMostLow = 10;
constexpr double kLeastLow = 0;
constexpr Long kHighColour = 0xFF00FF;
constexpr Long kMiddlingColour = 0xFF0000;
constexpr Long kLowColour = 0x0000FF;

using MatchRow = std::array<QString, kLastNumberColumn + 1>;

MatchRow matchRow(const Recordset& other, const ComparedPerson& person) {
    const modCycles::CycleValues values = modCycles::CalcCompats(
        modCycles::DayCount(person.birthdate, other.Fields(u"Birthdate").toDate()));
    return {fullName(other), numberText(Round(values.average())),
            numberText(Round(values.emotional)), numberText(Round(values.physical)),
            numberText(Round(values.intellectual))};
}

}  // namespace

std::optional<QString> matchStatement(const MatchSelection& selection) {
    const std::optional<Long> catId = selection.catId;
    switch (selection.filter) {
        case MatchFilter::Males:
            return catId ? statements::malesOfCategory(*catId) : statements::males();
        case MatchFilter::Females:
            return catId ? statements::femalesOfCategory(*catId) : statements::females();
        case MatchFilter::All:
            break;
    }
    return catId ? std::optional(statements::peopleOfCategory(*catId)) : std::nullopt;
}

QString requestForCategory() {
    return QStringLiteral("Please select a category.");
}

QString nobodyToMatch(const MatchSelection& selection) {
    const QString records = selection.filter == MatchFilter::Males ? QStringLiteral("male records")
                            : selection.filter == MatchFilter::Females
                                ? QStringLiteral("female records")
                                : QStringLiteral("records");
    const QString where =
        selection.catId ? QStringLiteral("this category") : QStringLiteral("the database");
    return QStringLiteral("There are no %1 in %2.").arg(records, where);
}

void clearMatches(GridCells& cells) {
    cells.Clear();
    cells.setRows(kRowsWithoutPeople);
}

void addMatches(GridCells& cells, Recordset& people, const ComparedPerson& person) {
    for (people.MoveFirst(); !people.EndOfFile(); people.MoveNext()) {
        if (people.Fields(u"NameID").toLong() != person.nameId)
            cells.AddItem(matchRow(people, person));
    }
}

void sortMatches(GridCells& cells, int column) {
    cells.setCol(column);
    cells.Sort(RowOrder::NumericDescending);
}

void SetGrid(GridCells& cells) {
    const QStringList headers{QString(), QStringLiteral("  Average"), QStringLiteral(" Emotional"),
                              QStringLiteral("  Physical"), QStringLiteral("Intellectual")};
    cells.setCols(static_cast<int>(headers.size()));
    for (int column = 0; column < cells.Cols(); ++column) {
        cells.setColWidth(column, column < kAverageColumn ? kNameWidth : kNumberWidth);
        cells.setTextMatrix(0, column, headers[column]);
    }
    for (int column = kAverageColumn; column <= kLastNumberColumn; ++column)
        cells.setColAlignment(column, ColumnAlignment::Centre);
    for (int row = cells.FixedRows(); row < cells.Rows(); ++row) {
        cells.setRow(row);
        for (int column = kAverageColumn; column <= kLastNumberColumn; ++column) {
            cells.setCol(column);
            cells.setCellForeColor(SetCol(cells.Text()));
        }
    }
    cells.setRow(cells.FixedRows());
    cells.setCol(0);
}

Long SetCol(QStringView txt) {
    const double value = Val(txt);
    if (value >= kLeastHigh)
        return kHighColour;
    if (value >= kLeastMiddling && value <= kMostMiddling)
        return kMiddlingColour;
    return value >= kLeastLow && value <= kMostLow ? kLowColour : 0;
}
