// The wording of left_out.h.
#include "store/left_out.h"

#include <algorithm>

#include "store/person_entry.h"

namespace {

constexpr qsizetype kMostNames = 10;  // that a message box shows

QString line(const char* field, const QString& text) {
    return QLatin1String(field) + QStringLiteral(": ") + text + QStringLiteral("\r\n");
}

QString lineUnlessNull(const char* field, const Value& value) {
    return value.isNull() ? QString() : line(field, value.toText());
}

QString categoryLine(const OldPerson& person, const QString& category) {
    if (person.catId.isNull())
        return {};
    const QString number = QString::number(person.catId.toLong());
    return line("CatID",
                category.isEmpty() ? number : number + QStringLiteral(" (%1)").arg(category));
}

// By what the person is known, be it by the number.
QString nameOf(const OldPerson& person) {
    const QString name = displayText(textOrNothing(person.name), person.firstName);
    return name.trimmed().isEmpty() ? QStringLiteral("NameID %1").arg(person.nameId) : name;
}

}  // namespace

void LeftOut::add(const OldPerson& person, const QString& category) {
    names_ += nameOf(person);
    fields_ += QStringLiteral("\r\n") + line("NameID", QString::number(person.nameId)) +
               lineUnlessNull("Name", person.name) + lineUnlessNull("FName", person.firstName) +
               line("Gender", person.isFemale ? QStringLiteral("female") : QStringLiteral("male")) +
               categoryLine(person, category) + lineUnlessNull("Notes", person.notes);
}

QString LeftOut::text() const {
    return QStringLiteral("The people of the old database who have no birth date.\r\n") + fields_;
}

QString LeftOut::message(const QString& fileName, const QString& oldName) const {
    QString names = names_.first(std::min(names_.size(), kMostNames)).join(u'\n');
    if (names_.size() > kMostNames)
        names += QStringLiteral("\nand %1 more").arg(names_.size() - kMostNames);
    return QStringLiteral(
               "Ondara has taken over your old database, but for the people without a birth "
               "date:\n\n%1\n\nAll that is known of them is kept in \"%2\", and the old database "
               "as \"%3\".")
        .arg(names, fileName, oldName);
}
