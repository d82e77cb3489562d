// The conversions of qt_dates.h.
#include "runtime/qt_dates.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kJulianDayOfDayZero = 2415019;  // 30 December 1899
constexpr double kMillisecondsPerDay = 86'400'000;

}  // namespace

QDate toQDate(Date date) {
    return QDate::fromJulianDay(kJulianDayOfDayZero + date.dayNumber());
}

QTime toQTime(Date date) {
    const double fraction = std::abs(date.serial() - date.dayNumber());
    const double milliseconds = std::round(fraction * kMillisecondsPerDay);
    return QTime::fromMSecsSinceStartOfDay(
        static_cast<int>(std::min(milliseconds, kMillisecondsPerDay - 1)));
}

Date fromQDate(QDate date) {
    // The Julian day of an invalid date is so low that only a float can go below it.
    return Date(static_cast<double>(date.toJulianDay()) - kJulianDayOfDayZero);
}

Date fromQDateTime(const QDateTime& moment) {
    const double day = fromQDate(moment.date()).serial();
    const double time = moment.time().msecsSinceStartOfDay() / kMillisecondsPerDay;
    return Date(day < 0 ? day - time : day + time);
}
