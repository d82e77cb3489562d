// The category manager.
#include "records/frmCategory.h"

#include <SQLiteCpp/Database.h>

#include "records/deletion_messages.h"
#include "records/editor_driver.h"

namespace {

// Family has one person, Smith, and Friends have two.
class CategoryManager : public EditorTest<frmCategory> {
  protected:
    QString name() { return textOf("txtFields_1"); }
    Value categoriesStored() const { return stored("SELECT count(*) FROM Category"); }
    Value peopleStored() const { return stored("SELECT count(*) FROM Data"); }

    // Presses Delete and answers the question, which counts so many people of this category.
    void answerDeletion(Long count, const char* category, Answer answer) {
        host_.expectMessage(categoryDeletionQuestion(count, QString::fromLatin1(category)).text,
                            answer);
        press("cmdDelete");
    }
};

TEST_F(CategoryManager, ShowsTheCategoriesInOrder) {
    const Long aunts = addCategory(QStringLiteral("aunts"));
    open();
    EXPECT_EQ(editor().windowTitle(), QStringLiteral("Manage Categories"));
    EXPECT_EQ(labelOf("lblCategory"), QStringLiteral("Category:"));
    EXPECT_EQ(labelOf("lblID"), QStringLiteral("Category ID:"));
    EXPECT_EQ(name(), QStringLiteral("aunts"));
    EXPECT_EQ(labelOf("lblCatID"), QString::number(aunts));
    press("cmdNext");
    EXPECT_EQ(name(), QStringLiteral("Family"));
}

TEST_F(CategoryManager, LocksAndOpensItsBox) {
    open();
    EXPECT_TRUE(in<QLineEdit>("txtFields_1").isReadOnly());
    press("cmdEdit");
    EXPECT_FALSE(in<QLineEdit>("txtFields_1").isReadOnly());
    press("cmdCancel");
    EXPECT_TRUE(in<QLineEdit>("txtFields_1").isReadOnly());
}

TEST_F(CategoryManager, StaysOnTheRowAfterAnUpdate) {
    open();
    press("cmdNext");
    press("cmdEdit");
    enter("txtFields_1", QStringLiteral("Aa"));
    press("cmdUpdate");
    EXPECT_EQ(name(), QStringLiteral("Aa"));
    EXPECT_EQ(labelOf("lblCatID"), QString::number(friends_));
    EXPECT_EQ(status(), QStringLiteral("Edit record"));  // nothing has moved
    press("cmdPrevious");
    EXPECT_EQ(name(), QStringLiteral("Family"));
}

TEST_F(CategoryManager, GoesToTheLastRowAfterAnAddition) {
    open();
    press("cmdAdd");
    enter("txtFields_1", QStringLiteral("Aunts"));
    press("cmdUpdate");
    EXPECT_EQ(name(), QStringLiteral("Aunts"));
    EXPECT_EQ(status(), QStringLiteral("Record: 3"));
    EXPECT_EQ(Value(labelOf("lblCatID").toInt()),
              stored("SELECT CatID FROM Category WHERE Category = 'Aunts'"));
}

TEST_F(CategoryManager, ListsTheCategoriesWhenItCloses) {
    open();
    press("cmdAdd");
    enter("txtFields_1", QStringLiteral("Aunts"));
    press("cmdUpdate");
    close();
    const auto& filter = control<ComboBox>("cbCategory");
    ASSERT_EQ(filter.ListCount(), 4);
    EXPECT_EQ(filter.List(1), QStringLiteral("Aunts"));
    EXPECT_EQ(filter.ListIndex(), 0);
}

TEST_F(CategoryManager, KeepsTheLastCategory) {
    runOnStore("DELETE FROM Category WHERE Category = 'Friends'");
    open();
    host_.expectMessage(QStringLiteral("You can not delete all categories."));
    press("cmdDelete");
    EXPECT_EQ(host_.messages().back().icon, MessageIcon::None);
    EXPECT_EQ(host_.messages().back().buttons, MessageButtons::Ok);
    EXPECT_EQ(name(), QStringLiteral("Family"));
    EXPECT_EQ(categoriesStored(), Value(1));
    EXPECT_FALSE(editor().mbListsStale);
}

TEST_F(CategoryManager, WarnsBeforeItDeletes) {
    open();
    answerDeletion(1, "Family", Answer::No);
    const Message& question = host_.messages().back();
    EXPECT_EQ(question.title, QStringLiteral("WARNING"));
    EXPECT_EQ(question.icon, MessageIcon::Critical);
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
    EXPECT_EQ(question.owner, &editor());
    EXPECT_EQ(categoriesStored(), Value(2));
    EXPECT_EQ(peopleStored(), Value(3));
    EXPECT_EQ(name(), QStringLiteral("Family"));
    EXPECT_FALSE(editor().mbListsStale);
}

TEST_F(CategoryManager, DeletesACategoryOfNobody) {
    addCategory(QStringLiteral("Aunts"));
    open();
    answerDeletion(0, "Aunts", Answer::Yes);
    EXPECT_EQ(categoriesStored(), Value(2));
    EXPECT_EQ(peopleStored(), Value(3));
    EXPECT_TRUE(editor().mbListsStale);
}

TEST_F(CategoryManager, CountsThePeopleAtEveryClick) {
    open();
    answerDeletion(1, "Family", Answer::No);
    addPerson({.name = QStringLiteral("Moss"), .catId = family_});
    answerDeletion(2, "Family", Answer::No);
}

TEST_F(CategoryManager, LeavesThePeopleToTheStore) {
    open();
    answerDeletion(1, "Family", Answer::Yes);
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Smith'"), Value(0));
    EXPECT_EQ(peopleStored(), Value(2));
}

TEST_F(CategoryManager, DeletesTheRowOfTheCategoryAlone) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    addCategory(QStringLiteral("Friends"));
    addPerson({.name = QStringLiteral("Smith"), .catId = 1});
    open();
    answerDeletion(1, "Family", Answer::Yes);
    EXPECT_EQ(categoriesStored(), Value(1));
    EXPECT_EQ(peopleStored(), Value(1));
}

TEST_F(CategoryManager, StandsOnTheNextRowAfterADeletion) {
    addCategory(QStringLiteral("Work"));
    open();
    press("cmdNext");
    answerDeletion(2, "Friends", Answer::Yes);
    EXPECT_EQ(name(), QStringLiteral("Work"));
    EXPECT_EQ(status(), QStringLiteral("Record: 2"));
}

TEST_F(CategoryManager, StandsOnTheNewLastRowAfterTheLastIsDeleted) {
    open();
    press("cmdLast");
    answerDeletion(2, "Friends", Answer::Yes);
    EXPECT_EQ(name(), QStringLiteral("Family"));
    EXPECT_EQ(status(), QStringLiteral("Record: 1"));
    EXPECT_TRUE(editor().mbListsStale);
}

TEST_F(CategoryManager, LeavesEverybodyElseInTheMainListWhenItCloses) {
    load();
    auto& filter = control<ComboBox>("cbCategory");
    filter.setText(QStringLiteral("Friends"));
    open();
    answerDeletion(1, "Family", Answer::Yes);
    close();
    EXPECT_EQ(filter.Text(), QStringLiteral("*"));
    ASSERT_EQ(people().ListCount(), 2);
    EXPECT_EQ(people().List(0), QStringLiteral("Adler, Ben"));
    EXPECT_EQ(people().List(1), QStringLiteral("Zed"));
}

TEST_F(CategoryManager, LeavesTheMainListAloneWhereACancelFollowedADeletion) {
    openOverChosen(QStringLiteral("Zed"));
    answerDeletion(1, "Family", Answer::Yes);
    press("cmdEdit");
    press("cmdCancel");
    EXPECT_FALSE(editor().mbListsStale);
    close();
    EXPECT_EQ(people().ListCount(), 3);
    EXPECT_EQ(people().Text(), QStringLiteral("Zed"));
}

TEST_F(CategoryManager, DeletesTheCategoryThatHoldsEverybodyAndSoEndsTheProgram) {
    runOnStore("DELETE FROM Data WHERE Name = 'Smith'");
    open();
    press("cmdLast");
    answerDeletion(2, "Friends", Answer::Yes);
    EXPECT_EQ(peopleStored(), Value(0));
    EXPECT_TRUE(editor().isLoaded());
    host_.expectMessage(noCurrentRecordBox());
    close();
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(CategoryManager, SaysThatACategoryHasNoNameAndGoesOnEditing) {
    open();
    press("cmdAdd");
    expectTrap(
        aboutPeople(QStringLiteral("Data value conflicts with the integrity constraints of the "
                                   "field: Category.Category has no value")));
    press("cmdUpdate");
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(categoriesStored(), Value(2));
    enter("txtFields_1", QStringLiteral("Aunts"));
    press("cmdUpdate");
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(categoriesStored(), Value(3));
}

TEST_F(CategoryManager, SaysThatACategoryHasBeenDeletedMeanwhile) {
    open();
    press("cmdEdit");
    enter("txtFields_1", QStringLiteral("Aunts"));
    runOnStore("DELETE FROM Category WHERE Category = 'Family'");
    expectTrap(
        QStringLiteral("Row cannot be located for updating. Some values may have been "
                       "changed since it was last read"));
    press("cmdUpdate");
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(name(), QStringLiteral("Aunts"));
}

TEST_F(CategoryManager, DeletesNobodyWhileAnotherProcessHoldsTheDatabase) {
    open();
    SQLite::Database other(directory_.people().toStdString(), SQLite::OPEN_READWRITE);
    other.exec("BEGIN IMMEDIATE");
    host_.expectMessage(categoryDeletionQuestion(1, QStringLiteral("Family")).text, Answer::Yes);
    expectTrap(aboutPeople(QStringLiteral("Permission denied: database is locked")));
    press("cmdDelete");
    other.exec("COMMIT");
    EXPECT_EQ(name(), QStringLiteral("Family"));
    EXPECT_EQ(categoriesStored(), Value(2));
    EXPECT_EQ(peopleStored(), Value(3));
    EXPECT_FALSE(editor().mbListsStale);
}

TEST_F(CategoryManager, TellsThatThereIsNothingToDeleteInAnEmptyTable) {
    load();
    runOnStore("DELETE FROM Category");
    open();
    expectTrap(noCurrentRecord());
    press("cmdDelete");
    EXPECT_FALSE(editor().mbListsStale);
}

}  // namespace
