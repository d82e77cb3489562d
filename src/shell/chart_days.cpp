// The days and texts of chart_days.h.
#include "shell/chart_days.h"

#include "runtime/host.h"
#include "runtime/numbers.h"

namespace modCycles {

namespace {

template <std::size_t... Rows>
std::array<ChartDay, kChartDays> daysFrom(Date startdate, Long days, std::index_sequence<Rows...>) {
    return {ChartDay{startdate + static_cast<double>(Rows),
                     CalcCycles(days, static_cast<Integer>(Rows))}...};
}

std::array<ChartDay, kChartDays> daysFrom(Date startdate, Long days) {
    return daysFrom(startdate, days, std::make_index_sequence<kChartDays>());
}

}  // namespace

std::array<ChartDay, kChartDays> chartDays(Date birthdate, Date startdate) {
    return daysFrom(startdate, DayCount(birthdate, startdate));
}

std::array<ChartDay, kChartDays> blankChartDays(Date today) {
    return chartDays(today, today);
}

QString chartTitle(const QString& fullName) {
    return QStringLiteral("Biorhythm for ") + fullName;
}

QString quickChartTitle() {
    return QStringLiteral("Quick biorhythm");
}

QString blankChartTitle() {
    return chartTitle(QStringLiteral("<unspecified>"));
}

bool isQuickDateRefused(Date birthdate, Date earliest) {
    return birthdate < earliest;
}

QString quickDateRefusal() {
    return QStringLiteral("Invalid date.");
}

QString dayPanelText(const ChartDay& day) {
    return host().shortDate(day.date) + QStringLiteral(":   Emotional: ") +
           percentText(day.values.emotional) + QStringLiteral(", Physical: ") +
           percentText(day.values.physical) + QStringLiteral(", Intellectual: ") +
           percentText(day.values.intellectual) + QStringLiteral(", Average: ") +
           percentText(day.values.average());
}

QString pointText(Date date, const CycleValues& values) {
    return host().shortDate(date) + QStringLiteral(": Emot.: ") + percentText(values.emotional) +
           QStringLiteral(", Phys.: ") + percentText(values.physical) +
           QStringLiteral(", Intel.: ") + percentText(values.intellectual);
}

}  // namespace modCycles
