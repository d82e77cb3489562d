// The looks of the calendar.
#include "controls/quiet_calendar.h"

#include <QEvent>
#include <QTextCharFormat>
#include <QToolButton>

#include "runtime/host.h"

namespace {

// The calendar's parts go by names of Qt's; where one should be gone, Qt's looks remain.
template <class Part>
void withPart(const QWidget& calendar, const char* name, void (*change)(Part&)) {
    if (auto* part = calendar.findChild<Part*>(QLatin1String(name)))
        change(*part);
}

}  // namespace

QuietCalendar::QuietCalendar(QWidget* parent) : QCalendarWidget(parent) {
    setLocale(host().locale());
    setFirstDayOfWeek(locale().firstDayOfWeek());
    setVerticalHeaderFormat(NoVerticalHeader);
    withPart<QToolButton>(*this, "qt_calendar_prevmonth",
                          [](QToolButton& button) { button.setArrowType(Qt::LeftArrow); });
    withPart<QToolButton>(*this, "qt_calendar_nextmonth",
                          [](QToolButton& button) { button.setArrowType(Qt::RightArrow); });
    followPalette();
}

void QuietCalendar::changeEvent(QEvent* event) {
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        followPalette();
}

// Weekends in the colour of the other days, and the month above them as plain text.
void QuietCalendar::followPalette() {
    QTextCharFormat day;
    day.setForeground(palette().text());
    setWeekdayTextFormat(Qt::Saturday, day);
    setWeekdayTextFormat(Qt::Sunday, day);
    withPart<QWidget>(*this, "qt_calendar_navigationbar", [](QWidget& bar) {
        QPalette plain;
        plain.setBrush(QPalette::HighlightedText, plain.windowText());
        bar.setPalette(plain);
        bar.setBackgroundRole(QPalette::Window);
    });
}
