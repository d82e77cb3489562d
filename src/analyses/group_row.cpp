// The cells of group_row.h.
#include "analyses/group_row.h"

#include "cycles/cycle.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace {

using namespace modCycles;

constexpr QStringView kBefore = u"-";
constexpr QStringView kAfter = u"+";

constexpr Long kNegativeColour = 0xFF0000;
constexpr Long kZeroColour = 0x0000FF;
constexpr Long kPositiveColour = 0xFF00FF;

bool isCycle(std::string_view key) {
    return key == kEmotionalKey || key == kPhysicalKey || key == kIntellectualKey;
}

QString mark(bool rises) {
    return rises ? QStringLiteral("^") : QStringLiteral("v");
}

}  // namespace

QString markBefore(double value, double dayBefore) {
    return mark(value > dayBefore);
}

QString markAfter(double value, double dayAfter) {
    return mark(value <= dayAfter);
}

QString UpDown(Long d, QStringView before_after, std::string_view cycle) {
    if (!isCycle(cycle))
        return {};
    const double value = CalcCycle(d, 0, cycle);
    return before_after == kBefore ? markBefore(value, CalcCycle(d - 1, 0, cycle))
                                   : markAfter(value, CalcCycle(d + 1, 0, cycle));
}

QString groupRow(const QString& displayText, Date birthdate, Date date) {
    const Long days = DayCount(birthdate, date);
    QString row = displayText;
    for (const std::string_view cycle : {kEmotionalKey, kPhysicalKey, kIntellectualKey})
        row += u'\t' + UpDown(days, kBefore, cycle) + u'\t' +
               percentText(CalcCycle(days, 0, cycle)) + u'\t' + UpDown(days, kAfter, cycle);
    return row;
}

Long SetColour(QStringView txt) {
    const double value = Val(txt);
    if (value < 0)
        return kNegativeColour;
    return value > 0 ? kPositiveColour : kZeroColour;
}
