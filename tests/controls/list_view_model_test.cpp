// The rows of a list view as views read them.
#include "controls/list_view_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QPixmap>

#include "support/printing.h"

namespace {

ListRow row(const QString& name, const QString& age) {
    return {.texts = {name, age}};
}

class ListViewModelTest : public testing::Test {
  protected:
    ListViewModelTest() {
        model_.setColumns({{.header = QStringLiteral("Name")},
                           {.header = QStringLiteral("Age"), .alignment = Qt::AlignRight}});
    }

    void fillThree() {
        model_.fill({row(QStringLiteral("Zed"), QStringLiteral("9")),
                     row(QStringLiteral("\u00c9mile"), QStringLiteral("10")),
                     row(QStringLiteral("abe"), QStringLiteral("9"))});
    }

    QString textAt(int rowIndex, int column) {
        return model_.data(model_.index(rowIndex, column), Qt::DisplayRole).toString();
    }

    QStringList names() {
        QStringList names;
        for (int i = 0; i < model_.rowCount(); ++i)
            names += textAt(i, 0);
        return names;
    }

    ListViewModel model_;
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal};
};

const QString kZed = QStringLiteral("Zed");
const QString kEmile = QStringLiteral("\u00c9mile");
const QString kAbe = QStringLiteral("abe");
constexpr ListSorting kByName{.key = 0, .isOn = true};
constexpr ListSorting kByAge{.key = 1, .isOn = true};

TEST_F(ListViewModelTest, ShowsEveryTextInItsColumnUnderItsHeader) {
    fillThree();
    ASSERT_EQ(model_.rowCount(), 3);
    ASSERT_EQ(model_.columnCount(), 2);
    EXPECT_EQ(textAt(1, 0), kEmile);
    EXPECT_EQ(textAt(1, 1), QStringLiteral("10"));
    EXPECT_EQ(model_.headerData(1, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Age"));
    EXPECT_FALSE(model_.headerData(1, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST_F(ListViewModelTest, AlignsTextsAsTheirHeader) {
    fillThree();
    EXPECT_EQ(model_.headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
              static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(model_.data(model_.index(0, 1), Qt::TextAlignmentRole).toInt(),
              static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(model_.data(model_.index(0, 0), Qt::TextAlignmentRole).toInt(),
              static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter));
}

TEST_F(ListViewModelTest, ShowsThePictureOfItsKeyBeforeTheFirstText) {
    model_.fill({{.smallIcon = QStringLiteral("leo"), .texts = {kZed}}, {.texts = {kAbe}}});
    const auto picture = [this](int rowIndex, int column) {
        return model_.data(model_.index(rowIndex, column), Qt::DecorationRole);
    };
    EXPECT_FALSE(picture(0, 0).value<QPixmap>().isNull());
    EXPECT_FALSE(picture(0, 1).isValid());
    EXPECT_FALSE(picture(1, 0).isValid());
}

TEST_F(ListViewModelTest, ShowsNothingWhereARowHasNoText) {
    model_.fill({{.texts = {kZed}}, {}});
    EXPECT_EQ(textAt(0, 1), QString());
    EXPECT_EQ(textAt(1, 0), QString());
}

TEST_F(ListViewModelTest, TellsOfOneResetForAWholeFill) {
    int resets = 0;
    QObject::connect(&model_, &ListViewModel::modelReset, &model_, [&] { ++resets; });
    fillThree();
    EXPECT_EQ(resets, 1);
}

TEST_F(ListViewModelTest, ChangesARowAndTellsOfItsWholeBreadth) {
    fillThree();
    QModelIndex from;
    QModelIndex to;
    QObject::connect(&model_, &ListViewModel::dataChanged, &model_,
                     [&](const QModelIndex& first, const QModelIndex& last) {
                         from = first;
                         to = last;
                     });
    model_.change(1, row(QStringLiteral("Curie"), QStringLiteral("11")));
    EXPECT_EQ(names(), QStringList({kZed, QStringLiteral("Curie"), kAbe}));
    EXPECT_EQ(textAt(1, 1), QStringLiteral("11"));
    EXPECT_EQ(model_.row(1).texts.first(), QStringLiteral("Curie"));
    EXPECT_EQ(from, model_.index(1, 0));
    EXPECT_EQ(to, model_.index(1, 1));
}

TEST_F(ListViewModelTest, PutsAChangedRowInItsPlaceWhileItIsSorted) {
    fillThree();
    model_.setSorting(kByName);
    model_.change(0, row(QStringLiteral("m"), {}));
    EXPECT_EQ(names(), QStringList({kEmile, QStringLiteral("m"), kZed}));
}

TEST_F(ListViewModelTest, RemovesARowAndKeepsTheOthers) {
    fillThree();
    const QPersistentModelIndex last = model_.index(2, 0);
    model_.remove(1);
    EXPECT_EQ(names(), QStringList({kZed, kAbe}));
    EXPECT_EQ(last, model_.index(1, 0));
}

TEST_F(ListViewModelTest, HasABoxBeforeTheFirstTextOfARowWhereItIsToldTo) {
    fillThree();
    const auto box = [this](int column) {
        return model_.data(model_.index(0, column), Qt::CheckStateRole);
    };
    EXPECT_FALSE(box(0).isValid());
    EXPECT_FALSE(model_.index(0, 0).flags() & Qt::ItemIsUserCheckable);
    EXPECT_FALSE(model_.setData(model_.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    model_.setCheckBoxes(true);
    EXPECT_EQ(box(0), Qt::Unchecked);
    EXPECT_FALSE(box(1).isValid());
    EXPECT_TRUE(model_.index(0, 0).flags() & Qt::ItemIsUserCheckable);
    EXPECT_FALSE(model_.index(0, 1).flags() & Qt::ItemIsUserCheckable);
}

TEST_F(ListViewModelTest, LetsTheUserCheckABoxAndChangeNothingElse) {
    fillThree();
    model_.setCheckBoxes(true);
    EXPECT_TRUE(model_.setData(model_.index(1, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(model_.row(1).checked);
    EXPECT_EQ(model_.data(model_.index(1, 0), Qt::CheckStateRole), Qt::Checked);
    EXPECT_TRUE(model_.setData(model_.index(1, 0), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_FALSE(model_.row(1).checked);
    EXPECT_FALSE(model_.setData(model_.index(1, 1), Qt::Checked, Qt::CheckStateRole));
    EXPECT_FALSE(model_.setData(model_.index(1, 0), kAbe, Qt::EditRole));
    EXPECT_EQ(textAt(1, 0), kEmile);
}

// Rows that tell of their making.
class ListViewModelWithMadeRows : public ListViewModelTest {
  protected:
    ListViewModelWithMadeRows() {
        model_.fill(3, [this](int index) {
            made_.push_back(index);
            return row(QString(QChar(u'c' - index)), QString::number(index));
        });
    }

    std::vector<int> made_;
};

TEST_F(ListViewModelWithMadeRows, MakesARowOnceItIsLookedAtAndNotAgain) {
    EXPECT_EQ(model_.rowCount(), 3);
    made_.clear();
    model_.data(model_.index(1, 0), Qt::TextAlignmentRole);
    EXPECT_EQ(made_, std::vector<int>());
    EXPECT_EQ(textAt(1, 0), QStringLiteral("b"));
    EXPECT_EQ(textAt(1, 1), QStringLiteral("1"));
    EXPECT_EQ(made_, std::vector{1});
}

TEST_F(ListViewModelWithMadeRows, SortsThemAll) {
    model_.setSorting(kByName);
    EXPECT_EQ(names().join(QString()), QStringLiteral("abc"));
    model_.fill(2, [](int index) { return row(QString(QChar(u'z' - index)), {}); });
    EXPECT_EQ(names().join(QString()), QStringLiteral("yz"));
}

TEST_F(ListViewModelWithMadeRows, KeepsThemWhenOneBeforeThemGoes) {
    model_.remove(0);
    EXPECT_EQ(names().join(QString()), QStringLiteral("ba"));
}

TEST_F(ListViewModelWithMadeRows, KeepsThemBesideARowThatComesLater) {
    model_.add(row(QStringLiteral("d"), {}));
    model_.setSorting(kByName);
    model_.add(row(QStringLiteral("A"), {}));
    EXPECT_EQ(names().join(QString()), QStringLiteral("aAbcd"));
}

TEST_F(ListViewModelTest, KeepsTheGivenOrderUntilItIsSorted) {
    fillThree();
    model_.add(row(QStringLiteral("Curie"), QStringLiteral("1")));
    EXPECT_EQ(names(), QStringList({kZed, kEmile, kAbe, QStringLiteral("Curie")}));
    model_.setSorting({.key = 1, .isOn = false});
    EXPECT_EQ(names(), QStringList({kZed, kEmile, kAbe, QStringLiteral("Curie")}));
}

TEST_F(ListViewModelTest, SortsWithoutRegardToCaseAndAccents) {
    fillThree();
    model_.setSorting(kByName);
    EXPECT_EQ(names(), QStringList({kAbe, kEmile, kZed}));
}

TEST_F(ListViewModelTest, SortsNumbersAsTextAndLeavesEqualOnesInTheirOrder) {
    fillThree();
    model_.setSorting(kByAge);
    EXPECT_EQ(names(), QStringList({kEmile, kZed, kAbe}));
}

TEST_F(ListViewModelTest, SortsDownwardsToo) {
    fillThree();
    model_.setSorting({.key = 1, .order = ListSortOrder::Descending, .isOn = true});
    EXPECT_EQ(names(), QStringList({kZed, kAbe, kEmile}));
}

TEST_F(ListViewModelTest, SortsAnewByAnotherColumn) {
    fillThree();
    model_.setSorting(kByAge);
    model_.setSorting(kByName);
    EXPECT_EQ(names(), QStringList({kAbe, kEmile, kZed}));
}

TEST_F(ListViewModelTest, GoesOnSortingWhatComesLater) {
    model_.setSorting(kByAge);
    fillThree();
    EXPECT_EQ(names(), QStringList({kEmile, kZed, kAbe}));
    model_.add(row(QStringLiteral("Curie"), QStringLiteral("85")));
    model_.add(row(QStringLiteral("Baby"), QStringLiteral("-1")));
    model_.add(row(QStringLiteral("Third"), QStringLiteral("9")));
    EXPECT_EQ(names(), QStringList({QStringLiteral("Baby"), kEmile, QStringLiteral("Curie"), kZed,
                                    kAbe, QStringLiteral("Third")}));
}

TEST_F(ListViewModelTest, LeavesItsRowsWhereTheyStandWhenSortingIsSwitchedOff) {
    fillThree();
    model_.setSorting(kByName);
    model_.setSorting({});
    EXPECT_EQ(names(), QStringList({kAbe, kEmile, kZed}));
    model_.add(row(QStringLiteral("Curie"), {}));
    EXPECT_EQ(names().last(), QStringLiteral("Curie"));
}

TEST_F(ListViewModelTest, KeepsAViewsRememberedRowsThroughASort) {
    fillThree();
    const QPersistentModelIndex zed = model_.index(0, 1);
    const QPersistentModelIndex abe = model_.index(2, 0);
    model_.setSorting(kByName);
    EXPECT_EQ(zed, model_.index(2, 1));
    EXPECT_EQ(abe, model_.index(0, 0));
}

}  // namespace
