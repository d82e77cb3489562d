// The window of the search for events: how it opens, what its controls do, and what a row opens.
#include "analyses/frmFind.h"

#include <QCoreApplication>

#include "analyses/finder_driver.h"
#include "controls/chart.h"
#include "controls/list_box.h"
#include "controls/month_view.h"
#include "controls/picture_box.h"
#include "records/dlgBZoom.h"
#include "shell/main_chart.h"
#include "support/form_rules.h"
#include "support/next_form.h"

using modCycles::DateSerial;

namespace {

const QString kAnna = QStringLiteral("Smith, Anna");

using FinderWindow = EventFinder;

// The first day of the main chart.
QString firstDay() {
    return modCycles::ChartPointText(0);
}

TEST_F(FinderWindow, OpensOnTodayWithEverythingAtItsFirst) {
    loadAndChoose(kAnna);
    control<MonthView>("dtpSelDate").setValue(DateSerial(2001, 2, 3));
    form_ = std::make_unique<frmFind>(&window());
    runEvent([this] { form_->Show(); });
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Find events"));
    EXPECT_EQ(of<DatePicker>("dtpStart").Value(), kToday);
    EXPECT_EQ(of<DatePicker>("dtpStart").MinDate(), DateSerial(1972, 10, 20));
    EXPECT_EQ(of<DatePicker>("dtpStart").CustomFormat(), QStringLiteral("d MMM yyyy"));
    EXPECT_EQ(of<QSlider>("sldPeriod").value(), 1);
    EXPECT_EQ(textOf("lblSlider"), QStringLiteral("1"));
    EXPECT_EQ(of<ComboBox>("cbSpan").Text(), QStringLiteral("Days"));
    EXPECT_EQ(of<ComboBox>("cbTriple").Text(), QStringLiteral("Double"));
    EXPECT_TRUE(of<QAbstractButton>("optForward").isChecked());
    EXPECT_TRUE(of<QAbstractButton>("optPeak").isChecked());
    EXPECT_FALSE(of<QAbstractButton>("chkCustom").isChecked());
    EXPECT_TRUE(isShown("frameSpecial"));
    EXPECT_FALSE(isShown("frameCustom"));
    EXPECT_FALSE(isShown("frameLegend"));
    EXPECT_FALSE(isShown("pbFind"));
    EXPECT_EQ(textOf("sbFind_Status"), QStringLiteral("Ready"));
    EXPECT_EQ(textOf("sbFind_User"), QStringLiteral("Anna Smith"));
    EXPECT_EQ(rows(), 0);
}

TEST_F(FinderWindow, KeepsTheRulesOfFormsWithEitherSettings) {
    openFor(kAnna);
    for (const auto& [isCustom, sharedLetters] : {std::pair(false, "C"), {true, "CE"}}) {
        check("chkCustom", isCustom);
        EXPECT_EQ(objectionsToTabOrder(*form_), Objections()) << isCustom;
        EXPECT_EQ(objectionsToMnemonics(*form_, sharedLetters), Objections()) << isCustom;
        EXPECT_EQ(objectionsToNames(*form_), Objections()) << isCustom;
        EXPECT_EQ(objectionsToSize(*form_), Objections()) << isCustom;
    }
}

TEST_F(FinderWindow, StartsOnTheBirthOfWhoIsBornLater) {
    addPerson({.name = QStringLiteral("Unborn"), .birthdate = Value(DateSerial(2000, 6, 1))});
    openFor(QStringLiteral("Unborn"));
    EXPECT_EQ(of<DatePicker>("dtpStart").Value(), DateSerial(2000, 6, 1));
}

TEST_F(FinderWindow, CallsItsControlsByTheirTexts) {
    openFor(kAnna);
    const std::pair<const char*, const char*> captions[] = {{"optForward", "&Forward"},
                                                            {"optBack", "&Back"},
                                                            {"cmdFind", "Find"},
                                                            {"chkCustom", "&Custom settings"},
                                                            {"optPeak", "&Peak"},
                                                            {"optLow", "&Low"},
                                                            {"optCritical", "&Critical"},
                                                            {"chkEmot", "&Emotional"},
                                                            {"chkPhys", "&Physical"},
                                                            {"chkIntel", "&Intellectual"},
                                                            {"cmdSelCycle", "Select all"},
                                                            {"chkPeak", "P&eak"},
                                                            {"chkLow", "&Low"},
                                                            {"chkCritical", "&Critical"},
                                                            {"cmdSelChar", "Select all"},
                                                            {"cmdClose", "Close"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(of<QAbstractButton>(name).text(), QString::fromLatin1(caption)) << name;
    const std::pair<const char*, const char*> titles[] = {{"frameTime", "Time"},
                                                          {"frameSpecial", "Special events"},
                                                          {"frameCustom", "Custom settings"},
                                                          {"frameLegend", "Legend"}};
    for (const auto& [name, title] : titles)
        EXPECT_EQ(of<QWidget>(name).property("title").toString(), QString::fromLatin1(title));
    const std::pair<const char*, const char*> labels[] = {
        {"Label1", "Search:"},
        {"Label2", "starting from"},
        {"Label3", "Cycles"},
        {"Label4", "Characteristic"},
        {"lblLegend1", "Emotional / Physical"},
        {"lblLegend2", "Emotional / Intellectual"},
        {"lblLegend3", "Physical / Intellectual"}};
    for (const auto& [name, text] : labels)
        EXPECT_EQ(textOf(name), QString::fromLatin1(text)) << name;
    EXPECT_EQ(list().toolTip(), QStringLiteral("Click on icon for Biorhythm chart"));
    EXPECT_EQ(of<ComboBox>("cbSpan").List(1) + of<ComboBox>("cbSpan").List(2) +
                  of<ComboBox>("cbSpan").List(3) + of<ComboBox>("cbTriple").List(1),
              QStringLiteral("WeeksMonthsYearsTriple"));
}

TEST_F(FinderWindow, ExplainsThePicturesOfItsList) {
    openFor(kAnna);
    for (const auto& [label, key] : {std::pair("imgEmot", "event-emot"),
                                     {"imgPhys", "event-phys"},
                                     {"imgIntel", "event-intel"},
                                     {"imgLegend1", "event-ep"},
                                     {"imgLegend2", "event-ei"},
                                     {"imgLegend3", "event-pi"}})
        EXPECT_TRUE(isPicture(of<QLabel>(label).pixmap(), key)) << label;
}

TEST_F(FinderWindow, HasASliderOfAHundredStepsThatTellsItsValue) {
    openFor(kAnna);
    const auto& slider = of<QSlider>("sldPeriod");
    EXPECT_EQ(slider.minimum(), 0);
    EXPECT_EQ(slider.maximum(), 100);
    EXPECT_EQ(slider.singleStep(), 1);
    EXPECT_EQ(slider.pageStep(), 5);
    pressKey(of<QWidget>("sldPeriod"), Qt::Key_PageUp);
    EXPECT_EQ(textOf("lblSlider"), QStringLiteral("6"));
    pressKey(of<QWidget>("sldPeriod"), Qt::Key_Home);
    EXPECT_EQ(textOf("lblSlider"), QStringLiteral("0"));
}

TEST_F(FinderWindow, HasASliderOfOneLengthWhateverItsValue) {
    openFor(kAnna);
    auto& slider = of<QSlider>("sldPeriod");
    const int length = slider.width();
    slider.setValue(100);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(slider.width(), length);
}

TEST_F(FinderWindow, ShowsTheSettingsThatAreInForceAndLeavesTheList) {
    openFor(kNewborn);
    setPeriod(100, kYears);
    search();
    ASSERT_TRUE(isShown("frameLegend"));
    const int found = rows();
    check("chkCustom");
    EXPECT_FALSE(isShown("frameSpecial"));
    EXPECT_TRUE(isShown("frameCustom"));
    EXPECT_FALSE(isShown("frameLegend"));
    check("chkCustom", false);
    EXPECT_TRUE(isShown("frameSpecial"));
    EXPECT_FALSE(isShown("frameCustom"));
    EXPECT_FALSE(isShown("frameLegend"));
    EXPECT_EQ(rows(), found);
}

TEST_F(FinderWindow, SelectsAllCyclesAndDeselectsThem) {
    openFor(kAnna);
    check("chkCustom");
    check("chkPhys");
    check("chkLow");
    auto& button = of<QAbstractButton>("cmdSelCycle");
    button.click();
    for (const char* box : {"chkEmot", "chkPhys", "chkIntel"})
        EXPECT_TRUE(of<QAbstractButton>(box).isChecked()) << box;
    EXPECT_EQ(button.text(), QStringLiteral("Deselect all"));
    EXPECT_FALSE(of<QAbstractButton>("chkPeak").isChecked());
    button.click();
    for (const char* box : {"chkEmot", "chkPhys", "chkIntel"})
        EXPECT_FALSE(of<QAbstractButton>(box).isChecked()) << box;
    EXPECT_EQ(button.text(), QStringLiteral("Select all"));
    EXPECT_TRUE(of<QAbstractButton>("chkLow").isChecked());
}

TEST_F(FinderWindow, SelectsAllWhereTheButtonOffersItAlsoIfAllAreTicked) {
    openFor(kAnna);
    check("chkCustom");
    for (const char* box : {"chkEmot", "chkPhys", "chkIntel"})
        check(box);
    auto& button = of<QAbstractButton>("cmdSelCycle");
    EXPECT_EQ(button.text(), QStringLiteral("Select all"));
    button.click();
    for (const char* box : {"chkEmot", "chkPhys", "chkIntel"})
        EXPECT_TRUE(of<QAbstractButton>(box).isChecked()) << box;
    EXPECT_EQ(button.text(), QStringLiteral("Deselect all"));
}

TEST_F(FinderWindow, SelectsAllKindsAndDeselectsThem) {
    openFor(kAnna);
    check("chkCustom");
    auto& button = of<QAbstractButton>("cmdSelChar");
    button.click();
    for (const char* box : {"chkPeak", "chkLow", "chkCritical"})
        EXPECT_TRUE(of<QAbstractButton>(box).isChecked()) << box;
    EXPECT_EQ(button.text(), QStringLiteral("Deselect all"));
    EXPECT_FALSE(of<QAbstractButton>("chkEmot").isChecked());
    button.click();
    for (const char* box : {"chkPeak", "chkLow", "chkCritical"})
        EXPECT_FALSE(of<QAbstractButton>(box).isChecked()) << box;
}

TEST_F(FinderWindow, OpensTheChartFromTheDayThatIsClicked) {
    openFor(kNewborn);
    setPeriod(7, kDays);
    searchCycles({"chkEmot"});
    bool isOwned = false;
    onNextForm<dlgBZoom>([&](dlgBZoom& zoom) {
        isOwned = zoom.isModal() && zoom.parentWidget() == form_.get();
        EXPECT_FALSE(child<PictureBox>(zoom, QStringLiteral("Picture1")).pixmap().isNull());
    });
    clickRow(0);
    EXPECT_TRUE(isOwned);
    // The values are those of the peak a week after the birth.
    EXPECT_TRUE(firstDay().contains(QStringLiteral("100%"))) << firstDay().toStdString();
}

TEST_F(FinderWindow, OpensTheChartOfASharedDay) {
    openFor(kNewborn);
    check("optCritical");
    of<ComboBox>("cbTriple").setListIndex(1);
    setPeriod(100, kYears);
    search();
    ASSERT_EQ(row(1), QStringLiteral("Tue, 10 December 2019"));
    bool isShownOnce = false;
    onNextForm<dlgBZoom>([&](dlgBZoom&) { isShownOnce = true; });
    clickRow(1);
    EXPECT_TRUE(isShownOnce);
    const QString shown = firstDay();
    modCycles::RedrawMainChart(kToday, DateSerial(2019, 12, 10));
    EXPECT_EQ(shown, firstDay());
}

TEST_F(FinderWindow, DoesNothingForTheLineThatTellsOfNoEvent) {
    openFor(kNewborn);
    const QString before = firstDay();
    search();
    ASSERT_EQ(allRows(), QStringList{kNoneFound});
    clickRow(0);
    EXPECT_EQ(firstDay(), before);
    EXPECT_EQ(Form::forms().back(), form_.get());
    EXPECT_FALSE(host_.exitCode());
}

TEST_F(FinderWindow, SaysNothingOfADayWhoseChartWouldPassTheLastYear) {
    openFor(kNewborn);
    of<DatePicker>("dtpStart").setValue(DateSerial(9999, 12, 1));
    setPeriod(30, kDays);
    searchCycles({"chkEmot"});
    ASSERT_GT(rows(), 0);
    clickRow(0);
    EXPECT_EQ(Form::forms().back(), form_.get());
    EXPECT_FALSE(host_.exitCode());
}

TEST_F(FinderWindow, PutsTheChartBackWhenItIsClosed) {
    loadAndChoose(kNewborn);
    control<MonthView>("dtpSelDate").setValue(kToday + 3);
    modCycles::RedrawMainChart(kToday, kToday + 3);
    const QString before = firstDay();
    form_ = std::make_unique<frmFind>(&window());
    runEvent([this] { form_->Show(); });
    setPeriod(7, kDays);
    searchCycles({"chkEmot"});
    onNextForm<dlgBZoom>([](dlgBZoom&) {});
    clickRow(0);
    ASSERT_NE(firstDay(), before);
    of<QAbstractButton>("cmdClose").click();
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_EQ(firstDay(), before);
}

TEST_F(FinderWindow, IsNotClosedByEsc) {
    openFor(kAnna);
    pressEsc();
    EXPECT_TRUE(form_->isLoaded());
}

}  // namespace
