// The lists of the main window.
#include "shell/main_lists.h"

#include <QLabel>
#include <functional>

#include "controls/chart.h"
#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/month_view.h"
#include "controls/status_bar.h"
#include "cycles/calendar.h"
#include "runtime/errors.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

using namespace modCycles;

namespace {

class MainLists : public MainWindowTest {
  protected:
    QStringList people() { return texts(control<ListBox>("lstMain")); }

    static QStringList texts(const auto& list) {
        QStringList all;
        for (int i = 0; i < list.ListCount(); ++i)
            all += list.List(i);
        return all;
    }

    void chooseCategory(const QString& category) {
        control<ComboBox>("cbCategory").setText(category);
    }

    const QString kAsk = QStringLiteral("Select a person from the list");
};

TEST_F(MainLists, ShowEverybodyInOrderAfterTheStart) {
    load();
    EXPECT_EQ(people(), QStringList({QStringLiteral("Adler, Ben"), QStringLiteral("Smith, Anna"),
                                     QStringLiteral("Zed")}));
    EXPECT_EQ(
        texts(control<ComboBox>("cbCategory")),
        QStringList({QStringLiteral("*"), QStringLiteral("Family"), QStringLiteral("Friends")}));
    EXPECT_EQ(control<ComboBox>("cbCategory").ListIndex(), 0);
    EXPECT_EQ(control<ComboBox>("cbCategory").ItemData(0), 0);
    EXPECT_EQ(control<ComboBox>("cbCategory").ItemData(2), friends_);
}

TEST_F(MainLists, PutEverybodyFirstEvenWhereACategorySortsBefore) {
    addCategory(QStringLiteral(" before"));
    load();
    EXPECT_EQ(control<ComboBox>("cbCategory").List(0), QStringLiteral("*"));
    EXPECT_EQ(control<ComboBox>("cbCategory").List(1), QStringLiteral(" before"));
}

TEST_F(MainLists, KeepTheCategoriesInTheOrderOfTheStoreToo) {
    addCategory(QStringLiteral("Aunts"));
    load();
    EXPECT_EQ(texts(control<ListBox>("listCats")),
              QStringList({QStringLiteral("*"), QStringLiteral("Family"), QStringLiteral("Friends"),
                           QStringLiteral("Aunts")}));
}

TEST_F(MainLists, HoldEachOfTwoPeopleWithTheSameText) {
    const Long first = addPerson({.name = QStringLiteral("Twin"), .catId = family_});
    const Long second = addPerson({.name = QStringLiteral("Twin"), .catId = family_});
    load();
    auto& list = control<ListBox>("lstMain");
    list.setText(QStringLiteral("Twin"));
    EXPECT_EQ(list.ItemData(list.ListIndex()), first);
    EXPECT_EQ(list.ItemData(list.ListIndex() + 1), second);
}

TEST_F(MainLists, ShowTheChosenCategoryAlone) {
    load();
    chooseCategory(QStringLiteral("Friends"));
    EXPECT_EQ(people(), QStringList({QStringLiteral("Adler, Ben"), QStringLiteral("Zed")}));
    chooseCategory(QStringLiteral("*"));
    EXPECT_EQ(people().size(), 3);
}

TEST_F(MainLists, ShowNobodyForACategoryWithoutPeople) {
    addCategory(QStringLiteral("Empty"));
    load();
    chooseCategory(QStringLiteral("Empty"));
    EXPECT_TRUE(people().isEmpty());
    EXPECT_EQ(host_.exitCode(), std::nullopt);
}

TEST_F(MainLists, BlankTheChartWhenTheFilterChanges) {
    loadAndChoose(QStringLiteral("Smith, Anna"));
    control<MonthView>("dtpSelDate").setValue(DateSerial(2010, 1, 1));
    chooseCategory(QStringLiteral("Friends"));
    EXPECT_EQ(control<QLabel>("lblTitle").text(), QStringLiteral("Biorhythm for <unspecified>"));
    EXPECT_EQ(control<Chart>("chtMain").Data(1, 1), 0.0);
    EXPECT_EQ(control<MonthView>("dtpSelDate").Value(), DateSerial(2000, 3, 14));
}

TEST_F(MainLists, AskForAPersonAndGoBackToTodayAfterEveryFill) {
    load();
    const auto fillOneCategory = [this] { chooseCategory(QStringLiteral("Family")); };
    const std::function<void()> fills[] = {FillPersonList, FillPersonListByCategory,
                                           fillOneCategory, FillCategoryList};
    for (const auto& fill : fills) {
        control<ListBox>("lstMain").setText(QStringLiteral("Smith, Anna"));
        control<MonthView>("dtpSelDate").setValue(DateSerial(2010, 1, 1));
        fill();
        EXPECT_EQ(control<ListBox>("lstMain").ListIndex(), -1);
        EXPECT_EQ(control<StatusBar>("sbMain").panelText(), kAsk);
        EXPECT_EQ(control<MonthView>("dtpSelDate").Value(), DateSerial(2000, 3, 14));
    }
}

TEST_F(MainLists, LeaveTheLastPersonsTooltipAndEarliestDate) {
    loadAndChoose(QStringLiteral("Smith, Anna"));
    const QString values = control<StatusBar>("sbMain").panelToolTip();
    FillPersonList();
    EXPECT_EQ(control<StatusBar>("sbMain").panelToolTip(), values);
    EXPECT_EQ(control<MonthView>("dtpSelDate").MinDate(), DateSerial(1972, 10, 20));
}

TEST_F(MainLists, LetTheFilterStandWhenThePeopleAloneAreFilled) {
    load();
    chooseCategory(QStringLiteral("Family"));
    FillPersonList();
    EXPECT_EQ(people().size(), 3);
    EXPECT_EQ(control<ComboBox>("cbCategory").Text(), QStringLiteral("Family"));
}

TEST_F(MainLists, FillThePeopleThroughTheClickOfTheFirstCategory) {
    load();
    addPerson({.name = QStringLiteral("Newcomer"), .catId = family_});
    FillCategoryList();
    EXPECT_TRUE(people().contains(QStringLiteral("Newcomer")));
}

TEST_F(MainLists, StandOnEverybodyAfterRefresh) {
    load();
    chooseCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("Newcomer"), .catId = friends_});
    trigger("mnuViewRefresh");
    EXPECT_EQ(control<ComboBox>("cbCategory").ListIndex(), 0);
    EXPECT_TRUE(people().contains(QStringLiteral("Newcomer")));
}

TEST_F(MainLists, DoNothingWithoutACategoryChosen) {
    loadAndChoose(QStringLiteral("Smith, Anna"));
    control<ComboBox>("cbCategory").setListIndex(-1);
    FillPersonListByCategory();
    EXPECT_EQ(control<ListBox>("lstMain").Text(), QStringLiteral("Smith, Anna"));
}

TEST_F(MainLists, RaiseWhenThereIsNobody) {
    load();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    EXPECT_THROW(FillPersonList(), RuntimeError);
}

TEST_F(MainLists, SurviveABirthDateInTheFutureWhenTheyAreFilledAgain) {
    addPerson({.name = QStringLiteral("Unborn"),
               .birthdate = Value(DateSerial(2030, 1, 1)),
               .catId = family_});
    loadAndChoose(QStringLiteral("Unborn"));
    FillPersonList();
    EXPECT_EQ(control<MonthView>("dtpSelDate").Value(), DateSerial(2030, 1, 1));
    EXPECT_EQ(control<Chart>("chtMain").content().table.rowLabels.front(),
              QStringLiteral("14/03/2000"));
}

}  // namespace
