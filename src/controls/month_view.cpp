// The month calendar on Qt's calendar.
#include "controls/month_view.h"

#include "runtime/host.h"
#include "runtime/qt_dates.h"

MonthView::MonthView(QWidget* parent) : QuietCalendar(parent), DateControl(host().today()) {
    setDateRange(toQDate(kEarliest), toQDate(kLatest));
    setSelectedDate(toQDate(Value()));
    connect(this, &QCalendarWidget::selectionChanged, this, [this] { shows(selectedDate()); });
}

// The page of the value's month comes back also where the value has not changed.
void MonthView::showValue(QDate value) {
    setSelectedDate(value);
    showSelectedDate();
}
