// What the explorer writes into its grid, without a window.
#include "records/explorer_cells.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <array>

#include "cycles/calendar.h"
#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/printing.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

constexpr Long kGrey = 0xC0C0C0;
constexpr Long kWhite = 0xFFFFFF;

class ExplorerCells : public testing::Test {
  protected:
    ExplorerCells() { addCategory(directory_.people(), QStringLiteral("Family")); }

    void add(const char* name, const PersonRow& person = {}) {
        PersonRow row = person;
        row.name = QString::fromUtf8(name);
        addPerson(directory_.people(), row);
    }

    void bind() {
        Connection connection = openPersonDatabase();
        Recordset people(connection, statements::allPeople(), adLockReadOnly);
        bindPeople(cells_, people, categories_);
    }

    // The texts of a row, divided by bars.
    QString row(int row) const {
        QStringList texts;
        for (int column = 0; column < cells_.Cols(); ++column)
            texts += cells_.TextMatrix(row, column);
        return texts.join(u'|');
    }

    void bindTwoEmptyRows() { cells_.bind(6, std::vector<QString>(18)); }

    // Which of the columns have this background, in the header and below it.
    QString columnsOf(Long colour) const {
        QString columns;
        for (int column = 0; column < cells_.Cols(); ++column) {
            for (int row = 0; row < cells_.Rows(); ++row)
                columns += cells_.look(row, column).backColor == colour ? u'x' : u'-';
            columns += u' ';
        }
        return columns.trimmed();
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    GridCells cells_;
    CategoryLookup categories_{{{QStringLiteral("Family"), 1}}};
};

CategoryLookup lookup() {
    return CategoryLookup({{QStringLiteral("Family"), 7},
                           {QStringLiteral("Friends"), 3},
                           {QStringLiteral("Old friends"), 3}});
}

}  // namespace

TEST_F(ExplorerCells, AreThePeopleInOrderOfNameBelowTheFields) {
    add("Smith", {.firstName = QStringLiteral("Anna"),
                  .birthdate = Value(DateSerial(1972, 10, 20)),
                  .isFemale = true});
    add("adler", {.firstName = QStringLiteral("Ben"), .birthdate = Value(DateSerial(2000, 4, 1))});
    bind();
    ASSERT_EQ(cells_.Rows(), 3);
    EXPECT_EQ(row(0), QStringLiteral("Name|FName|Birthdate|Gender|CatID|NameID"));
    EXPECT_EQ(row(1), QStringLiteral("adler|Ben|Apr 1, 2000|Male|Family|2"));
    EXPECT_EQ(row(2), QStringLiteral("Smith|Anna|Oct 20, 1972|Female|Family|1"));
}

TEST_F(ExplorerCells, ShowNoFirstNameForNull) {
    add("Smith");
    bind();
    EXPECT_EQ(cells_.TextMatrix(1, 1), QString());
}

TEST_F(ExplorerCells, KeepTheNumberOfACategoryThatIsNotThere) {
    directory_.dropConstraints();
    add("Smith", {.catId = 99});
    bind();
    EXPECT_EQ(cells_.TextMatrix(1, 4), QStringLiteral("99"));
}

TEST_F(ExplorerCells, RaiseAnErrorForADateOfBirthThatIsNull) {
    directory_.dropConstraints();
    add("Smith", {.birthdate = Value()});
    EXPECT_EQ(errorOf([this] { bind(); }), 94);
}

TEST_F(ExplorerCells, RaiseAnErrorWhereThereIsNobody) {
    EXPECT_EQ(errorOf([this] { bind(); }), 3021);
}

TEST_F(ExplorerCells, HaveTheWidthsAndHeadersOfTheirColumns) {
    add("Smith");
    bind();
    setUpColumns(cells_);
    EXPECT_EQ(row(0), QStringLiteral("Name|Firstname|Birthdate|Gender|Category|NameID"));
    constexpr int kDefault = GridCells::kDefaultColWidth;
    constexpr std::array kWidths{1725, kDefault, 1200, kDefault, 1200, 0};
    for (int column = 0; column < cells_.Cols(); ++column)
        EXPECT_EQ(cells_.ColWidth(column), kWidths.at(static_cast<std::size_t>(column))) << column;
}

TEST(CategoryLookup, FindsTheFirstEntryOfANumber) {
    CategoryLookup categories = lookup();
    EXPECT_EQ(categories.nameOf(7), QStringLiteral("Family"));
    EXPECT_EQ(categories.lastEntry(), 0);
    EXPECT_EQ(categories.nameOf(3), QStringLiteral("Friends"));
    EXPECT_EQ(categories.lastEntry(), 1);
}

TEST(CategoryLookup, KeepsTheNumberThatNoEntryHasAndEndsOnTheLastEntry) {
    CategoryLookup categories = lookup();
    EXPECT_EQ(categories.nameOf(99), QStringLiteral("99"));
    EXPECT_EQ(categories.lastEntry(), 2);
}

TEST(CategoryLookup, HasNoLastEntryBeforeAWalkAndWithoutEntries) {
    EXPECT_EQ(lookup().lastEntry(), -1);
    CategoryLookup none({});
    EXPECT_EQ(none.nameOf(7), QStringLiteral("7"));
    EXPECT_EQ(none.lastEntry(), -1);
}

TEST_F(ExplorerCells, HaveABoldHeader) {
    bindTwoEmptyRows();
    makeHeaderBold(cells_);
    for (int column = 0; column < cells_.Cols(); ++column) {
        EXPECT_TRUE(cells_.look(0, column).isBold) << column;
        EXPECT_FALSE(cells_.look(1, column).isBold) << column;
    }
}

TEST_F(ExplorerCells, StandOnGreyInEverySecondColumnFromTheFirstOn) {
    bindTwoEmptyRows();
    paintBands(cells_);
    EXPECT_EQ(columnsOf(kGrey), QStringLiteral("-xx --- -xx --- -xx ---"));
    EXPECT_EQ(columnsOf(kWhite), QStringLiteral("--- --- --- --- --- ---"));
}

TEST_F(ExplorerCells, StandOnGreyInTheSamePlacesWhenColumnsHaveBeenMoved) {
    bindTwoEmptyRows();
    paintBands(cells_);
    cells_.setColPosition(2, 1);
    EXPECT_EQ(columnsOf(kGrey), QStringLiteral("-xx -xx --- --- -xx ---"));
    repaintBands(cells_);
    EXPECT_EQ(columnsOf(kGrey), QStringLiteral("-xx --- -xx --- -xx ---"));
    EXPECT_EQ(columnsOf(kWhite), QStringLiteral("--- -xx --- -xx --- -xx"));
}

TEST_F(ExplorerCells, GiveLooksToOneCellAgainWhenTheBandsAreDone) {
    bindTwoEmptyRows();
    for (const auto paint : {makeHeaderBold, paintBands, repaintBands}) {
        paint(cells_);
        cells_.setRow(1);
        cells_.setCol(0);
        cells_.setRowSel(2);
        cells_.setCellBackColor(1);
        EXPECT_EQ(cells_.look(1, 0).backColor, 1);
        EXPECT_NE(cells_.look(2, 0).backColor, 1);
    }
}

TEST_F(ExplorerCells, StandInTheOrderOfWhatIsShownAndNotOfTheDate) {
    add("Late", {.birthdate = Value(DateSerial(2000, 4, 1))});
    add("Early", {.birthdate = Value(DateSerial(1900, 1, 1))});
    bind();
    cells_.setColPosition(2, 0);
    cells_.setCol(0);
    cells_.setColSel(1);
    cells_.Sort(RowOrder::GenericAscending);
    EXPECT_EQ(cells_.TextMatrix(1, 0), QStringLiteral("Apr 1, 2000"));
    EXPECT_EQ(cells_.TextMatrix(2, 0), QStringLiteral("Jan 1, 1900"));
}

TEST(GenderWord, IsGivenForTrueAndFalseAlone) {
    EXPECT_EQ(genderWord(QStringLiteral("True")), QStringLiteral("Female"));
    EXPECT_EQ(genderWord(QStringLiteral("False")), QStringLiteral("Male"));
    for (const char* other : {"", "true", "-1", "Female", "Null"})
        EXPECT_EQ(genderWord(QString::fromLatin1(other)), QString::fromLatin1(other));
}

TEST(BirthdateText, HasTheMonthsShortNameAndNoLeadingZeros) {
    const RecordingHost host;
    EXPECT_EQ(birthdateText(DateSerial(2000, 4, 1)), QStringLiteral("Apr 1, 2000"));
    EXPECT_EQ(birthdateText(DateSerial(1775, 12, 16)), QStringLiteral("Dec 16, 1775"));
}
