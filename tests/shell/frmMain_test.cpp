// The main window: a person's chart, the calendar and the arrows, the pointer on the chart,
// folding.
#include "shell/frmMain.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>

#include "controls/chart.h"
#include "controls/combo_box.h"
#include "controls/date_picker.h"
#include "controls/list_box.h"
#include "controls/month_view.h"
#include "controls/picture_button.h"
#include "controls/status_bar.h"
#include "cycles/calendar.h"
#include "cycles/cycle.h"
#include "shell/frmWait.h"
#include "shell/handover.h"
#include "support/errors.h"
#include "support/main_window.h"

using namespace modCycles;

namespace {

const QString kAnna = QStringLiteral("Smith, Anna");
const Date kAnnasBirthdate = DateSerial(1972, 10, 20);
class MainWindow : public MainWindowTest {
  protected:
    MonthView& calendar() { return control<MonthView>("dtpSelDate"); }
    Chart& chart() { return control<Chart>("chtMain"); }
    QString panel() { return control<StatusBar>("sbMain").panelText(); }
    void press(const char* button) { Q_EMIT control<PictureButton>(button).Click(); }
    void scrollBy(int unit) { control<ComboBox>("cmbScroll").setListIndex(unit); }

    // The mouse on the chart, in twips, and what it finds there.
    QString tipAt(double x, double y) {
        Q_EMIT chart().MouseMove(x, y);
        return chart().ToolTipText();
    }

    void expectChartFrom(Date birthdate, Date startdate) {
        EXPECT_EQ(calendar().Value(), startdate);
        EXPECT_EQ(chart().Data(1, 2), CalcCycle(DayCount(birthdate, startdate), 0, kPhysicalKey));
        EXPECT_EQ(chart().content().table.rowLabels.front(), host_.shortDate(startdate));
    }

    enum Unit { Days, Weeks, Months, Years };
};

TEST_F(MainWindow, StartsWithTodayAndWithoutAPerson) {
    load();
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Ondara 2.1"));
    EXPECT_EQ(control<ListBox>("lstMain").ListIndex(), -1);
    EXPECT_EQ(panel(), QStringLiteral("Select a person from the list"));
    EXPECT_EQ(calendar().Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(control<DatePicker>("dtpQuickBio").Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(control<ComboBox>("cmbScroll").Text(), QStringLiteral("Days"));
    EXPECT_EQ(control<ComboBox>("cmbScroll").ListCount(), 4);
    EXPECT_EQ(control<DatePicker>("dtpQuickBio").CustomFormat(), QStringLiteral("d MMMM yyyy"));
    EXPECT_TRUE(control<QAction>("mnuViewHide").isChecked());
    EXPECT_TRUE(control<QAction>("tlbMain_Hide").isChecked());
}

TEST_F(MainWindow, CallsItsControlsByTheirTextsBeforeItIsLoaded) {
    const frmMain unloaded;
    EXPECT_EQ(child<QLabel>(unloaded, QStringLiteral("lblTitle")).text(),
              QStringLiteral("Biorhythm"));
    EXPECT_EQ(child<QLabel>(unloaded, QStringLiteral("lblFilter")).text(),
              QStringLiteral("Apply Filter:"));
    EXPECT_EQ(child<ListBox>(unloaded, QStringLiteral("lstMain")).toolTip(),
              QStringLiteral("Doubleclick a name to see details"));
    EXPECT_TRUE(child<ListBox>(unloaded, QStringLiteral("listCats")).isHidden());
    EXPECT_EQ(child<QPushButton>(unloaded, QStringLiteral("cmdQuickGo")).text(),
              QStringLiteral("&Go"));
    EXPECT_EQ(child<QPushButton>(unloaded, QStringLiteral("cmdReturn")).text(),
              QStringLiteral("&Return to database"));
}

TEST_F(MainWindow, ScrollsByUnitsThatStandInTheirOrder) {
    load();
    QStringList units;
    for (int unit = Days; unit <= Years; ++unit)
        units += control<ComboBox>("cmbScroll").List(unit);
    EXPECT_EQ(units, QStringList({QStringLiteral("Days"), QStringLiteral("Weeks"),
                                  QStringLiteral("Months"), QStringLiteral("Years")}));
}

TEST_F(MainWindow, ChartsThePersonWhoIsChosen) {
    loadAndChoose(kAnna);
    EXPECT_EQ(control<QLabel>("lblTitle").text(), QStringLiteral("Biorhythm for Anna Smith"));
    expectChartFrom(kAnnasBirthdate, DateSerial(2000, 3, 14));
    EXPECT_EQ(panel(),
              QStringLiteral("14/03/2000:   Emotional: 62%, Physical: 52%, Intellectual: 100%, "
                             "Average: 71%"));
    EXPECT_EQ(control<StatusBar>("sbMain").panelToolTip(), panel());
}

TEST_F(MainWindow, NamesAPersonWithoutAFirstNameByTheSurname) {
    loadAndChoose(QStringLiteral("Zed"));
    EXPECT_EQ(control<QLabel>("lblTitle").text(), QStringLiteral("Biorhythm for Zed"));
}

TEST_F(MainWindow, ShowsNoughtOnTheDayOfBirth) {
    loadAndChoose(kAnna);
    calendar().setValue(kAnnasBirthdate);
    Q_EMIT calendar().SelChange();
    EXPECT_EQ(panel(), QStringLiteral("20/10/1972:   Emotional: 0%, Physical: 0%, "
                                      "Intellectual: 0%, Average: 0%"));
}

TEST_F(MainWindow, RaisesTheCalendarToALaterBirthDate) {
    addPerson({.name = QStringLiteral("Unborn"),
               .birthdate = Value(DateSerial(2001, 2, 3)),
               .catId = family_});
    loadAndChoose(QStringLiteral("Unborn"));
    EXPECT_EQ(calendar().MinDate(), DateSerial(2001, 2, 3));
    expectChartFrom(DateSerial(2001, 2, 3), DateSerial(2001, 2, 3));
}

TEST_F(MainWindow, FollowsTheCalendar) {
    loadAndChoose(kAnna);
    calendar().setValue(DateSerial(2010, 1, 2));
    Q_EMIT calendar().SelChange();
    expectChartFrom(kAnnasBirthdate, DateSerial(2010, 1, 2));
}

TEST_F(MainWindow, KeepsTheBlankChartWhenADateIsPickedWithoutAPerson) {
    load();
    calendar().setValue(DateSerial(2010, 1, 2));
    Q_EMIT calendar().SelChange();
    EXPECT_EQ(chart().content().table.rowLabels.front(), QStringLiteral("14/03/2000"));
    EXPECT_EQ(control<QLabel>("lblTitle").text(), QStringLiteral("Biorhythm for <unspecified>"));
}

TEST_F(MainWindow, ChartsAPersonWhoseCategoryIsGone) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("Orphan"), .birthdate = Value(kAnnasBirthdate), .catId = 99});
    loadAndChoose(QStringLiteral("Orphan"));
    expectChartFrom(kAnnasBirthdate, DateSerial(2000, 3, 14));
}

TEST_F(MainWindow, EndsTheProgramForAPersonWhoIsGone) {
    load();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data WHERE Name = 'Adler'"));
    host_.expectMessage(noCurrentRecordBox());
    control<ListBox>("lstMain").setListIndex(0);
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(MainWindow, EndsTheProgramForAPersonWithoutABirthDate) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("Undated"), .birthdate = {}, .catId = 1});
    load();
    host_.expectMessage(QStringLiteral("Run-time error '94':\n\nInvalid use of Null"));
    control<ListBox>("lstMain").setText(QStringLiteral("Undated"));
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(MainWindow, EndsTheProgramForABirthDateBeforeTheCalendarBegins) {
    addPerson({.name = QStringLiteral("Bach"),
               .birthdate = Value(DateSerial(1685, 3, 31)),
               .catId = family_});
    load();
    host_.expectMessage(QStringLiteral("Run-time error '380':\n\nInvalid property value"));
    control<ListBox>("lstMain").setText(QStringLiteral("Bach"));
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(MainWindow, ScrollsByTheChosenUnit) {
    loadAndChoose(kAnna);
    press("cmdIncrease");
    expectChartFrom(kAnnasBirthdate, DateSerial(2000, 3, 15));
    scrollBy(Weeks);
    press("cmdIncrease");
    expectChartFrom(kAnnasBirthdate, DateSerial(2000, 3, 22));
    scrollBy(Months);
    press("cmdDecrease");
    expectChartFrom(kAnnasBirthdate, DateSerial(2000, 2, 22));
    scrollBy(Years);
    press("cmdDecrease");
    expectChartFrom(kAnnasBirthdate, DateSerial(1999, 2, 22));
}

TEST_F(MainWindow, ScrollsBackToTheBirthDateAndNoFurther) {
    loadAndChoose(kAnna);
    calendar().setValue(kAnnasBirthdate + 3);
    scrollBy(Weeks);
    press("cmdDecrease");
    expectChartFrom(kAnnasBirthdate, kAnnasBirthdate);
    press("cmdDecrease");
    expectChartFrom(kAnnasBirthdate, kAnnasBirthdate);
}

TEST_F(MainWindow, ScrollsNothingWithoutAPerson) {
    load();
    scrollBy(-1);
    press("cmdDecrease");
    press("cmdIncrease");
    EXPECT_EQ(calendar().Value(), DateSerial(2000, 3, 14));
}

TEST_F(MainWindow, AsksForAUnitToScrollBy) {
    loadAndChoose(kAnna);
    const QString before = panel();
    scrollBy(-1);
    for (const char* button : {"cmdDecrease", "cmdIncrease"}) {
        host_.expectMessage(QStringLiteral("Please select a unit from the dropdown box"));
        press(button);
        EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    }
    EXPECT_EQ(calendar().Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(panel(), before);
}

TEST_F(MainWindow, EndsTheProgramWhenItScrollsBeyondTheLastDate) {
    loadAndChoose(kAnna);
    calendar().setValue(kLatestCalendarDate);
    host_.expectMessage(QStringLiteral("Run-time error '6':\n\nOverflow"));
    press("cmdIncrease");
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(MainWindow, TellsThePointUnderTheMouse) {
    loadAndChoose(kAnna);
    EXPECT_EQ(tipAt(795, 1000), QStringLiteral("14/03/2000: Emot.: 62%, Phys.: 52%, Intel.: 100%"));
    EXPECT_EQ(chart().MousePointer(), MousePointerShape::ArrowQuestion);
    EXPECT_TRUE(tipAt(4695, 1000).startsWith(QStringLiteral("13/04/2000: ")));
}

TEST_F(MainWindow, ChangesThePointerBesideTheBandsWithoutATip) {
    loadAndChoose(kAnna);
    for (const double x : {790.0, 4696.0, 4769.0}) {
        EXPECT_EQ(tipAt(x, 1000), QString());
        EXPECT_EQ(chart().MousePointer(), MousePointerShape::ArrowQuestion);
    }
}

TEST_F(MainWindow, ForgetsTheTipOutsideThePlot) {
    loadAndChoose(kAnna);
    tipAt(795, 1000);
    EXPECT_EQ(tipAt(795, 2295), QString());
    EXPECT_EQ(chart().MousePointer(), MousePointerShape::Default);
}

TEST_F(MainWindow, FoldsAndUnfoldsThePanel) {
    load();
    trigger("mnuViewHide");
    EXPECT_EQ(window().width(), 247);
    EXPECT_FALSE(control<QAction>("mnuViewHide").isChecked());
    EXPECT_FALSE(control<QAction>("tlbMain_Hide").isChecked());
    trigger("tlbMain_Hide");
    EXPECT_EQ(window().width(), 605);
    EXPECT_TRUE(control<QAction>("mnuViewHide").isChecked());
    EXPECT_TRUE(control<QAction>("tlbMain_Hide").isChecked());
}

TEST_F(MainWindow, EndsWithEveryOtherForm) {
    load().Show();
    showWaitWindow();
    Form other(&window());
    other.Show();
    trigger("mnuFileExit");
    EXPECT_TRUE(Form::forms().empty());
    EXPECT_FALSE(other.isVisible());
    EXPECT_FALSE(window().isVisible());
}

TEST_F(MainWindow, EndsAllTheSameWhenItIsClosedByItsTitleBar) {
    load().Show();
    showWaitWindow();
    window().close();
    EXPECT_TRUE(Form::forms().empty());
}

TEST_F(MainWindow, HandsNobodyOverWhileItIsIdle) {
    loadAndChoose(kAnna);
    EXPECT_EQ(SelectedNameID, 0);
}

TEST_F(MainWindow, IsNotClosedByEsc) {
    load().Show();
    pressKey(window(), Qt::Key_Escape);
    EXPECT_TRUE(window().isLoaded());
}

TEST_F(MainWindow, EndsTheProgramWithoutItsDatabase) {
    QFile::remove(directory_.people());
    host_.expectMessage(
        QStringLiteral("Run-time error '53':\n\nFile not found: there is no file of this name, %1")
            .arg(QDir::toNativeSeparators(directory_.people())));
    load();
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(MainWindow, StartsWithoutTheInterpretations) {
    QFile::remove(directory_.interpretation());
    loadAndChoose(kAnna);
    EXPECT_EQ(host_.exitCode(), std::nullopt);
}

TEST_F(MainWindow, EndsTheProgramWithoutPeople) {
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    host_.expectMessage(noCurrentRecordBox());
    load();
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(MainWindow, EndsTheProgramWithoutCategories) {
    directory_.dropConstraints();
    addPerson({.name = QStringLiteral("Orphan"), .catId = 99});
    host_.expectMessage(noCurrentRecordBox());
    load();
    EXPECT_EQ(host_.exitCode(), 1);
}

}  // namespace
