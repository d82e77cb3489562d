// The date picker on Qt's date edit.
#include "controls/date_picker.h"

#include <QKeyEvent>

#include "controls/quiet_calendar.h"
#include "runtime/host.h"
#include "runtime/qt_dates.h"

DatePicker::DatePicker(QWidget* parent) : QDateEdit(parent), DateControl(host().today()) {
    setLocale(host().locale());
    setDisplayFormat(QStringLiteral("d MMMM yyyy"));
    setDateRange(toQDate(modCycles::kEarliestCalendarDate),
                 toQDate(modCycles::kLatestCalendarDate));
    setDate(toQDate(Value()));
    setCalendarPopup(true);
    connect(this, &QDateEdit::dateChanged, this, [this](QDate date) { shows(date); });
}

// To select everything is what the focus does anyway; so the field claims no key for it.
bool DatePicker::event(QEvent* event) {
    const bool wantsKey = event->type() == QEvent::ShortcutOverride &&
                          static_cast<QKeyEvent*>(event)->matches(QKeySequence::SelectAll);
    if (wantsKey)
        event->ignore();
    return !wantsKey && QDateEdit::event(event);
}

// A field that stays hidden needs no calendar, which is the larger part of it.
void DatePicker::showEvent(QShowEvent* event) {
    if (!calendar_) {
        calendar_ = new QuietCalendar(this);
        setCalendarWidget(calendar_);
    }
    QDateEdit::showEvent(event);
}
