// A person for the documents of the reports.
#pragma once

#include "cycles/calendar.h"
#include "reports/report_person.h"

inline const ReportPerson kAnna{.fullName = QStringLiteral("Anna Smith"),
                                .birthText = QStringLiteral("Monday, 2 October 1972"),
                                .starSign = QStringLiteral("Libra"),
                                .gender = QStringLiteral("Female"),
                                .category = QStringLiteral("Family"),
                                .notes = QStringLiteral("Likes tea.")};
