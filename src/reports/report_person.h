// What the reports on one person say of them.
#pragma once

#include <QString>

class Recordset;

struct ReportPerson {
    QString fullName;
    QString birthText;
    QString starSign;
    QString gender;
    QString category;
    QString notes;  // as they stand, also where they have something that means a format
};

// The current row of `person`, with the category that is found in `categories`. Raises 94 without a
// birth date, 3021 where there is no row, no category or none with the person's number.
ReportPerson reportPerson(const Recordset& person, Recordset& categories);
