// The critical and peak viewer.
#include "analyses/frmCritical.h"

#include <QFile>
#include <QLabel>

#include "analyses/critical_text.h"
#include "analyses/day_analysis.h"
#include "controls/bar_shape.h"
#include "controls/button_bar.h"
#include "controls/coloured_label.h"
#include "controls/date_picker.h"
#include "controls/month_view.h"
#include "controls/picture_button.h"
#include "controls/rich_text_box.h"
#include "controls/text_colours.h"
#include "controls/twips.h"
#include "runtime/event.h"
#include "runtime/qt_dates.h"
#include "shell/frmMain.h"
#include "shell/frmWait.h"
#include "support/errors.h"
#include "support/main_window.h"

using modCycles::DateSerial;

namespace {

const QString kAnna = QStringLiteral("Smith, Anna");
const Date kAnnasBirth = DateSerial(1972, 10, 20);
const Date kPicked = DateSerial(2000, 3, 20);

QString trappedMessage(const QString& description) {
    return description + QStringLiteral(". Please report this error to the author.");
}

QString noRowMessage() {
    return trappedMessage(
        QStringLiteral("Either BOF or EOF is True, or the current record has been deleted. "
                       "Requested operation requires a current record"));
}

class CriticalViewer : public MainWindowTest {
  protected:
    void load() {
        runEvent([this] { form_->Show(); });
    }

    // Opens it for Anna Smith or another on the date that is picked in the main window.
    void open(const QString& displayText = kAnna, Date selected = kPicked) {
        choose(displayText, selected);
        load();
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

    QString missingFileMessage() {
        return trappedMessage(QStringLiteral("File not found: there is no file of this name, %1")
                                  .arg(QDir::toNativeSeparators(directory_.interpretation())));
    }

    void expectTheEnd(const QString& message) {
        host_.expectMessage(message);
        load();
        EXPECT_EQ(host_.exitCode(), 1);
        host_.forgetExit();
    }

    std::unique_ptr<frmCritical> form_;
};

constexpr const char* kTodayView[] = {
    "lblDateToday", "lblAge",   "Label6",     "lblToday_0", "lblToday_1", "lblToday_2",
    "lblToday_3",   "Label1_0", "Label7_1",   "Label7_2",   "Label7_3",   "barEmot",
    "barPhys",      "barIntel", "barAverage", "lineBars",   "rtbInterp"};
constexpr const char* kCriticalView[] = {"Label4",   "Label5", "Label3",     "Label2",
                                         "Label1_1", "Line1",  "Line2",      "Line3",
                                         "Line4",    "Shape1", "rtbCritical"};
constexpr const char* kSlots[] = {"lblEmot",     "lblPhys",     "lblIntel",
                                  "lblEmotPeak", "lblPhysPeak", "lblIntelPeak"};
constexpr const char* kSmiles[] = {"imgSmileE", "imgSmileP", "imgSmileI"};
constexpr const char* kSads[] = {"imgSadE", "imgSadP", "imgSadI"};

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

TEST_F(CriticalViewer, ListsTheDaysOfTheMonthFromItsFirstOn) {
    openBorn(DateSerial(2000, 1, 1), DateSerial(2000, 1, 20));
    chooseView(2);
    EXPECT_EQ(textsOf("lblEmot"),
              QStringList({QStringLiteral("Sat, 1 January"), QStringLiteral("Sat, 15 January"),
                           QStringLiteral("Sat, 29 January")}));
    EXPECT_EQ(textsOf("lblPhys"),
              QStringList({QStringLiteral("Sat, 1 January"), QStringLiteral("Wed, 12 January"),
                           QStringLiteral("Mon, 24 January"), QString()}));
    EXPECT_EQ(textsOf("lblIntel"),
              QStringList({QStringLiteral("Sat, 1 January"), QStringLiteral("Mon, 17 January")}));
    EXPECT_EQ(textsOf("lblEmotPeak"), QStringList({QStringLiteral("Sat, 8 Jan"),
                                                   QStringLiteral("Sat, 22 Jan"), QString()}));
    EXPECT_EQ(textsOf("lblPhysPeak"),
              QStringList({QStringLiteral("Fri, 7 Jan"), QStringLiteral("Tue, 18 Jan"),
                           QStringLiteral("Sun, 30 Jan")}));
    EXPECT_EQ(textsOf("lblIntelPeak"),
              QStringList({QStringLiteral("Sun, 9 Jan"), QStringLiteral("Wed, 26 Jan")}));
}

TEST_F(CriticalViewer, SmilesBesideAPeakAndIsSadBesideALow) {
    openBorn(DateSerial(2000, 1, 1), DateSerial(2000, 1, 20));
    chooseView(2);
    EXPECT_EQ(shownOf("imgSmileE"), QStringLiteral("x.."));
    EXPECT_EQ(shownOf("imgSadE"), QStringLiteral(".x."));
    EXPECT_EQ(shownOf("imgSmileP"), QStringLiteral("x.x"));
    EXPECT_EQ(shownOf("imgSadP"), QStringLiteral(".x."));
    EXPECT_EQ(shownOf("imgSmileI"), QStringLiteral("x."));
    EXPECT_EQ(shownOf("imgSadI"), QStringLiteral(".x"));
}

TEST_F(CriticalViewer, HasItsFacesBesideThePeaksOfTheSameIndex) {
    open();
    chooseView(2);
    int found = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const QRect label = membersOf<QLabel>("lblPhysPeak")[i]->geometry();
        for (const char* array : {"imgSmileP", "imgSadP"}) {
            const QLabel& picture = *membersOf<QLabel>(array)[i];
            if (!picture.isVisible())
                continue;
            ++found;
            const QPoint middle = picture.geometry().center();
            EXPECT_GT(middle.x(), label.right()) << array;
            EXPECT_LE(label.top(), middle.y()) << array;
            EXPECT_GE(label.bottom(), middle.y()) << array;
        }
    }
    EXPECT_GT(found, 0);
}

TEST_F(CriticalViewer, HasADifferentFaceForAPeakAndForALow) {
    open();
    EXPECT_NE(of<QLabel>("imgSmileE_0").pixmap().toImage(),
              of<QLabel>("imgSadE_0").pixmap().toImage());
}

TEST_F(CriticalViewer, SpeaksItsMindInTheTooltipsOfThePictures) {
    open();
    for (const char* array : kSmiles)
        for (const QLabel* picture : membersOf<QLabel>(array))
            EXPECT_EQ(picture->toolTip(), QStringLiteral("Happy days are here again!"));
    for (const char* array : kSads)
        for (const QLabel* picture : membersOf<QLabel>(array))
            EXPECT_EQ(picture->toolTip(), QStringLiteral("Oh bugger..."));
}

TEST_F(CriticalViewer, CoversThePicturesByTheInterpretationInTheViewOfTheDay) {
    openBorn(DateSerial(2000, 1, 1), DateSerial(2000, 1, 20));
    auto& cover = of<RichTextBox>("rtbInterp");
    int found = 0;
    for (const char* array :
         {"imgSmileE", "imgSadE", "imgSmileP", "imgSadP", "imgSmileI", "imgSadI"})
        for (const QLabel* picture : membersOf<QLabel>(array)) {
            if (!picture->isVisible())
                continue;
            ++found;
            EXPECT_TRUE(cover.geometry().contains(picture->geometry())) << array;
            const QPoint middle = picture->mapTo(form_.get(), picture->rect().center());
            EXPECT_EQ(form_->childAt(middle), cover.viewport()) << array;
        }
    EXPECT_EQ(found, 7);
}

TEST_F(CriticalViewer, ClearsWhatAnotherMonthHasLeft) {
    openBorn(DateSerial(2000, 1, 1), DateSerial(2000, 1, 20));
    EXPECT_EQ(textOf("lblEmot_2"), QStringLiteral("Sat, 29 January"));
    EXPECT_EQ(shownOf("imgSmileP"), QStringLiteral("x.x"));
    pick(DateSerial(2000, 2, 20));
    EXPECT_EQ(textOf("lblEmot_2"), QString());
    EXPECT_EQ(shownOf("imgSmileP"), QStringLiteral(".x."));
}

TEST_F(CriticalViewer, IsBoldOnTheRealCurrentDateFromWhicheverDayItsMonthIsReached) {
    const Date today = DateSerial(2000, 3, 14);
    openBorn(today + -28, DateSerial(2000, 3, 31));
    EXPECT_EQ(textOf("lblEmot_0"), QStringLiteral("Tue, 14 March"));
    EXPECT_EQ(boldOf("lblEmot"), QStringLiteral("x.."));
    pick(DateSerial(2000, 4, 14));
    EXPECT_EQ(boldOf("lblEmot"), QStringLiteral("..."));
    pick(DateSerial(2000, 3, 1));
    EXPECT_EQ(boldOf("lblEmot"), QStringLiteral("x.."));
}

TEST_F(CriticalViewer, IsBoldOnAPeakThatIsTodayToo) {
    openBorn(DateSerial(2000, 3, 14) + -63, kPicked);
    EXPECT_EQ(textOf("lblEmotPeak_0"), QStringLiteral("Tue, 14 Mar"));
    EXPECT_EQ(boldOf("lblEmotPeak"), QStringLiteral("x.."));
}

TEST_F(CriticalViewer, IsNotBoldOnTheDayOfThePicker) {
    openBorn(kPicked + -28, kPicked);
    EXPECT_EQ(textOf("lblEmot_1"), QStringLiteral("Mon, 20 March"));
    EXPECT_EQ(boldOf("lblEmot"), QStringLiteral("..."));
}

TEST_F(CriticalViewer, KeepsTheDayWhenTheMonthIsChanged) {
    open();
    chooseView(2);
    pressKey(picker(), Qt::Key_Up);
    EXPECT_EQ(picker().Value(), DateSerial(2000, 4, 20));
    const DayReading reading = readDay(kAnnasBirth, DateSerial(2000, 4, 20));
    EXPECT_EQ(textOf("lblAge"), reading.age);
    EXPECT_EQ(textOf("lblToday_0"), reading.percentTexts[0]);
    EXPECT_EQ(interpretation(), storedText(DateSerial(2000, 4, 20)));
    const SpanFinds finds =
        searchSpan(kAnnasBirth, DateSerial(2000, 4, 1), DateSerial(2000, 3, 14));
    EXPECT_EQ(textOf("lblEmot_0"), finds.emotional.critical[0].text);
    EXPECT_EQ(textOf("lblEmotPeak_0"), finds.emotional.peaks[0].text);
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

TEST_F(CriticalViewer, ExplainsCriticalDaysInItsStyles) {
    open();
    auto& box = of<RichTextBox>("rtbCritical");
    EXPECT_EQ(box.Text(), criticalText().text);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
    for (const StyledRange& range : criticalText().ranges)
        for (const int place : {range.start, range.start + range.length - 1}) {
            box.setSelStart(place);
            box.setSelLength(1);
            if (box.textCursor().selectedText() == QChar::ParagraphSeparator)
                continue;
            EXPECT_EQ(box.SelBold(), range.isBold) << place;
            EXPECT_EQ(box.SelFontSize(), range.points) << place;
            EXPECT_EQ(box.SelColor(), range.colour) << place;
        }
}

TEST_F(CriticalViewer, TellsThatThereAreNoInterpretationsForEachAnalysisOfItsLoad) {
    QFile::remove(directory_.interpretation());
    choose(kAnna, kPicked);
    host_.expectMessage(missingFileMessage());
    host_.expectMessage(missingFileMessage());
    load();
    for (const Message& message : host_.messages()) {
        EXPECT_EQ(message.title, QString());
        EXPECT_EQ(message.icon, MessageIcon::None);
    }
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(textOf("lblAge"), readDay(kAnnasBirth, kPicked).age);
    EXPECT_NE(textOf("lblEmot_0"), QString());
    EXPECT_NE(of<BarShape>("barEmot").Width(), 0);
    EXPECT_EQ(picker().Value(), kPicked);
    EXPECT_EQ(of<RichTextBox>("rtbCritical").Text(), criticalText().text);
}

TEST_F(CriticalViewer, AnalysesOnceForAChangeAlthoughItMovesThePickerItself) {
    open();
    QFile::remove(directory_.interpretation());
    host_.expectMessage(missingFileMessage());
    pick(DateSerial(2000, 5, 31));
    EXPECT_EQ(host_.messages().size(), 1U);
    EXPECT_EQ(picker().Value(), DateSerial(2000, 5, 31));
}

TEST_F(CriticalViewer, KeepsTheLastInterpretationWhereThereIsNoneForADay) {
    open();
    const QString before = interpretation();
    runSql(directory_.interpretation(), QStringLiteral("DELETE FROM HLC"));
    host_.expectMessage(noRowMessage());
    pick(DateSerial(2000, 5, 31));
    EXPECT_EQ(interpretation(), before);
    EXPECT_EQ(picker().Value(), DateSerial(2000, 5, 31));
    EXPECT_EQ(textOf("lblAge"), readDay(kAnnasBirth, DateSerial(2000, 5, 31)).age);
}

TEST_F(CriticalViewer, StaysOnTheFirstOfTheMonthWhenTheSearchFails) {
    open();
    host_.breakClock(ErrorNumber::DeviceIo);
    host_.expectMessage(trappedMessage(errorText(ErrorNumber::DeviceIo)));
    pick(DateSerial(2000, 5, 31));
    EXPECT_EQ(picker().Value(), DateSerial(2000, 5, 1));
    EXPECT_EQ(picker().text(), QStringLiteral("1 May 2000"));
    EXPECT_EQ(textOf("lblAge"), readDay(kAnnasBirth, DateSerial(2000, 5, 31)).age);
    EXPECT_EQ(textsOf("lblEmot"), QStringList({QString(), QString(), QString()}));
    EXPECT_EQ(shownOf("imgSmileP"), QStringLiteral("..."));
}

TEST_F(CriticalViewer, HoldsThePersonAsReadAtItsLoad) {
    open();
    runSql(directory_.people(), QStringLiteral("UPDATE Data SET Birthdate = 0"));
    pick(DateSerial(2000, 5, 31));
    EXPECT_EQ(textOf("lblAge"), readDay(kAnnasBirth, DateSerial(2000, 5, 31)).age);
}

TEST_F(CriticalViewer, EndsTheProgramForAPersonWhoIsGone) {
    choose(kAnna, kPicked);
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    expectTheEnd(noCurrentRecordBox());
}

TEST_F(CriticalViewer, EndsTheProgramForADateOfBirthThatIsNull) {
    choose(kAnna, kPicked);
    directory_.dropConstraints();
    for (int person = 0; person < 3; ++person)
        addPerson({.name = QStringLiteral("Undated"), .birthdate = Value()});
    expectTheEnd(QStringLiteral("Run-time error '94':\n\nInvalid use of Null"));
}

TEST_F(CriticalViewer, EndsTheWaitAsTheLastActOfItsLoad) {
    choose(kAnna, kPicked);
    showWaitWindow();
    bool wasFilled = false;
    const QObject context;
    QObject::connect(Form::forms().back(), &Form::unloaded, &context,
                     [&] { wasFilled = !of<RichTextBox>("rtbCritical").Text().isEmpty(); });
    load();
    EXPECT_TRUE(wasFilled);
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
