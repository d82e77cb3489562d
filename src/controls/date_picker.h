// A field with a date, which the user types or picks from a calendar that drops down.
#pragma once

#include <QDateEdit>

#include "controls/date_control.h"

class QuietCalendar;

// Change is fired when the user has changed the date. A window's shortcut for Ctrl+A stays the
// window's while the field has the focus.
class DatePicker final : public QDateEdit, public DateControl {
    Q_OBJECT

  public:
    explicit DatePicker(QWidget* parent = nullptr);

    // The form in which the date is shown, "d MMMM yyyy" or another such as "MMMM yyyy", with the
    // names of the host's locale.
    QString CustomFormat() const { return displayFormat(); }
    void setCustomFormat(const QString& format) { setDisplayFormat(format); }

  Q_SIGNALS:
    void Change();

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void showValue(QDate value) override { setDate(value); }
    void showMinDate(QDate minDate) override { setMinimumDate(minDate); }
    void fireChange() override { Q_EMIT Change(); }

  private:
    QuietCalendar* calendar_ = nullptr;  // the one that drops down
};
