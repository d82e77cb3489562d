// The kinds of files that a report can be saved as.
#pragma once

#include <QString>
#include <optional>

#include "controls/text_file_type.h"

// The kinds as the dialog offers them.
inline const QString kReportFilter =
    QStringLiteral("Rich Text (*.rtf)|*.rtf|Plain Text (*.txt)|*.txt|All files (*.*)|*.*");

struct ReportFile {
    TextFileType type;
    QString extension;

    friend bool operator==(const ReportFile&, const ReportFile&) = default;
};

// What a filter of the dialog stands for, counted from 1; nothing where none has been chosen. All
// files are rich text.
std::optional<ReportFile> reportFile(int filterIndex);
