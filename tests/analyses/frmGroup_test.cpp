// The group comparison: how it opens, its tabs, and how people get into a group and out of it.
#include "analyses/frmGroup.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QToolBar>
#include <QToolButton>

#include "analyses/group_driver.h"
#include "runtime/app.h"
#include "shell/frmWait.h"
#include "store/databases.h"
#include "store/favourites.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/form_rules.h"

using modCycles::DateSerial;

namespace {

class Group : public GroupTest {
  protected:
    static bool isWaiting() {
        for (Form* form : Form::forms()) {
            if (dynamic_cast<frmWait*>(form))
                return true;
        }
        return false;
    }

    QStringList favourites() {
        QStringList texts;
        for (int index = 1; index <= faves().Count(); ++index)
            texts += faves().Text(index);
        return texts;
    }

    void clickFavourite(int index) { Q_EMIT faves().ButtonMenuClick(index); }
};

TEST_F(Group, OpensOnEverybodyInOrderWithTheFirstSelectedAndNobodyInIt) {
    addPerson({.name = QStringLiteral("adler"), .firstName = QStringLiteral("Abe")});
    open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Group Comparison"));
    EXPECT_EQ(textsOf(total()), QStringList({QStringLiteral("adler, Abe"), kBen, kAnna, kZed}));
    EXPECT_EQ(numbersOf(total()), (std::vector<Long>{4, 2, 1, 3}));
    EXPECT_EQ(total().ListIndex(), 0);
    EXPECT_EQ(group().ListCount(), 0);
    EXPECT_EQ(of<DatePicker>("dtpGroup").Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(of<ButtonBar>("bbGroup").ChosenItem(), 1);
}

TEST_F(Group, OffersTheCategoriesInOrderBehindEverybody) {
    addCategory(QStringLiteral("!"));
    addCategory(QStringLiteral("aunts"));
    open();
    EXPECT_EQ(textsOf(categories()),
              QStringList({QStringLiteral("*"), QStringLiteral("!"), QStringLiteral("aunts"),
                           QStringLiteral("Family"), QStringLiteral("Friends")}));
    EXPECT_EQ(numbersOf(categories()), (std::vector<Long>{0, 3, 4, 1, 2}));
    EXPECT_EQ(categories().ListIndex(), 0);
}

TEST_F(Group, CallsItsControlsByTheirTexts) {
    open();
    const std::pair<const char*, const char*> captions[] = {
        {"bbGroup_1", "Select group"},  {"bbGroup_2", "Saved groups"},
        {"bbGroup_3", "Define groups"}, {"bbGroup_4", "Delete groups"},
        {"cmdTransfer", "Calculate"},   {"cmdSave", "Save"},
        {"cmdDelete", "Delete"},        {"cmdClose", "Close"}};
    for (const auto& [button, caption] : captions)
        EXPECT_EQ(of<QAbstractButton>(button).text(), QString::fromLatin1(caption));
    const std::pair<const char*, const char*> toolTips[] = {{"cmdAdd", "Add"},
                                                            {"cmdAddAll", "Add All"},
                                                            {"cmdRemove", "Remove"},
                                                            {"cmdRemoveAll", "Remove All"}};
    for (const auto& [button, toolTip] : toolTips) {
        EXPECT_EQ(of<QAbstractButton>(button).toolTip(), QString::fromLatin1(toolTip));
        EXPECT_EQ(of<QAbstractButton>(button).text(), QString());
        EXPECT_FALSE(of<QAbstractButton>(button).icon().isNull()) << button;
    }
    for (const char* tab : {"bbGroup_1", "bbGroup_2", "bbGroup_3", "bbGroup_4"})
        EXPECT_FALSE(of<QAbstractButton>(tab).icon().pixmap(24).isNull()) << tab;
    EXPECT_EQ(of<QWidget>("bbGroup").accessibleName(), QStringLiteral("Groups"));
    EXPECT_EQ(of<DatePicker>("dtpGroup").CustomFormat(), QStringLiteral("d MMMM yyyy"));
    const std::pair<const char*, const char*> labels[] = {{"lblCats", "&Category:"},
                                                          {"lblFiles", "&Saved groups:"},
                                                          {"lblGroup", "&Group:"},
                                                          {"lblDate", "&Date:"},
                                                          {"lblGroupName", "Name of group:"}};
    for (const auto& [label, text] : labels)
        EXPECT_EQ(textOf(label), QString::fromLatin1(text));
    EXPECT_EQ(textOf("lblProc"), QStringLiteral("Processing..."));
    EXPECT_EQ(textOf("lblCancel"), QString());
}

TEST_F(Group, OpensWithAGridOfTwoHeaderLinesAndAnEmptyRow) {
    open();
    EXPECT_EQ(grid().cells().Rows(), 3);
    EXPECT_EQ(row(0), QStringLiteral("|| Emot.|||  Phys.|||Intel.|"));
    EXPECT_EQ(row(1), QStringLiteral("|-||+|-||+|-||+"));
    EXPECT_EQ(row(2), QStringLiteral("|||||||||"));
    EXPECT_EQ(grid().cells().ColWidth(0), 1650);
    EXPECT_EQ(colour(2, 5), 0x0000FF);
    EXPECT_FALSE(isShown("lblProc"));
}

TEST_F(Group, EndsTheProgramWhereThereIsNobody) {
    load();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    form_ = std::make_unique<frmGroup>(&window());
    expectMessage("Run-time error '380':\n\nInvalid property value");
    runEvent([this] { form_->Show(); });
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_EQ(categories().ListCount(), 3);
    host_.forgetExit();
}

TEST_F(Group, TakesTheWaitWindowAwayAsTheLastActOfItsLoad) {
    writeFavourite({3, kZed});
    load();
    showWaitWindow();
    form_ = std::make_unique<frmGroup>(&window());
    bool wasFilled = false;
    const QObject context;
    QObject::connect(Form::forms().back(), &Form::unloaded, &context,
                     [&] { wasFilled = favourites() == QStringList(kZed); });
    form_->Load();
    EXPECT_TRUE(wasFilled);
    EXPECT_FALSE(isWaiting());
}

TEST_F(Group, OpensAnewOnItsFirstTabAndOnTodayWithoutTheGroup) {
    open();
    pickDate(DateSerial(1999, 12, 31));
    clickTab(3);
    addAll();
    pressEsc();
    press("cmdClose");
    EXPECT_FALSE(form_->isVisible());
    form_->Show();
    EXPECT_EQ(of<ButtonBar>("bbGroup").ChosenItem(), 1);
    EXPECT_TRUE(isShown("grdGroup"));
    EXPECT_EQ(of<DatePicker>("dtpGroup").Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(group().ListCount(), 0);
    EXPECT_EQ(total().ListCount(), 3);
    addAll();
    press("cmdTransfer");
    EXPECT_EQ(compared(), QStringList({kBen, kAnna, kZed, QString()}));
}

TEST_F(Group, ShowsTheControlsOfTheTab) {
    const std::pair<const char*, std::vector<int>> tabsOf[] = {
        {"lstTotal", {1, 3}},      {"cbCats", {1, 3}},    {"tbGroup", {1, 3}},
        {"cmdAdd", {1, 3}},        {"cmdAddAll", {1, 3}}, {"cmdRemove", {1, 3}},
        {"cmdRemoveAll", {1, 3}},  {"Shape1", {1, 3}},    {"lblCancel", {1, 2, 3}},
        {"flFaves", {2, 4}},       {"dtpGroup", {1, 2}},  {"cmdTransfer", {1, 2}},
        {"grdGroup", {1, 2}},      {"lblGroupName", {3}}, {"txtGroupName", {3}},
        {"cmdSave", {3}},          {"cmdDelete", {4}},    {"lstGroup", {1, 2, 3, 4}},
        {"cmdClose", {1, 2, 3, 4}}};
    open();
    for (const int tab : {4, 3, 2, 1}) {
        clickTab(tab);
        for (const auto& [control, tabs] : tabsOf)
            EXPECT_EQ(isShown(control), std::find(tabs.begin(), tabs.end(), tab) != tabs.end())
                << control << " on tab " << tab;
    }
}

TEST_F(Group, KeepsTheRulesOfFormsOnEveryTab) {
    open();
    for (int tab = 1; tab <= 4; ++tab) {
        clickTab(tab);
        EXPECT_EQ(objectionsToTabOrder(*form_), Objections()) << tab;
        EXPECT_EQ(objectionsToMnemonics(*form_), Objections()) << tab;
        EXPECT_EQ(objectionsToNames(*form_), Objections()) << tab;
        EXPECT_EQ(objectionsToSize(*form_), Objections()) << tab;
    }
}

TEST_F(Group, IsEmptiedByATabAndEverybodyIsToBePickedAgain) {
    open();
    for (int tab = 1; tab <= 4; ++tab) {
        add(kZed);
        ASSERT_EQ(textsOf(total()), QStringList({kBen, kAnna}));
        clickTab(tab);
        EXPECT_EQ(group().ListCount(), 0) << tab;
        EXPECT_EQ(textsOf(total()), QStringList({kBen, kAnna, kZed})) << tab;
    }
}

TEST_F(Group, IsPickedFromEverybodyAfterATab) {
    open();
    categories().setText(QStringLiteral("Family"));
    clickTab(3);
    EXPECT_EQ(categories().ListIndex(), 0);
    EXPECT_EQ(textsOf(total()), QStringList({kBen, kAnna, kZed}));
}

TEST_F(Group, ListsTheSavedOnesAsOfATabButTheFirst) {
    open();
    makeFile(directory_.path(QStringLiteral("Work.ofg")));
    makeFile(directory_.path(QStringLiteral("aunts.OFG")));
    makeFile(directory_.path(QStringLiteral("Zed.ofp")));
    clickTab(1);
    EXPECT_EQ(textsOf(files()), QStringList());
    clickTab(2);
    EXPECT_EQ(textsOf(files()),
              QStringList({QStringLiteral("aunts.OFG"), QStringLiteral("Work.ofg")}));
    EXPECT_EQ(files().Path(), App::Path());
    EXPECT_EQ(files().Pattern(), QStringLiteral("*.ofg"));
    QFile::remove(directory_.path(QStringLiteral("Work.ofg")));
    clickTab(1);
    EXPECT_EQ(files().ListCount(), 2);
    clickTab(3);
    EXPECT_EQ(files().ListCount(), 1);
}

TEST_F(Group, TakesWhoIsSelectedWithTheirNumber) {
    open();
    add(kZed);
    EXPECT_EQ(textsOf(group()), QStringList(kZed));
    EXPECT_EQ(numbersOf(group()), std::vector<Long>{3});
    EXPECT_EQ(textsOf(total()), QStringList({kBen, kAnna}));
    EXPECT_EQ(total().ListIndex(), -1);
    add(kBen);
    EXPECT_EQ(textsOf(group()), QStringList({kBen, kZed}));
    EXPECT_EQ(numbersOf(group()), (std::vector<Long>{2, 3}));
}

TEST_F(Group, GivesWhoIsSelectedBack) {
    open();
    addAll();
    group().setText(kAnna);
    press("cmdRemove");
    EXPECT_EQ(textsOf(group()), QStringList({kBen, kZed}));
    EXPECT_EQ(textsOf(total()), QStringList(kAnna));
    EXPECT_EQ(numbersOf(total()), std::vector<Long>{1});
}

TEST_F(Group, GivesSomebodyBackWhateverCategoryIsShown) {
    open();
    add(kAnna);
    categories().setText(QStringLiteral("Friends"));
    group().setListIndex(0);
    press("cmdRemove");
    EXPECT_EQ(textsOf(total()), QStringList({kBen, kAnna, kZed}));
    EXPECT_EQ(categories().Text(), QStringLiteral("Friends"));
}

TEST_F(Group, AsksForAPersonWhereNobodyIsSelected) {
    open();
    total().setListIndex(-1);
    for (const char* button : {"cmdAdd", "cmdRemove"}) {
        expectMessage("Please select a person first.");
        press(button);
    }
    for (const char* list : {"lstTotal", "lstGroup"}) {
        expectMessage("Please select a person first.");
        Q_EMIT of<ListBox>(list).DblClick();
    }
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    EXPECT_EQ(host_.messages().back().owner, form_.get());
    EXPECT_EQ(total().ListCount(), 3);
}

TEST_F(Group, ChangesByADoubleClickAsByTheButtons) {
    open();
    doubleClickEntry(total(), 1);
    EXPECT_EQ(textsOf(group()), QStringList(kAnna));
    EXPECT_EQ(textsOf(total()), QStringList({kBen, kZed}));
    doubleClickEntry(group(), 0);
    EXPECT_EQ(group().ListCount(), 0);
    EXPECT_EQ(textsOf(total()), QStringList({kBen, kAnna, kZed}));
}

TEST_F(Group, TakesOfEverybodyThoseWhoAreShown) {
    open();
    add(kAnna);
    categories().setText(QStringLiteral("Friends"));
    addAll();
    EXPECT_EQ(textsOf(group()), QStringList({kBen, kAnna, kZed}));
    EXPECT_EQ(numbersOf(group()), (std::vector<Long>{2, 1, 3}));
    EXPECT_EQ(total().ListCount(), 0);
    categories().setText(QStringLiteral("Family"));
    EXPECT_EQ(total().ListCount(), 0);
}

TEST_F(Group, TakesTheLastFirstOfThoseWhoAreShown) {
    addPerson({.name = QStringLiteral("Zed")});
    open();
    ASSERT_EQ(numbersOf(total()), (std::vector<Long>{2, 1, 3, 4}));
    addAll();
    EXPECT_EQ(numbersOf(group()), (std::vector<Long>{2, 1, 4, 3}));
}

TEST_F(Group, TakesNobodyFromAnEmptyListAndSaysNothing) {
    open();
    addAll();
    addAll();
    EXPECT_EQ(group().ListCount(), 3);
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(Group, GivesEverybodyBack) {
    open();
    categories().setText(QStringLiteral("Friends"));
    addAll();
    press("cmdRemoveAll");
    EXPECT_EQ(group().ListCount(), 0);
    EXPECT_EQ(categories().ListIndex(), 0);
    EXPECT_EQ(textsOf(total()), QStringList({kBen, kAnna, kZed}));
}

TEST_F(Group, IsLeftOutOfEveryCategory) {
    open();
    add(kZed);
    categories().setText(QStringLiteral("Friends"));
    EXPECT_EQ(textsOf(total()), QStringList(kBen));
    categories().setText(QStringLiteral("Family"));
    EXPECT_EQ(textsOf(total()), QStringList(kAnna));
    categories().setText(QStringLiteral("*"));
    EXPECT_EQ(textsOf(total()), QStringList({kBen, kAnna}));
}

TEST_F(Group, IsPickedFromNobodyInAnEmptyCategory) {
    addCategory(QStringLiteral("Aunts"));
    open();
    categories().setText(QStringLiteral("Aunts"));
    EXPECT_EQ(total().ListCount(), 0);
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(Group, StaysWithoutAChoiceOfACategory) {
    open();
    categories().setListIndex(-1);
    Q_EMIT categories().Click();
    EXPECT_EQ(total().ListCount(), 3);
}

TEST_F(Group, ReportsACategoryThatCannotBeRead) {
    open();
    runSql(directory_.people(), QStringLiteral("ALTER TABLE Data RENAME TO Gone"));
    expectReport(descriptionOf([this] {
        Connection connection = openPersonDatabase();
        const Recordset people(connection, statements::peopleOfCategory(friends_));
    }));
    categories().setText(QStringLiteral("Friends"));
    EXPECT_EQ(total().ListCount(), 3);
}

TEST_F(Group, IsPickedFromNobodyWhereTheFirstCannotBeRead) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    const Long anna = addPerson({.name = QStringLiteral("Anna")});
    open();
    runSql(directory_.people(),
           QStringLiteral("UPDATE Data SET Name = NULL WHERE NameID = %1").arg(anna));
    expectReport(QStringLiteral("Invalid use of Null"));
    categories().setText(QStringLiteral("Family"));
    EXPECT_EQ(total().ListCount(), 0);
}

TEST_F(Group, DropsItsFavouritesFromTheToolbar) {
    writeFavourite({3, kZed});
    writeFavourite({1, kAnna});
    open();
    EXPECT_EQ(favourites(), QStringList({kAnna, kZed}));
    QAction& action = child<QAction>(*form_, QStringLiteral("tbGroup_Faves"));
    EXPECT_EQ(action.text(), QStringLiteral("Favourites"));
    EXPECT_FALSE(action.icon().isNull());
    const auto* button =
        qobject_cast<QToolButton*>(of<QToolBar>("tbGroup").widgetForAction(&action));
    ASSERT_TRUE(button);
    EXPECT_EQ(button->menu(), &faves());
    EXPECT_EQ(button->focusPolicy(), Qt::TabFocus);
}

TEST_F(Group, SelectsAFavouriteOfWhateverCategoryAndMovesNobody) {
    writeFavourite({99, kZed});
    open();
    categories().setText(QStringLiteral("Family"));
    clickFavourite(1);
    EXPECT_EQ(categories().ListIndex(), 0);
    EXPECT_EQ(total().Text(), kZed);
    EXPECT_EQ(group().ListCount(), 0);
}

TEST_F(Group, SaysThatAFavouriteIsNotInTheList) {
    writeFavourite({3, kZed});
    open();
    add(kZed);
    expectMessage("This person is not available in the selection list.");
    clickFavourite(1);
    EXPECT_EQ(total().ListIndex(), -1);
    EXPECT_EQ(host_.messages().back().owner, form_.get());
}

TEST_F(Group, ReportsAFavouriteWhoseFileIsGone) {
    writeFavourite({3, kZed});
    open();
    QFile::remove(directory_.path(QStringLiteral("Zed.ofp")));
    expectReport(descriptionOf([this] { readFavourite(kZed); }));
    clickFavourite(1);
}

TEST_F(Group, HearsOfFavouritesWithoutAKeyAlone) {
    open();
    faves().Add(QStringLiteral("sep"), kZed);
    clickFavourite(1);
    EXPECT_EQ(total().Text(), kBen);
}

}  // namespace
