// Our dates as Qt's, for its controls, locales and clock, and back.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QTime>

#include "cycles/date.h"

// The calendar day of a date.
QDate toQDate(Date date);

// The time of day of a date, to the nearest millisecond of that day.
QTime toQTime(Date date);

// The day as a date, and the moment as a date with a time. Both raise std::overflow_error for an
// invalid argument and outside the years of a Date.
Date fromQDate(QDate date);
Date fromQDateTime(const QDateTime& moment);
