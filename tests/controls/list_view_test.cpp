// The list in columns under the user's mouse and keys.
#include "controls/list_view.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QStyle>
#include <QStyleOptionViewItem>

#include "support/errors.h"
#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class ListViewTest : public testing::Test, public QObject {
  protected:
    ListViewTest() {
        view_.setColumns(
            {{.header = QStringLiteral("Name")}, {.header = QStringLiteral("Age"), .width = 900}});
        view_.fill({row("Zed", "9"), row("abe", "10"), row("Curie", "9")});
        view_.resize(300, 200);
        view_.show();
        onEvent(&view_, &ListView::ColumnClick, this, &ListViewTest::columnClicked);
        onEvent(&view_, &ListView::ItemClick, this, &ListViewTest::itemClicked);
    }

    static ListRow row(const char* name, const char* age) {
        return {.smallIcon = QStringLiteral("leo"),
                .texts = {QString::fromUtf8(name), QString::fromUtf8(age)}};
    }

    QStringList names() {
        QStringList names;
        for (int i = 0; i < view_.model()->rowCount(); ++i)
            names += view_.model()->index(i, 0).data().toString();
        return names;
    }

    QModelIndexList selectedRows() { return view_.selectionModel()->selectedRows(); }

    void clickHeader(int section) {
        QHeaderView& header = *view_.header();
        const int x = header.sectionViewportPosition(section) + header.sectionSize(section) / 2;
        click(*header.viewport(), {x, header.height() / 2});
    }

    QPoint middleOf(int row) { return view_.visualRect(view_.model()->index(row, 0)).center(); }

    QPoint boxOf(int row) {
        QStyleOptionViewItem option;
        option.initFrom(&view_);
        option.rect = view_.visualRect(view_.model()->index(row, 0));
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        return view_.style()
            ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &view_)
            .center();
    }

    std::vector<bool> checked() {
        std::vector<bool> checked;
        for (int i = 1; i <= view_.ListCount(); ++i)
            checked.push_back(view_.ListItem(i).checked);
        return checked;
    }

    void columnClicked(int column) { clickedColumns_.push_back(column); }
    void itemClicked(int row) { clickedRows_.push_back(row); }

    RecordingHost host_;
    ListView view_;
    std::vector<int> clickedColumns_;
    std::vector<int> clickedRows_;
};

const QStringList kByName{QStringLiteral("abe"), QStringLiteral("Curie"), QStringLiteral("Zed")};
const QStringList kByAge{QStringLiteral("abe"), QStringLiteral("Zed"), QStringLiteral("Curie")};
const QStringList kAsFilled{QStringLiteral("Zed"), QStringLiteral("abe"), QStringLiteral("Curie")};

}  // namespace

TEST_F(ListViewTest, TellsWhichHeaderIsClickedAndSortsNothingByItself) {
    clickHeader(1);
    clickHeader(0);
    EXPECT_EQ(clickedColumns_, std::vector({2, 1}));
    EXPECT_EQ(names(), kAsFilled);
    EXPECT_FALSE(view_.header()->isSortIndicatorShown());
}

TEST_F(ListViewTest, TellsWhichRowIsClicked) {
    click(*view_.viewport(), middleOf(2));
    click(*view_.viewport(), middleOf(0));
    click(*view_.viewport(), {10, view_.viewport()->height() - 5});
    EXPECT_EQ(clickedRows_, std::vector({2, 0}));
}

TEST_F(ListViewTest, TellsWhichRowIsChosenByEnter) {
    pressKey(view_, Qt::Key_Down);
    EXPECT_EQ(clickedRows_, std::vector<int>());
    pressKey(view_, Qt::Key_Return);
    pressKey(view_, Qt::Key_Down);
    pressKey(view_, Qt::Key_Enter);
    EXPECT_EQ(clickedRows_, std::vector({1, 2}));
    view_.Clear();
    pressKey(view_, Qt::Key_Return);
    EXPECT_EQ(clickedRows_.size(), 2u);
}

TEST_F(ListViewTest, SelectsTheRowThatIsChosenByEnter) {
    pressKey(view_, Qt::Key_Return);
    EXPECT_EQ(clickedRows_, std::vector{0});
    EXPECT_EQ(selectedRows(), QModelIndexList{view_.model()->index(0, 0)});
}

TEST_F(ListViewTest, ReadsChangesAndRemovesRowsCountedFromOne) {
    EXPECT_EQ(view_.ListCount(), 3);
    EXPECT_EQ(view_.ListItem(1).texts.first(), QStringLiteral("Zed"));
    view_.setListItem(2, row("Ada", "85"));
    EXPECT_EQ(view_.ListItem(2).texts, row("Ada", "85").texts);
    view_.Remove(1);
    EXPECT_EQ(names(), QStringList({QStringLiteral("Ada"), QStringLiteral("Curie")}));
}

TEST_F(ListViewTest, RefusesARowThatIsNotThere) {
    for (const int index : {-1, 0, 4}) {
        EXPECT_EQ(errorOf([&] { view_.ListItem(index); }), 35600) << index;
        EXPECT_EQ(errorOf([&] { view_.setListItem(index, {}); }), 35600) << index;
        EXPECT_EQ(errorOf([&] { view_.Remove(index); }), 35600) << index;
    }
    EXPECT_EQ(names(), kAsFilled);
}

TEST_F(ListViewTest, ChecksARowByAClickOnItsBoxWhichIsAClickOnTheRow) {
    view_.setCheckBoxes(true);
    click(*view_.viewport(), boxOf(1));
    EXPECT_EQ(checked(), std::vector({false, true, false}));
    EXPECT_EQ(clickedRows_, std::vector{1});
    click(*view_.viewport(), boxOf(1));
    EXPECT_EQ(checked(), std::vector({false, false, false}));
}

TEST_F(ListViewTest, ChecksNothingByAClickBesideTheBox) {
    view_.setCheckBoxes(true);
    click(*view_.viewport(), middleOf(1));
    EXPECT_EQ(checked(), std::vector({false, false, false}));
}

TEST_F(ListViewTest, ChecksTheRowOfTheFocusByTheSpaceBarInWhicheverColumn) {
    view_.setCheckBoxes(true);
    view_.setCurrentIndex(view_.model()->index(2, 1));
    pressKey(view_, Qt::Key_Space);
    EXPECT_EQ(checked(), std::vector({false, false, true}));
    pressKey(view_, Qt::Key_Space);
    EXPECT_EQ(checked(), std::vector({false, false, false}));
    EXPECT_EQ(clickedRows_, std::vector<int>());
}

TEST_F(ListViewTest, HasNoBoxesWhereNobodyAsksForThem) {
    pressKey(view_, Qt::Key_Space);
    click(*view_.viewport(), boxOf(1));
    EXPECT_EQ(checked(), std::vector({false, false, false}));
}

TEST_F(ListViewTest, SelectsTheRowOfTheFocusByTheSpaceBarWhereThereAreNoBoxes) {
    const QModelIndex row = view_.model()->index(2, 0);
    view_.selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
    ASSERT_FALSE(view_.selectionModel()->isSelected(row));
    pressKey(view_, Qt::Key_Space);
    EXPECT_TRUE(view_.selectionModel()->isSelected(row));
}

TEST_F(ListViewTest, HidesAColumnOfNoWidth) {
    view_.setColumns(
        {{.header = QStringLiteral("Name")}, {.header = QStringLiteral("ID"), .width = 0}});
    EXPECT_TRUE(view_.isColumnHidden(1));
    EXPECT_EQ(view_.header()->sectionSize(0), view_.viewport()->width());
    view_.setColumns(
        {{.header = QStringLiteral("Name")}, {.header = QStringLiteral("ID"), .width = 900}});
    EXPECT_FALSE(view_.isColumnHidden(1));
}

TEST_F(ListViewTest, MakesOnlyTheRowsThatAreInView) {
    int made = 0;
    view_.fill(1000, [&made](int index) {
        ++made;
        return ListRow{.texts = {QString::number(index)}};
    });
    view_.grab();
    EXPECT_GT(made, 0);
    EXPECT_LT(made, 50);
}

TEST_F(ListViewTest, SortsByItsKeyOnceItIsSorted) {
    view_.setSortKey(1);
    EXPECT_EQ(names(), kAsFilled);
    view_.setSorted(true);
    EXPECT_EQ(names(), kByAge);
    view_.setSortKey(0);
    EXPECT_EQ(names(), kByName);
    view_.setSortOrder(ListSortOrder::Descending);
    EXPECT_EQ(names(), QStringList(kByName.rbegin(), kByName.rend()));
    EXPECT_EQ(view_.SortKey(), 0);
    EXPECT_EQ(view_.SortOrder(), ListSortOrder::Descending);
    EXPECT_TRUE(view_.Sorted());
}

TEST_F(ListViewTest, StaysSortedWhenItIsFilledAnew) {
    view_.setSorted(true);
    view_.Clear();
    EXPECT_EQ(names(), QStringList());
    view_.fill({row("Zed", "1"), row("Curie", "2")});
    view_.AddRow(row("abe", "3"));
    EXPECT_EQ(names(), kByName);
}

TEST_F(ListViewTest, PointsInTheHeaderToWhatItIsSortedByAndNotToWhatIsClicked) {
    view_.setSorted(true);
    EXPECT_TRUE(view_.header()->isSortIndicatorShown());
    for (const int section : {0, 0, 1}) {
        clickHeader(section);
        EXPECT_EQ(view_.header()->sortIndicatorSection(), 0);
        EXPECT_EQ(view_.header()->sortIndicatorOrder(), Qt::AscendingOrder);
    }
}

TEST_F(ListViewTest, RefusesASortKeyBelowNought) {
    EXPECT_EQ(errorOf([&] { view_.setSortKey(-1); }), 380);
    EXPECT_EQ(view_.SortKey(), 0);
}

TEST_F(ListViewTest, SelectsTheWholeRowAndKeepsItSelectedThroughASort) {
    click(*view_.viewport(), view_.visualRect(view_.model()->index(0, 1)).center());
    ASSERT_EQ(selectedRows().size(), 1);
    view_.setSorted(true);
    ASSERT_EQ(selectedRows().size(), 1);
    EXPECT_EQ(selectedRows().front().data().toString(), QStringLiteral("Zed"));
}

TEST_F(ListViewTest, HasARowForScreenReadersAndNoneSelectedAfterAFill) {
    view_.setCurrentIndex(view_.model()->index(2, 0));
    view_.fill({row("abe", "3")});
    EXPECT_EQ(view_.currentIndex().row(), 0);
    EXPECT_TRUE(selectedRows().isEmpty());
    view_.fill(2, [](int) { return row("Zed", "9"); });
    EXPECT_EQ(view_.currentIndex().row(), 0);
    EXPECT_TRUE(selectedRows().isEmpty());
    view_.Clear();
    EXPECT_FALSE(view_.currentIndex().isValid());
}

TEST_F(ListViewTest, GivesAColumnItsWidthAndTheRestToTheOneThatHasNone) {
    EXPECT_EQ(view_.header()->sectionSize(1), 60);
    EXPECT_EQ(view_.header()->sectionSize(0), view_.viewport()->width() - 60);
    view_.setColumns({{.header = QStringLiteral("Date"), .width = 3500}});
    EXPECT_EQ(view_.header()->count(), 1);
    EXPECT_EQ(view_.header()->sectionSize(0), 233);
    EXPECT_EQ(view_.model()->rowCount(), 3);
    EXPECT_EQ(view_.currentIndex().row(), 0);
    EXPECT_TRUE(selectedRows().isEmpty());
}

TEST_F(ListViewTest, LeavesNoRoomForBranchesAndMakesRowsAsHighAsTheirPictures) {
    const QRect first = view_.visualRect(view_.model()->index(0, 0));
    EXPECT_EQ(first.left(), 0);
    EXPECT_GE(first.height(), 24);
}

TEST_F(ListViewTest, KeepsThePictureOfASelectedRowOnThePlainBackground) {
    view_.setCurrentIndex(view_.model()->index(1, 0));
    const auto colourIn = [this](int rowIndex, int x) {
        const QRect row = view_.visualRect(view_.model()->index(rowIndex, 0));
        return view_.viewport()->grab().toImage().pixelColor(row.left() + x, row.center().y());
    };
    const QColor plain = view_.palette().color(QPalette::Base);
    const int inPicture = 10;
    const int behindTheText = 200;
    EXPECT_EQ(colourIn(0, inPicture), colourIn(1, inPicture));
    EXPECT_EQ(colourIn(0, behindTheText), plain);
    EXPECT_NE(colourIn(1, behindTheText), plain);
}

TEST_F(ListViewTest, ListsAHundredThousandRows) {
    std::vector<ListRow> many;
    for (int i = 99'999; i >= 0; --i)
        many.push_back({.smallIcon = QStringLiteral("leo"),
                        .texts = {QStringLiteral("Person %1").arg(i, 6, 10, QLatin1Char('0'))}});
    view_.setSorted(true);
    view_.fill(std::move(many));
    pressKey(view_, Qt::Key_End);
    EXPECT_EQ(view_.currentIndex().data().toString(), QStringLiteral("Person 099999"));
}
