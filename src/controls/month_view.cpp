// The month calendar on Qt's calendar.
#include "controls/month_view.h"

#include "runtime/host.h"
#include "runtime/qt_dates.h"

MonthView::MonthView(QWidget* parent) : QuietCalendar(parent), DateControl(host().today()) {
    setDateRange(toQDate(modCycles::kEarliestCalendarDate),
                 toQDate(modCycles::kLatestCalendarDate));
    setSelectedDate(toQDate(Value()));
    connect(this, &QCalendarWidget::selectionChanged, this, [this] { shows(selectedDate()); });
}
