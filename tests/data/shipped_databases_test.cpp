// The contents of the databases as they are shipped.
#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "cycles/calendar.h"

namespace {

using modCycles::DateSerial;

int countOf(const std::string& fromWhere) {
    SQLite::Database database(SHIPPED_PEOPLE);
    return database.execAndGet("SELECT count(*) FROM " + fromWhere).getInt();
}

Date birthdateOf(const std::string& name) {
    SQLite::Database database(SHIPPED_PEOPLE);
    return Date(
        database.execAndGet("SELECT Birthdate FROM Data WHERE Name = '" + name + "'").getDouble());
}

// Gives `look` each interpretation, and its states as a text for messages.
template <class Look>
void forEachInterpretation(Look look) {
    SQLite::Database database(SHIPPED_INTERPRETATIONS);
    SQLite::Statement rows(database, "SELECT Emot, Phys, Intel, interp FROM HLC");
    while (rows.executeStep()) {
        const std::string states = rows.getColumn(0).getString() + ", " +
                                   rows.getColumn(1).getString() + ", " +
                                   rows.getColumn(2).getString();
        look(rows.getColumn(3).getString(), states);
    }
}

bool endsSentence(char character) {
    return character == '.' || character == '!' || character == '?';
}

// The sentences of a text: each ends in a mark, and one blank stands between two of them.
std::vector<std::string> sentencesOf(const std::string& text) {
    std::vector<std::string> sentences(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        sentences.back() += text[i];
        if (endsSentence(text[i]) && i + 1 < text.size()) {
            sentences.emplace_back();
            ++i;
        }
    }
    return sentences;
}

}  // namespace

TEST(ShippedDatabases, AreWhole) {
    for (const char* file : {SHIPPED_PEOPLE, SHIPPED_INTERPRETATIONS}) {
        SQLite::Database database(file);
        EXPECT_EQ(database.execAndGet("PRAGMA integrity_check").getString(), "ok") << file;
    }
}

TEST(ShippedPeople, HoldSomebodySoThatTheProgramCanStart) {
    EXPECT_GE(countOf("Data"), 12);
}

TEST(ShippedPeople, HaveTheFourCategories) {
    EXPECT_EQ(countOf("Category"), 4);
    EXPECT_EQ(countOf("Category WHERE Category IN ('Family', 'Friends', 'Work', 'Famous people')"),
              4);
}

TEST(ShippedPeople, BelongToACategoryThatExists) {
    EXPECT_EQ(countOf("Data WHERE CatID NOT IN (SELECT CatID FROM Category)"), 0);
}

TEST(ShippedPeople, AreWomenAndMen) {
    EXPECT_GT(countOf("Data WHERE Gender = -1"), 0);
    EXPECT_GT(countOf("Data WHERE Gender = 0"), 0);
}

TEST(ShippedPeople, HaveBothNamesAndANote) {
    EXPECT_EQ(countOf("Data WHERE Name = '' OR ifnull(FName, '') = '' OR ifnull(Notes, '') = ''"),
              0);
}

TEST(ShippedPeople, AreBornOnWholeDaysThatTheCalendarHas) {
    SQLite::Database database(SHIPPED_PEOPLE);
    SQLite::Statement rows(database, "SELECT Birthdate, Name FROM Data");
    while (rows.executeStep()) {
        const double birthdate = rows.getColumn(0).getDouble();
        EXPECT_TRUE(rows.getColumn(0).isFloat()) << rows.getColumn(1).getText();
        EXPECT_EQ(birthdate, std::floor(birthdate)) << rows.getColumn(1).getText();
        EXPECT_GE(Date(birthdate), DateSerial(1753, 1, 1)) << rows.getColumn(1).getText();
    }
}

TEST(ShippedPeople, AreBornOnTheDaysThatHistoryRecords) {
    EXPECT_EQ(birthdateOf("Mozart"), DateSerial(1756, 1, 27));
    EXPECT_EQ(birthdateOf("Lovelace"), DateSerial(1815, 12, 10));
    EXPECT_EQ(birthdateOf("Kahlo"), DateSerial(1907, 7, 6));
    EXPECT_EQ(birthdateOf("Maathai").serial(), 14702.0);
    EXPECT_EQ(birthdateOf("Earhart").serial(), -889.0);
}

TEST(ShippedInterpretations, CoverEveryCombinationOfTheThreeStates) {
    SQLite::Database database(SHIPPED_INTERPRETATIONS);
    for (int emotional = -1; emotional <= 1; ++emotional)
        for (int physical = -1; physical <= 1; ++physical)
            for (int intellectual = -1; intellectual <= 1; ++intellectual) {
                const std::string statement =
                    "SELECT count(*) FROM HLC WHERE Emot = " + std::to_string(emotional) +
                    " AND Phys = " + std::to_string(physical) +
                    " AND Intel = " + std::to_string(intellectual);
                EXPECT_EQ(database.execAndGet(statement).getInt(), 1) << statement;
            }
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM HLC").getInt(), 27);
}

TEST(ShippedInterpretations, AreTwoToFourSentencesLong) {
    forEachInterpretation([](const std::string& text, const std::string& states) {
        const std::vector<std::string> sentences = sentencesOf(text);
        EXPECT_GE(sentences.size(), 2u) << states;
        EXPECT_LE(sentences.size(), 4u) << states;
        EXPECT_TRUE(endsSentence(text.back())) << states;
        for (const std::string& sentence : sentences)
            EXPECT_TRUE(sentence.front() >= 'A' && sentence.front() <= 'Z')
                << states << ": " << sentence;
    });
}

TEST(ShippedInterpretations, ShareNoSentence) {
    std::set<std::string> seen;
    forEachInterpretation([&seen](const std::string& text, const std::string& states) {
        for (const std::string& sentence : sentencesOf(text))
            EXPECT_TRUE(seen.insert(sentence).second) << states << ": " << sentence;
    });
}

// A report puts them between double quotes, into rich text.
TEST(ShippedInterpretations, HoldNothingThatAReportWouldTakeForMarkup) {
    forEachInterpretation([](const std::string& text, const std::string& states) {
        EXPECT_EQ(text.find_first_of("\\{}\""), std::string::npos) << states;
        for (const char character : text)
            EXPECT_TRUE(character >= ' ' && character <= '~') << states;
    });
}
