// The date patterns of format.h.
#include "runtime/format.h"

#include "cycles/calendar.h"
#include "runtime/errors.h"
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

// The month of this short name; 0 if there is none.
Integer monthOf(QStringView name, const QLocale& names) {
    Integer month = 12;
    while (month > 0 && names.monthName(month, QLocale::ShortFormat) != name)
        --month;
    return month;
}

bool isDate(Long year, Long month, Long day) {
    constexpr Long kFirstYear = modCycles::Year(Date(Date::kEarliestDay));
    constexpr Long kLastYear = modCycles::Year(Date(Date::kLatestDay));
    return year >= kFirstYear && year <= kLastYear && month > 0 && day > 0 &&
           day <= modCycles::Day(modCycles::DateSerial(year, month + 1, 0));
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

Date readDate(const QString& text, const QLocale& names) {
    const qsizetype beforeMonth = text.indexOf(u' ');
    const qsizetype behindMonth = text.lastIndexOf(u' ');
    if (beforeMonth == behindMonth)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    const Long day = wholeNumber(text.left(beforeMonth));
    const Long month =
        monthOf(QStringView(text).sliced(beforeMonth, behindMonth - beforeMonth).sliced(1), names);
    const Long year = wholeNumber(text.mid(behindMonth + 1));
    if (!isDate(year, month, day))
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return modCycles::DateSerial(year, month, day);
}

Date readDate(const QString& text) {
    return readDate(text, host().locale());
}
