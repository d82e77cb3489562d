// The daily report: a page on one person and one date.
#pragma once

#include <QString>

#include "cycles/cycle.h"
#include "cycles/date.h"
#include "reports/report_person.h"

// What a report says of a cycle's day by its unrounded value in per cent, in rich text. A day is
// critical where its level is 0 (day_level.h).
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

// The document, in rich text; empty for a colour that is neither 0 (black and white) nor 1.
QString dailyReport(const ReportPerson& person, const ReportDay& day, Integer colour);
