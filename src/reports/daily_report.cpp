// The text of the daily report.
#include "reports/daily_report.h"

#include <QStringBuilder>

#include "cycles/day_level.h"
#include "reports/report_pieces.h"
#include "runtime/format.h"
#include "runtime/numbers.h"

namespace {

struct StateLines {
    QLatin1String critical;
    QLatin1String peak;
    QLatin1String low;
    QLatin1String none;
};

constexpr StateLines kEmotionalLines{QLatin1String(R"(\tab\b Emotional critical day \b0)"),
                                     QLatin1String(R"(\tab\b Emotional peak \b0)"),
                                     QLatin1String(R"(\tab\b Emotional low \b0)"),
                                     QLatin1String(R"(\tab Emotional: None)")};

constexpr StateLines kPhysicalLines{QLatin1String(R"(\tab\b Physical critical day \b0)"),
                                    QLatin1String(R"(\tab\b Physical peak \b0)"),
                                    QLatin1String(R"(\tab\b Physical low \b0)"),
                                    QLatin1String(R"(\tab Physical: None)")};

constexpr StateLines kIntellectualLines{QLatin1String(R"(\tab\b Intellectual critical day \b0)"),
                                        QLatin1String(R"(\tab\b Intellectual peak \b0)"),
                                        QLatin1String(R"(\tab\b Intellectual low \b0)"),
                                        QLatin1String(R"(\tab Intellectual: None)")};

QString lineOf(const StateLines& lines, Integer level, double percent) {
    constexpr double kPeak = 99;
    if (level == 0)
        return lines.critical;
    if (percent > kPeak)
        return lines.peak;
    return percent < -kPeak ? lines.low : lines.none;
}

QString introduction(const ReportPerson& person) {
    return QStringLiteral(R"(\viewkind4\uc1\pard\qc\b\f0\fs28 Daily Report for )") %
           person.fullName % ParBreak % ParBreak %
           QStringLiteral(R"(\pard\b\fs20 Date of birth: \b0\tab )") % personLines(person) %
           ParBreak;
}

QString valueLine(QLatin1String colour, const char* name, double percent) {
    return colour % QLatin1String(name) % percentText(percent) % ParBreak;
}

QString valueLines(const ReportDay& day, Integer colour) {
    const auto in = [colour](const char* word) {
        return onlyInColour(colour, QLatin1String(word));
    };
    return valueLine(in(R"(\cf1)"), R"(\i0\b Emotional: \b0\tab )", day.values.emotional) %
           valueLine(in(R"(\cf2)"), R"(\b Physical: \b0\tab )", day.values.physical) %
           valueLine(in(R"(\cf3)"), R"(\b Intellectual: \b0\tab )", day.values.intellectual) %
           valueLine(in(R"(\cf4)"), R"(\b Average: \b0\tab )", day.average);
}

QString stateLines(const modCycles::CycleValues& values) {
    return emotionalLine(values.emotional) % ParBreak % physicalLine(values.physical) % ParBreak %
           intellectualLine(values.intellectual) % ParBreak;
}

QString quotation(const QString& interpretation) {
    return QStringLiteral(R"(\f1\par)") % ParBreak % QStringLiteral(R"(\i ")") % interpretation %
           QStringLiteral(R"(" \i0)") % ParBreak;
}

}  // namespace

QString emotionalLine(double percent) {
    return lineOf(kEmotionalLines, modCycles::emotionalLevel(percent), percent);
}

QString physicalLine(double percent) {
    return lineOf(kPhysicalLines, modCycles::physicalLevel(percent), percent);
}

QString intellectualLine(double percent) {
    return lineOf(kIntellectualLines, modCycles::intellectualLevel(percent), percent);
}

QString dailyReport(const ReportPerson& person, const ReportDay& day, Integer colour) {
    if (!isReportColour(colour))
        return {};
    return kDocumentHead % onlyInColour(colour, kColourTable) % introduction(person) %
           QStringLiteral(R"(\pard\qc\i\b Biorhythm details for )") %
           Format(day.date, QStringLiteral("d MMMM yyyy")) % ParBreak %
           QStringLiteral(R"(\pard\par\b0)") % valueLines(day, colour) % ParBreak %
           onlyInColour(colour, QLatin1String(R"(\cf0)")) %
           QStringLiteral(R"(\i Special characteristics: \i0)") % ParBreak %
           stateLines(day.values) % quotation(day.interpretation) % kDocumentEnd;
}
