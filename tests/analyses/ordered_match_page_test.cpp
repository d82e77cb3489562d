// The page of the ordered match: its search, its messages and its sorts.
#include "analyses/ordered_match_page.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>

#include "analyses/compared_person.h"
#include "controls/combo_box.h"
#include "controls/grid.h"
#include "controls/picture_button.h"
#include "cycles/calendar.h"
#include "store/databases.h"
#include "store/list_fillers.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/main_window.h"
#include "support/paint_counter.h"
#include "support/printing.h"

using modCycles::DateSerial;

namespace {

const ComparedPerson kSmith{.nameId = 1,
                            .name = QStringLiteral("Smith"),
                            .firstName = QStringLiteral("Anna"),
                            .birthdate = DateSerial(1972, 10, 20)};

// Smith is Family, Adler and Zed are Friends, all of them male.
class MatchPage : public MainWindowTest {
  protected:
    MatchPage() {
        page_.SetGrid();
        page_.show();
    }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(page_, QString::fromLatin1(name));
    }

    Grid& grid() { return of<Grid>("grdTop10"); }

    void choose(const char* option) { of<QRadioButton>(option).click(); }

    // Searches for Smith among the people of a category, or among all.
    void search(const QString& category = QStringLiteral("*")) {
        categories_.fill(readCategoryFilter());
        categories_.setText(category);
        Connection connection = openPersonDatabase();
        Recordset everybody(connection, statements::allPeopleWithNotes());
        page_.search(everybody, kSmith, categories_);
    }

    QStringList column(int column) {
        QStringList texts;
        for (int row = 0; row < grid().cells().Rows(); ++row)
            texts += grid().cells().TextMatrix(row, column);
        return texts;
    }

    QStringList names() { return column(0).mid(1); }

    void expectFrozenAfter(const QString& message) {
        EXPECT_EQ(host_.messages().back().text, message);
        EXPECT_EQ(host_.messages().back().owner, &page_);
        EXPECT_EQ(host_.messages().back().title, QString());
        EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
        EXPECT_FALSE(grid().Redraw());
    }

    void deleteEverybody() { runSql(directory_.people(), QStringLiteral("DELETE FROM Data")); }

    ComboBox categories_;
    OrderedMatchPage page_;
};

TEST_F(MatchPage, CallsItsControlsByTheirTexts) {
    EXPECT_EQ(of<QGroupBox>("frGender").title(), QStringLiteral("Select gender"));
    EXPECT_EQ(of<QLabel>("Label2").text(), QStringLiteral("Sort:"));
    EXPECT_EQ(of<PictureButton>("cmdSearch").text(), QStringLiteral("Search"));
    for (const auto& [name, text] :
         std::initializer_list<std::pair<const char*, const char*>>{{"optAll", "&All"},
                                                                    {"optMale", "Only &males"},
                                                                    {"optFemale", "Only &females"},
                                                                    {"optSort_0", "Average"},
                                                                    {"optSort_1", "Emotional"},
                                                                    {"optSort_2", "Physical"},
                                                                    {"optSort_3", "Intellectual"}})
        EXPECT_EQ(of<QRadioButton>(name).text(), QString::fromLatin1(text));
    EXPECT_TRUE(of<QRadioButton>("optAll").isChecked());
    EXPECT_TRUE(of<QRadioButton>("optSort_0").isChecked());
}

TEST_F(MatchPage, HasTheHeaderAndAnEmptyRowAtFirst) {
    EXPECT_EQ(column(1), QStringList({QStringLiteral("  Average"), QString()}));
    EXPECT_EQ(grid().cells().Cols(), 5);
    EXPECT_TRUE(grid().Redraw());
}

TEST_F(MatchPage, TellsOfItsButton) {
    const QSignalSpy presses(&page_, &OrderedMatchPage::cmdSearch_Click);
    click(of<PictureButton>("cmdSearch"));
    EXPECT_EQ(presses.count(), 1);
}

TEST_F(MatchPage, RanksEverybodyTheBestFirst) {
    addPerson({.name = QStringLiteral("Twin"), .birthdate = Value(DateSerial(1972, 10, 20))});
    search();
    const QStringList averages = column(1).mid(1);
    ASSERT_EQ(averages.size(), 4);
    EXPECT_EQ(names().first(), QStringLiteral("Twin"));
    EXPECT_EQ(averages.first(), QStringLiteral("100"));
    EXPECT_GE(averages[1].toInt(), averages[2].toInt());
    EXPECT_EQ(averages.last(), QString());
    EXPECT_TRUE(grid().Redraw());
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(MatchPage, ShowsTheFirstNameFirst) {
    search();
    EXPECT_TRUE(names().contains(QStringLiteral("Ben Adler")));
}

TEST_F(MatchPage, TakesThePeopleOfACategoryAlone) {
    search(QStringLiteral("Friends"));
    EXPECT_EQ(names().size(), 3);
    search(QStringLiteral("Family"));
    EXPECT_EQ(names(), QStringList({QString()}));
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(MatchPage, TakesThePeopleOfAGenderAlone) {
    addPerson({.name = QStringLiteral("Moss"), .isFemale = true, .catId = friends_});
    choose("optFemale");
    search();
    EXPECT_EQ(names(), QStringList({QStringLiteral("Moss"), QString()}));
    search(QStringLiteral("Friends"));
    EXPECT_EQ(names(), QStringList({QStringLiteral("Moss"), QString()}));
    choose("optMale");
    search();
    EXPECT_FALSE(names().contains(QStringLiteral("Moss")));
    EXPECT_EQ(names().size(), 3);
    search(QStringLiteral("Friends"));
    EXPECT_EQ(names().size(), 3);
    choose("optAll");
    search();
    EXPECT_EQ(names().size(), 4);
}

TEST_F(MatchPage, TakesFemalesWhereNoOptionIsChosen) {
    addPerson({.name = QStringLiteral("Moss"), .isFemale = true});
    for (const char* option : {"optAll", "optMale"}) {
        of<QRadioButton>(option).setAutoExclusive(false);
        of<QRadioButton>(option).setChecked(false);
    }
    search();
    EXPECT_EQ(names(), QStringList({QStringLiteral("Moss"), QString()}));
}

TEST_F(MatchPage, AsksForACategoryAndStaysFrozen) {
    host_.expectMessage(QStringLiteral("Please select a category."));
    search(QStringLiteral("none of these"));
    expectFrozenAfter(QStringLiteral("Please select a category."));
    EXPECT_EQ(column(1), QStringList({QString(), QString()}));
}

TEST_F(MatchPage, SaysThatNobodyIsThereAndStaysFrozen) {
    choose("optFemale");
    const QString message = QStringLiteral("There are no female records in the database.");
    host_.expectMessage(message);
    search();
    expectFrozenAfter(message);
    EXPECT_EQ(column(1), QStringList({QStringLiteral("  Average"), QString()}));
}

TEST_F(MatchPage, SaysWhoAreMissingAndWhere) {
    deleteEverybody();
    for (const auto& [option, records] : std::initializer_list<std::pair<const char*, const char*>>{
             {"optAll", "records"}, {"optMale", "male records"}, {"optFemale", "female records"}}) {
        choose(option);
        const QString missing =
            QStringLiteral("There are no %1 in ").arg(QString::fromLatin1(records));
        host_.expectMessage(missing + QStringLiteral("the database."));
        search();
        host_.expectMessage(missing + QStringLiteral("this category."));
        search(QStringLiteral("Friends"));
        EXPECT_EQ(column(1), QStringList({QStringLiteral("  Average"), QString()}));
    }
}

TEST_F(MatchPage, TakesMalesForAFemalePersonToo) {
    runSql(directory_.people(), QStringLiteral("UPDATE Data SET Gender = -1 WHERE NameID = 1"));
    choose("optMale");
    search();
    EXPECT_EQ(names().size(), 3);
}

// Once on the screen, and once for the picture that stays there.
TEST_F(MatchPage, IsPaintedEmptyBeforeASearchFreezesIt) {
    search();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page_));
    const PaintCounter cells(*grid().viewport());
    choose("optFemale");
    host_.expectMessage(QStringLiteral("There are no female records in the database."));
    search();
    EXPECT_EQ(cells.painted(), 2);
}

TEST_F(MatchPage, IsPaintedAtOnceWhenItGetsItsColumns) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page_));
    const PaintCounter cells(*grid().viewport());
    page_.SetGrid();
    EXPECT_EQ(cells.painted(), 1);
}

TEST_F(MatchPage, IsPaintedAgainAfterTheNextSearchThatSucceeds) {
    choose("optFemale");
    host_.expectMessage(QStringLiteral("There are no female records in the database."));
    search();
    choose("optAll");
    search();
    EXPECT_TRUE(grid().Redraw());
}

TEST_F(MatchPage, StaysFrozenWhereABirthDateIsMissing) {
    directory_.dropConstraints();
    MainWindowTest::addCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("Smith")});
    addPerson({.name = QStringLiteral("Berg"), .birthdate = Value()});
    EXPECT_EQ(errorOf([this] { search(); }), 94);
    EXPECT_FALSE(grid().Redraw());
}

TEST_F(MatchPage, TakesTheLastResultAwayBeforeItSearches) {
    search();
    ASSERT_EQ(names().size(), 3);
    search(QStringLiteral("Family"));
    EXPECT_EQ(names().size(), 1);
}

TEST_F(MatchPage, LeavesTheLastResultWhereTheDatabaseCannotBeOpened) {
    search();
    Connection connection = openPersonDatabase();
    Recordset everybody(connection, statements::allPeopleWithNotes());
    { const Connection closed = std::move(connection); }
    ASSERT_TRUE(QFile::remove(directory_.people()));
    EXPECT_EQ(errorOf([&] { page_.search(everybody, kSmith, categories_); }), 53);
    EXPECT_EQ(names().size(), 3);
    EXPECT_TRUE(grid().Redraw());
}

TEST_F(MatchPage, SortsByTheColumnOfTheOption) {
    for (const int day : {1, 5, 9, 14, 20, 26})
        addPerson({.name = QStringLiteral("Born %1").arg(day),
                   .birthdate = Value(DateSerial(1980, 3, day))});
    search();
    for (int option = 3; option >= 0; --option) {
        choose(QStringLiteral("optSort_%1").arg(option).toLatin1().constData());
        QStringList numbers = column(option + 1).mid(1);
        EXPECT_EQ(numbers.takeLast(), QString());
        EXPECT_TRUE(std::is_sorted(
            numbers.rbegin(), numbers.rend(),
            [](const QString& a, const QString& b) { return a.toInt() < b.toInt(); }))
            << option;
        EXPECT_EQ(numbers.size(), 8);
    }
}

TEST_F(MatchPage, KeepsTheColourOfEachNumberThroughASort) {
    for (const int day : {1, 5, 9, 14, 20, 26})
        addPerson({.name = QStringLiteral("Born %1").arg(day),
                   .birthdate = Value(DateSerial(1980, 3, day))});
    search();
    choose("optSort_2");
    const GridCells& cells = grid().cells();
    for (int row = 1; row < cells.Rows(); ++row) {
        for (int column = 1; column < cells.Cols(); ++column)
            EXPECT_EQ(cells.look(row, column).foreColor, SetCol(cells.TextMatrix(row, column)));
    }
}

TEST_F(MatchPage, LeavesItsColumnsAloneWhenItSortsAnew) {
    search();
    grid().change([](GridCells& cells) { cells.setColWidth(1, 500); });
    choose("optSort_1");
    EXPECT_EQ(grid().cells().ColWidth(1), 500);
}

TEST_F(MatchPage, GoesBackToTheAverageWithEverySearch) {
    search();
    choose("optSort_3");
    search();
    EXPECT_TRUE(of<QRadioButton>("optSort_0").isChecked());
}

}  // namespace
