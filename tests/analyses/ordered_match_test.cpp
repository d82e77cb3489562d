// The ordered match, without a window.
#include "analyses/ordered_match.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "analyses/compared_person.h"
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

constexpr Long kMagenta = 0xFF00FF;
constexpr Long kBlue = 0xFF0000;
constexpr Long kRed = 0x0000FF;

const Date kBirthdate = DateSerial(1980, 6, 15);

class OrderedMatch : public testing::Test {
  protected:
    OrderedMatch() {
        addCategory(directory_.people(), QStringLiteral("Family"));
        cells_.setRows(2);
        SetGrid(cells_);
    }

    Long add(const char* name, const Value& firstName, const Value& birthdate) {
        return addPerson(
            directory_.people(),
            {.name = QString::fromUtf8(name), .firstName = firstName, .birthdate = birthdate});
    }

    Long addBornAfter(const char* name, Long days) {
        return add(name, {}, Value(kBirthdate + days));
    }

    // Searches among everybody for the matches of a person born on kBirthdate.
    void search(Long nameId = 0) {
        Connection connection = openPersonDatabase();
        Recordset people(connection, statements::allPeopleWithNotes());
        clearMatches(cells_);
        addMatches(cells_, people,
                   {.nameId = nameId, .name = {}, .firstName = {}, .birthdate = kBirthdate});
        EXPECT_TRUE(people.EndOfFile());
    }

    // The texts of a row, divided by bars.
    QString row(int row) const {
        QStringList texts;
        for (int column = 0; column < cells_.Cols(); ++column)
            texts += cells_.TextMatrix(row, column);
        return texts.join(u'|');
    }

    // The texts of a column below the header.
    QStringList column(int column) const {
        QStringList texts;
        for (int row = 1; row < cells_.Rows(); ++row)
            texts += cells_.TextMatrix(row, column);
        return texts;
    }

    void addRows(std::initializer_list<const char*> averages) {
        for (const char* average : averages)
            cells_.AddItem(u'\t' + QString::fromLatin1(average));
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    GridCells cells_;
};

QString statementFor(MatchFilter filter, std::optional<Long> catId) {
    return matchStatement({.filter = filter, .catId = catId}).value_or(QString());
}

QString refusalFor(MatchFilter filter, std::optional<Long> catId) {
    return nobodyToMatch({.filter = filter, .catId = catId});
}

}  // namespace

TEST(MatchStatement, IsTheOneOfGenderAndCategory) {
    EXPECT_EQ(statementFor(MatchFilter::All, 7), statements::peopleOfCategory(7));
    EXPECT_EQ(statementFor(MatchFilter::Males, {}), statements::males());
    EXPECT_EQ(statementFor(MatchFilter::Males, 7), statements::malesOfCategory(7));
    EXPECT_EQ(statementFor(MatchFilter::Females, {}), statements::females());
    EXPECT_EQ(statementFor(MatchFilter::Females, 7), statements::femalesOfCategory(7));
}

TEST(MatchStatement, IsNoneForEverybody) {
    EXPECT_FALSE(matchStatement({.filter = MatchFilter::All, .catId = {}}));
}

TEST(NobodyToMatch, SaysWhoAreMissingAndWhere) {
    EXPECT_EQ(refusalFor(MatchFilter::All, {}),
              QStringLiteral("There are no records in the database."));
    EXPECT_EQ(refusalFor(MatchFilter::All, 7),
              QStringLiteral("There are no records in this category."));
    EXPECT_EQ(refusalFor(MatchFilter::Males, {}),
              QStringLiteral("There are no male records in the database."));
    EXPECT_EQ(refusalFor(MatchFilter::Males, 7),
              QStringLiteral("There are no male records in this category."));
    EXPECT_EQ(refusalFor(MatchFilter::Females, {}),
              QStringLiteral("There are no female records in the database."));
    EXPECT_EQ(refusalFor(MatchFilter::Females, 7),
              QStringLiteral("There are no female records in this category."));
}

TEST_F(OrderedMatch, HasARowForEachOfThePeopleBehindAnEmptyOne) {
    add("Smith", QStringLiteral("Anna"), Value(kBirthdate));
    add("Zed", {}, Value(kBirthdate));
    search();
    ASSERT_EQ(cells_.Rows(), 4);
    EXPECT_EQ(row(1), QStringLiteral("||||"));
    EXPECT_EQ(row(2), QStringLiteral("Anna Smith|100|100|100|100"));
    EXPECT_EQ(row(3), QStringLiteral("Zed|100|100|100|100"));
}

TEST_F(OrderedMatch, RoundsTheAverageFromUnroundedPercentages) {
    addBornAfter("Two days", 2);
    search();
    // 85.714..., 82.608... and 87.878...: 85.400... on average
    EXPECT_EQ(row(2), QStringLiteral("Two days|85|86|83|88"));
    addBornAfter("Ten days", 10);
    search();
    // 28.571..., 13.043... and 39.393...: 27.002...
    EXPECT_EQ(row(2), QStringLiteral("Ten days|27|29|13|39"));
}

TEST_F(OrderedMatch, ComparesWithWhoeverIsOlderAsWithWhoeverIsYounger) {
    addBornAfter("Older", -2);
    addBornAfter("Younger", 2);
    search();
    EXPECT_EQ(row(2).section(u'|', 1), row(3).section(u'|', 1));
}

TEST_F(OrderedMatch, LeavesThePersonOutButNoNamesake) {
    const Long nameId = addBornAfter("Smith", 0);
    addBornAfter("Smith", 4);
    search(nameId);
    ASSERT_EQ(cells_.Rows(), 3);
    EXPECT_NE(row(2), QStringLiteral("Smith|100|100|100|100"));
}

TEST_F(OrderedMatch, HasNoRowForThePersonAlone) {
    search(addBornAfter("Smith", 0));
    EXPECT_EQ(cells_.Rows(), 2);
    EXPECT_EQ(row(1), QStringLiteral("||||"));
}

TEST_F(OrderedMatch, FailsAtABirthDateThatIsMissingBehindTheRowsThatItHas) {
    directory_.dropConstraints();
    add("Adler", {}, Value(kBirthdate));
    add("Berg", {}, {});
    EXPECT_EQ(errorOf([this] { search(); }), 94);
    EXPECT_EQ(column(0), QStringList({QString(), QStringLiteral("Adler")}));
}

TEST_F(OrderedMatch, KeepsTwoRowsWhenItStartsAnew) {
    addRows({"7", "9"});
    sortMatches(cells_, kAverageColumn);
    clearMatches(cells_);
    ASSERT_EQ(cells_.Rows(), 2);
    EXPECT_EQ(row(0), QStringLiteral("||||"));
    EXPECT_EQ(row(1), QStringLiteral("||||"));
}

TEST_F(OrderedMatch, PutsTheLargestNumberFirst) {
    addRows({"9", "100", "10", "99"});
    sortMatches(cells_, kAverageColumn);
    EXPECT_EQ(column(1), QStringList({QStringLiteral("100"), QStringLiteral("99"),
                                      QStringLiteral("10"), QStringLiteral("9"), QString()}));
}

TEST_F(OrderedMatch, CountsTheEmptyRowAsZero) {
    addRows({"0", "-1"});
    sortMatches(cells_, kAverageColumn);
    EXPECT_EQ(column(1), QStringList({QString(), QStringLiteral("0"), QStringLiteral("-1")}));
}

TEST_F(OrderedMatch, KeepsTheOrderOfTheRecordsAmongEqualNumbers) {
    for (const char* name : {"c", "a", "b"})
        addBornAfter(name, 3);
    search();
    sortMatches(cells_, kLastNumberColumn);
    EXPECT_EQ(column(0), QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"),
                                      QString()}));
}

TEST_F(OrderedMatch, HasHeadersWithTheirBlanks) {
    EXPECT_EQ(row(0), QStringLiteral("|  Average| Emotional|  Physical|Intellectual"));
}

TEST_F(OrderedMatch, HasWideNamesAndCentredNumbers) {
    EXPECT_EQ(cells_.ColWidth(0), 1800);
    EXPECT_EQ(cells_.ColAlignment(0), ColumnAlignment::Left);
    for (int column = 1; column < 5; ++column) {
        EXPECT_EQ(cells_.ColWidth(column), 1000);
        EXPECT_EQ(cells_.ColAlignment(column), ColumnAlignment::Centre);
    }
}

TEST_F(OrderedMatch, ColoursEveryNumberAndNoName) {
    cells_.AddItem(u"100 Smith\t50\t49\t10\t-1");
    SetGrid(cells_);
    const auto coloursOf = [this](int row) {
        std::vector<Long> colours;
        for (int column = 0; column < cells_.Cols(); ++column)
            colours.push_back(cells_.look(row, column).foreColor);
        return colours;
    };
    EXPECT_EQ(coloursOf(0), std::vector<Long>({0, 0, 0, 0, 0}));
    EXPECT_EQ(coloursOf(1), std::vector<Long>({0, kRed, kRed, kRed, kRed}));
    EXPECT_EQ(coloursOf(2), std::vector<Long>({0, kMagenta, kBlue, kRed, 0}));
}

TEST_F(OrderedMatch, StandsOnTheFirstRowWhenItIsColoured) {
    addRows({"1", "2"});
    SetGrid(cells_);
    EXPECT_EQ(cells_.Row(), 1);
    EXPECT_EQ(cells_.Col(), 0);
}

TEST(SetCol, GoesByTheBandOfTheNumber) {
    for (const auto& [text, colour] :
         std::initializer_list<std::pair<QStringView, Long>>{{u"100", kMagenta},
                                                             {u"50", kMagenta},
                                                             {u"49", kBlue},
                                                             {u"11", kBlue},
                                                             {u"10", kRed},
                                                             {u"0", kRed},
                                                             {u"", kRed},
                                                             {u"49.5", 0},
                                                             {u"10.5", 0},
                                                             {u"-1", 0}})
        EXPECT_EQ(SetCol(text), colour) << qPrintable(text.toString());
}
