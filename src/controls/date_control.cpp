// The value of a date control and its bounds.
#include "controls/date_control.h"

#include <algorithm>

#include "runtime/errors.h"
#include "runtime/qt_dates.h"

namespace {

Date withoutTime(Date date) {
    return Date(date.dayNumber());
}

}  // namespace

// The value stands before the control shows it, which is how shows() tells code from the user.
void DateControl::setValue(Date value) {
    value_ = std::max(withoutTime(value), minDate_);
    showValue(toQDate(value_));
}

void DateControl::setDay(Integer day) {
    const Date lastOfMonth = modCycles::DateSerial(Year(), Month() + 1, 0);
    if (day < 1 || day > modCycles::Day(lastOfMonth))
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    setValue(modCycles::DateSerial(Year(), Month(), day));
}

void DateControl::setMinDate(Date minDate) {
    const Date day = withoutTime(minDate);
    if (day < modCycles::kEarliestCalendarDate)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    minDate_ = day;
    value_ = std::max(value_, minDate_);
    showMinDate(toQDate(minDate_));
}

void DateControl::shows(QDate day) {
    const Date shown = fromQDate(day);
    if (shown == value_)
        return;
    value_ = shown;
    fireChange();
}
