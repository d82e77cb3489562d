// The kinds of files that a report can be saved as.
#include "reports/report_export.h"

#include <gtest/gtest.h>

#include "support/printing.h"

TEST(ReportExport, IsRichTextOrPlainTextByTheFilter) {
    const ReportFile rich{TextFileType::Rich, QStringLiteral("rtf")};
    const ReportFile plain{TextFileType::Plain, QStringLiteral("txt")};
    EXPECT_EQ(reportFile(0), std::nullopt);
    EXPECT_EQ(reportFile(1), rich);
    EXPECT_EQ(reportFile(2), plain);
    EXPECT_EQ(reportFile(3), rich);
    EXPECT_EQ(reportFile(4), std::nullopt);
}
