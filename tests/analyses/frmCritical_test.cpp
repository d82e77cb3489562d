// The critical and peak viewer: its views, and what it tells of the day.
#include <QAbstractButton>

#include "analyses/viewer_driver.h"
#include "controls/bar_shape.h"
#include "controls/button_bar.h"
#include "controls/picture_button.h"
#include "controls/twips.h"
#include "shell/frmWait.h"

using modCycles::DateSerial;

namespace {

constexpr const char* kTodayView[] = {
    "lblDateToday", "lblAge",   "Label6",     "lblToday_0", "lblToday_1", "lblToday_2",
    "lblToday_3",   "Label1_0", "Label7_1",   "Label7_2",   "Label7_3",   "barEmot",
    "barPhys",      "barIntel", "barAverage", "lineBars",   "rtbInterp"};
constexpr const char* kCriticalView[] = {"Label4",   "Label5", "Label3",     "Label2",
                                         "Label1_1", "Line1",  "Line2",      "Line3",
                                         "Line4",    "Shape1", "rtbCritical"};
constexpr const char* kSlots[] = {"lblEmot",     "lblPhys",     "lblIntel",
                                  "lblEmotPeak", "lblPhysPeak", "lblIntelPeak"};

TEST_F(CriticalViewer, IsAboutThePersonWhoIsChosen) {
    open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Details for Anna Smith (Libra)"));
}

TEST_F(CriticalViewer, NamesAPersonWithoutAFirstNameByTheName) {
    open(QStringLiteral("Zed"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Details for Zed (Aquarius)"));
}

TEST_F(CriticalViewer, OpensOnTheDateOfTheMainWindow) {
    open();
    EXPECT_EQ(picker().Value(), kPicked);
    EXPECT_EQ(picker().CustomFormat(), QStringLiteral("d MMMM yyyy"));
    EXPECT_EQ(of<ButtonBar>("bbDetails").ChosenItem(), 1);
}

TEST_F(CriticalViewer, CallsItsControlsByTheirTexts) {
    open();
    EXPECT_EQ(of<ButtonBar>("bbDetails").accessibleName(), QStringLiteral("Details"));
    EXPECT_EQ(of<QAbstractButton>("bbDetails_1").text(), QStringLiteral("Today"));
    EXPECT_EQ(of<QAbstractButton>("bbDetails_2").text(), QStringLiteral("Critical/Peak"));
    EXPECT_FALSE(of<QAbstractButton>("bbDetails_1").icon().isNull());
    EXPECT_FALSE(of<QAbstractButton>("bbDetails_2").icon().isNull());
    const std::pair<const char*, const char*> captions[] = {
        {"Label6", "Today:"},         {"Label1_0", "Emotional"},  {"Label7_1", "Physical"},
        {"Label7_2", "Intellectual"}, {"Label7_3", "Average"},    {"Label1_1", "Emotional"},
        {"Label2", "Physical"},       {"Label3", "Intellectual"}, {"Label4", "Critical Days"},
        {"Label5", "Peaks"}};
    for (const auto& [label, text] : captions)
        EXPECT_EQ(textOf(label), QLatin1String(text)) << label;
    EXPECT_EQ(of<PictureButton>("cmdClose").text(), QStringLiteral("Close"));
}

TEST_F(CriticalViewer, HasAsManySlotsAsTheAnalysisFills) {
    open();
    std::vector<std::size_t> sizes;
    for (const char* array :
         {"lblEmot", "lblPhys", "lblIntel", "lblEmotPeak", "lblPhysPeak", "lblIntelPeak",
          "imgSmileE", "imgSadE", "imgSmileP", "imgSadP", "imgSmileI", "imgSadI", "lblToday"})
        sizes.push_back(membersOf<QLabel>(array).size());
    EXPECT_EQ(sizes, (std::vector<std::size_t>{3, 4, 2, 3, 3, 2, 3, 3, 3, 3, 2, 2, 4}));
}

TEST_F(CriticalViewer, ShowsTheDayFirst) {
    open();
    for (const char* name : kTodayView)
        EXPECT_TRUE(isShown(QLatin1String(name))) << name;
    for (const char* name : kCriticalView)
        EXPECT_FALSE(isShown(QLatin1String(name))) << name;
    for (const char* array : kSlots)
        EXPECT_FALSE(shownOf(array).contains(u'x')) << array;
}

TEST_F(CriticalViewer, ShowsTheMonthInTheOtherView) {
    open();
    chooseView(2);
    EXPECT_EQ(picker().CustomFormat(), QStringLiteral("MMMM yyyy"));
    EXPECT_EQ(picker().Value(), kPicked);
    for (const char* name : kTodayView)
        EXPECT_FALSE(isShown(QLatin1String(name))) << name;
    for (const char* name : kCriticalView)
        EXPECT_TRUE(isShown(QLatin1String(name))) << name;
    for (const char* array : kSlots)
        EXPECT_FALSE(shownOf(array).contains(u'.')) << array;
}

TEST_F(CriticalViewer, GoesBackToTheDay) {
    open();
    chooseView(2);
    chooseView(1);
    EXPECT_EQ(picker().CustomFormat(), QStringLiteral("d MMMM yyyy"));
    EXPECT_TRUE(isShown(QStringLiteral("rtbInterp")));
    EXPECT_FALSE(isShown(QStringLiteral("rtbCritical")));
}

TEST_F(CriticalViewer, DoesNothingForAnItemThatItDoesNotHave) {
    open();
    of<QLabel>("lblAge").clear();
    Q_EMIT of<ButtonBar>("bbDetails").Click(1, 3);
    EXPECT_EQ(textOf("lblAge"), QString());
    EXPECT_TRUE(isShown(QStringLiteral("rtbInterp")));
    EXPECT_EQ(of<ButtonBar>("bbDetails").ChosenItem(), 1);
}

TEST_F(CriticalViewer, AnalysesForBothViewsWhicheverIsChosen) {
    open();
    for (const int item : {2, 1}) {
        of<QLabel>("lblAge").clear();
        of<QLabel>("lblEmot_0").clear();
        chooseView(item);
        EXPECT_NE(textOf("lblAge"), QString()) << item;
        EXPECT_NE(textOf("lblEmot_0"), QString()) << item;
    }
}

TEST_F(CriticalViewer, TellsOfTheDateThatIsPicked) {
    open();
    pick(DateSerial(2000, 10, 19));
    const DayReading reading = readDay(kAnnasBirth, DateSerial(2000, 10, 19));
    EXPECT_EQ(textOf("lblDateToday"), QStringLiteral("19/10/2000"));
    EXPECT_EQ(textOf("lblAge"), QStringLiteral("Age: 27 (10226 days)"));
    EXPECT_EQ(textsOf("lblToday"),
              QStringList(reading.percentTexts.begin(), reading.percentTexts.end()));
    EXPECT_EQ(interpretation(), storedText(DateSerial(2000, 10, 19)));
}

TEST_F(CriticalViewer, DrawsItsBarsOfTheUnroundedValues) {
    open();
    const DayReading reading = readDay(kAnnasBirth, kPicked);
    const char* bars[] = {"barEmot", "barPhys", "barIntel", "barAverage"};
    for (std::size_t i = 0; i < reading.percent.size(); ++i) {
        const Bar expected = barOf(reading.percent[i]);
        EXPECT_EQ(of<BarShape>(bars[i]).Left(), expected.left) << bars[i];
        EXPECT_EQ(of<BarShape>(bars[i]).Width(), expected.width) << bars[i];
    }
}

// The place is measured in the window's own picture.
TEST_F(CriticalViewer, HangsItsBarsOnTheBaseLineOfTheWindow) {
    open();
    auto& bar = of<BarShape>("barEmot");
    const QColor colour =
        textColour(0xFF0000, bar.palette(), QPalette::Window, QPalette::WindowText);
    const int row = bar.mapTo(form_.get(), bar.rect().center()).y();
    const int line = toPixels(4867);
    const int length = toPixels(1747);
    const auto colourAt = [&](int x) { return form_->grab().toImage().pixelColor(x, row); };
    bar.setLeft(barOf(-100).left);
    bar.setWidth(barOf(-100).width);
    EXPECT_EQ(colourAt(line - 1), colour);
    EXPECT_EQ(colourAt(line - length), colour);
    EXPECT_NE(colourAt(line - length - 1), colour);
    EXPECT_NE(colourAt(line), colour);
    bar.setLeft(barOf(100).left);
    bar.setWidth(barOf(100).width);
    EXPECT_NE(colourAt(line - 1), colour);
    EXPECT_EQ(colourAt(line + 1), colour);
    EXPECT_EQ(colourAt(line + length - 1), colour);
    EXPECT_NE(colourAt(line + length + 1), colour);
}

TEST_F(CriticalViewer, HasALineThroughTheBaseOfItsBars) {
    open();
    EXPECT_EQ(of<BarShape>("lineBars").Left(), 4867);
    EXPECT_EQ(of<BarShape>("lineBars").Width(), 15);
    const QRect line = of<QWidget>("lineBars").geometry();
    EXPECT_LE(line.top(), of<QWidget>("barEmot").geometry().top());
    EXPECT_GE(line.bottom(), of<QWidget>("barAverage").geometry().bottom());
}

TEST_F(CriticalViewer, IsInOneColourForEachCycle) {
    open();
    const std::pair<Long, std::vector<const char*>> labels[] = {
        {0xFF0000, {"Label1_0", "Label1_1", "lblToday_0", "lblEmot_2", "lblEmotPeak_0"}},
        {0x0000FF, {"Label7_1", "Label2", "lblToday_1", "lblPhys_3", "lblPhysPeak_2"}},
        {0x008000, {"Label7_2", "Label3", "lblToday_2", "lblIntel_0", "lblIntelPeak_1"}},
        {0x400040, {"Label7_3", "lblToday_3"}}};
    for (const auto& [colour, names] : labels) {
        for (const char* name : names)
            EXPECT_EQ(of<ColouredLabel>(name).ForeColor(), colour) << name;
    }
    EXPECT_EQ(of<BarShape>("barEmot").Colour(), 0xFF0000);
    EXPECT_EQ(of<BarShape>("barPhys").Colour(), 0x0000FF);
    EXPECT_EQ(of<BarShape>("barIntel").Colour(), 0x008000);
    EXPECT_EQ(of<BarShape>("barAverage").Colour(), 0x400040);
}

TEST_F(CriticalViewer, LetsADayOfTwoDigitsBeTyped) {
    open();
    picker().setSelectedSection(QDateTimeEdit::DaySection);
    type(picker(), QStringLiteral("25"));
    EXPECT_EQ(picker().Value(), DateSerial(2000, 3, 25));
    EXPECT_EQ(textOf("lblDateToday"), QStringLiteral("25/03/2000"));
}

TEST_F(CriticalViewer, LooksUpTheRowOfADayThatIsCriticalInAllCycles) {
    openBorn(kPicked, kPicked);
    EXPECT_EQ(interpretation(), storedText(modCycles::DayLevels{0, 0, 0}));
}

TEST_F(CriticalViewer, ShowsTheInterpretationAsItStands) {
    const QString text = QStringLiteral("<b>First</b> & {second}\r\n");
    runSql(directory_.interpretation(), QStringLiteral("UPDATE HLC SET interp = '%1'").arg(text));
    open();
    EXPECT_EQ(interpretation(), text);
}

TEST_F(CriticalViewer, HoldsThePersonAsReadAtItsLoad) {
    open();
    runSql(directory_.people(), QStringLiteral("UPDATE Data SET Birthdate = 0"));
    pick(DateSerial(2000, 5, 31));
    EXPECT_EQ(textOf("lblAge"), readDay(kAnnasBirth, DateSerial(2000, 5, 31)).age);
}

TEST_F(CriticalViewer, EndsTheWaitWhenItIsLoaded) {
    choose(kAnna, kPicked);
    showWaitWindow();
    show();
    EXPECT_EQ(Form::forms(), (std::vector<Form*>{&window(), form_.get()}));
}

TEST_F(CriticalViewer, LeavesTheMainWindowAsItWas) {
    open();
    pick(DateSerial(2000, 5, 31));
    click(of<PictureButton>("cmdClose"));
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_EQ(control<MonthView>("dtpSelDate").Value(), kPicked);
}

TEST_F(CriticalViewer, OpensOnTheDayAgain) {
    open();
    chooseView(2);
    pick(DateSerial(2000, 5, 31));
    form_->Unload();
    form_->Show();
    EXPECT_EQ(of<ButtonBar>("bbDetails").ChosenItem(), 1);
    EXPECT_TRUE(isShown(QStringLiteral("rtbInterp")));
    EXPECT_EQ(picker().Value(), kPicked);
}

}  // namespace
