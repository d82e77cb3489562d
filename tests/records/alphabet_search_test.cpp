// The people to whom the buttons of the alphabet lead.
#include "records/alphabet_search.h"

#include <gtest/gtest.h>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

TEST(AlphabetCriteria, AsksForWhatIsGreaterThanTheFirstLetterWithAStar) {
    const QStringList expected{
        QStringLiteral("Name > 'a*'"), QStringLiteral("Name > 'c*'"), QStringLiteral("Name > 'e*'"),
        QStringLiteral("Name > 'g*'"), QStringLiteral("Name > 'i*'"), QStringLiteral("Name > 'k*'"),
        QStringLiteral("Name > 'm*'"), QStringLiteral("Name > 'o*'"), QStringLiteral("Name > 'q*'"),
        QStringLiteral("Name > 's*'"), QStringLiteral("Name > 'u*'"), QStringLiteral("Name > 'w*'"),
        QStringLiteral("Name > 'y*'")};
    QStringList criteria;
    for (int button = 0; button < kAlphabetButtons; ++button)
        criteria += alphabetCriteria(button);
    EXPECT_EQ(criteria, expected);
}

class AlphabetSearch : public testing::Test {
  protected:
    AlphabetSearch() { addCategory(directory_.people(), QStringLiteral("Family")); }

    void add(const char* name) {
        addPerson(directory_.people(), {.name = QString::fromUtf8(name)});
    }

    // The name that the button of these two letters finds; none at EOF.
    QString foundBy(char letter) {
        Connection connection = openPersonDatabase();
        Recordset people(connection, statements::allPeopleWithNotes());
        people.Find(alphabetCriteria((letter - 'a') / 2));
        return people.EndOfFile() ? QString() : people.Fields(u"Name").toText();
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
};

TEST_F(AlphabetSearch, FindsCapitalsByTheSmallLetter) {
    add("Abel");
    EXPECT_EQ(foundBy('a'), QStringLiteral("Abel"));
}

TEST_F(AlphabetSearch, PassesOverANameThatIsTheLetterAlone) {
    add("A");
    add("Aa");
    EXPECT_EQ(foundBy('a'), QStringLiteral("Aa"));
}

TEST_F(AlphabetSearch, FindsTheNextNameWhereNoneBeginsWithTheLetter) {
    add("Abel");
    add("Curie");
    add("Zed");
    EXPECT_EQ(foundBy('c'), QStringLiteral("Curie"));
    EXPECT_EQ(foundBy('e'), QStringLiteral("Zed"));
}

TEST_F(AlphabetSearch, FindsANameOfTheSecondLetterWhereNoneBeginsWithTheFirst) {
    add("Abel");
    add("Dodo");
    EXPECT_EQ(foundBy('c'), QStringLiteral("Dodo"));
}

TEST_F(AlphabetSearch, FindsAccentsAmongTheirLetter) {
    add("Adler");
    add("Émile");
    add("Zed");
    EXPECT_EQ(foundBy('e'), QString::fromUtf8("Émile"));
}

TEST_F(AlphabetSearch, StandsAtTheEndWhereNoNameIsGreater) {
    add("Abel");
    add("y");
    EXPECT_EQ(foundBy('y'), QString());
}

}  // namespace
