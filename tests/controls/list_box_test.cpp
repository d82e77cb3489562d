// The list box under the user's mouse and keys.
#include "controls/list_box.h"

#include <gtest/gtest.h>

#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class ListBoxTest : public testing::Test {
  protected:
    ListBoxTest() {
        list_.fill({{QStringLiteral("Adler")}, {QStringLiteral("Curie")}, {QStringLiteral("Zed")}});
        list_.resize(120, 200);
        list_.show();
    }

    QPoint placeOf(int index) {
        return list_.visualRect(list_.QListView::model()->index(index, 0)).center();
    }

    QPoint placeBelowTheEntries() { return {20, 190}; }

    RecordingHost host_;
    ListBox list_;
    EventCounter clicks_{list_, &ListBox::Click};
    EventCounter doubleClicks_{list_, &ListBox::DblClick};
};

}  // namespace

TEST_F(ListBoxTest, SelectsWhatIsClickedAndFiresClickOnce) {
    click(*list_.viewport(), placeOf(1));
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(ListBoxTest, FiresClickAgainWhenTheSelectedEntryIsClicked) {
    click(*list_.viewport(), placeOf(1));
    click(*list_.viewport(), placeOf(1));
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(clicks_.fired(), 2);
}

TEST_F(ListBoxTest, FiresNothingForAClickBelowItsEntriesAndKeepsItsSelection) {
    click(*list_.viewport(), placeOf(1));
    click(*list_.viewport(), placeBelowTheEntries());
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(ListBoxTest, FiresDblClickBelowItsEntriesWhetherOneIsSelectedOrNone) {
    doubleClick(*list_.viewport(), placeBelowTheEntries());
    EXPECT_EQ(doubleClicks_.fired(), 1);
    EXPECT_EQ(clicks_.fired(), 0);
    EXPECT_EQ(list_.ListIndex(), -1);
}

TEST_F(ListBoxTest, FiresClickOnceForAMouseThatIsDraggedOverSeveralEntries) {
    dragMouse(*list_.viewport(), placeOf(0), placeOf(2));
    EXPECT_EQ(list_.ListIndex(), 2);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(ListBoxTest, KeepsItsSelectionWhenTheMouseIsDraggedOffTheEntries) {
    dragMouse(*list_.viewport(), placeOf(1), placeBelowTheEntries());
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(list_.selectionModel()->selectedIndexes().size(), 1);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(ListBoxTest, FiresNothingForAClickWhoseEntryGoesWhileTheMouseIsDown) {
    pressMouse(*list_.viewport(), placeOf(1));
    list_.fill({{QStringLiteral("Adler")}, {QStringLiteral("Curie")}});
    releaseMouse(*list_.viewport(), placeOf(1));
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(clicks_.fired(), 0);
}

TEST_F(ListBoxTest, KeepsItsSelectionWhateverKeyIsHeldWhileItIsClicked) {
    list_.setListIndex(1);
    click(*list_.viewport(), placeOf(1), Qt::ControlModifier);
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(list_.selectionModel()->selectedIndexes().size(), 1);
    EXPECT_EQ(clicks_.fired(), 2);
}

TEST_F(ListBoxTest, FiresClickAndThenDblClickForADoubleClick) {
    doubleClick(*list_.viewport(), placeOf(2));
    EXPECT_EQ(list_.ListIndex(), 2);
    EXPECT_EQ(clicks_.fired(), 1);
    EXPECT_EQ(doubleClicks_.fired(), 1);
}

TEST_F(ListBoxTest, FiresClickOnceForAKeyThatSelectsAnotherEntry) {
    list_.setListIndex(0);
    pressKey(list_, Qt::Key_Down);
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(clicks_.fired(), 2);
    pressKey(list_, Qt::Key_End);
    EXPECT_EQ(list_.ListIndex(), 2);
    EXPECT_EQ(clicks_.fired(), 3);
}

TEST_F(ListBoxTest, FiresNothingForAKeyThatSelectsNoOtherEntry) {
    list_.setListIndex(2);
    pressKey(list_, Qt::Key_Down);
    EXPECT_EQ(list_.ListIndex(), 2);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(ListBoxTest, SelectsTheFirstEntryByAnArrowKeyWhereNoneIsSelected) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home}) {
        list_.fill({{QStringLiteral("Adler")}, {QStringLiteral("Curie")}});
        pressKey(list_, key);
        EXPECT_EQ(list_.ListIndex(), 0) << key;
    }
    EXPECT_EQ(clicks_.fired(), 3);
}

TEST_F(ListBoxTest, CanBeFilledAnewWithinTheClickOfAKeyOrTheMouse) {
    QObject::connect(&list_, &ListBox::Click, [&] {
        list_.fill({{QStringLiteral("Adler")}, {QStringLiteral("Curie")}});
    });
    pressKey(list_, Qt::Key_End);
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(list_.currentIndex().row(), 0);
    click(*list_.viewport(), placeOf(1));
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(list_.currentIndex().row(), 0);
    EXPECT_EQ(clicks_.fired(), 2);
}

TEST_F(ListBoxTest, SelectsAnEntryByItsFirstLetter) {
    type(list_, QStringLiteral("z"));
    EXPECT_EQ(list_.ListIndex(), 2);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(ListBoxTest, HasAnEntryForScreenReadersWithoutASelection) {
    EXPECT_EQ(list_.currentIndex().row(), 0);
    list_.setListIndex(2);
    list_.setListIndex(-1);
    EXPECT_TRUE(list_.currentIndex().isValid());
    EXPECT_TRUE(list_.selectionModel()->selectedIndexes().isEmpty());
    list_.Clear();
    EXPECT_FALSE(list_.currentIndex().isValid());
    list_.AddItem(QStringLiteral("Adler"));
    EXPECT_TRUE(list_.currentIndex().isValid());
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(ListBoxTest, ListsAHundredThousandEntriesAndFindsThemByKey) {
    std::vector<ListEntry> many;
    for (int i = 99'999; i >= 0; --i)
        many.push_back({QStringLiteral("Person %1").arg(i, 6, 10, QLatin1Char('0')), i});
    list_.setSorted(true);
    list_.fill(std::move(many));
    pressKey(list_, Qt::Key_End);
    EXPECT_EQ(list_.ListIndex(), 99'999);
    EXPECT_EQ(list_.ItemData(list_.ListIndex()), 99'999);
}
