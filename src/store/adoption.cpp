// The steps of adoption.h.
#include "store/adoption.h"

#include "store/adopted_interpretations.h"
#include "store/adopted_people.h"
#include "store/connection_string.h"
#include "store/databases.h"
#include "store/file_condition.h"
#include "store/replacement.h"
#include "store/schemas.h"
#include "store/small_text.h"

namespace {

// The path of the database, where it is one to be adopted. What is true of every database is true
// of it: it is worked on only if it can be written.
std::optional<QString> pathOfOld(const QString& connectionString) {
    QString path = pathOfDataSource(dataSource(connectionString));
    if (!isJetFile(path))
        return std::nullopt;
    if (const auto objection =
            objectionTo(conditionOf(path, Access::ReadWrite), Access::ReadWrite, path))
        throw *objection;
    return path;
}

QString keepOld(Replacement& replacement) {
    return replacement.keepOld(QStringLiteral("Jet"));
}

// Both files are closed at its end.
LeftOut convertPeople(const QString& oldPath, const QString& newPath) {
    const OldDatabase old(oldPath);
    NewDatabase made(newPath, peopleSchema());
    LeftOut leftOut = addAdoptedPeople(old, made);
    made.commit();
    return leftOut;
}

void convertInterpretations(const QString& oldPath, const QString& newPath) {
    const OldDatabase old(oldPath);
    NewDatabase made(newPath, interpretationSchema());
    addAdoptedInterpretations(old, made);
    made.commit();
}

}  // namespace

std::optional<Adoption> adoptPeople() {
    const std::optional<QString> path = pathOfOld(personConnectionString());
    if (!path)
        return std::nullopt;
    Replacement replacement(*path);
    Adoption adoption;
    adoption.leftOut = convertPeople(*path, replacement.newPath());
    adoption.oldName = keepOld(replacement);
    if (!adoption.leftOut.isEmpty())
        adoption.leftOutName = replacement.addText(QStringLiteral("left out"),
                                                   encodeSmallText(adoption.leftOut.text()));
    replacement.commit();
    return adoption;
}

bool adoptInterpretations() {
    const std::optional<QString> path = pathOfOld(interpretationConnectionString());
    if (!path)
        return false;
    Replacement replacement(*path);
    convertInterpretations(*path, replacement.newPath());
    keepOld(replacement);
    replacement.commit();
    return true;
}
