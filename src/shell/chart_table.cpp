// The columns of chart_table.h.
#include "shell/chart_table.h"

#include "runtime/host.h"

namespace modCycles {

QStringList dateLabels(std::span<const ChartDay> days) {
    QStringList labels;
    for (const ChartDay& day : days)
        labels += host().shortDate(day.date);
    return labels;
}

void addCycleColumns(ChartTable& table, std::span<const ChartDay> days) {
    for (const auto cycle :
         {&CycleValues::emotional, &CycleValues::physical, &CycleValues::intellectual}) {
        std::vector<double>& column = table.columns.emplace_back();
        for (const ChartDay& day : days)
            column.push_back(day.values.*cycle);
    }
}

void addAverageColumn(ChartTable& table, std::span<const ChartDay> days) {
    std::vector<double>& averages = table.columns.emplace_back();
    for (const ChartDay& day : days)
        averages.push_back(day.values.average());
}

ChartTable chartTable(std::span<const ChartDay> days) {
    ChartTable table{.rowLabels = dateLabels(days), .columns = {}};
    addCycleColumns(table, days);
    addAverageColumn(table, days);
    return table;
}

}  // namespace modCycles
