// The search for events in its window: ranges, results, and what happens while it goes on.
#include "analyses/frmFind.h"

#include "analyses/finder_driver.h"

using modCycles::DateSerial;

namespace {

const QString kZed = QStringLiteral("Zed");

using FinderSearch = EventFinder;

TEST_F(FinderSearch, AsksForAValueAndLeavesTheListAsItIs) {
    openFor(kNewborn);
    search();
    const QString span = textOf("lblSpan");
    of<QSlider>("sldPeriod").setValue(0);
    host_.expectMessage(QStringLiteral("Please select a value on the slider."));
    search();
    EXPECT_EQ(allRows(), QStringList{kNoneFound});
    EXPECT_EQ(columns(), 1);
    EXPECT_EQ(textOf("lblSpan"), span);
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    EXPECT_EQ(host_.messages().back().owner, form_.get());
}

TEST_F(FinderSearch, FindsTheBirthAndThePeakAWeekLater) {
    openFor(kNewborn);
    setPeriod(7, kDays);
    searchCycles({"chkEmot"});
    EXPECT_EQ(textOf("lblSpan"), QStringLiteral("Searching from 14 March 2000 to 21 March 2000"));
    EXPECT_EQ(allRows(), (QStringList{QStringLiteral("|Tue, 21 March 2000|Peak"),
                                      QStringLiteral("|Tue, 14 March 2000|Critical")}));
}

TEST_F(FinderSearch, GroupsDaysByCycleAndThenByKind) {
    openFor(kNewborn);
    setPeriod(12, kDays);
    searchCycles({"chkIntel", "chkPhys", "chkEmot"});
    EXPECT_EQ(allRows(), (QStringList{QStringLiteral("|Tue, 21 March 2000|Peak"),
                                      QStringLiteral("|Tue, 14 March 2000|Critical"),
                                      QStringLiteral("|Mon, 20 March 2000|Peak"),
                                      QStringLiteral("|Tue, 14 March 2000|Critical"),
                                      QStringLiteral("|Sat, 25 March 2000|Critical"),
                                      QStringLiteral("|Wed, 22 March 2000|Peak"),
                                      QStringLiteral("|Tue, 14 March 2000|Critical")}));
}

TEST_F(FinderSearch, LeavesATripleOutOfADouble) {
    openFor(kNewborn);
    check("optCritical");
    setPeriod(5, kDays);
    search();
    EXPECT_EQ(allRows(), QStringList{kNoneFound});
    of<ComboBox>("cbTriple").setListIndex(1);
    search();
    EXPECT_EQ(allRows(), QStringList{QStringLiteral("Tue, 14 March 2000")});
    EXPECT_EQ(columns(), 1);
}

TEST_F(FinderSearch, LooksForTheKindThatIsChosen) {
    openFor(kNewborn);
    of<ComboBox>("cbTriple").setListIndex(1);
    setPeriod(100, kYears);
    QStringList firstRows;
    for (const auto& [kind, picture] : {std::pair("optPeak", "event-peak"),
                                        {"optLow", "event-low"},
                                        {"optCritical", "event-critical"}}) {
        check(kind);
        search();
        firstRows += row(0);
        EXPECT_TRUE(hasPicture(0, picture)) << kind;
    }
    EXPECT_EQ(firstRows.last(), QStringLiteral("Tue, 14 March 2000"));
    EXPECT_NE(firstRows[0], firstRows[1]);
    EXPECT_FALSE(firstRows.contains(kNoneFound));
}

TEST_F(FinderSearch, ListsTheDaysThatTwoCyclesShareWithThePicturesOfTheTwo) {
    openFor(kNewborn);
    of<DatePicker>("dtpStart").setValue(kToday + 100);
    check("optCritical");
    setPeriod(6, kWeeks);
    search();
    EXPECT_EQ(allRows(), (QStringList{QStringLiteral("Fri, 7 July 2000"),
                                      QStringLiteral("Tue, 18 July 2000")}));
    EXPECT_TRUE(hasPicture(0, "event-pi"));
    EXPECT_TRUE(hasPicture(1, "event-ep"));
}

TEST_F(FinderSearch, ShowsNothingOfAnOldResultWhileItGoesOn) {
    openFor(kNewborn);
    check("optCritical");
    setPeriod(20, kWeeks);
    search();
    ASSERT_TRUE(isShown("frameLegend"));
    host_.onYield([&] {
        EXPECT_EQ(rows(), 0);
        EXPECT_EQ(columns(), 0);
        EXPECT_FALSE(isShown("frameLegend"));
    });
    search();
    EXPECT_EQ(rows(), 2);
}

TEST_F(FinderSearch, ExplainsThePicturesOfADoubleAlone) {
    openFor(kNewborn);
    check("optCritical");
    setPeriod(100, kYears);
    search();
    EXPECT_TRUE(isShown("frameLegend"));
    of<ComboBox>("cbTriple").setListIndex(1);
    search();
    EXPECT_GT(rows(), 1);
    EXPECT_FALSE(isShown("frameLegend"));
    of<ComboBox>("cbTriple").setListIndex(0);
    of<DatePicker>("dtpStart").setValue(kToday + 1);
    setPeriod(1, kDays);
    search();
    EXPECT_EQ(allRows(), QStringList{kNoneFound});
    EXPECT_FALSE(isShown("frameLegend"));
}

TEST_F(FinderSearch, GoesBackNoFurtherThanTheBirth) {
    openFor(kNewborn);
    of<DatePicker>("dtpStart").setValue(kToday + 20);
    check("optBack");
    setPeriod(100, kYears);
    searchCycles({"chkEmot"});
    EXPECT_EQ(textOf("lblSpan"), QStringLiteral("Searching from 14 March 2000 to 3 April 2000"));
    EXPECT_TRUE(allRows().contains(QStringLiteral("|Tue, 14 March 2000|Critical")));
}

TEST_F(FinderSearch, CarriesADayThatTheMonthDoesNotHave) {
    openFor(kZed);
    setPeriod(1, kMonths);
    of<DatePicker>("dtpStart").setValue(DateSerial(2001, 1, 31));
    search();
    EXPECT_EQ(textOf("lblSpan"), QStringLiteral("Searching from 31 January 2001 to 3 March 2001"));
    of<DatePicker>("dtpStart").setValue(DateSerial(2000, 1, 31));
    search();
    EXPECT_EQ(textOf("lblSpan"), QStringLiteral("Searching from 31 January 2000 to 2 March 2000"));
}

TEST_F(FinderSearch, TakesEachUnit) {
    openFor(kNewborn);
    QStringList spans;
    for (const Unit unit : {kDays, kWeeks, kMonths, kYears}) {
        setPeriod(2, unit);
        search();
        spans += textOf("lblSpan").section(QStringLiteral(" to "), 1);
    }
    EXPECT_EQ(spans, (QStringList{QStringLiteral("16 March 2000"), QStringLiteral("28 March 2000"),
                                  QStringLiteral("14 May 2000"), QStringLiteral("14 March 2002")}));
}

TEST_F(FinderSearch, HasNoRowWhereACycleHasDaysOfOtherKindsAlone) {
    openFor(kNewborn);
    check("chkCustom");
    check("chkEmot");
    check("chkPeak");
    setPeriod(3, kDays);
    search();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(columns(), 3);
    of<DatePicker>("dtpStart").setValue(kToday + 1);
    search();
    EXPECT_EQ(allRows(), QStringList{QStringLiteral("|None found|")});
}

TEST_F(FinderSearch, ListsTheKindThatIsTickedAlone) {
    openFor(kNewborn);
    check("chkCustom");
    check("chkEmot");
    setPeriod(27, kDays);
    std::vector<QStringList> found;
    for (const char* kind : {"chkPeak", "chkLow", "chkCritical"}) {
        check(kind);
        search();
        found.push_back(allRows());
        check(kind, false);
    }
    EXPECT_EQ(found, (std::vector<QStringList>{{QStringLiteral("|Tue, 21 March 2000|Peak")},
                                               {QStringLiteral("|Tue, 4 April 2000|Low")},
                                               {QStringLiteral("|Tue, 14 March 2000|Critical"),
                                                QStringLiteral("|Tue, 28 March 2000|Critical")}}));
}

TEST_F(FinderSearch, ScansNothingWithoutACycle) {
    openFor(kNewborn);
    search();
    const int yields = host_.yields();
    searchCycles({});
    EXPECT_EQ(columns(), 3);
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(host_.yields(), yields);
}

TEST_F(FinderSearch, YieldsAfterEachDayOnceItHasToldItsProgress) {
    openFor(kNewborn);
    check("chkCustom");
    check("chkPhys");
    setPeriod(4, kDays);
    QStringList steps;
    host_.onYield([&] {
        steps += QString::number(of<ProgressBar>("pbFind").Value()) + u' ' + status();
        EXPECT_TRUE(isShown("pbFind"));
        EXPECT_FALSE(of<QWidget>("cmdFind").isEnabled());
        EXPECT_FALSE(of<QWidget>("cmdClose").isEnabled());
    });
    search();
    QStringList expected;
    for (const int percent : {0, 25, 50, 75, 100})
        expected += QString::number(percent) +
                    QStringLiteral(" Searching physical cycle. Press Esc to cancel...");
    EXPECT_EQ(steps, expected);
    EXPECT_FALSE(isShown("pbFind"));
    EXPECT_EQ(status(), QString());
    EXPECT_TRUE(of<QWidget>("cmdFind").isEnabled());
    EXPECT_TRUE(of<QWidget>("cmdClose").isEnabled());
}

TEST_F(FinderSearch, TellsWhatItSearches) {
    openFor(kNewborn);
    QStringList texts;
    host_.onYield([&] {
        if (!texts.contains(status()))
            texts += status();
    });
    search();
    searchCycles({"chkEmot", "chkPhys", "chkIntel"});
    EXPECT_EQ(texts, (QStringList{
                         QStringLiteral("Searching. Press Esc to cancel..."),
                         QStringLiteral("Searching emotional cycle. Press Esc to cancel..."),
                         QStringLiteral("Searching physical cycle. Press Esc to cancel..."),
                         QStringLiteral("Searching intellectual cycle. Press Esc to cancel...")}));
}

// Esc is pressed during the first yield: the next day is still looked at.
TEST_F(FinderSearch, EndsAfterTheDayThatFollowsEsc) {
    openFor(kNewborn);
    of<DatePicker>("dtpStart").setValue(kToday + 6);
    setPeriod(40, kDays);
    host_.onYield([&] { pressEsc(); });
    searchCycles({"chkEmot"});
    EXPECT_EQ(host_.yields(), 1);
    EXPECT_EQ(allRows(), QStringList{QStringLiteral("|Tue, 21 March 2000|Peak")});
    EXPECT_TRUE(of<QWidget>("cmdFind").isEnabled());
    EXPECT_FALSE(isShown("pbFind"));
}

TEST_F(FinderSearch, ListsWhatItFoundBeforeEscAndNothingOlder) {
    openFor(kNewborn);
    setPeriod(40, kDays);
    searchCycles({"chkEmot"});
    const int all = rows();
    const int yields = host_.yields();
    host_.onYield([&] {
        if (host_.yields() == yields + 20)
            pressEsc();
    });
    search();
    EXPECT_EQ(allRows(), (QStringList{QStringLiteral("|Tue, 21 March 2000|Peak"),
                                      QStringLiteral("|Tue, 14 March 2000|Critical"),
                                      QStringLiteral("|Tue, 28 March 2000|Critical")}));
    EXPECT_GT(all, 3);
}

TEST_F(FinderSearch, IsBegunAgainByTheSameKey) {
    openFor(kNewborn);
    pressKey(of<QWidget>("cmdFind"), Qt::Key_Space);
    const int yields = host_.yields();
    EXPECT_GT(yields, 0);
    pressKey(*form_->focusWidget(), Qt::Key_Space);
    EXPECT_EQ(host_.yields(), 2 * yields);
}

TEST_F(FinderSearch, GoesOnWithTheNextCycleAfterEsc) {
    openFor(kNewborn);
    setPeriod(40, kDays);
    host_.onYield([&] {
        if (status().contains(QStringLiteral("physical")) &&
            of<ProgressBar>("pbFind").Value() >= 20)
            pressEsc();
    });
    searchCycles({"chkEmot", "chkPhys", "chkIntel"});
    QStringList kinds;
    for (const QString& text : allRows())
        kinds += text.section(u'|', 2);
    // Peak, low and the critical days of all 40 days; the peak and the first critical day of the
    // first nine; and all 40 days again.
    EXPECT_EQ(kinds.join(u' '),
              QStringLiteral("Peak Peak Low Critical Critical Critical Peak Critical Peak Low "
                             "Critical Critical Critical"));
}

TEST_F(FinderSearch, StopsAfterItsFirstDayWhereEscWasPressedBefore) {
    openFor(kNewborn);
    pressEsc();
    setPeriod(40, kDays);
    searchCycles({"chkEmot", "chkPhys"});
    EXPECT_EQ(row(0), QStringLiteral("|Tue, 14 March 2000|Critical"));
    EXPECT_EQ(row(1), QStringLiteral("|Mon, 20 March 2000|Peak"));
    search();
    EXPECT_EQ(row(0), QStringLiteral("|Tue, 21 March 2000|Peak"));
}

TEST_F(FinderSearch, EndsBeforeItsWindowCloses) {
    openFor(kNewborn);
    setPeriod(40, kDays);
    host_.onYield([&] { form_->close(); });
    searchCycles({"chkEmot", "chkPhys", "chkIntel"});
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(host_.yields(), 1);
}

TEST_F(FinderSearch, EndsTheProgramOnARangeOfNoDays) {
    openFor(kNewborn);
    check("optBack");
    check("chkCustom");
    check("chkEmot");
    host_.expectMessage(QStringLiteral("Run-time error '6':\n\nOverflow"));
    search();
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_EQ(host_.yields(), 0);
    host_.forgetExit();
}

TEST_F(FinderSearch, EndsTheProgramBeyondTheLastYear) {
    openFor(kNewborn);
    of<DatePicker>("dtpStart").setValue(DateSerial(9950, 1, 1));
    setPeriod(100, kYears);
    host_.expectMessage(
        QStringLiteral("Run-time error '5':\n\nInvalid procedure call or argument"));
    search();
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(FinderSearch, GivesEachRowThePictureOfItsCycleOrTheOneForNone) {
    openFor(kNewborn);
    of<DatePicker>("dtpStart").setValue(kToday + 7);
    setPeriod(1, kDays);
    searchCycles({"chkEmot", "chkPhys", "chkIntel"});
    EXPECT_EQ(allRows(), (QStringList{QStringLiteral("|Tue, 21 March 2000|Peak"),
                                      QStringLiteral("|None found|"),
                                      QStringLiteral("|Wed, 22 March 2000|Peak")}));
    EXPECT_TRUE(hasPicture(0, "event-emot"));
    EXPECT_TRUE(hasPicture(1, "event-none"));
    EXPECT_TRUE(hasPicture(2, "event-intel"));
}

}  // namespace
