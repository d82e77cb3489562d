// The list box with check boxes under the user's mouse and keys.
#include "controls/check_list_box.h"

#include <gtest/gtest.h>

#include <QStyle>
#include <QStyleOptionViewItem>

#include "support/errors.h"
#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class CheckListBoxTest : public testing::Test {
  protected:
    CheckListBoxTest() {
        list_.fill({{QStringLiteral("Adler")}, {QStringLiteral("Curie")}, {QStringLiteral("Zed")}});
        list_.resize(160, 200);
        list_.show();
    }

    QRect rowAt(int index) { return list_.visualRect(list_.QListView::model()->index(index, 0)); }

    QPoint boxOf(int index) {
        QStyleOptionViewItem option;
        option.initFrom(&list_);
        option.rect = rowAt(index);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        return list_.style()
            ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list_)
            .center();
    }

    std::vector<bool> selected() {
        std::vector<bool> selected;
        for (int i = 0; i < list_.ListCount(); ++i)
            selected.push_back(list_.Selected(i));
        return selected;
    }

    RecordingHost host_;
    CheckListBox list_;
};

TEST_F(CheckListBoxTest, SelectsByAClickOnABoxAndTakesTheSelectionAwayByTheNext) {
    click(*list_.viewport(), boxOf(2));
    click(*list_.viewport(), boxOf(0));
    EXPECT_EQ(selected(), std::vector({true, false, true}));
    click(*list_.viewport(), boxOf(2));
    EXPECT_EQ(selected(), std::vector({true, false, false}));
}

TEST_F(CheckListBoxTest, HighlightsAndSelectsNothingByAClickOnAText) {
    click(*list_.viewport(), rowAt(1).center());
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(selected(), std::vector({false, false, false}));
}

TEST_F(CheckListBoxTest, SelectsByTheSpaceBar) {
    pressKey(list_, Qt::Key_Space);
    EXPECT_EQ(selected(), std::vector({true, false, false}));
    pressKey(list_, Qt::Key_End);
    pressKey(list_, Qt::Key_Space);
    EXPECT_EQ(selected(), std::vector({true, false, true}));
    pressKey(list_, Qt::Key_Space);
    EXPECT_EQ(selected(), std::vector({true, false, false}));
}

TEST_F(CheckListBoxTest, HighlightsByTheSpaceBarWhatTheNextArrowKeyLeadsOnFrom) {
    EXPECT_EQ(list_.ListIndex(), -1);
    pressKey(list_, Qt::Key_Space);
    EXPECT_EQ(list_.ListIndex(), 0);
    pressKey(list_, Qt::Key_Down);
    pressKey(list_, Qt::Key_Space);
    EXPECT_EQ(selected(), std::vector({true, true, false}));
    list_.Clear();
    pressKey(list_, Qt::Key_Space);
    EXPECT_EQ(list_.ListIndex(), -1);
}

TEST_F(CheckListBoxTest, SelectsByCode) {
    list_.setSelected(1, true);
    EXPECT_EQ(selected(), std::vector({false, true, false}));
    list_.setAllSelected(true);
    EXPECT_EQ(selected(), std::vector({true, true, true}));
    list_.setAllSelected(false);
    EXPECT_EQ(selected(), std::vector({false, false, false}));
    EXPECT_EQ(errorOf([this] { (void)list_.Selected(3); }), 381);
    EXPECT_EQ(errorOf([this] { list_.setSelected(-1, true); }), 381);
}

TEST_F(CheckListBoxTest, KeepsTheSelectionOfThoseWhoseListGrows) {
    list_.setSelected(1, true);
    list_.AddItem(QStringLiteral("Abel"));
    EXPECT_EQ(selected(), std::vector({false, true, false, false}));
}

}  // namespace
