// What the documents are built from, and where they go.
#include "reports/report_builders.h"

#include "controls/month_view.h"
#include "controls/rich_text_box.h"
#include "reports/daily_report.h"
#include "reports/database_overview.h"
#include "reports/monthly_report.h"
#include "shell/main_controls.h"
#include "store/databases.h"
#include "store/interpretation.h"
#include "store/recordset.h"
#include "store/statements.h"

namespace {

ReportPerson readPerson(Long personId) {
    Connection connection = openPersonDatabase();
    Recordset categories(connection, statements::categories());
    const Recordset person(connection, statements::person(personId));
    return reportPerson(person, categories);
}

Integer signOf(double value) {
    return static_cast<Integer>((value > 0) - (value < 0));
}

QString interpretationOf(const modCycles::CycleValues& values) {
    return textOrNothing(readInterpretation(signOf(values.emotional), signOf(values.physical),
                                            signOf(values.intellectual)));
}

// The document is longer than the text it shows, so the caret comes to rest at the end.
void deliver(const QString& document, RichTextBox& target) {
    target.setTextRTF(document);
    target.setSelStart(static_cast<int>(document.size()));
}

}  // namespace

namespace modCycles {

void BuildDailyReport(Long personId, double emotional, double physical, double intellectual,
                      double average, Integer colour, RichTextBox& target) {
    const CycleValues values{emotional, physical, intellectual};
    const ReportPerson person = readPerson(personId);
    deliver(dailyReport(person,
                        {.date = mainControls().dtpSelDate->Value(),
                         .values = values,
                         .average = average,
                         .interpretation = interpretationOf(values)},
                        colour),
            target);
}

void BuildMonthlyReport(Long personId, Integer colour, RichTextBox& target) {
    deliver(monthlyReport(readPerson(personId), mainControls().dtpSelDate->Value(), colour),
            target);
}

void BuildDatabaseOverview(RichTextBox& target) {
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::allPeopleWithNotes());
    target.setText(QStringLiteral("Please wait..."));
    const QString document = databaseOverview(people);
    target.setTextRTF({});
    target.setTextRTF(document);
}

}  // namespace modCycles
