// The wording of person_title.h.
#include "analyses/person_title.h"

#include "cycles/star_sign.h"

QString personTitle(const QString& fullName, Date birthdate) {
    return fullName + QStringLiteral(" (") +
           QString::fromLatin1(modCycles::GetStarSign(birthdate)) + u')';
}
