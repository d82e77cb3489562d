// Dates as text by a fixed pattern, and read back.
#pragma once

#include <QLocale>
#include <QString>

#include "cycles/date.h"

// A date by a pattern of d, ddd, dddd, m, mmm, mmmm and yyyy, in small or capital letters: the
// day, its short and full name, the month (m is never a minute), its short and full name, and the
// year in four digits. Everything else stands as it is. The names are those of the host's locale.
QString Format(Date date, const QString& pattern);

// The same with the names of the given locale.
QString formatDate(Date date, const QString& pattern, const QLocale& names);

// The form of a date that is kept as a text: "1 Mar 2000".
inline const QString kDateAsText = QStringLiteral("d mmm yyyy");

// The date that Format has written in that form. Raises 13 (Type mismatch) for any other text.
Date readDate(const QString& text);

// The same with the names of the given locale.
Date readDate(const QString& text, const QLocale& names);
