// The group comparison: its calculation, and what holds while a calculation or a save runs.
#include <QFile>
#include <QTest>

#include "analyses/group_driver.h"
#include "analyses/group_row.h"
#include "store/databases.h"
#include "store/favourites.h"
#include "support/errors.h"
#include "support/files.h"

using modCycles::DateSerial;

namespace {

constexpr Long kBlue = 0xFF0000;
constexpr Long kRed = 0x0000FF;
constexpr Long kMagenta = 0xFF00FF;

class Calculation : public GroupTest {
  protected:
    void openWithEverybody() {
        open();
        addAll();
    }

    // The cells of a person's row on a date, divided by bars.
    static QString rowOf(const QString& name, Date birthdate, Date date) {
        return groupRow(name, birthdate, date).replace(u'\t', u'|');
    }

    void removeFromDatabase(const QString& name) {
        runSql(directory_.people(), QStringLiteral("DELETE FROM Data WHERE Name = '%1'").arg(name));
    }

    const Date kToday = DateSerial(2000, 3, 14);
    const Date kBenBorn = DateSerial(1990, 5, 5);
    const Date kZedBorn = DateSerial(1985, 1, 31);
    const QString kEmptyRow = QStringLiteral("|||||||||");
};

TEST_F(Calculation, AsksForAGroup) {
    openWithEverybody();
    press("cmdTransfer");
    const QString before = row(2);
    clickTab(1);
    expectMessage("Please select a group of people first.");
    press("cmdTransfer");
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    EXPECT_EQ(row(2), before);
    EXPECT_EQ(grid().cells().Rows(), 6);
    EXPECT_EQ(colour(2, 2), SetColour(grid().cells().TextMatrix(2, 2)));
    EXPECT_FALSE(isLocked());
}

TEST_F(Calculation, GivesEverybodyARowInTheOrderOfTheirNames) {
    open();
    for (const QString& name : {kZed, kBen, kAnna})
        add(name);
    press("cmdTransfer");
    EXPECT_EQ(grid().cells().Rows(), 6);
    EXPECT_EQ(row(0), QStringLiteral("|| Emot.|||  Phys.|||Intel.|"));
    EXPECT_EQ(row(1), QStringLiteral("|-||+|-||+|-||+"));
    EXPECT_EQ(row(2), rowOf(kBen, kBenBorn, kToday));
    EXPECT_EQ(row(3), rowOf(kAnna, kAnnaBorn, kToday));
    EXPECT_EQ(row(4), rowOf(kZed, kZedBorn, kToday));
    EXPECT_EQ(row(5), kEmptyRow);
    EXPECT_TRUE(grid().Redraw());
}

TEST_F(Calculation, ColoursThePercentagesAndNothingElse) {
    openWithEverybody();
    press("cmdTransfer");
    for (int row = 2; row < 6; ++row) {
        for (int column = 0; column < 10; ++column) {
            const bool isPercentage = column == 2 || column == 5 || column == 8;
            EXPECT_EQ(colour(row, column),
                      isPercentage ? SetColour(grid().cells().TextMatrix(row, column)) : 0)
                << row << ',' << column;
        }
    }
    EXPECT_EQ(colour(5, 2), kRed);
    EXPECT_EQ(colour(0, 2), 0);
    EXPECT_EQ(colour(1, 2), 0);
}

TEST_F(Calculation, OfSomebodyBornOnTheDayIsZeroAndRises) {
    open();
    add(kAnna);
    pickDate(kAnnaBorn);
    EXPECT_EQ(row(2), QStringLiteral("Smith, Anna|^|0%|^|^|0%|^|^|0%|^"));
    for (const int column : {2, 5, 8})
        EXPECT_EQ(colour(2, column), kRed);
}

TEST_F(Calculation, ColoursByTheSign) {
    open();
    add(kAnna);
    pickDate(kAnnaBorn + 7);
    EXPECT_EQ(grid().cells().TextMatrix(2, 2), QStringLiteral("100%"));
    EXPECT_EQ(colour(2, 2), kMagenta);
    pickDate(kAnnaBorn + 21);
    EXPECT_EQ(grid().cells().TextMatrix(2, 2), QStringLiteral("-100%"));
    EXPECT_EQ(colour(2, 2), kBlue);
}

TEST_F(Calculation, BeforeABirthCountsTheDaysBackwards) {
    open();
    add(kAnna);
    pickDate(kAnnaBorn + -5);
    EXPECT_EQ(row(2), rowOf(kAnna, kAnnaBorn, kAnnaBorn + 5));
}

TEST_F(Calculation, FollowsTheDateWhereThereIsAGroup) {
    open();
    pickDate(DateSerial(1999, 12, 31));
    EXPECT_EQ(grid().cells().Rows(), 3);
    EXPECT_TRUE(host_.messages().empty());
    add(kZed);
    pickDate(DateSerial(2001, 1, 1));
    EXPECT_EQ(row(2), rowOf(kZed, kZedBorn, DateSerial(2001, 1, 1)));
    EXPECT_EQ(row(3), kEmptyRow);
}

TEST_F(Calculation, TakesTheRowsOfTheLastOneAway) {
    openWithEverybody();
    press("cmdTransfer");
    press("cmdRemoveAll");
    add(kAnna);
    press("cmdTransfer");
    EXPECT_EQ(compared(), QStringList({kAnna, QString()}));
}

TEST_F(Calculation, StaysInTheGridWhenATabIsChosen) {
    openWithEverybody();
    press("cmdTransfer");
    for (const int tab : {3, 2, 4, 1}) {
        clickTab(tab);
        EXPECT_EQ(group().ListCount(), 0);
        EXPECT_EQ(compared(), QStringList({kBen, kAnna, kZed, QString()}));
    }
}

TEST_F(Calculation, LeavesTheLastOfTheGroupSelected) {
    openWithEverybody();
    press("cmdTransfer");
    EXPECT_EQ(group().ListIndex(), 2);
}

TEST_F(Calculation, LocksTheWindowAndTellsHowToEndIt) {
    openWithEverybody();
    int looks = 0;
    host_.onYield([&] {
        ++looks;
        EXPECT_TRUE(isLocked());
        EXPECT_FALSE(isShown("lstGroup"));
        EXPECT_TRUE(isShown("lblProc"));
        EXPECT_EQ(textOf("lblCancel"), QStringLiteral("Press Esc to cancel"));
        EXPECT_FALSE(grid().Redraw());
        EXPECT_EQ(group().ListIndex(), looks - 1);
        EXPECT_EQ(grid().cells().Rows(), 3 + looks);
        EXPECT_EQ(colour(2, 2), 0);
    });
    press("cmdTransfer");
    EXPECT_EQ(looks, 3);
    expectIdle();
}

TEST_F(Calculation, MovesNothingInTheWindow) {
    openWithEverybody();
    const auto places = [this] {
        QCoreApplication::sendPostedEvents();
        return std::pair(of<QLabel>("lblGroup").geometry(), grid().geometry());
    };
    const auto before = places();
    host_.onYield([&] { EXPECT_EQ(places(), before); });
    press("cmdTransfer");
}

TEST_F(Calculation, LetsTheUserGoOnInTheSamePartOfTheDate) {
    openWithEverybody();
    form_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    auto& date = of<DatePicker>("dtpGroup");
    date.setFocus();
    date.setCurrentSection(QDateTimeEdit::MonthSection);
    for (int month = 0; month < 2; ++month)
        press(Qt::Key_Up);
    EXPECT_EQ(date.Value(), DateSerial(2000, 5, 14));
}

TEST_F(Calculation, EndsOnEscAfterTheNextRowWhichIsColoured) {
    openWithEverybody();
    duringYield(1, [this] { pressEsc(); });
    press("cmdTransfer");
    EXPECT_EQ(compared(), QStringList({kBen, kAnna, QString()}));
    EXPECT_EQ(colour(3, 2), SetColour(grid().cells().TextMatrix(3, 2)));
    EXPECT_TRUE(grid().Redraw());
    EXPECT_FALSE(isLocked());
    EXPECT_TRUE(form_->isVisible());
    host_.onYield({});
    press("cmdTransfer");
    EXPECT_EQ(compared(), QStringList({kBen, kAnna, kZed, QString()}));
}

TEST_F(Calculation, GoesOnAtEveryOtherKey) {
    openWithEverybody();
    duringYield(1, [this] { press(Qt::Key_Space); });
    press("cmdTransfer");
    EXPECT_EQ(compared(), QStringList({kBen, kAnna, kZed, QString()}));
}

TEST_F(Calculation, StopsAfterOneRowWhereEscWasPressedBeforeIt) {
    openWithEverybody();
    pressEsc();
    EXPECT_TRUE(form_->isVisible());
    press("cmdTransfer");
    EXPECT_EQ(row(2), rowOf(kBen, kBenBorn, kToday));
    EXPECT_EQ(row(3), kEmptyRow);
    EXPECT_EQ(grid().cells().Rows(), 4);
    EXPECT_NE(colour(2, 2), 0);
    EXPECT_EQ(host_.yields(), 0);
    press("cmdTransfer");
    EXPECT_EQ(grid().cells().Rows(), 6);
}

TEST_F(Calculation, OfAGroupWithSomebodyWhoIsGoneFailsAndFreezesTheGrid) {
    openWithEverybody();
    press("cmdTransfer");
    removeFromDatabase(QStringLiteral("Zed"));
    expectReport(noCurrentRecord());
    press("cmdTransfer");
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    EXPECT_EQ(host_.messages().back().title, QString());
    EXPECT_EQ(compared(), QStringList({kBen, kAnna, QString()}));
    EXPECT_EQ(row(0), kEmptyRow);
    EXPECT_EQ(colour(2, 2), 0);
    EXPECT_EQ(colour(3, 5), 0);
    EXPECT_FALSE(grid().Redraw());
    expectIdle();
}

TEST_F(Calculation, LetsAFrozenGridBePaintedOnceItSucceeds) {
    openWithEverybody();
    removeFromDatabase(QStringLiteral("Zed"));
    expectReport(noCurrentRecord());
    press("cmdTransfer");
    clickTab(2);
    clickTab(1);
    EXPECT_FALSE(grid().Redraw());
    add(kAnna);
    press("cmdTransfer");
    EXPECT_TRUE(grid().Redraw());
    EXPECT_EQ(compared(), QStringList({kAnna, QString()}));
    EXPECT_NE(colour(2, 2), 0);
}

TEST_F(Calculation, ForgetsAnEscWhenItFails) {
    openWithEverybody();
    removeFromDatabase(QStringLiteral("Adler"));
    pressEsc();
    expectReport(noCurrentRecord());
    press("cmdTransfer");
    press("cmdRemoveAll");
    addAll();
    press("cmdTransfer");
    EXPECT_EQ(compared(), QStringList({kAnna, kZed, QString()}));
}

TEST_F(Calculation, ReportsABirthDateThatIsNull) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("Undated"), .birthdate = Value()});
    openWithEverybody();
    expectReport(QStringLiteral("Invalid use of Null"));
    press("cmdTransfer");
    EXPECT_FALSE(isLocked());
}

TEST_F(Calculation, ReportsADatabaseThatCannotBeOpened) {
    openWithEverybody();
    QFile::remove(directory_.people());
    makeFile(directory_.people(), "nothing");
    host_.onYield([] { FAIL(); });
    expectReport(descriptionOf([] { openPersonDatabase(); }));
    press("cmdTransfer");
    EXPECT_FALSE(grid().Redraw());
    EXPECT_FALSE(isLocked());
}

TEST_F(Calculation, EndsWhereTheWindowIsClosedAndTheWindowGoesThen) {
    openWithEverybody();
    duringYield(1, [this] {
        form_->close();
        EXPECT_TRUE(form_->isVisible());
    });
    press("cmdTransfer");
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_EQ(compared(), QStringList({kBen, kAnna, QString()}));
}

TEST_F(Calculation, IsDisturbedByNothingThatIsNotLocked) {
    writeFavourite({3, kZed});
    makeFile(directory_.path(QStringLiteral("Work.ofg")), "3,\"Zed\"\r\n");
    open();
    clickTab(3);
    addAll();
    groupName().setText(QStringLiteral("Family"));
    files().setListIndex(0);
    int tries = 0;
    host_.onYield([&] {
        ++tries;
        Q_EMIT of<PictureButton>("cmdSave").Click();
        Q_EMIT of<PictureButton>("cmdDelete").Click();
        Q_EMIT files().DblClick();
        Q_EMIT faves().ButtonMenuClick(1);
        EXPECT_TRUE(isLocked());
        EXPECT_EQ(total().ListCount(), 0);
        EXPECT_EQ(group().ListCount(), 3);
    });
    Q_EMIT of<PictureButton>("cmdTransfer").Click();
    EXPECT_EQ(tries, 3);
    EXPECT_EQ(grid().cells().Rows(), 6);
    EXPECT_TRUE(QFile::exists(directory_.path(QStringLiteral("Work.ofg"))));
    EXPECT_FALSE(QFile::exists(directory_.path(QStringLiteral("Family.ofg"))));
}

}  // namespace
