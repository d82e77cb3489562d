// Our dates as Qt's, for its controls, locales and clock, and back.
#pragma once

#include <QDate>
#include <QDateTime>
#include <QTime>

#include "cycles/date.h"

QDate toQDate(Date date);
QTime toQTime(Date date);
Date fromQDate(QDate date);
Date fromQDateTime(const QDateTime& moment);
