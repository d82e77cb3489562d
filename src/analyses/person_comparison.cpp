// The texts and charts of a comparison.
#include "analyses/person_comparison.h"

#include "shell/chart_days.h"
#include "shell/chart_table.h"

namespace {

MatchBars barsOf(const BirthdateMatch& match, const QString& title) {
    const modCycles::CycleValues& percent = match.percentages;
    const auto legend = [](const char* series, const QString& value) {
        return QString::fromLatin1(series) + QStringLiteral(": (") + value + u')';
    };
    return {.table = {.rowLabels = {QString()},
                      .columns = {{percent.emotional},
                                  {percent.physical},
                                  {percent.intellectual},
                                  {percent.average()}}},
            .legend = {legend("Emot.", match.emotional.percent),
                       legend("Phys.", match.physical.percent),
                       legend("Intel.", match.intellectual.percent), legend("Avg", match.average)},
            .title = title};
}

ChartTable lineTable(const ComparedPerson& person, const ComparedPerson& other, Date startdate) {
    const auto days = modCycles::chartDays(person.birthdate, startdate);
    ChartTable table{.rowLabels = modCycles::dateLabels(days), .columns = {}};
    modCycles::addCycleColumns(table, days);
    modCycles::addCycleColumns(table, modCycles::chartDays(other.birthdate, startdate));
    return table;
}

}  // namespace

PersonComparison comparePeople(const ComparedPerson& person, const ComparedPerson& other,
                               Date startdate) {
    const BirthdateMatch match = matchBirthdates(person.birthdate, other.birthdate);
    const QString name = fullName(person);
    const QString otherName = fullName(other);
    return {.match = match,
            .thermometer = QStringLiteral("Compatibility thermometer: ") + match.average,
            .bars = barsOf(match, name + QStringLiteral(" and ") + otherName),
            .lines = {.table = lineTable(person, other, startdate),
                      .toolTip = QStringLiteral("Solid: ") + name +
                                 QStringLiteral("     Dotted: ") + otherName}};
}
