// The text of the database overview.
#include "reports/database_overview.h"

#include <QStringBuilder>

#include "cycles/star_sign.h"
#include "reports/report_pieces.h"
#include "runtime/format.h"
#include "store/person_entry.h"
#include "store/recordset.h"

namespace {

// The notes go on in italics, as nothing ends them.
QString entryOf(const Recordset& person) {
    const Date birthdate = person.Fields(u"Birthdate").toDate();
    return ParBreak % QStringLiteral(R"(\pard\b\i\fs20 )") % fullName(person) %
           QStringLiteral(R"(\b0)") % ParBreak %  //
           QStringLiteral(R"(\i Date of birth: \i0\tab )") %
           Format(birthdate, QStringLiteral("d MMMM yyyy")) % ParBreak %  //
           QStringLiteral(R"(\i Star sign: \i0\tab )") %
           QString::fromLatin1(modCycles::GetStarSign(birthdate)) % ParBreak %  //
           QStringLiteral(R"(\i Notes: )") % ParBreak % textOrNothing(person.Fields(u"Notes"));
}

}  // namespace

QString databaseOverview(Recordset& people) {
    people.MoveFirst();
    QString document = kDocumentHead % kColourTable %
                       QStringLiteral(R"(\viewkind4\uc1\pard\qc\b\f0\fs28 Database Overview)");
    for (; !people.EndOfFile(); people.MoveNext())
        document += entryOf(people);
    return document + kDocumentEnd;
}
