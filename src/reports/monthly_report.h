// The monthly chart report: a person, and the chart of 31 days.
#pragma once

#include <QString>

#include "cycles/date.h"
#include "reports/report_person.h"

// The document, in rich text, for the days from `start` on; empty for a colour that is neither 0
// (black and white) nor 1. Its heading ends with the day after the chart's last one; a calendar
// that ends before it raises std::out_of_range.
QString monthlyReport(const ReportPerson& person, Date start, Integer colour);
