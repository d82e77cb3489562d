// The comparison with others: whom it lists, its tabs and its favourites.
#include <QAction>
#include <QDir>
#include <QFile>
#include <QToolBar>
#include <QToolButton>

#include "analyses/compat_driver.h"
#include "store/databases.h"
#include "store/favourites.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/files.h"

using modCycles::DateSerial;

namespace {

class Others : public CompatTest {
  protected:
    QString fileOf(const QString& favourite) {
        return directory_.path(favourite + QStringLiteral(".ofp"));
    }

    void make(const QString& favourite, const QByteArray& bytes = {}) {
        makeFile(fileOf(favourite), bytes);
    }

    void expectRemoved() {
        host_.expectMessage(
            QStringLiteral("This person appears to have been removed from the database. Please "
                           "update your favourites."));
    }
};

TEST_F(Others, AreListedByNameAndNotByTheirTexts) {
    addPerson({.name = QStringLiteral("Adler"), .firstName = QStringLiteral("Abe")});
    open();
    EXPECT_EQ(listed(), QStringList({kBen, QStringLiteral("Adler, Abe"), kZed}));
}

TEST_F(Others, OfACategoryAreListedInTheOrderOfTheStore) {
    addPerson({.name = QStringLiteral("Curie"), .catId = friends_});
    addPerson({.name = QStringLiteral("Berg"), .catId = friends_});
    open();
    filter().setText(QStringLiteral("Friends"));
    EXPECT_EQ(listed(), QStringList({kBen, kZed, QStringLiteral("Curie"), QStringLiteral("Berg")}));
}

TEST_F(Others, AreFilteredByCategoriesInTheOrderOfTheStoreBehindEverybody) {
    addCategory(QStringLiteral("Aunts"));
    open();
    QStringList entries;
    for (int i = 0; i < filter().ListCount(); ++i)
        entries += filter().List(i) + u'=' + QString::number(filter().ItemData(i));
    EXPECT_EQ(entries, QStringList({QStringLiteral("*=0"), QStringLiteral("Family=1"),
                                    QStringLiteral("Friends=2"), QStringLiteral("Aunts=3")}));
}

TEST_F(Others, LeaveTheMainPersonOutOfEveryListAndANamesakeIn) {
    const Long namesake = addPerson(
        {.name = QStringLiteral("Smith"), .firstName = QStringLiteral("Anna"), .catId = family_});
    open();
    EXPECT_EQ(listed(), QStringList({kBen, kAnna, kZed}));
    EXPECT_EQ(list().ItemData(1), namesake);
    filter().setText(QStringLiteral("Family"));
    EXPECT_EQ(listed(), QStringList(kAnna));
    EXPECT_EQ(list().ItemData(0), namesake);
}

TEST_F(Others, OfAnEmptyCategoryAreNone) {
    addCategory(QStringLiteral("Aunts"));
    open();
    filter().setText(QStringLiteral("Aunts"));
    EXPECT_EQ(listed(), QStringList());
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(Others, AreNotSelectedByAFilterAndTheLastComparisonStays) {
    open();
    clickRow(1);
    const double average = of<ProgressBar>("pgbAverage").Value();
    const ChartTable cycles = lines().content().table;
    for (const char* category : {"Friends", "Family", "*"}) {
        filter().setText(QString::fromLatin1(category));
        EXPECT_EQ(list().ListIndex(), -1) << category;
        expectMatchWith(kZed, kZedBorn);
        EXPECT_EQ(of<ProgressBar>("pgbAverage").Value(), average);
        EXPECT_EQ(lines().content().table, cycles);
    }
}

TEST_F(Others, KeepTheChartThatIsShownWhenTheyAreFiltered) {
    open();
    clickOption("optBio");
    filter().setText(QStringLiteral("Friends"));
    EXPECT_TRUE(lines().isVisible());
}

TEST_F(Others, OfACategoryAreComparedLikeEverybody) {
    open();
    filter().setText(QStringLiteral("Friends"));
    clickRow(1);
    expectMatchWith(kZed, kZedBorn);
}

TEST_F(Others, WhoCameLaterAreListedByTheirCategoryAndCannotBeCompared) {
    open();
    addPerson({.name = QStringLiteral("Newcomer"), .catId = friends_});
    EXPECT_EQ(listed(), QStringList({kBen, kZed}));
    filter().setText(QStringLiteral("Friends"));
    EXPECT_EQ(listed(), QStringList({kBen, kZed, QStringLiteral("Newcomer")}));
    expectReport(
        QStringLiteral("Either BOF or EOF is True, or the current record has been "
                       "deleted. Requested operation requires a current record"));
    clickRow(2);
    clickRow(0);
    expectMatchWith(QStringLiteral("Ben Adler"), kBenBorn);
}

TEST_F(Others, ReportACategoryThatCannotBeRead) {
    open();
    runSql(directory_.people(), QStringLiteral("ALTER TABLE Data RENAME TO Gone"));
    expectReport(descriptionOf([this] {
        Connection connection = openPersonDatabase();
        const Recordset people(connection, statements::peopleOfCategory(friends_));
    }));
    filter().setText(QStringLiteral("Friends"));
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(Others, StayAsTheyAreWithoutAChoice) {
    open();
    filter().setListIndex(-1);
    Q_EMIT filter().Click();
    EXPECT_EQ(listed(), QStringList({kBen, kZed}));
    const QStringList before = shown();
    clickOption("optBio");
    Q_EMIT list().Click();
    EXPECT_EQ(shown(), before);
    EXPECT_TRUE(lines().isVisible());
}

TEST_F(Others, AreEverybodyAgainAfterAChangeOfTheTab) {
    open();
    filter().setText(QStringLiteral("Family"));
    clickTab(2);
    EXPECT_EQ(filter().ListIndex(), 0);
    EXPECT_EQ(listed(), QStringList({kBen, kZed}));
    filter().setText(QStringLiteral("Family"));
    clickTab(1);
    EXPECT_EQ(filter().ListIndex(), 0);
    EXPECT_EQ(listed(), QStringList({kBen, kZed}));
}

TEST_F(Others, AreEverybodyInBarsAgainWhenTheTabThatIsShownIsPressed) {
    open();
    clickOption("optBio");
    filter().setText(QStringLiteral("Family"));
    clickTab(1);
    EXPECT_EQ(filter().ListIndex(), 0);
    EXPECT_TRUE(bars().isVisible());
}

TEST_F(Others, AreFilteredOnTheSecondTabToo) {
    open();
    clickTab(2);
    filter().setText(QStringLiteral("Family"));
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(Others, HideWithTheComparisonOnTheSecondTab) {
    open();
    const char* const single[] = {"lstCompat", "Label3", "lblE",   "Label4",     "lblP",
                                  "Label9",    "lblI",   "lblAvg", "pgbAverage", "lblSign",
                                  "lblText",   "optBio", "optBar", "frChart",    "tbCompat"};
    clickTab(2);
    for (const char* name : single)
        EXPECT_FALSE(of<QWidget>(name).isVisible()) << name;
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Select category:"));
    EXPECT_TRUE(filter().isVisible());
    EXPECT_TRUE(of<QWidget>("cmdClose").isVisible());
    clickTab(1);
    for (const char* name : single)
        EXPECT_TRUE(of<QWidget>(name).isVisible()) << name;
    EXPECT_EQ(textOf("Label1"), QStringLiteral("Apply filter:"));
}

TEST_F(Others, LeaveTheWindowAsLargeAsItIsThroughTabsAndCharts) {
    open();
    const QSize size = form_->size();
    for (const int tab : {2, 1, 2, 1}) {
        clickTab(tab);
        EXPECT_EQ(form_->size(), size) << tab;
    }
    for (const char* option : {"optBio", "optBar", "optBio"}) {
        clickOption(option);
        EXPECT_EQ(form_->size(), size) << option;
    }
}

TEST_F(Others, AreShownInBarsWhenTheirTabComesBack) {
    open();
    clickOption("optBio");
    clickTab(2);
    EXPECT_TRUE(of<QRadioButton>("optBio").isChecked());
    EXPECT_FALSE(bars().isVisible());
    clickTab(1);
    EXPECT_TRUE(bars().isVisible());
    EXPECT_FALSE(lines().isVisible());
    EXPECT_TRUE(of<QRadioButton>("optBar").isChecked());
}

TEST_F(Others, WhoAreFavouritesAreOfferedWithoutTheMainPersonsOwn) {
    for (const char* name : {"Zed", "Smith, Anna", "Smith", "smith, anna b"})
        make(QString::fromLatin1(name));
    open();
    EXPECT_EQ(favourites(), QStringList({QStringLiteral("smith, anna b"), kZed}));
    for (int index = 1; index <= faves().Count(); ++index)
        EXPECT_EQ(faves().Key(index), QString());
}

TEST_F(Others, WhoAreFavouritesOfNobodyLeaveTheMenuEmpty) {
    open();
    EXPECT_EQ(favourites(), QStringList());
}

TEST_F(Others, WhoAreFavouritesDropDownFromTheToolbar) {
    open();
    QAction& action = child<QAction>(*form_, QStringLiteral("tbCompat_Faves"));
    const auto* button =
        qobject_cast<QToolButton*>(of<QToolBar>("tbCompat").widgetForAction(&action));
    ASSERT_TRUE(button);
    EXPECT_EQ(button->menu(), &faves());
    EXPECT_EQ(button->popupMode(), QToolButton::InstantPopup);
    EXPECT_EQ(button->focusPolicy(), Qt::TabFocus);
}

TEST_F(Others, WhoAreFavouritesAreComparedFromWhateverCategory) {
    writeFavourite({99, kZed});
    open();
    filter().setText(QStringLiteral("Family"));
    clickFavourite(1);
    EXPECT_EQ(filter().ListIndex(), 0);
    EXPECT_EQ(list().Text(), kZed);
    expectMatchWith(kZed, kZedBorn);
}

TEST_F(Others, WhoAreFavouritesAreTheEntriesWithoutAKeyAlone) {
    writeFavourite({3, kZed});
    open();
    faves().Add(QStringLiteral("key"), kZed);
    filter().setText(QStringLiteral("Family"));
    clickFavourite(faves().Count());
    EXPECT_EQ(filter().Text(), QStringLiteral("Family"));
    EXPECT_EQ(list().ListIndex(), -1);
}

TEST_F(Others, WithoutAFirstNameAreFavouritesByTheNameAlone) {
    makeFile(fileOf(kZed), "3,\"Zed, \"\r\n");
    open();
    expectRemoved();
    clickFavourite(1);
    EXPECT_EQ(host_.messages().back().owner, form_.get());
    EXPECT_EQ(list().ListIndex(), -1);
}

TEST_F(Others, WhoWereRenamedAreNoFavouritesAnyMore) {
    writeFavourite({2, kBen});
    runSql(directory_.people(), QStringLiteral("UPDATE Data SET Name = 'Berg' WHERE NameID = 2"));
    open();
    clickRow(1);
    filter().setText(QStringLiteral("Family"));
    expectRemoved();
    clickFavourite(1);
    EXPECT_EQ(filter().ListIndex(), 0);
    EXPECT_EQ(list().ListIndex(), -1);
    EXPECT_EQ(listed(), QStringList({QStringLiteral("Berg, Ben"), kZed}));
    expectMatchWith(kZed, kZedBorn);
}

TEST_F(Others, WhoseFavouriteFileIsGoneAreReportedAndNothingChanges) {
    writeFavourite({3, kZed});
    open();
    filter().setText(QStringLiteral("Friends"));
    QFile::remove(fileOf(kZed));
    expectReport(QStringLiteral("File not found: there is no file of this name, ") +
                 QDir::toNativeSeparators(fileOf(kZed)));
    clickFavourite(1);
    EXPECT_EQ(filter().Text(), QStringLiteral("Friends"));
}

TEST_F(Others, WhoseFavouriteFileIsNoRecordAreReported) {
    make(kZed, "3");
    open();
    expectReport(QStringLiteral("Input past end of file"));
    clickFavourite(1);
    expectMatchWith(QStringLiteral("Ben Adler"), kBenBorn);
}

}  // namespace
