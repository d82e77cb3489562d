// The daily report: a page on one person and one date.
#pragma once

#include <QString>

#include "cycles/cycle.h"
#include "cycles/date.h"
#include "reports/report_person.h"

// What a report says of a cycle's day by its unrounded value in per cent, in rich text. The
// critical bands are those of the reports alone: the lower end counts and the upper one does not.
QString emotionalLine(double percent);
QString physicalLine(double percent);
QString intellectualLine(double percent);

// What a report says of a day.
struct ReportDay {
    Date date;
    modCycles::CycleValues values;  // in per cent, unrounded
    double average;                 // the same
    QString interpretation;
};

// The document, in rich text; nothing for a colour that is none.
QString dailyReport(const ReportPerson& person, const ReportDay& day, Integer colour);
