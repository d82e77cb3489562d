// The texts and the fields of new_person.h.
#include "records/new_person.h"

#include <QStringList>

#include "runtime/format.h"
#include "runtime/text.h"

QString genderCaption(bool isFemale) {
    return isFemale ? QStringLiteral("Female") : QStringLiteral("Male");
}

QString newPersonSummary(const NewPerson& person, const QString& category) {
    const QString lineEnd = QStringLiteral("\r\n");
    const auto entry = [&](const QString& heading, const QString& value) {
        return heading + lineEnd + QStringLiteral("     ") + value;
    };
    const QStringList paragraphs{
        QStringLiteral("The following information will be written to the database:"),
        entry(QStringLiteral("Name:"), Trim(person.name)),
        entry(QStringLiteral("First name:"), Trim(person.firstName)),
        entry(QStringLiteral("Birthdate:"),
              Format(person.birthdate, QStringLiteral("dddd, d MMMM yyyy"))),
        entry(QStringLiteral("Gender:"), genderCaption(person.isFemale)),
        entry(QStringLiteral("Category:"), category),
        entry(QStringLiteral("Notes:"), Trim(person.notes))};
    return paragraphs.join(lineEnd + lineEnd);
}

std::vector<std::pair<QString, Value>> newPersonFields(const NewPerson& person, Long catId) {
    std::vector<std::pair<QString, Value>> fields;
    const auto addText = [&fields](const QString& field, const QString& text) {
        if (!text.isEmpty())
            fields.emplace_back(field, text);
    };
    addText(QStringLiteral("FName"), Trim(person.firstName));
    fields.emplace_back(QStringLiteral("Name"), Trim(person.name));
    fields.emplace_back(QStringLiteral("Birthdate"), Value(person.birthdate));
    fields.emplace_back(QStringLiteral("Gender"), Value(person.isFemale));
    fields.emplace_back(QStringLiteral("CatID"), catId);
    addText(QStringLiteral("Notes"), Trim(person.notes));
    return fields;
}
