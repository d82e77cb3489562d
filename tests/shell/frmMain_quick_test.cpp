// The quick biorhythm mode of the main window.
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

#include "controls/chart.h"
#include "controls/combo_box.h"
#include "controls/date_picker.h"
#include "controls/list_box.h"
#include "controls/month_view.h"
#include "controls/picture_button.h"
#include "controls/status_bar.h"
#include "cycles/calendar.h"
#include "cycles/cycle.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

using namespace modCycles;

namespace {

class QuickMode : public MainWindowTest {
  protected:
    void enter() {
        load();
        trigger("mnuQuickBio");
    }

    void go(Date birthdate) {
        control<DatePicker>("dtpQuickBio").setValue(birthdate);
        control<QPushButton>("cmdQuickGo").click();
    }

    QString title() { return control<QLabel>("lblTitle").text(); }
    MonthView& calendar() { return control<MonthView>("dtpSelDate"); }
    Chart& chart() { return control<Chart>("chtMain"); }
    bool shown(const char* name) { return !control<QWidget>(name).isHidden(); }

    void expectMode(bool quick) {
        EXPECT_EQ(window().QuickMode, quick);
        for (const char* name : {"lblBirth", "dtpQuickBio", "cmdReturn", "cmdQuickGo"})
            EXPECT_EQ(shown(name), quick) << name;
        for (const char* name : {"lstMain", "cbCategory", "lblFilter"})
            EXPECT_EQ(shown(name), !quick) << name;
        EXPECT_EQ(control<QAction>("mnuViewDetails").isEnabled(), !quick);
        EXPECT_EQ(control<QMenu>("mnuCompatibility").menuAction()->isEnabled(), !quick);
        EXPECT_EQ(control<QAction>("mnuReport").isEnabled(), !quick);
        EXPECT_EQ(control<PictureButton>("cmdDetails").isEnabled(), !quick);
        EXPECT_EQ(control<QToolBar>("tlbMain").isEnabled(), !quick);
    }

    void expectBlank() {
        EXPECT_EQ(control<ListBox>("lstMain").ListIndex(), -1);
        EXPECT_EQ(calendar().MinDate(), DateSerial(1753, 1, 1));
        EXPECT_EQ(calendar().Value(), DateSerial(2000, 3, 14));
        EXPECT_EQ(title(), QStringLiteral("Biorhythm for <unspecified>"));
        EXPECT_EQ(chart().Data(2, 1), CalcCycle(0, 1, kEmotionalKey));
    }
};

TEST_F(QuickMode, ShowsItsOwnControlsAndDisablesWhatNeedsAPerson) {
    load();
    expectMode(false);
    trigger("mnuQuickBio");
    expectMode(true);
    control<QPushButton>("cmdReturn").click();
    expectMode(false);
}

TEST_F(QuickMode, IsLeftByTheCommandThatEntersIt) {
    enter();
    trigger("mnuQuickBio");
    expectMode(false);
}

TEST_F(QuickMode, BlanksTheChartWhenItIsEnteredAndLeft) {
    loadAndChoose(QStringLiteral("Smith, Anna"));
    trigger("mnuQuickBio");
    expectBlank();
    go(DateSerial(1980, 6, 1));
    control<QPushButton>("cmdReturn").click();
    expectBlank();
}

TEST_F(QuickMode, KeepsTheLastTextOfTheStatusBar) {
    loadAndChoose(QStringLiteral("Smith, Anna"));
    const QString values = control<StatusBar>("sbMain").panelText();
    trigger("mnuQuickBio");
    EXPECT_EQ(control<StatusBar>("sbMain").panelText(), values);
    trigger("mnuQuickBio");
    EXPECT_EQ(control<StatusBar>("sbMain").panelText(), values);
}

TEST_F(QuickMode, ChartsTheDateThatWasTyped) {
    enter();
    go(DateSerial(1972, 10, 20));
    EXPECT_EQ(title(), QStringLiteral("Quick biorhythm"));
    EXPECT_EQ(calendar().MinDate(), DateSerial(1972, 10, 20));
    EXPECT_EQ(chart().Data(1, 1), CalcCycle(10007, 0, kEmotionalKey));
    EXPECT_TRUE(control<StatusBar>("sbMain").panelText().startsWith(
        QStringLiteral("14/03/2000:   Emotional: 62%")));
}

TEST_F(QuickMode, ShowsTheMonthOfTheBirthDateByItsName) {
    enter();
    control<DatePicker>("dtpQuickBio").setValue(DateSerial(1972, 10, 2));
    EXPECT_EQ(control<DatePicker>("dtpQuickBio").text(), QStringLiteral("2 October 1972"));
}

TEST_F(QuickMode, AcceptsAnyDateAtFirst) {
    enter();
    go(DateSerial(1753, 1, 1));
    EXPECT_EQ(title(), QStringLiteral("Quick biorhythm"));
}

TEST_F(QuickMode, RaisesTheCalendarToALaterDate) {
    enter();
    go(DateSerial(2020, 2, 29));
    EXPECT_EQ(calendar().Value(), DateSerial(2020, 2, 29));
    EXPECT_EQ(chart().Data(1, 1), 0.0);
}

TEST_F(QuickMode, RefusesADateBeforeTheLastOneUntilItIsEnteredAgain) {
    enter();
    go(DateSerial(1990, 1, 1));
    host_.expectMessage(QStringLiteral("Invalid date."));
    go(DateSerial(1980, 1, 1));
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::Exclamation);
    EXPECT_EQ(
        chart().Data(1, 1),
        CalcCycle(DayCount(DateSerial(1990, 1, 1), DateSerial(2000, 3, 14)), 0, kEmotionalKey));
    trigger("mnuQuickBio");
    trigger("mnuQuickBio");
    go(DateSerial(1980, 1, 1));
    EXPECT_EQ(calendar().MinDate(), DateSerial(1980, 1, 1));
}

TEST_F(QuickMode, IgnoresTheCalendarUntilADateHasBeenCharted) {
    enter();
    calendar().setValue(DateSerial(2010, 5, 5));
    Q_EMIT calendar().SelChange();
    EXPECT_EQ(title(), QStringLiteral("Biorhythm for <unspecified>"));
    go(DateSerial(1980, 1, 1));
    calendar().setValue(DateSerial(2011, 6, 6));
    Q_EMIT calendar().SelChange();
    EXPECT_EQ(chart().content().table.rowLabels.front(), QStringLiteral("06/06/2011"));
}

TEST_F(QuickMode, RefusesAnEarlierDateAlsoWhenTheCalendarMoves) {
    enter();
    go(DateSerial(1990, 1, 1));
    control<DatePicker>("dtpQuickBio").setValue(DateSerial(1980, 1, 1));
    host_.expectMessage(QStringLiteral("Invalid date."));
    calendar().setValue(DateSerial(2011, 6, 6));
    Q_EMIT calendar().SelChange();
    EXPECT_EQ(chart().content().table.rowLabels.front(), QStringLiteral("14/03/2000"));
}

TEST_F(QuickMode, EndsTheProgramWhenTheListBehindItIsEmpty) {
    addCategory(QStringLiteral("Empty"));
    load();
    control<ComboBox>("cbCategory").setText(QStringLiteral("Empty"));
    trigger("mnuQuickBio");
    host_.expectMessage(QStringLiteral("Run-time error '380':\n\nInvalid property value"));
    go(DateSerial(1980, 1, 1));
    EXPECT_EQ(host_.exitCode(), 1);
}

}  // namespace
