// Which filter is which kind.
#include "reports/report_export.h"

std::optional<ReportFile> reportFile(int filterIndex) {
    switch (filterIndex) {
        case 1:
        case 3:
            return ReportFile{TextFileType::Rich, QStringLiteral("rtf")};
        case 2:
            return ReportFile{TextFileType::Plain, QStringLiteral("txt")};
        default:
            return {};
    }
}
