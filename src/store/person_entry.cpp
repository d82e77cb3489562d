// The texts of person_entry.h.
#include "store/person_entry.h"

#include <QStringBuilder>

#include "runtime/text.h"
#include "store/recordset.h"

QString displayText(const Value& name, const Value& firstName) {
    if (isNullOrEmpty(firstName))
        return name.toText();
    return name.toText() % QLatin1String(", ") % firstName.toText();
}

QString fullName(const Value& name, const Value& firstName) {
    if (isNullOrEmpty(firstName))
        return Trim(name.toText());
    return Trim(firstName.toText() + u' ' + name.toText());
}

QString displayText(const Recordset& person) {
    return displayText(person.Fields(u"Name"), person.Fields(u"FName"));
}

QString fullName(const Recordset& person) {
    return fullName(person.Fields(u"Name"), person.Fields(u"FName"));
}
