// The calendar as Ondara shows it.
#pragma once

#include <QCalendarWidget>

// Qt's calendar with the names and the first day of the week of the host's locale, without week
// numbers, and without colours that would mean something here: red is the colour of a cycle.
class QuietCalendar : public QCalendarWidget {
    Q_OBJECT

  public:
    explicit QuietCalendar(QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    class IconThemeAside;
    QuietCalendar(QWidget* parent, const IconThemeAside&);

    void followPalette();
};
