// The categories of an old database, and those that are missing in it.
#include "store/old_categories.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <limits>

#include "support/errors.h"
#include "support/old_tables.h"

namespace {

using Names = std::map<Long, QString>;

OldCategories categoriesOf(std::vector<BuiltRow> categories, std::vector<BuiltRow> people,
                           int lastNumber = 0) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Ondara2.mdb"));
    BuiltTable table = oldCategories(std::move(categories));
    table.lastNumber = lastNumber;
    makeFile(path, builtJet(4, {table, oldPeople(std::move(people))}).bytes);
    return OldCategories(OldDatabase(path));
}

}  // namespace

TEST(OldCategories, AreThoseOfTheirTable) {
    const OldCategories categories = categoriesOf(
        {oldCategory(3, "Family"), oldCategory(1, ""), {{2, Value()}}}, {oldPerson(1, "Adler", 3)});
    EXPECT_EQ(
        categories.names(),
        (Names{{1, QStringLiteral("")}, {2, QStringLiteral("")}, {3, QStringLiteral("Family")}}));
    EXPECT_EQ(categories.numberOf(3), 3);
    EXPECT_EQ(categories.largest(), 3);
}

TEST(OldCategories, AreMadeForNumbersWithoutACategory) {
    const OldCategories categories = categoriesOf(
        {}, {oldPerson(1, "Adler", 99), oldPerson(2, "Berg", -5), oldPerson(3, "Curie", 99)});
    EXPECT_EQ(categories.names(),
              (Names{{-5, QStringLiteral("Unknown (-5)")}, {99, QStringLiteral("Unknown (99)")}}));
    EXPECT_EQ(categories.numberOf(99), 99);
    EXPECT_EQ(categories.largest(), 99);
}

TEST(OldCategories, HaveOneMoreForPeopleWithNone) {
    const OldCategories categories = categoriesOf(
        {oldCategory(1, "Family")},
        {oldPerson(1, "Adler", Value()), oldPerson(2, "Berg", 0), oldPerson(3, "Curie", 4)});
    EXPECT_EQ(categories.names(), (Names{{1, QStringLiteral("Family")},
                                         {4, QStringLiteral("Unknown (4)")},
                                         {5, QStringLiteral("Unknown")}}));
    EXPECT_EQ(categories.numberOf(Value()), 5);
    EXPECT_EQ(categories.numberOf(0), 5);
    EXPECT_EQ(categories.largest(), 5);
}

TEST(OldCategories, TakeNoNumberThatACategoryHasHad) {
    EXPECT_EQ(categoriesOf({oldCategory(1, "Family")}, {oldPerson(1, "Adler", 0)}, 8).numberOf(0),
              9);
    // The number of a category that is gone, by somebody who is left out.
    EXPECT_EQ(categoriesOf({oldCategory(1, "Family")},
                           {oldPerson(1, "Adler", 0), oldPerson(2, "Berg", 20, Value())})
                  .numberOf(0),
              21);
}

TEST(OldCategories, AreNotMadeForPeopleWhoAreLeftOut) {
    const OldCategories categories =
        categoriesOf({oldCategory(1, "Family")},
                     {oldPerson(1, "Adler", 99, Value()), oldPerson(2, "Berg", 0, Value())});
    EXPECT_EQ(categories.names(), (Names{{1, QStringLiteral("Family")}}));
    EXPECT_EQ(categories.nameOf(1), u"Family");
    EXPECT_EQ(categories.nameOf(99), u"");
    EXPECT_EQ(categories.nameOf(0), u"");
    EXPECT_EQ(categories.nameOf(Value()), u"");
}

TEST(OldCategories, RefuseATableInWhichNoNumberIsLeft) {
    const Long last = std::numeric_limits<Long>::max();
    EXPECT_EQ(
        errorOf([&] { categoriesOf({oldCategory(last, "Family")}, {oldPerson(1, "Adler", 0)}); }),
        6);
    EXPECT_EQ(errorOf([&] {
                  categoriesOf({oldCategory(last, "Family")}, {oldPerson(1, "Adler", last)});
              }),
              0);
}

TEST(OldCategories, RefuseTwoOfOneNumber) {
    EXPECT_EQ(errorOf([] {
                  categoriesOf({oldCategory(1, "Family"), oldCategory(1, "Friends")}, {});
              }),
              321);
}
