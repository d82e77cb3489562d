// The people of an old database in a new one.
#include "store/adopted_people.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <limits>

#include "store/schemas.h"
#include "support/errors.h"
#include "support/old_tables.h"
#include "support/people.h"
#include "support/printing.h"

namespace {

class AdoptedPeople : public testing::Test {
  protected:
    // Makes the old database, and the new one of it.
    LeftOut adopt() {
        const QString old = folder_.filePath(QStringLiteral("old"));
        makeFile(old, builtJet(4, {categories_, people_}).bytes);
        QFile::remove(new_);
        NewDatabase made(new_, peopleSchema());
        LeftOut leftOut = addAdoptedPeople(OldDatabase(old), made);
        made.commit();
        return leftOut;
    }

    Value inNew(const char* query) { return valueOf(new_, QString::fromLatin1(query)); }

    QTemporaryDir folder_;
    QString new_ = folder_.filePath(QStringLiteral("new"));
    BuiltTable categories_ = oldCategories({});
    BuiltTable people_ = oldPeople({});
};

}  // namespace

TEST_F(AdoptedPeople, KeepTheirNumbersAndAllOfTheirFields) {
    categories_.rows = {oldCategory(3, "Family"), oldCategory(8, "Çok özel")};
    people_.rows = {{{7, QStringLiteral("Müller"), QStringLiteral("Jürgen"), -18076.75,
                      Value(false), 8, QStringLiteral("Likes tea.\r\n")}}};
    EXPECT_TRUE(adopt().isEmpty());
    EXPECT_EQ(inNew("SELECT NameID FROM Data"), Value(7));
    EXPECT_EQ(inNew("SELECT Name FROM Data"), Value(QString::fromUtf8("Müller")));
    EXPECT_EQ(inNew("SELECT FName FROM Data"), Value(QString::fromUtf8("Jürgen")));
    EXPECT_EQ(inNew("SELECT Birthdate FROM Data"), Value(-18076.75));
    EXPECT_EQ(inNew("SELECT Gender FROM Data"), Value(0));
    EXPECT_EQ(inNew("SELECT CatID FROM Data"), Value(8));
    EXPECT_EQ(inNew("SELECT Notes FROM Data"), Value(QStringLiteral("Likes tea.\r\n")));
    EXPECT_EQ(inNew("SELECT Category FROM Category WHERE CatID = 8"),
              Value(QString::fromUtf8("Çok özel")));
    EXPECT_EQ(inNew("SELECT Category FROM Category WHERE CatID = 3"),
              Value(QStringLiteral("Family")));
}

TEST_F(AdoptedPeople, KeepNullAndNoTextApartButForTheName) {
    const QString none = QStringLiteral("");
    people_.rows = {{{1, Value(), Value(), 1.0, Value(true), 1, Value()}},
                    {{2, none, none, 1.0, Value(true), 1, none}}};
    adopt();
    EXPECT_EQ(inNew("SELECT Name FROM Data WHERE NameID = 1"), Value(none));
    EXPECT_EQ(inNew("SELECT FName FROM Data WHERE NameID = 1"), Value());
    EXPECT_EQ(inNew("SELECT Notes FROM Data WHERE NameID = 1"), Value());
    EXPECT_EQ(inNew("SELECT Name FROM Data WHERE NameID = 2"), Value(none));
    EXPECT_EQ(inNew("SELECT FName FROM Data WHERE NameID = 2"), Value(none));
    EXPECT_EQ(inNew("SELECT Notes FROM Data WHERE NameID = 2"), Value(none));
    EXPECT_EQ(inNew("SELECT Gender FROM Data WHERE NameID = 2"), Value(-1));
}

TEST_F(AdoptedPeople, KeepLongNotes) {
    const QString notes = QString::fromUtf8("Né à Orléans.\r\n").repeated(20'000);
    people_.rows = {{{1, QStringLiteral("Adler"), Value(), 1.0, Value(true), 1, notes}}};
    adopt();
    EXPECT_TRUE(inNew("SELECT Notes FROM Data") == Value(notes));
}

TEST_F(AdoptedPeople, GetTheCategoriesThatAreMissing) {
    people_.rows = {oldPerson(1, "Adler", 99), oldPerson(2, "Berg", Value()),
                    oldPerson(3, "Curie", 0)};
    adopt();
    EXPECT_EQ(inNew("SELECT Category FROM Category WHERE CatID = 99"),
              Value(QStringLiteral("Unknown (99)")));
    EXPECT_EQ(inNew("SELECT Category FROM Category WHERE CatID = 100"),
              Value(QStringLiteral("Unknown")));
    EXPECT_EQ(inNew("SELECT count(*) FROM Category"), Value(2));
    EXPECT_EQ(inNew("SELECT count(*) FROM Data WHERE CatID = 100"), Value(2));
}

TEST_F(AdoptedPeople, AreLeftOutWithoutABirthDate) {
    categories_.rows = {oldCategory(1, "Family")};
    people_.rows = {oldPerson(1, "Adler", 1), oldPerson(30, "Berg", 1, Value())};
    const LeftOut leftOut = adopt();
    EXPECT_TRUE(leftOut.text().contains(
        QStringLiteral("NameID: 30\r\nName: Berg\r\nGender: female\r\nCatID: 1 (Family)\r\n")))
        << leftOut.text().toStdString();
    EXPECT_EQ(inNew("SELECT count(*) FROM Data"), Value(1));
}

TEST_F(AdoptedPeople, NeverMeetTheirNumbersAgain) {
    categories_.rows = {oldCategory(4, "Family")};
    people_.rows = {oldPerson(1, "Adler", 4), oldPerson(30, "Berg", 4, Value())};
    adopt();
    EXPECT_EQ(addPerson(new_, {.name = QStringLiteral("Curie"), .catId = 4}), 31);
    EXPECT_EQ(addCategory(new_, QStringLiteral("Work")), 5);

    categories_.lastNumber = 9;
    people_.lastNumber = 40;
    adopt();
    EXPECT_EQ(addPerson(new_, {.name = QStringLiteral("Curie"), .catId = 4}), 41);
    EXPECT_EQ(addCategory(new_, QStringLiteral("Work")), 10);
}

TEST_F(AdoptedPeople, MayHaveNumbersBelowZero) {
    people_.rows = {oldPerson(-3, "Adler", -2)};
    adopt();
    EXPECT_EQ(inNew("SELECT NameID FROM Data"), Value(-3));
    EXPECT_EQ(addPerson(new_, {.name = QStringLiteral("Berg"), .catId = -2}), 1);
    EXPECT_EQ(addCategory(new_, QStringLiteral("Work")), 1);
}

TEST_F(AdoptedPeople, AreRefusedWhereThereIsNobody) {
    categories_.rows = {oldCategory(1, "Family")};
    const QString nobody = QStringLiteral("there is nobody with a birth date in it");
    EXPECT_TRUE(descriptionOf([this] { adopt(); }).contains(nobody));
    people_.rows = {oldPerson(30, "Berg", 1, Value())};
    EXPECT_TRUE(descriptionOf([this] { adopt(); }).contains(nobody));
}

TEST_F(AdoptedPeople, AreRefusedWhereNumbersContradictEachOther) {
    people_.rows = {oldPerson(1, "Adler", 1), oldPerson(1, "Berg", 1)};
    EXPECT_EQ(errorOf([this] { adopt(); }), 321);
    people_.rows = {oldPerson(0, "Adler", 1)};
    EXPECT_EQ(errorOf([this] { adopt(); }), 321);
    people_.rows = {oldPerson(1, "Adler", 1), oldPerson(1, "Berg", 1, Value())};
    EXPECT_EQ(errorOf([this] { adopt(); }), 321);
}

TEST_F(AdoptedPeople, AreRefusedWhereAFieldIsMissing) {
    people_.columns.pop_back();
    EXPECT_TRUE(descriptionOf([this] {
                    adopt();
                }).contains(QStringLiteral("there is no field Notes in table Data")));
}
