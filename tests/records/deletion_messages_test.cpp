// The wording and the looks of the boxes before a deletion.
#include "records/deletion_messages.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

void expectPlainRefusal(const Message& message, const QString& text) {
    EXPECT_EQ(message.text, text);
    EXPECT_EQ(message.title, QString());
    EXPECT_EQ(message.icon, MessageIcon::None);
    EXPECT_EQ(message.buttons, MessageButtons::Ok);
}

TEST(DeletionMessages, RefuseTheLastRowWithoutIcon) {
    expectPlainRefusal(lastPersonRefusal(), QStringLiteral("You can not delete all records."));
    expectPlainRefusal(lastCategoryRefusal(), QStringLiteral("You can not delete all categories."));
}

TEST(DeletionMessages, AskBeforeAPersonIsDeleted) {
    const Message question = personDeletionQuestion();
    EXPECT_EQ(question.text, QStringLiteral("Are you sure?"));
    EXPECT_EQ(question.title, QStringLiteral("Confirm delete"));
    EXPECT_EQ(question.icon, MessageIcon::Exclamation);
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
}

TEST(DeletionMessages, WarnBeforeACategoryIsDeleted) {
    const Message question = categoryDeletionQuestion(12, QStringLiteral("Friends"));
    EXPECT_EQ(question.text,
              QStringLiteral("WARNING: Deleting a category will not only remove the category from "
                             "the database, but also all records associated with that category!\n"
                             "\n"
                             "For instance: deleting a category 'Family' will also delete all "
                             "family members from the database.\n"
                             "\n"
                             "There are 12 records associated with Friends.\n"
                             "Are you sure you want to delete this category?"));
    EXPECT_EQ(question.title, QStringLiteral("WARNING"));
    EXPECT_EQ(question.icon, MessageIcon::Critical);
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
}

TEST(DeletionMessages, CountOnePersonLikeMany) {
    const QString line = QStringLiteral("\nThere are 1 records associated with Work.\n");
    EXPECT_TRUE(categoryDeletionQuestion(1, QStringLiteral("Work")).text.contains(line));
}

}  // namespace
