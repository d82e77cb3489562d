// A month on the screen, of which one day is selected.
#pragma once

#include "controls/date_control.h"
#include "controls/quiet_calendar.h"

// SelChange is fired when the user picks another day, by mouse or keys. Turning the page to another
// month picks nothing.
class MonthView final : public QuietCalendar, public DateControl {
    Q_OBJECT

  public:
    explicit MonthView(QWidget* parent = nullptr);

  Q_SIGNALS:
    void SelChange();

  protected:
    void showValue(QDate value) override { setSelectedDate(value); }
    void showMinDate(QDate minDate) override { setMinimumDate(minDate); }
    void fireChange() override { Q_EMIT SelChange(); }
};
