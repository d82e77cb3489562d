// The looks of the calendar.
#include "controls/quiet_calendar.h"

#include <QEvent>
#include <QIcon>
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

// Qt's calendar looks its arrows up in the desktop's icon theme, which no other part of a window
// does, and they are replaced here. To read the theme takes as long as all the rest of the
// calendar.
class QuietCalendar::IconThemeAside {
  public:
    IconThemeAside() : searchPaths_(QIcon::themeSearchPaths()) {
        QIcon::setThemeSearchPaths({QStringLiteral(":/icons")});
    }
    ~IconThemeAside() { QIcon::setThemeSearchPaths(searchPaths_); }
    Q_DISABLE_COPY_MOVE(IconThemeAside)

  private:
    QStringList searchPaths_;
};

QuietCalendar::QuietCalendar(QWidget* parent) : QuietCalendar(parent, IconThemeAside()) {}

QuietCalendar::QuietCalendar(QWidget* parent, const IconThemeAside&) : QCalendarWidget(parent) {
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
