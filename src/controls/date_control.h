// What a month calendar and a date picker have in common: the value, its bounds and its event.
#pragma once

#include <QDate>

#include "cycles/calendar.h"

// A control that holds one day, a date without a time, from MinDate to 31 December 9999.
//
// A value that code sets below MinDate becomes MinDate, and a MinDate that is raised above the
// value raises it. Neither fires an event: that the day was changed is told of the user alone.
class DateControl {
  public:
    Date Value() const { return value_; }
    void setValue(Date value);

    Date MinDate() const { return minDate_; }

    // Raises 380 for a day before 1753.
    void setMinDate(Date minDate);

    // Setting the day keeps month and year, and raises 380 if the month has no such day.
    Integer Day() const { return modCycles::Day(value_); }
    void setDay(Integer day);
    Integer Month() const { return modCycles::Month(value_); }
    Integer Year() const { return modCycles::Year(value_); }

  protected:
    explicit DateControl(Date value) : value_(value) {}
    ~DateControl() = default;
    Q_DISABLE_COPY_MOVE(DateControl)

    // The control now shows this day. If code did not set it, the user did: then the value follows
    // and the event is fired.
    void shows(QDate day);

    virtual void showValue(QDate value) = 0;
    virtual void showMinDate(QDate minDate) = 0;
    virtual void fireChange() = 0;

  private:
    Date value_;
    Date minDate_ = modCycles::kEarliestCalendarDate;
};
