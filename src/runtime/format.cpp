// The date patterns of format.h.
#include "runtime/format.h"

#include "cycles/calendar.h"
#include "runtime/host.h"
#include "runtime/numbers.h"

namespace {

constexpr qsizetype kRoom = 32;  // characters, enough for a date in most languages

QString dayText(Date date, qsizetype letters, const QLocale& names) {
    if (letters == 1)
        return numberText(modCycles::Day(date));
    return names.dayName(modCycles::DayOfWeek(date),
                         letters == 3 ? QLocale::ShortFormat : QLocale::LongFormat);
}

QString monthText(Date date, qsizetype letters, const QLocale& names) {
    if (letters == 1)
        return numberText(modCycles::Month(date));
    return names.monthName(modCycles::Month(date),
                           letters == 3 ? QLocale::ShortFormat : QLocale::LongFormat);
}

QString yearText(Date date) {
    return numberText(modCycles::Year(date)).rightJustified(4, u'0');
}

// The letters of patterns are ASCII, for which there is a shorter way to the small form.
char16_t small(QChar letter) {
    const char16_t code = letter.unicode();
    return u'A' <= code && code <= u'Z' ? static_cast<char16_t>(code - u'A' + u'a') : code;
}

// How many times the letter at `start` stands there in a row, in small or capital form.
qsizetype runLength(QStringView pattern, qsizetype start) {
    qsizetype end = start;
    while (end < pattern.size() && small(pattern[end]) == small(pattern[start]))
        ++end;
    return end - start;
}

}  // namespace

QString formatDate(Date date, const QString& pattern, const QLocale& names) {
    QString text;
    text.reserve(kRoom);
    for (qsizetype place = 0; place < pattern.size();) {
        const qsizetype letters = runLength(pattern, place);
        switch (small(pattern[place])) {
            case u'd':
                text += dayText(date, letters, names);
                break;
            case u'm':
                text += monthText(date, letters, names);
                break;
            case u'y':
                text += yearText(date);
                break;
            default:
                text += QStringView(pattern).mid(place, letters);
        }
        place += letters;
    }
    return text;
}

QString Format(Date date, const QString& pattern) {
    return formatDate(date, pattern, host().locale());
}
