// The statements, letter for letter.
#include "store/statements.h"

#include <gtest/gtest.h>

#include "store/databases.h"
#include "store/recordset.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

using namespace statements;

TEST(Statements, AreSentLetterForLetter) {
    EXPECT_EQ(allPeopleWithNotes(),
              u"select Name,FName,Birthdate,Gender,CatID,Notes,NameID from Data Order by Name");
    EXPECT_EQ(allPeople(),
              u"select Name,FName,Birthdate,Gender,CatID,NameID from Data Order by Name");
    EXPECT_EQ(males(),
              u"SELECT Birthdate, CatID, FName, Gender, Name, NameID FROM Data WHERE (Gender = 0)");
    EXPECT_EQ(
        females(),
        u"SELECT Birthdate, CatID, FName, Gender, Name, NameID FROM Data WHERE (Gender = -1)");
    EXPECT_EQ(
        birthdays(),
        u"SELECT Birthdate, FName, Name, NameID, Notes FROM Data ORDER BY Name, FName, Birthdate");
    EXPECT_EQ(wholeTable(), u"select * from Data");
    EXPECT_EQ(categories(), u"select CatID,Category from Category");
    EXPECT_EQ(categoriesInOrder(), u"select CatID,Category from Category Order by Category");
}

TEST(Statements, TakeNumbersAsDigitsBeforeTheClosingBracket) {
    EXPECT_EQ(person(1234567),
              u"SELECT Birthdate, CatID, FName, Gender, Name, NameID, Notes FROM Data WHERE "
              u"(NameID = 1234567)");
    EXPECT_EQ(peopleOfCategory(3),
              u"SELECT Birthdate, CatID, FName, Gender, Name, NameID FROM Data WHERE (CatID = 3)");
    EXPECT_EQ(malesOfCategory(12),
              u"SELECT Birthdate, CatID, FName, Gender, Name, NameID FROM Data WHERE (Gender = 0) "
              u"AND (CatID = 12)");
    EXPECT_EQ(femalesOfCategory(12),
              u"SELECT Birthdate, CatID, FName, Gender, Name, NameID FROM Data WHERE (Gender = -1) "
              u"AND (CatID = 12)");
    EXPECT_EQ(interpretation(-1, 0, 1),
              u"SELECT HLC.* FROM HLC WHERE Emot = -1 AND Phys = 0 AND Intel = 1");
}

TEST(Statements, AreAllUnderstoodByTheStore) {
    RecordingHost host;
    ProgramDirectory directory(host);
    Connection people = openPersonDatabase();
    for (const QString& statement :
         {allPeopleWithNotes(), allPeople(), person(1), peopleOfCategory(1), males(),
          malesOfCategory(1), females(), femalesOfCategory(1), birthdays(), wholeTable(),
          categories(), categoriesInOrder()})
        EXPECT_EQ(Recordset(people, statement).RecordCount(), 0) << qPrintable(statement);
    Connection interpretations = openInterpretationDatabase();
    EXPECT_EQ(Recordset(interpretations, interpretation(1, 1, 1)).RecordCount(), 0);
}

TEST(Statements, WriteTheRowsOfOldDatabases) {
    EXPECT_EQ(addCategory(), u"INSERT INTO Category (CatID, Category) VALUES (?, ?)");
    EXPECT_EQ(addPerson(),
              u"INSERT INTO Data (NameID, Name, FName, Birthdate, Gender, CatID, Notes) "
              u"VALUES (?, ?, ?, ?, ?, ?, ?)");
    EXPECT_EQ(addInterpretation(),
              u"INSERT OR IGNORE INTO HLC (Emot, Phys, Intel, interp) VALUES (?, ?, ?, ?)");
    EXPECT_EQ(setLastNumber(), u"UPDATE sqlite_sequence SET seq = ? WHERE name = ?");
}
