// What list boxes and drop-down lists do alike.
#include "controls/list_control.h"

#include <gtest/gtest.h>

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "support/errors.h"
#include "support/event_counter.h"
#include "support/recording_host.h"

namespace {

const QString kAda = QStringLiteral("Lovelace, Ada");
const QString kBen = QStringLiteral("Adler, Ben");
const QString kMarie = QStringLiteral("Curie, Marie");

// What the view shows as selected.
int shownIndex(const ListBox& list) {
    const QModelIndexList selected = list.selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.constFirst().row();
}

int shownIndex(const ComboBox& list) {
    return list.currentIndex();
}

template <class Widget>
class Lists : public testing::Test {
  protected:
    // Adler, Ben; Curie, Marie; Lovelace, Ada.
    Lists() {
        list_.setSorted(true);
        list_.fill({{kAda, 1815}, {kMarie, 1867}, {kBen, 1900}});
    }

    RecordingHost host_;
    Widget list_;
    EventCounter clicks_{list_, &Widget::Click};
};

using ListWidgets = testing::Types<ListBox, ComboBox>;

class WidgetName {
  public:
    template <class Widget>
    static std::string GetName(int) {
        return Widget::staticMetaObject.className();
    }
};

TYPED_TEST_SUITE(Lists, ListWidgets, WidgetName);

}  // namespace

TYPED_TEST(Lists, KeepTheSelectionWithItsEntryWhenOthersAreAdded) {
    this->list_.setText(kMarie);
    this->list_.add({{kMarie, 2}, {QStringLiteral("Zed"), 3}, {QStringLiteral("Abe"), 4}});
    EXPECT_EQ(this->list_.ListCount(), 6);
    EXPECT_EQ(this->list_.ListIndex(), 2);
    EXPECT_EQ(this->list_.ItemData(2), 1867);
    EXPECT_EQ(shownIndex(this->list_), 2);
    EXPECT_EQ(this->clicks_.fired(), 1);
}

TYPED_TEST(Lists, HaveNoSelectionAfterAFill) {
    EXPECT_EQ(this->list_.ListIndex(), -1);
    EXPECT_EQ(shownIndex(this->list_), -1);
    EXPECT_EQ(this->list_.Text(), QString());
    EXPECT_EQ(this->list_.ListCount(), 3);
    EXPECT_EQ(this->clicks_.fired(), 0);
}

TYPED_TEST(Lists, FireClickWhenCodeSelectsAnEntryAtOnceAndAlsoTheSameAgain) {
    this->list_.setListIndex(1);
    EXPECT_EQ(this->clicks_.fired(), 1);
    EXPECT_EQ(this->list_.Text(), kMarie);
    EXPECT_EQ(shownIndex(this->list_), 1);
    this->list_.setListIndex(1);
    EXPECT_EQ(this->clicks_.fired(), 2);
}

TYPED_TEST(Lists, HaveTheNewSelectionAlreadyWhenTheirClickIsFired) {
    int seen = -1;
    QObject::connect(&this->list_, &TypeParam::Click, [&] { seen = this->list_.ListIndex(); });
    this->list_.setListIndex(2);
    EXPECT_EQ(seen, 2);
}

TYPED_TEST(Lists, FireNothingWhenTheSelectionIsTakenAway) {
    this->list_.setListIndex(2);
    const int before = this->clicks_.fired();
    this->list_.setListIndex(-1);
    EXPECT_EQ(this->list_.ListIndex(), -1);
    EXPECT_EQ(shownIndex(this->list_), -1);
    this->list_.fill({{kAda, 1}});
    this->list_.Clear();
    EXPECT_EQ(this->list_.ListCount(), 0);
    EXPECT_EQ(this->clicks_.fired(), before);
}

TYPED_TEST(Lists, LoseTheirSelectionByAFillEvenOfTheSameEntries) {
    this->list_.setListIndex(0);
    this->list_.fill({{kAda, 1815}, {kMarie, 1867}, {kBen, 1900}});
    EXPECT_EQ(this->list_.ListIndex(), -1);
    EXPECT_EQ(shownIndex(this->list_), -1);
}

TYPED_TEST(Lists, CanBeFilledAnewWithinTheirClick) {
    QObject::connect(&this->list_, &TypeParam::Click, [&] { this->list_.fill({{kBen, 7}}); });
    this->list_.setListIndex(2);
    EXPECT_EQ(this->list_.ListIndex(), -1);
    EXPECT_EQ(this->list_.ListCount(), 1);
    EXPECT_EQ(shownIndex(this->list_), -1);
}

TYPED_TEST(Lists, RaiseInvalidPropertyValueForAnIndexBeyondTheEntries) {
    for (const int index : {3, 100, -2})
        EXPECT_EQ(errorOf([&] { this->list_.setListIndex(index); }), 380) << index;
    this->list_.Clear();
    EXPECT_EQ(errorOf([&] { this->list_.setListIndex(0); }), 380);
    EXPECT_EQ(this->clicks_.fired(), 0);
}

TYPED_TEST(Lists, RaiseInvalidPropertyArrayIndexForItemDataThatIsNotThere) {
    EXPECT_EQ(errorOf([&] { (void)this->list_.ItemData(this->list_.ListIndex()); }), 381);
    EXPECT_EQ(errorOf([&] { (void)this->list_.ItemData(3); }), 381);
    EXPECT_EQ(errorOf([&] { this->list_.setItemData(-1, 5); }), 381);
    EXPECT_EQ(errorOf([&] { (void)this->list_.List(3); }), 381);
}

TYPED_TEST(Lists, SelectTheFirstEntryWithExactlyTheTextThatIsSet) {
    this->list_.fill({{kAda, 1}, {kMarie, 2}, {kMarie, 3}});
    this->list_.setText(kMarie);
    EXPECT_EQ(this->list_.ItemData(this->list_.ListIndex()), 2);
    EXPECT_EQ(this->clicks_.fired(), 1);
}

TYPED_TEST(Lists, SelectNothingForATextThatNoEntryHas) {
    this->list_.setListIndex(0);
    const int before = this->clicks_.fired();
    this->list_.setText(QStringLiteral("curie, marie"));
    EXPECT_EQ(this->list_.ListIndex(), -1);
    EXPECT_EQ(this->clicks_.fired(), before);
}

TYPED_TEST(Lists, FindTheFirstEntryWithANumber) {
    this->list_.fill(
        {{QStringLiteral("a"), 7}, {QStringLiteral("b"), 9}, {QStringLiteral("c"), 9}});
    EXPECT_EQ(this->list_.indexOf(9), 1);
    EXPECT_EQ(this->list_.indexOf(8), -1);
    EXPECT_EQ(this->list_.ListIndex(), -1);
}

TYPED_TEST(Lists, AddAnEntryInItsPlaceAndTellWhereItStands) {
    this->list_.AddItem(QStringLiteral("Bach, Anna"));
    EXPECT_EQ(this->list_.NewIndex(), 1);
    this->list_.setItemData(this->list_.NewIndex(), 1701);
    EXPECT_EQ(this->list_.List(1), QStringLiteral("Bach, Anna"));
    EXPECT_EQ(this->list_.ItemData(1), 1701);
    EXPECT_EQ(this->list_.ItemData(2), 1867);
}

TYPED_TEST(Lists, KeepTheSelectionOnItsEntryWhenOthersComeAndGo) {
    this->list_.setListIndex(1);
    this->list_.AddItem(QStringLiteral("Aaron"));
    EXPECT_EQ(this->list_.Text(), kMarie);
    EXPECT_EQ(shownIndex(this->list_), 2);
    this->list_.RemoveItem(0);
    this->list_.RemoveItem(0);
    EXPECT_EQ(this->list_.Text(), kMarie);
    EXPECT_EQ(shownIndex(this->list_), 0);
    this->list_.AddItem(QStringLiteral("Zed"));
    this->list_.RemoveItem(this->list_.NewIndex());
    EXPECT_EQ(this->list_.Text(), kMarie);
    EXPECT_EQ(this->clicks_.fired(), 1);
}

TYPED_TEST(Lists, LoseTheSelectionWithItsEntryAndFireNothing) {
    this->list_.setListIndex(1);
    this->list_.RemoveItem(1);
    EXPECT_EQ(this->list_.ListIndex(), -1);
    EXPECT_EQ(shownIndex(this->list_), -1);
    EXPECT_EQ(this->clicks_.fired(), 1);
}

TYPED_TEST(Lists, RaiseAnErrorForRemovingAnEntryThatIsNotThere) {
    EXPECT_EQ(errorOf([&] { this->list_.RemoveItem(3); }), 5);
    EXPECT_EQ(errorOf([&] { this->list_.RemoveItem(-1); }), 5);
    EXPECT_EQ(this->list_.ListCount(), 3);
}

TYPED_TEST(Lists, HaveNoSelectionWhenAnEntryComesIntoAnEmptyList) {
    this->list_.Clear();
    this->list_.AddItem(kBen);
    EXPECT_EQ(this->list_.ListIndex(), -1);
    EXPECT_EQ(shownIndex(this->list_), -1);
}

TYPED_TEST(Lists, KeepTheOrderOfTheStoreUnlessTheyAreSorted) {
    TypeParam unsorted;
    unsorted.fill({{kMarie, 1}, {kBen, 2}});
    unsorted.AddItem(kAda);
    EXPECT_EQ(unsorted.List(0), kMarie);
    EXPECT_EQ(unsorted.NewIndex(), 2);
}
