// The splitting of name_split.h.
#include "import/name_split.h"

#include "runtime/text.h"

namespace {

struct Split {
    QString before;
    QString behind;
};

Split splitAt(const QString& name, Long place) {
    return {.before = Trim(Left(name, place - 1)), .behind = Trim(Mid(name, place + 1))};
}

Long commaIn(const QString& name) {
    return InStr(name, QStringLiteral(","));
}

Long blankIn(const QString& name) {
    return InStr(name, QStringLiteral(" "));
}

}  // namespace

QString ParseLastName(const QString& name) {
    if (const Long comma = commaIn(name))
        return splitAt(name, comma).before;
    if (const Long blank = blankIn(name))
        return splitAt(name, blank).behind;
    return name;
}

QString ParseFirstName(const QString& name) {
    if (const Long comma = commaIn(name))
        return splitAt(name, comma).behind;
    if (const Long blank = blankIn(name))
        return splitAt(name, blank).before;
    return {};
}
