// The criteria of alphabet_search.h.
#include "records/alphabet_search.h"

QString alphabetCriteria(int button) {
    Q_ASSERT(button >= 0 && button < kAlphabetButtons);
    const auto letter = static_cast<char16_t>(u'a' + 2 * button);
    return QStringLiteral("Name > '") + QChar(letter) + QStringLiteral("*'");
}
