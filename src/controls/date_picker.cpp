// The date picker on Qt's date edit.
#include "controls/date_picker.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "controls/quiet_calendar.h"
#include "runtime/host.h"
#include "runtime/qt_dates.h"

namespace {

// Qt's field shows a text of its own in place of its earliest date. In an empty field that is a
// blank for a day that nobody can choose otherwise.
const QDate kNoDate = toQDate(modCycles::kEarliestCalendarDate).addDays(-1);

bool types(const QKeyEvent& key) {
    return !key.text().isEmpty() && key.text().front().isPrint() &&
           !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

}  // namespace

DatePicker::DatePicker(QWidget* parent) : QDateEdit(parent), DateControl(host().today()) {
    setLocale(host().locale());
    setDisplayFormat(QStringLiteral("d MMMM yyyy"));
    setDateRange(toQDate(modCycles::kEarliestCalendarDate),
                 toQDate(modCycles::kLatestCalendarDate));
    setDate(toQDate(Value()));
    setCalendarPopup(true);
    connect(this, &QDateEdit::dateChanged, this, &DatePicker::userShows);
    followPalette();
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
        calendar_->installEventFilter(this);
        setCalendarWidget(calendar_);
    }
    QDateEdit::showEvent(event);
}

void DatePicker::setEmpty() {
    setValue(host().today());
    empty_ = true;
    const QSignalBlocker quiet(this);
    setMinimumDate(kNoDate);
    setSpecialValueText(QStringLiteral(" "));
    setDate(kNoDate);
}

void DatePicker::showValue(QDate value) {
    if (telling_)
        return;
    if (empty_) {
        empty_ = false;
        const QSignalBlocker quiet(this);
        setSpecialValueText({});
        setDate(value);
        setMinimumDate(toQDate(MinDate()));
    }
    setDate(value);
}

void DatePicker::showMinDate(QDate minDate) {
    if (!empty_)
        setMinimumDate(minDate);
}

// From the empty field, the first date that the user comes to is a change, whichever it is. Qt
// tells of the field's date also when Enter or the loss of the focus has left it as it was.
void DatePicker::userShows(QDate day) {
    if (!empty_) {
        tell([&] { shows(day); });
    } else if (day != kNoDate) {
        setValue(fromQDate(day));
        tell([&] { fireChange(); });
    }
}

// The user may be in the middle of a number. So the text is left alone while the change is told of,
// and shows another date only if it ends on another.
void DatePicker::tell(const std::function<void()>& change) {
    {
        const QScopedValueRollback telling(telling_, true);
        change();
    }
    const QDate value = toQDate(Value());
    if (!empty_ && date() != value)
        setDate(value);
}

void DatePicker::beginToday() {
    userShows(toQDate(host().today()));
    setSelectedSection(sectionAt(0));
}

void DatePicker::stepBy(int steps) {
    if (empty_)
        beginToday();
    else
        QDateEdit::stepBy(steps);
}

void DatePicker::keyPressEvent(QKeyEvent* event) {
    if (empty_ && types(*event))
        beginToday();
    QDateEdit::keyPressEvent(event);
}

void DatePicker::changeEvent(QEvent* event) {
    QDateEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        followPalette();
}

void DatePicker::followPalette() {
    QPalette legible;
    legible.setBrush(QPalette::Disabled, QPalette::Text,
                     palette().brush(QPalette::Active, QPalette::Text));
    legible.setBrush(QPalette::Disabled, QPalette::Base,
                     palette().brush(QPalette::Active, QPalette::Button));
    setPalette(legible);
}

// The calendar of an empty field opens on today instead of the earliest date.
bool DatePicker::eventFilter(QObject* watched, QEvent* event) {
    if (watched == calendar_ && event->type() == QEvent::Show && empty_) {
        const QSignalBlocker quiet(calendar_);
        calendar_->setSelectedDate(toQDate(Value()));
    }
    return QDateEdit::eventFilter(watched, event);
}
