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

}  // namespace
