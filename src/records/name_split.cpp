// The splitting of name_split.h.
#include "records/name_split.h"

#include "runtime/text.h"

SplitName splitName(const QString& typed) {
    const QString name = Trim(typed);
    const Long blank = InStr(name, QStringLiteral(" "));
    if (blank == 0)
        return {.first = {}, .last = name};
    return {.first = Trim(Left(name, blank)), .last = Trim(Mid(name, blank))};
}

QString joinedName(const SplitName& name) {
    return Trim(name.first + u' ' + name.last);
}
