// The colours of reports.
#include "reports/report_colour.h"

#include <gtest/gtest.h>

TEST(ReportColour, IsTheValueOfItsBox) {
    EXPECT_EQ(boxValue(Qt::Unchecked), 0);
    EXPECT_EQ(boxValue(Qt::Checked), 1);
    EXPECT_EQ(boxValue(Qt::PartiallyChecked), 2);
}

TEST(ReportColour, IsNoneForAGreyBox) {
    EXPECT_TRUE(isReportColour(0));
    EXPECT_TRUE(isReportColour(1));
    EXPECT_FALSE(isReportColour(2));
    EXPECT_FALSE(isReportColour(-1));
}
