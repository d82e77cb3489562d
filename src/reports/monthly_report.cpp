// The text of the monthly chart report.
#include "reports/monthly_report.h"

#include <QStringBuilder>

#include "cycles/calendar.h"
#include "reports/report_pieces.h"
#include "runtime/host.h"
#include "shell/chart_days.h"

namespace {

QString spanText(Date start) {
    const Date end = modCycles::DateSerial(modCycles::Year(start), modCycles::Month(start),
                                           modCycles::Day(start) + modCycles::kChartDays);
    return QStringLiteral(R"(\b\i\fs20 From )") % host().shortDate(start) % QStringLiteral(" to ") %
           host().shortDate(end) % QStringLiteral(R"(\b0\i0)");
}

// Which line of the chart is which.
QLatin1String legend(Integer colour) {
    return colour == kInColour
               ? QLatin1String(R"(\cf1 Emotional, \cf2 Physical, \cf3 Intellectual, \cf0 Average)")
               : QLatin1String(
                     "Emotional (Dashed), Physical (Ditted), Intellectual (Dotted), "
                     "Average (Solid)");
}

}  // namespace

QString monthlyReport(const ReportPerson& person, Date start, Integer colour) {
    if (!isReportColour(colour))
        return {};
    return kDocumentHead % onlyInColour(colour, kColourTable) %
           QStringLiteral(R"(\viewkind4\uc1\pard\qc\b\f0\fs28 Monthly Chart for )") %
           person.fullName % ParBreak % ParBreak % spanText(start) % ParBreak % ParBreak %
           QStringLiteral(R"(\pard\b Date of birth: \b0\tab )") % personLines(person) % ParBreak %
           ParBreak % legend(colour) % ParBreak % kDocumentEnd;
}
