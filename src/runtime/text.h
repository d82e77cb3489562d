// The classical text functions. Positions count from 1; a blank is the character 0x20 and no other.
#pragma once

#include <QString>

#include "cycles/integers.h"

// The text without blanks at both ends.
QString Trim(const QString& text);

// The first `length` characters, or all of a shorter text. Raises 5 for a negative length.
QString Left(const QString& text, Long length);

// The text from position `start`; "" beyond its end. Raises 5 for a position below 1.
QString Mid(const QString& text, Long start);

// The position of the first occurrence, letter for letter; 0 if there is none, or nothing to
// search. An empty text is found at 1.
Long InStr(const QString& text, const QString& wanted);

// The text in lower case.
QString LCase(const QString& text);

// The number at the start of a text, with blanks, tabs and line ends passed over; 0 if there is
// none. The decimal separator is the full stop whatever the locale. Raises 6 beyond a double's
// range.
double Val(QStringView text);
