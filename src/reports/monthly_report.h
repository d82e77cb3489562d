// The monthly chart report: a person, and the chart of 31 days.
#pragma once

#include <QString>

#include "cycles/date.h"
#include "reports/report_person.h"

// The document, in rich text, for the days from `start` on; nothing for a colour that is none. Its
// heading ends with the day after the chart's last one.
QString monthlyReport(const ReportPerson& person, Date start, Integer colour);
