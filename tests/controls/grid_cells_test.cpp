// The cells of a grid, without any grid on a screen.
#include "controls/grid_cells.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "support/errors.h"
#include "support/printing.h"

namespace {

constexpr Long kGrey = 0xC0C0C0;

// Three columns and, below the header, three rows.
class GridCellsTest : public testing::Test {
  protected:
    GridCellsTest() {
        bind({"Name", "Age", "City", "Zed", "9", "Rome", "abe", "10", "Oslo", "Zed", "8", "Bern"});
    }

    void bind(std::initializer_list<const char*> texts) {
        std::vector<QString> cells;
        for (const char* text : texts)
            cells.push_back(QString::fromLatin1(text));
        cells_.bind(3, std::move(cells));
    }

    // The texts of a row or of a column, divided by bars.
    QString row(int row) const {
        QStringList texts;
        for (int column = 0; column < cells_.Cols(); ++column)
            texts += cells_.TextMatrix(row, column);
        return texts.join(u'|');
    }

    QString column(int column) const {
        QStringList texts;
        for (int row = 0; row < cells_.Rows(); ++row)
            texts += cells_.TextMatrix(row, column);
        return texts.join(u'|');
    }

    void select(int top, int left, int bottom, int right) {
        cells_.setRow(top);
        cells_.setCol(left);
        cells_.setRowSel(bottom);
        cells_.setColSel(right);
    }

    // Which cells have a background, row by row: "x" for those.
    QString colouredCells() const {
        QStringList rows;
        for (int row = 0; row < cells_.Rows(); ++row) {
            rows += QString();
            for (int column = 0; column < cells_.Cols(); ++column)
                rows.last() += cells_.look(row, column).backColor == kGrey ? u'x' : u'-';
        }
        return rows.join(u' ');
    }

    GridCells cells_;
};

}  // namespace

TEST_F(GridCellsTest, HoldTheirTextsRowByRowBelowTheHeader) {
    EXPECT_EQ(cells_.Rows(), 4);
    EXPECT_EQ(cells_.Cols(), 3);
    EXPECT_EQ(cells_.FixedRows(), 1);
    EXPECT_EQ(cells_.FixedCols(), 0);
    EXPECT_EQ(row(0), QStringLiteral("Name|Age|City"));
    EXPECT_EQ(row(3), QStringLiteral("Zed|8|Bern"));
}

TEST_F(GridCellsTest, TakeATextForOneCell) {
    cells_.setTextMatrix(2, 1, QStringLiteral("11"));
    EXPECT_EQ(row(2), QStringLiteral("abe|11|Oslo"));
    EXPECT_EQ(column(1), QStringLiteral("Age|9|11|8"));
}

TEST_F(GridCellsTest, BeginWithNoRows) {
    const GridCells none;
    EXPECT_EQ(none.Rows(), 0);
    EXPECT_EQ(none.Cols(), 0);
    EXPECT_EQ(errorOf([&] { (void)none.Text(); }), 381);
}

TEST_F(GridCellsTest, RaiseAnErrorForARowOrAColumnThatIsNotThere) {
    for (const int row : {-1, 4}) {
        EXPECT_EQ(errorOf([&] { (void)cells_.TextMatrix(row, 0); }), 381) << row;
        EXPECT_EQ(errorOf([&] { cells_.setTextMatrix(row, 0, {}); }), 381) << row;
        EXPECT_EQ(errorOf([&] { (void)cells_.look(row, 0); }), 381) << row;
        EXPECT_EQ(errorOf([&] { cells_.setRow(row); }), 381) << row;
        EXPECT_EQ(errorOf([&] { cells_.setRowSel(row); }), 381) << row;
    }
    for (const int column : {-1, 3}) {
        EXPECT_EQ(errorOf([&] { (void)cells_.TextMatrix(0, column); }), 381) << column;
        EXPECT_EQ(errorOf([&] { (void)cells_.ColWidth(column); }), 381) << column;
        EXPECT_EQ(errorOf([&] { cells_.setColWidth(column, 1); }), 381) << column;
        EXPECT_EQ(errorOf([&] { cells_.setCol(column); }), 381) << column;
        EXPECT_EQ(errorOf([&] { cells_.setColSel(column); }), 381) << column;
        EXPECT_EQ(errorOf([&] { cells_.setColPosition(column, 0); }), 381) << column;
        EXPECT_EQ(errorOf([&] { cells_.setColPosition(0, column); }), 381) << column;
    }
}

TEST_F(GridCellsTest, HaveTheFirstCellBelowTheHeaderForCurrent) {
    EXPECT_EQ(cells_.Row(), 1);
    EXPECT_EQ(cells_.Col(), 0);
    EXPECT_EQ(cells_.RowSel(), 1);
    EXPECT_EQ(cells_.ColSel(), 0);
    EXPECT_EQ(cells_.Text(), QStringLiteral("Zed"));
}

TEST_F(GridCellsTest, SelectOneRowOrColumnUntilMoreAreNamed) {
    select(1, 0, 3, 2);
    cells_.setCol(1);
    EXPECT_EQ(cells_.ColSel(), 1);
    EXPECT_EQ(cells_.RowSel(), 3);
    cells_.setRow(2);
    EXPECT_EQ(cells_.RowSel(), 2);
    EXPECT_EQ(cells_.Text(), QStringLiteral("10"));
}

TEST_F(GridCellsTest, TakeAColumnToTheLeft) {
    cells_.setColWidth(2, 900);
    cells_.setColPosition(2, 0);
    EXPECT_EQ(row(0), QStringLiteral("City|Name|Age"));
    EXPECT_EQ(row(3), QStringLiteral("Bern|Zed|8"));
    EXPECT_EQ(cells_.ColWidth(0), 900);
    EXPECT_EQ(cells_.ColWidth(2), GridCells::kDefaultColWidth);
}

TEST_F(GridCellsTest, TakeAColumnToTheRight) {
    cells_.setColWidth(0, 900);
    cells_.setColPosition(0, 1);
    EXPECT_EQ(row(0), QStringLiteral("Age|Name|City"));
    EXPECT_EQ(cells_.ColWidth(1), 900);
    cells_.setColPosition(1, 1);
    EXPECT_EQ(row(1), QStringLiteral("9|Zed|Rome"));
}

TEST_F(GridCellsTest, LookAsTheGridDoesAtTheBeginning) {
    EXPECT_EQ(cells_.look(1, 1).backColor, 0);
    EXPECT_FALSE(cells_.look(0, 0).isBold);
}

TEST_F(GridCellsTest, GiveALookToTheCurrentCellAlone) {
    select(1, 1, 3, 2);
    cells_.setCellBackColor(kGrey);
    cells_.setCellFontBold(true);
    EXPECT_EQ(colouredCells(), QStringLiteral("--- -x- --- ---"));
    EXPECT_TRUE(cells_.look(1, 1).isBold);
    EXPECT_FALSE(cells_.look(1, 2).isBold);
}

TEST_F(GridCellsTest, GiveALookToAllThatAreSelectedWhereItIsRepeated) {
    cells_.setFillStyle(FillStyle::Repeat);
    select(1, 1, 2, 2);
    cells_.setCellBackColor(kGrey);
    EXPECT_EQ(colouredCells(), QStringLiteral("--- -xx -xx ---"));
    select(3, 2, 2, 0);
    cells_.setCellBackColor(kGrey);
    EXPECT_EQ(colouredCells(), QStringLiteral("--- -xx xxx xxx"));
    cells_.setFillStyle(FillStyle::Single);
    cells_.setCellBackColor(0);
    EXPECT_EQ(colouredCells(), QStringLiteral("--- -xx xxx xx-"));
}

TEST_F(GridCellsTest, TakeTheirLooksAlongWithColumnsAndRows) {
    cells_.setRow(1);
    cells_.setCol(1);
    cells_.setCellBackColor(kGrey);
    cells_.setColPosition(1, 0);
    EXPECT_EQ(colouredCells(), QStringLiteral("--- x-- --- ---"));
    cells_.setCol(0);
    cells_.Sort(RowOrder::GenericAscending);
    EXPECT_EQ(column(0), QStringLiteral("Age|8|9|10"));
    EXPECT_EQ(colouredCells(), QStringLiteral("--- --- x-- ---"));
}

TEST_F(GridCellsTest, AreSortedByTheSelectedColumnsBelowTheHeader) {
    cells_.setCol(0);
    cells_.setColSel(1);
    cells_.Sort(RowOrder::GenericAscending);
    EXPECT_EQ(row(0), QStringLiteral("Name|Age|City"));
    EXPECT_EQ(row(1), QStringLiteral("abe|10|Oslo"));
    EXPECT_EQ(row(2), QStringLiteral("Zed|8|Bern"));
    EXPECT_EQ(row(3), QStringLiteral("Zed|9|Rome"));
    EXPECT_EQ(cells_.Row(), 1);
}

TEST_F(GridCellsTest, AreSortedByOneColumnWhereOneIsSelected) {
    cells_.setCol(0);
    cells_.Sort(RowOrder::GenericAscending);
    EXPECT_EQ(column(2), QStringLiteral("City|Oslo|Rome|Bern"));
}

TEST_F(GridCellsTest, AreSortedFromLeftToRightWhicheverColumnIsCurrent) {
    cells_.setCol(1);
    cells_.setColSel(0);
    cells_.Sort(RowOrder::GenericAscending);
    EXPECT_EQ(column(2), QStringLiteral("City|Oslo|Bern|Rome"));
}

TEST_F(GridCellsTest, AreSortedByTheColumnsAsTheyStand) {
    cells_.setColPosition(2, 0);
    cells_.setCol(0);
    cells_.Sort(RowOrder::GenericAscending);
    EXPECT_EQ(column(0), QStringLiteral("City|Bern|Oslo|Rome"));
}

TEST_F(GridCellsTest, CanHaveMoreRowsInTheHeader) {
    cells_.setFixedRows(2);
    bind({"a", "", "", "b", "", "", "z", "1", "", "y", "2", ""});
    EXPECT_EQ(cells_.Row(), 2);
    cells_.Sort(RowOrder::GenericAscending);
    EXPECT_EQ(column(0), QStringLiteral("a|b|y|z"));
}

TEST_F(GridCellsTest, CanBeAHeaderAlone) {
    bind({"Name", "Age", "City"});
    EXPECT_EQ(cells_.Rows(), 1);
    EXPECT_EQ(cells_.Row(), 0);
    cells_.Sort(RowOrder::GenericAscending);
    EXPECT_EQ(row(0), QStringLiteral("Name|Age|City"));
}

TEST_F(GridCellsTest, AreAllNewWhenTheyAreBoundAgain) {
    cells_.setColPosition(2, 0);
    cells_.setColWidth(0, 900);
    cells_.setCellBackColor(kGrey);
    cells_.setRow(3);
    cells_.setCol(2);
    bind({"Name", "Age", "City", "Curie", "7", "Paris"});
    EXPECT_EQ(row(0), QStringLiteral("Name|Age|City"));
    EXPECT_EQ(row(1), QStringLiteral("Curie|7|Paris"));
    EXPECT_EQ(cells_.ColWidth(0), GridCells::kDefaultColWidth);
    EXPECT_EQ(colouredCells(), QStringLiteral("--- ---"));
    EXPECT_EQ(cells_.Row(), 1);
    EXPECT_EQ(cells_.RowSel(), 1);
    EXPECT_EQ(cells_.Col(), 0);
    EXPECT_EQ(cells_.ColSel(), 0);
}

TEST_F(GridCellsTest, CanBeCleared) {
    cells_.setColWidth(1, 900);
    cells_.setColAlignment(1, ColumnAlignment::Centre);
    cells_.setCellBackColor(kGrey);
    cells_.Clear();
    EXPECT_EQ(cells_.Rows(), 4);
    EXPECT_EQ(row(0), QStringLiteral("||"));
    EXPECT_EQ(row(3), QStringLiteral("||"));
    EXPECT_EQ(colouredCells(), QStringLiteral("--- --- --- ---"));
    EXPECT_EQ(cells_.ColWidth(1), 900);
    EXPECT_EQ(cells_.ColAlignment(1), ColumnAlignment::Centre);
}

TEST_F(GridCellsTest, TakeARowAtTheEnd) {
    cells_.AddItem(u"Moss\t11\tKiel");
    EXPECT_EQ(cells_.Rows(), 5);
    EXPECT_EQ(row(4), QStringLiteral("Moss|11|Kiel"));
    cells_.AddItem(u"Moss");
    EXPECT_EQ(row(5), QStringLiteral("Moss||"));
    cells_.AddItem(u"\t12\t\tbeyond");
    EXPECT_EQ(row(6), QStringLiteral("|12|"));
}

TEST_F(GridCellsTest, TakeARowOfTextsThatAreDividedAlready) {
    const QString texts[] = {QStringLiteral("Moss"), QStringLiteral("1\t1"), QStringLiteral("Kiel"),
                             QStringLiteral("beyond")};
    cells_.AddItem(texts);
    EXPECT_EQ(row(4), QStringLiteral("Moss|1\t1|Kiel"));
    cells_.AddItem(std::span(texts, 1));
    EXPECT_EQ(row(5), QStringLiteral("Moss||"));
}

TEST_F(GridCellsTest, TakeARowInAPlaceOfItsOwn) {
    select(2, 1, 2, 1);
    cells_.setCellForeColor(kGrey);
    cells_.AddItem(u"Moss\t11\tKiel", 2);
    EXPECT_EQ(row(2), QStringLiteral("Moss|11|Kiel"));
    EXPECT_EQ(row(3), QStringLiteral("abe|10|Oslo"));
    EXPECT_EQ(cells_.look(2, 1).foreColor, 0);
    EXPECT_EQ(cells_.look(3, 1).foreColor, kGrey);
    cells_.AddItem(u"last", 5);
    EXPECT_EQ(row(5), QStringLiteral("last||"));
    EXPECT_EQ(errorOf([&] { cells_.AddItem(u"beyond", 7); }), 381);
    EXPECT_EQ(errorOf([&] { cells_.AddItem(u"before", -1); }), 381);
    EXPECT_EQ(cells_.Rows(), 6);
}

TEST_F(GridCellsTest, TakeTheTextsOfARowInTheOrderOfTheColumnsAsTheyStand) {
    cells_.setColPosition(2, 0);
    cells_.AddItem(u"Kiel\tMoss\t11");
    EXPECT_EQ(row(4), QStringLiteral("Kiel|Moss|11"));
    cells_.setColPosition(0, 2);
    EXPECT_EQ(row(4), QStringLiteral("Moss|11|Kiel"));
}

TEST_F(GridCellsTest, LoseARow) {
    cells_.RemoveItem(2);
    EXPECT_EQ(column(0), QStringLiteral("Name|Zed|Zed"));
    EXPECT_EQ(column(1), QStringLiteral("Age|9|8"));
    EXPECT_EQ(errorOf([&] { cells_.RemoveItem(3); }), 381);
    EXPECT_EQ(errorOf([&] { cells_.RemoveItem(-1); }), 381);
}

TEST_F(GridCellsTest, HaveTheRowBeforeForCurrentWhereTheLastIsLost) {
    select(3, 0, 3, 0);
    cells_.RemoveItem(3);
    EXPECT_EQ(cells_.Row(), 2);
    EXPECT_EQ(cells_.RowSel(), 2);
}

TEST_F(GridCellsTest, KeepNothingOfARowThatIsLostForTheNextOne) {
    select(2, 0, 2, 0);
    cells_.setCellBackColor(kGrey);
    cells_.RemoveItem(2);
    cells_.AddItem(u"Moss");
    EXPECT_EQ(column(0), QStringLiteral("Name|Zed|Zed|Moss"));
    EXPECT_EQ(row(3), QStringLiteral("Moss||"));
    EXPECT_EQ(colouredCells(), QStringLiteral("--- --- --- ---"));
}

TEST_F(GridCellsTest, GetAsManyRowsAsAreNamed) {
    cells_.setRows(2);
    EXPECT_EQ(column(0), QStringLiteral("Name|Zed"));
    cells_.setRows(4);
    EXPECT_EQ(column(0), QStringLiteral("Name|Zed||"));
    EXPECT_EQ(row(3), QStringLiteral("||"));
}

TEST_F(GridCellsTest, GetAsManyColumnsAsAreNamed) {
    cells_.setColPosition(2, 0);
    cells_.setColWidth(0, 900);
    select(1, 2, 1, 2);
    cells_.setCellBackColor(kGrey);
    cells_.RemoveItem(2);
    cells_.setCols(4);
    EXPECT_EQ(row(0), QStringLiteral("City|Name|Age|"));
    EXPECT_EQ(row(2), QStringLiteral("Bern|Zed|8|"));
    EXPECT_EQ(colouredCells(), QStringLiteral("---- --x- ----"));
    EXPECT_EQ(cells_.ColWidth(0), 900);
    EXPECT_EQ(cells_.ColWidth(3), GridCells::kDefaultColWidth);
    cells_.AddItem(u"Kiel\tMoss\t11\tnew");
    EXPECT_EQ(row(3), QStringLiteral("Kiel|Moss|11|new"));
    cells_.setCols(1);
    EXPECT_EQ(row(3), QStringLiteral("Kiel"));
    EXPECT_EQ(cells_.Col(), 0);
}

TEST_F(GridCellsTest, AreNeverFewerThanNone) {
    EXPECT_EQ(errorOf([&] { cells_.setRows(-1); }), 381);
    EXPECT_EQ(errorOf([&] { cells_.setCols(-1); }), 381);
    EXPECT_EQ(errorOf([&] { cells_.setFixedRows(0); }), 381);
    EXPECT_EQ(column(0), QStringLiteral("Name|Zed|abe|Zed"));
    EXPECT_EQ(cells_.FixedRows(), 1);
    cells_.setCols(0);
    cells_.setRows(0);
    EXPECT_EQ(cells_.Cols(), 0);
    EXPECT_EQ(cells_.Rows(), 0);
}

TEST_F(GridCellsTest, CanBeMadeOfNothing) {
    GridCells cells;
    cells.setRows(2);
    cells.setCols(3);
    EXPECT_EQ(cells.Rows(), 2);
    EXPECT_EQ(cells.Cols(), 3);
    EXPECT_EQ(cells.TextMatrix(1, 2), QString());
    cells.AddItem(u"a\tb\tc");
    EXPECT_EQ(cells.TextMatrix(2, 2), QStringLiteral("c"));
}

TEST_F(GridCellsTest, GiveAColourToTheirTexts) {
    select(1, 1, 1, 1);
    cells_.setCellForeColor(kGrey);
    EXPECT_EQ(cells_.look(1, 1).foreColor, kGrey);
    EXPECT_EQ(cells_.look(1, 1).backColor, 0);
    EXPECT_EQ(cells_.look(1, 2).foreColor, 0);
}

TEST_F(GridCellsTest, StandAtTheLeftUntilAColumnIsCentred) {
    cells_.setColAlignment(2, ColumnAlignment::Centre);
    EXPECT_EQ(cells_.ColAlignment(1), ColumnAlignment::Left);
    EXPECT_EQ(cells_.ColAlignment(2), ColumnAlignment::Centre);
    EXPECT_EQ(errorOf([&] { cells_.setColAlignment(3, ColumnAlignment::Left); }), 381);
    EXPECT_EQ(errorOf([&] { (void)cells_.ColAlignment(-1); }), 381);
}

TEST_F(GridCellsTest, AreSortedByTheirNumbersWithTheLargestFirst) {
    cells_.AddItem(u"Moss");
    cells_.setCol(1);
    cells_.Sort(RowOrder::NumericDescending);
    EXPECT_EQ(column(1), QStringLiteral("Age|10|9|8|"));
}
