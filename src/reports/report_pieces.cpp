// The pieces that depend on something.
#include "reports/report_pieces.h"

#include <QStringBuilder>

QLatin1String onlyInColour(Integer colour, QLatin1String piece) {
    return colour == kInColour ? piece : QLatin1String();
}

QString personLines(const ReportPerson& person) {
    return person.birthText % ParBreak %                                               //
           QStringLiteral(R"(\b Star sign: \b0\tab )") % person.starSign % ParBreak %  //
           QStringLiteral(R"(\b Gender: \b0\tab )") % person.gender % ParBreak %       //
           QStringLiteral(R"(\b Category: \b0\tab )") % person.category % ParBreak %   //
           QStringLiteral(R"(\b Notes: \b0)") % ParBreak % person.notes;
}
