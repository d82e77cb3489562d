// The cells of a grid as views read them.
#include "controls/grid_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>

#include "support/errors.h"
#include "support/printing.h"

namespace {

std::vector<QString> texts(std::initializer_list<const char*> texts) {
    std::vector<QString> result;
    for (const char* text : texts)
        result.push_back(QString::fromLatin1(text));
    return result;
}

class GridModelTest : public testing::Test {
  protected:
    GridModelTest() {
        model_.change([](GridCells& cells) {
            cells.bind(2, texts({"Name", "Age", "Zed", "9", "abe", "10"}));
        });
    }

    QString header(int section) {
        return model_.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
    }

    GridModel model_;
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal};
};

}  // namespace

TEST_F(GridModelTest, HasTheRowsBelowTheHeader) {
    ASSERT_EQ(model_.rowCount(), 2);
    ASSERT_EQ(model_.columnCount(), 2);
    EXPECT_EQ(model_.index(1, 0).data().toString(), QStringLiteral("abe"));
    EXPECT_EQ(model_.gridRow(model_.index(1, 0)), 2);
    EXPECT_EQ(header(1), QStringLiteral("Age"));
    EXPECT_FALSE(model_.headerData(1, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST_F(GridModelTest, HasALineInTheHeaderForEachFixedRow) {
    model_.change([](GridCells& cells) {
        cells.setFixedRows(2);
        cells.bind(2, texts({"Name", "Age", "", "+", "Zed", "9"}));
    });
    EXPECT_EQ(model_.rowCount(), 1);
    EXPECT_EQ(header(0), QStringLiteral("Name\n"));
    EXPECT_EQ(header(1), QStringLiteral("Age\n+"));
}

TEST_F(GridModelTest, TellsOfARowThatIsAddedAndOfNothingElse) {
    const QSignalSpy inserted(&model_, &QAbstractItemModel::rowsInserted);
    const QSignalSpy reset(&model_, &QAbstractItemModel::modelReset);
    model_.AddItem(u"Ben\t8", 2);
    model_.AddItem(u"Last\t7", 4);
    ASSERT_EQ(inserted.count(), 2);
    EXPECT_EQ(inserted[0][1].toInt(), 1);
    EXPECT_EQ(inserted[0][2].toInt(), 1);
    EXPECT_EQ(reset.count(), 0);
    ASSERT_EQ(model_.rowCount(), 4);
    EXPECT_EQ(model_.index(1, 0).data().toString(), QStringLiteral("Ben"));
    EXPECT_EQ(model_.index(3, 1).data().toString(), QStringLiteral("7"));
}

TEST_F(GridModelTest, IsResetByARowThatIsAddedToItsHeader) {
    const QSignalSpy reset(&model_, &QAbstractItemModel::modelReset);
    model_.AddItem(u"Who\tYears", 0);
    EXPECT_EQ(reset.count(), 1);
    EXPECT_EQ(header(0), QStringLiteral("Who"));
    EXPECT_EQ(model_.rowCount(), 3);
}

TEST_F(GridModelTest, AddsNoRowBeyondItsLast) {
    const QSignalSpy begun(&model_, &QAbstractItemModel::rowsAboutToBeInserted);
    for (const int place : {-1, 4})
        EXPECT_EQ(errorOf([&] { model_.AddItem(u"Ben\t8", place); }), 381);
    EXPECT_EQ(begun.count(), 0);
    EXPECT_EQ(model_.rowCount(), 2);
}

TEST_F(GridModelTest, IsEmptyBeforeAnythingIsBound) {
    GridModel model;
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.columnCount(), 0);
    EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).isValid());
}

TEST_F(GridModelTest, IsBoldWhereItsCellsAre) {
    const auto isBold = [](const QVariant& font) { return font.value<QFont>().bold(); };
    EXPECT_FALSE(isBold(model_.index(1, 1).data(Qt::FontRole)));
    EXPECT_FALSE(isBold(model_.headerData(1, Qt::Horizontal, Qt::FontRole)));
    model_.change([](GridCells& cells) {
        cells.setCol(1);
        for (const int row : {0, 2}) {
            cells.setRow(row);
            cells.setCellFontBold(true);
        }
    });
    EXPECT_TRUE(isBold(model_.index(1, 1).data(Qt::FontRole)));
    EXPECT_TRUE(isBold(model_.headerData(1, Qt::Horizontal, Qt::FontRole)));
    EXPECT_FALSE(isBold(model_.headerData(0, Qt::Horizontal, Qt::FontRole)));
}

TEST_F(GridModelTest, HasItsTextsWhereTheColumnsHaveThem) {
    const auto alignments = [this](int column) {
        const QVariant header = model_.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        const QVariant cell = model_.index(0, column).data(Qt::TextAlignmentRole);
        EXPECT_EQ(header, cell);
        return cell.value<Qt::Alignment>();
    };
    EXPECT_EQ(alignments(1), Qt::AlignLeft | Qt::AlignVCenter);
    model_.change([](GridCells& cells) { cells.setColAlignment(1, ColumnAlignment::Centre); });
    EXPECT_EQ(alignments(1), Qt::AlignCenter);
    EXPECT_EQ(alignments(0), Qt::AlignLeft | Qt::AlignVCenter);
}

TEST_F(GridModelTest, TellsViewsOnceOfAllThatAChangeDoes) {
    const QSignalSpy resets(&model_, &QAbstractItemModel::modelReset);
    model_.change([](GridCells& cells) {
        cells.setTextMatrix(1, 0, QStringLiteral("Curie"));
        cells.Sort(RowOrder::GenericAscending);
    });
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(model_.index(0, 0).data().toString(), QStringLiteral("abe"));
}

TEST_F(GridModelTest, TellsViewsOfAChangeThatFailsHalfway) {
    const QSignalSpy resets(&model_, &QAbstractItemModel::modelReset);
    EXPECT_EQ(errorOf([&] {
                  model_.change([](GridCells& cells) {
                      cells.setTextMatrix(1, 0, QStringLiteral("Curie"));
                      cells.setRow(7);
                  });
              }),
              381);
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(model_.index(0, 0).data().toString(), QStringLiteral("Curie"));
}

TEST_F(GridModelTest, FollowsAViewToTheUsersCell) {
    model_.select(model_.index(1, 1));
    EXPECT_EQ(model_.cells().Row(), 2);
    EXPECT_EQ(model_.cells().Col(), 1);
    EXPECT_EQ(model_.cells().Text(), QStringLiteral("10"));
}
