// The comparison with others on its second tab: everybody ranked.
#include "analyses/compat_driver.h"
#include "controls/grid.h"
#include "controls/picture_button.h"
#include "support/form_rules.h"
#include "support/printing.h"

namespace {

class Ranking : public CompatTest {
  protected:
    void openOnRanking() {
        open();
        clickTab(2);
    }

    Grid& grid() { return of<Grid>("grdTop10"); }
    void search() { of<PictureButton>("cmdSearch").click(); }

    QStringList names() {
        QStringList names;
        for (int row = 1; row < grid().cells().Rows(); ++row)
            names += grid().cells().TextMatrix(row, 0);
        return names;
    }
};

const char* const kControls[] = {"grdTop10",  "cmdSearch", "frGender", "optAll",
                                 "optMale",   "optFemale", "Label2",   "optSort_0",
                                 "optSort_1", "optSort_2", "optSort_3"};

TEST_F(Ranking, IsShownOnItsTabAlone) {
    open();
    for (const char* name : kControls)
        EXPECT_FALSE(of<QWidget>(name).isVisible()) << name;
    clickTab(2);
    for (const char* name : kControls)
        EXPECT_TRUE(of<QWidget>(name).isVisible()) << name;
}

TEST_F(Ranking, KeepsTheRulesOfEveryForm) {
    openOnRanking();
    EXPECT_EQ(objectionsToTabOrder(*form_), Objections());
    EXPECT_EQ(objectionsToNames(*form_), Objections());
    EXPECT_EQ(objectionsToMnemonics(*form_), Objections());
    EXPECT_EQ(objectionsToSize(*form_), Objections());
}

TEST_F(Ranking, HasItsHeaderBeforeAnySearch) {
    openOnRanking();
    EXPECT_EQ(grid().cells().TextMatrix(0, 4), QStringLiteral("Intellectual"));
    EXPECT_EQ(names(), QStringList({QString()}));
}

TEST_F(Ranking, LeavesTheMainPersonOut) {
    addPerson({.name = QStringLiteral("Twin"), .birthdate = Value(kAnnaBorn)});
    openOnRanking();
    search();
    EXPECT_EQ(names().first(), QStringLiteral("Twin"));
    EXPECT_EQ(names().size(), 4);
    EXPECT_FALSE(names().contains(QStringLiteral("Anna Smith")));
}

TEST_F(Ranking, TakesTheCategoryOfTheFilter) {
    addPerson({.name = QStringLiteral("Twin"), .birthdate = Value(kAnnaBorn)});
    openOnRanking();
    filter().setText(QStringLiteral("Friends"));
    search();
    EXPECT_EQ(names().size(), 3);
    EXPECT_FALSE(names().contains(QStringLiteral("Twin")));
}

TEST_F(Ranking, ReadsEverybodyOnceAndTheOthersAtEverySearch) {
    openOnRanking();
    addPerson({.name = QStringLiteral("Moss"), .catId = friends_});
    search();
    EXPECT_FALSE(names().contains(QStringLiteral("Moss")));
    filter().setText(QStringLiteral("Friends"));
    search();
    EXPECT_TRUE(names().contains(QStringLiteral("Moss")));
}

TEST_F(Ranking, WorksForAPersonWhoIsAlone) {
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data WHERE Name <> 'Smith'"));
    loadAndChoose(kAnna);
    expectReport(QStringLiteral("Invalid property value"));
    openForChosen();
    clickTab(2);
    of<QRadioButton>("optSort_3").click();
    search();
    EXPECT_EQ(names(), QStringList({QString()}));
    EXPECT_EQ(grid().cells().TextMatrix(0, 4), QStringLiteral("Intellectual"));
}

TEST_F(Ranking, ReportsABirthDateThatIsNullAndStaysFrozen) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("Smith"), .firstName = QStringLiteral("Anna")});
    addPerson({.name = QStringLiteral("Adler")});
    addPerson({.name = QStringLiteral("Zed"), .birthdate = Value()});
    openOnRanking();
    expectReport(QStringLiteral("Invalid use of Null"));
    search();
    EXPECT_EQ(host_.messages().back().owner, form_.get());
    EXPECT_FALSE(grid().Redraw());
}

TEST_F(Ranking, ComesBackWithItsResultAndTheWholeFilter) {
    openOnRanking();
    filter().setText(QStringLiteral("Friends"));
    search();
    const QStringList before = names();
    EXPECT_EQ(before.size(), 3);
    clickTab(1);
    clickTab(2);
    EXPECT_EQ(names(), before);
    EXPECT_EQ(filter().ListIndex(), 0);
}

TEST_F(Ranking, OfEverybodyLeavesTheComparisonToWork) {
    openOnRanking();
    search();
    clickTab(1);
    clickRow(1);
    expectMatchWith(kZed, kZedBorn);
}

}  // namespace
