// The entries of a list as views read them.
#include "controls/entry_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "support/printing.h"

namespace {

class EntryModelTest : public testing::Test {
  protected:
    QString shownAt(int row) { return model_.data(model_.index(row), Qt::DisplayRole).toString(); }

    EntryModel model_;
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(EntryModelTest, ShowsTheTexts) {
    model_.fill({{.text = QStringLiteral("one")}, {.text = QStringLiteral("two")}});
    ASSERT_EQ(model_.rowCount(), 2);
    EXPECT_EQ(shownAt(1), QStringLiteral("two"));
    EXPECT_FALSE(model_.data(model_.index(1), Qt::DecorationRole).isValid());
}

TEST_F(EntryModelTest, TellsOfOneResetForAWholeFill) {
    int resets = 0;
    QObject::connect(&model_, &EntryModel::modelReset, &model_, [&] { ++resets; });
    model_.fill({{.text = QStringLiteral("one")}, {.text = QStringLiteral("two")}});
    EXPECT_EQ(resets, 1);
}

TEST_F(EntryModelTest, TellsOfEveryRowThatComesAndGoes) {
    model_.fill({{.text = QStringLiteral("one")}});
    model_.insert(0, QStringLiteral("nought"));
    EXPECT_EQ(shownAt(0), QStringLiteral("nought"));
    model_.remove(1);
    ASSERT_EQ(model_.rowCount(), 1);
    EXPECT_EQ(shownAt(0), QStringLiteral("nought"));
}

// Entries with check boxes, and what the view is told of them.
class EntryModelWithBoxes : public EntryModelTest {
  protected:
    EntryModelWithBoxes() {
        model_.setCheckBoxes(true);
        model_.fill({{.text = QStringLiteral("one")},
                     {.text = QStringLiteral("two")},
                     {.text = QStringLiteral("three")}});
        QObject::connect(&model_, &EntryModel::dataChanged, &model_,
                         [this](const QModelIndex& first, const QModelIndex& last) {
                             told_.emplace_back(first.row(), last.row());
                         });
    }

    QVariant boxAt(int row) { return model_.data(model_.index(row), Qt::CheckStateRole); }

    std::vector<std::pair<int, int>> told_;
};

TEST_F(EntryModelWithBoxes, ShowsWhichAreSelected) {
    model_.setSelected(1, true);
    EXPECT_EQ(boxAt(0), Qt::Unchecked);
    EXPECT_EQ(boxAt(1), Qt::Checked);
    EXPECT_EQ(told_, (std::vector<std::pair<int, int>>{{1, 1}}));
}

TEST_F(EntryModelWithBoxes, TellsOnceThatAllAreSelected) {
    model_.setAllSelected(true);
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(boxAt(row), Qt::Checked);
    EXPECT_EQ(told_, (std::vector<std::pair<int, int>>{{0, 2}}));
    model_.setAllSelected(false);
    EXPECT_EQ(boxAt(2), Qt::Unchecked);
    model_.fill({});
    model_.setAllSelected(true);
    EXPECT_EQ(told_.size(), 2U);
}

TEST_F(EntryModelWithBoxes, LetsTheUserCheckABoxAndChangeNothingElse) {
    const QModelIndex second = model_.index(1);
    EXPECT_TRUE(second.flags() & Qt::ItemIsUserCheckable);
    EXPECT_TRUE(model_.setData(second, Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(model_.entries().isSelected(1));
    EXPECT_TRUE(model_.setData(second, Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_FALSE(model_.entries().isSelected(1));
    EXPECT_FALSE(model_.setData(second, QStringLiteral("2"), Qt::EditRole));
    EXPECT_EQ(shownAt(1), QStringLiteral("two"));
}

TEST_F(EntryModelTest, HasNoBoxesWhereNobodyAsksForThem) {
    model_.fill({{.text = QStringLiteral("one"), .selected = true}});
    const QModelIndex only = model_.index(0);
    EXPECT_FALSE(only.data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(only.flags() & Qt::ItemIsUserCheckable);
    EXPECT_FALSE(model_.setData(only, Qt::Unchecked, Qt::CheckStateRole));
}

}  // namespace
