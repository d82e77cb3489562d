// The wording of deletion_messages.h.
#include "records/deletion_messages.h"

#include "runtime/numbers.h"

Message lastPersonRefusal() {
    return {.text = QStringLiteral("You can not delete all records.")};
}

Message lastCategoryRefusal() {
    return {.text = QStringLiteral("You can not delete all categories.")};
}

Message personDeletionQuestion() {
    return {.text = QStringLiteral("Are you sure?"),
            .title = QStringLiteral("Confirm delete"),
            .icon = MessageIcon::Exclamation,
            .buttons = MessageButtons::YesNo};
}

Message categoryDeletionQuestion(Long people, const QString& category) {
    const QString lineEnd = QStringLiteral("\n");
    const QString warning = QStringLiteral(
        "WARNING: Deleting a category will not only remove the category from the "
        "database, but also all records associated with that category!");
    const QString instance = QStringLiteral(
        "For instance: deleting a category 'Family' will also delete all family members from the "
        "database.");
    const QString count = QStringLiteral("There are ") + numberText(people) +
                          QStringLiteral(" records associated with ") + category + u'.';
    return {.text = warning + lineEnd + lineEnd + instance + lineEnd + lineEnd + count + lineEnd +
                    QStringLiteral("Are you sure you want to delete this category?"),
            .title = QStringLiteral("WARNING"),
            .icon = MessageIcon::Critical,
            .buttons = MessageButtons::YesNo};
}
