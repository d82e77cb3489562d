// The values of days in the columns of a chart.
#include "shell/chart_table.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/recording_host.h"

using namespace modCycles;

namespace {

const auto kDays = chartDays(DateSerial(1972, 10, 20), DateSerial(2000, 3, 14));

}  // namespace

TEST(ChartTable, LabelsARowByItsDateInTheShortForm) {
    const RecordingHost host;
    const QStringList labels = dateLabels(kDays);
    ASSERT_EQ(labels.size(), 31);
    EXPECT_EQ(labels.first(), QStringLiteral("14/03/2000"));
    EXPECT_EQ(labels.last(), QStringLiteral("13/04/2000"));
}

TEST(ChartTable, HasAColumnForEachCycleBehindThoseThatAreThere) {
    ChartTable table{.rowLabels = {}, .columns = {{1.5}}};
    addCycleColumns(table, kDays);
    ASSERT_EQ(table.columns.size(), 4U);
    EXPECT_EQ(table.columns[0], std::vector{1.5});
    for (std::size_t row = 0; row < kDays.size(); ++row) {
        EXPECT_EQ(table.columns[1][row], kDays[row].values.emotional);
        EXPECT_EQ(table.columns[2][row], kDays[row].values.physical);
        EXPECT_EQ(table.columns[3][row], kDays[row].values.intellectual);
    }
}

TEST(ChartTable, HasTheCyclesAndTheirAverageOfEveryDay) {
    const RecordingHost host;
    const ChartTable table = chartTable(kDays);
    EXPECT_EQ(table.rowLabels, dateLabels(kDays));
    ASSERT_EQ(table.columns.size(), 4U);
    for (std::size_t row = 0; row < kDays.size(); ++row) {
        EXPECT_EQ(table.columns[0][row], kDays[row].values.emotional);
        EXPECT_EQ(table.columns[2][row], kDays[row].values.intellectual);
        EXPECT_EQ(table.columns[3][row], kDays[row].values.average());
    }
}
