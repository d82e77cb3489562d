// What fills the lists of people and of categories.
#include "store/list_fillers.h"

#include <gtest/gtest.h>

#include <QFile>

#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/errors.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

class PlainList final : public ItemList {
  public:
    void fill(std::vector<ListEntry> entries) override { entries_ = std::move(entries); }

    const std::vector<ListEntry>& entries() const { return entries_; }

    // "text=itemData" of each entry.
    QStringList lines() const {
        QStringList all;
        for (const ListEntry& entry : entries_)
            all << entry.text + u'=' + QString::number(entry.itemData);
        return all;
    }

  private:
    std::vector<ListEntry> entries_{{.text = QStringLiteral("old"), .itemData = 99}};
};

class ListFillersTest : public testing::Test {
  protected:
    Long add(const char* name, const Value& firstName = {}, Long catId = 1) {
        return addPerson(directory_.people(),
                         {.name = QString::fromUtf8(name), .firstName = firstName, .catId = catId});
    }

    RecordingHost host_;
    ProgramDirectory directory_{host_};
    PlainList list_;
};

const Value kAnna = QStringLiteral("Anna");

}  // namespace

TEST_F(ListFillersTest, ListEverybodyInOrderOfNameWithTheNumberAsItemData) {
    addCategory(directory_.people(), QStringLiteral("Family"));
    add("Zed");
    add("Adler", kAnna);
    add("berg", QStringLiteral(""));
    fillPeople(list_);
    EXPECT_EQ(list_.lines(), (QStringList{QStringLiteral("Adler, Anna=2"), QStringLiteral("berg=3"),
                                          QStringLiteral("Zed=1")}));
}

TEST_F(ListFillersTest, ListTwoPeopleOfTheSameText) {
    addCategory(directory_.people(), QStringLiteral("Family"));
    add("Adler", kAnna);
    add("Adler", kAnna);
    fillPeople(list_);
    EXPECT_EQ(list_.lines(),
              (QStringList{QStringLiteral("Adler, Anna=1"), QStringLiteral("Adler, Anna=2")}));
}

TEST_F(ListFillersTest, RaiseNoCurrentRecordWithoutPeopleAndLeaveTheListEmpty) {
    EXPECT_EQ(errorOf([&] { fillPeople(list_); }), 3021);
    EXPECT_TRUE(list_.entries().empty());
}

TEST_F(ListFillersTest, LeaveTheListAloneWhereTheDatabaseIsMissing) {
    QFile::remove(directory_.people());
    EXPECT_EQ(errorOf([&] { fillPeople(list_); }), 53);
    EXPECT_EQ(list_.entries().size(), 1U);
}

TEST_F(ListFillersTest, ListThePeopleOfOneCategory) {
    addCategory(directory_.people(), QStringLiteral("Family"));
    addCategory(directory_.people(), QStringLiteral("Work"));
    add("Zed", {}, 1);
    add("Adler", kAnna, 2);
    fillPeopleOfCategory(list_, 2);
    EXPECT_EQ(list_.lines(), QStringList{QStringLiteral("Adler, Anna=2")});
}

TEST_F(ListFillersTest, ListNobodyForACategoryWithoutPeople) {
    addCategory(directory_.people(), QStringLiteral("Family"));
    add("Zed");
    EXPECT_EQ(errorOf([&] { fillPeopleOfCategory(list_, 2); }), 0);
    EXPECT_TRUE(list_.entries().empty());
}

TEST_F(ListFillersTest, ListPeopleOfACategoryThatIsGone) {
    directory_.dropConstraints();
    add("Zed", {}, 77);
    fillPeople(list_);
    EXPECT_EQ(list_.lines(), QStringList{QStringLiteral("Zed=1")});
}

TEST_F(ListFillersTest, ReadTheDatabaseAfresh) {
    addCategory(directory_.people(), QStringLiteral("Family"));
    add("Zed");
    fillPeople(list_);
    add("Adler");
    fillPeople(list_);
    EXPECT_EQ(list_.entries().size(), 2U);
}

TEST_F(ListFillersTest, PutThePseudoEntryBeforeTheCategoriesInTheOrderOfTheStore) {
    for (const char16_t* name : {u"Work", u"!first", u"Family"})
        addCategory(directory_.people(), QString::fromUtf16(name));
    PlainList categories;
    categories.fill(readCategoryFilter());
    EXPECT_EQ(categories.lines(),
              (QStringList{QStringLiteral("*=0"), QStringLiteral("Work=1"),
                           QStringLiteral("!first=2"), QStringLiteral("Family=3")}));
    EXPECT_TRUE(categories.entries()[0].leads);
    EXPECT_FALSE(categories.entries()[1].leads);
}

TEST_F(ListFillersTest, ReadTheCategoriesAloneInTheOrderOfTheStore) {
    for (const char16_t* name : {u"Work", u"Family"})
        addCategory(directory_.people(), QString::fromUtf16(name));
    list_.fill(readCategories());
    EXPECT_EQ(list_.lines(), (QStringList{QStringLiteral("Work=1"), QStringLiteral("Family=2")}));
}

TEST_F(ListFillersTest, RaiseNoCurrentRecordWithoutCategories) {
    EXPECT_EQ(errorOf([] { readCategoryFilter(); }), 3021);
    EXPECT_EQ(errorOf([] { readCategories(); }), 3021);
}

TEST_F(ListFillersTest, ReadTheCategoriesOfASetInTheOrderOfTheStore) {
    const Long family = addCategory(directory_.people(), QStringLiteral("Family"));
    const Long aunts = addCategory(directory_.people(), QStringLiteral("Aunts"));
    Connection connection = openPersonDatabase();
    Recordset categories(connection, statements::categories());
    list_.fill(categoryEntries(categories));
    EXPECT_EQ(list_.lines(), (QStringList{QStringLiteral("Family=%1").arg(family),
                                          QStringLiteral("Aunts=%1").arg(aunts)}));
    EXPECT_TRUE(categories.EndOfFile());
}

TEST_F(ListFillersTest, ReadNoCategoriesFromASetWithoutAny) {
    Connection connection = openPersonDatabase();
    Recordset categories(connection, statements::categories());
    EXPECT_TRUE(categoryEntries(categories).empty());
}

TEST_F(ListFillersTest, TakeThePeopleOfASetFromItsCurrentRowOn) {
    addCategory(directory_.people(), QStringLiteral("Family"));
    add("Adler", kAnna);
    add("Berg");
    Connection connection = openPersonDatabase();
    Recordset people(connection, statements::allPeopleWithNotes());
    EXPECT_EQ(personEntries(people).size(), 2U);
    EXPECT_TRUE(people.EndOfFile());
    EXPECT_EQ(personEntries(people).size(), 0U);
    people.MoveLast();
    const std::vector<ListEntry> entries = personEntries(people);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries.front().text, QStringLiteral("Berg"));
    EXPECT_EQ(entries.front().itemData, 2);
}
