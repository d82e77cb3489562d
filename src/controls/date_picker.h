// A field with a date, which the user types or picks from a calendar that drops down.
#pragma once

#include <QDateEdit>
#include <functional>

#include "controls/date_control.h"

class QuietCalendar;

// Change is fired when the user has changed the date. A date that code sets while it hears of that
// is the value at once, and is shown after it. A window's shortcut for Ctrl+A stays the window's
// while the field has the focus.
//
// The field can be empty. It has a date again when code sets one or the user begins: a key that
// types or steps starts from today, and the calendar opens on today. Value is today while it is
// empty, or MinDate where that is later. A field that is disabled is still to be read, and looks
// like a locked text box.
class DatePicker final : public QDateEdit, public DateControl {
    Q_OBJECT

  public:
    explicit DatePicker(QWidget* parent = nullptr);

    // The form in which the date is shown, "d MMMM yyyy" or another such as "MMMM yyyy", with the
    // names of the host's locale.
    QString CustomFormat() const { return displayFormat(); }
    void setCustomFormat(const QString& format) { setDisplayFormat(format); }

    bool isEmpty() const { return empty_; }
    void setEmpty();

    void stepBy(int steps) override;

  Q_SIGNALS:
    void Change();

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showValue(QDate value) override;
    void showMinDate(QDate minDate) override;
    void fireChange() override { Q_EMIT Change(); }

  private:
    void userShows(QDate day);
    void tell(const std::function<void()>& change);
    void beginToday();
    void followPalette();

    QuietCalendar* calendar_ = nullptr;  // the one that drops down
    bool empty_ = false;
    bool telling_ = false;  // of a change by the user
};
