// What the tests of the critical and peak viewer do with it.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QLabel>
#include <memory>
#include <vector>

#include "analyses/day_analysis.h"
#include "analyses/frmCritical.h"
#include "controls/coloured_label.h"
#include "controls/date_picker.h"
#include "controls/month_view.h"
#include "controls/rich_text_box.h"
#include "controls/text_colours.h"
#include "runtime/event.h"
#include "runtime/qt_dates.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

inline const QString kAnna = QStringLiteral("Smith, Anna");
inline constexpr Date kAnnasBirth = modCycles::DateSerial(1972, 10, 20);
inline constexpr Date kPicked = modCycles::DateSerial(2000, 3, 20);

class CriticalViewer : public MainWindowTest {
  protected:
    void show() {
        runEvent([this] { form_->Show(); });
    }

    // Opens it for Anna Smith or another on the date that is picked in the main window.
    void open(const QString& displayText = kAnna, Date selected = kPicked) {
        choose(displayText, selected);
        show();
    }

    void choose(const QString& displayText, Date selected) {
        loadAndChoose(displayText);
        control<MonthView>("dtpSelDate").setValue(selected);
        form_ = std::make_unique<frmCritical>(&window());
    }

    // Opens it for somebody who is born on this day, on a date.
    void openBorn(Date birthdate, Date selected) {
        addPerson({.name = QStringLiteral("Newcomer"), .birthdate = Value(birthdate)});
        open(QStringLiteral("Newcomer"), selected);
    }

    template <class Control>
    Control& of(const QString& name) {
        return child<Control>(*form_, name);
    }
    template <class Control>
    Control& of(const char* name) {
        return of<Control>(QString::fromLatin1(name));
    }

    QString textOf(const char* label) { return of<QLabel>(label).text(); }
    DatePicker& picker() { return of<DatePicker>("dtpCritical"); }
    QString interpretation() { return of<RichTextBox>("rtbInterp").Text(); }

    void chooseView(int item) { click(of<QWidget>(QStringLiteral("bbDetails_%1").arg(item))); }

    // Changes the date as the user does, who goes past the control's own operations.
    void pick(Date date) { static_cast<QDateEdit&>(picker()).setDate(toQDate(date)); }

    bool isShown(const QString& name) { return of<QWidget>(name).isVisibleTo(form_.get()); }

    // The members of a control array, in order.
    template <class Control>
    std::vector<Control*> membersOf(const char* array) {
        std::vector<Control*> members;
        for (int i = 0;; ++i) {
            auto* member =
                form_->findChild<Control*>(QLatin1String(array) + u'_' + QString::number(i));
            if (!member)
                return members;
            members.push_back(member);
        }
    }

    QStringList textsOf(const char* array) {
        QStringList texts;
        for (const QLabel* label : membersOf<QLabel>(array))
            texts += label->text();
        return texts;
    }

    // Which members of an array are visible, by a mark for each.
    QString shownOf(const char* array) {
        QString marks;
        for (const QWidget* member : membersOf<QWidget>(array))
            marks += member->isVisibleTo(form_.get()) ? u'x' : u'.';
        return marks;
    }

    QString boldOf(const char* array) {
        QString marks;
        for (const ColouredLabel* label : membersOf<ColouredLabel>(array))
            marks += label->FontBold() ? u'x' : u'.';
        return marks;
    }

    // What the store says for the levels of a day.
    QString storedText(const modCycles::DayLevels& levels) {
        return valueOf(directory_.interpretation(),
                       QStringLiteral("SELECT interp FROM HLC WHERE Emot = %1 AND Phys = %2 AND "
                                      "Intel = %3")
                           .arg(levels.emotional)
                           .arg(levels.physical)
                           .arg(levels.intellectual))
            .toText();
    }

    QString storedText(Date date) { return storedText(readDay(kAnnasBirth, date).levels); }

    std::unique_ptr<frmCritical> form_;
};
