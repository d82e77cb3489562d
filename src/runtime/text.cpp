// The text functions of text.h.
#include "runtime/text.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "runtime/errors.h"

namespace {

constexpr QChar kBlank = u' ';

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

// How many characters from `start` on are digits.
qsizetype digitsFrom(QStringView text, qsizetype start) {
    const auto end = std::find_if_not(text.begin() + start, text.end(), isDigit);
    return end - (text.begin() + start);
}

bool isSignAt(const QString& text, qsizetype place) {
    return place < text.size() && (text[place] == u'+' || text[place] == u'-');
}

// The length of the exponent at `start`, 0 if what stands there is none.
qsizetype exponentLength(const QString& text, qsizetype start) {
    if (start >= text.size() || !QStringLiteral("eEdD").contains(text[start]))
        return 0;
    const qsizetype digitsStart = start + (isSignAt(text, start + 1) ? 2 : 1);
    const qsizetype digits = digitsFrom(text, std::min(digitsStart, text.size()));
    return digits == 0 ? 0 : digitsStart - start + digits;
}

// The number where the text is a few digits and nothing else, as most are.
std::optional<double> plainNumber(QStringView text) {
    constexpr qsizetype kFewDigits = 9;  // they fit into 32 bits
    if (text.isEmpty() || text.size() > kFewDigits || digitsFrom(text, 0) != text.size())
        return std::nullopt;
    Long number = 0;
    for (const QChar digit : text)
        number = number * 10 + digit.digitValue();
    return number;
}

}  // namespace

QString Trim(const QString& text) {
    const auto isBlank = [](QChar character) { return character == kBlank; };
    const auto first = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), isBlank);
    return QString(first, last.base() - first);
}

QString Left(const QString& text, Long length) {
    if (length < 0)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    return text.left(length);
}

QString Mid(const QString& text, Long start) {
    if (start < 1)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    return start > text.size() ? QString() : text.mid(start - 1);
}

Long InStr(const QString& text, const QString& wanted) {
    return text.isEmpty() ? 0 : static_cast<Long>(text.indexOf(wanted)) + 1;
}

QString LCase(const QString& text) {
    return text.toLower();
}

double Val(QStringView text) {
    if (const std::optional<double> number = plainNumber(text))
        return *number;
    QString packed = text.toString();
    packed.removeIf([](QChar c) { return c == kBlank || c == u'\t' || c == u'\n' || c == u'\r'; });
    qsizetype end = isSignAt(packed, 0) ? 1 : 0;
    qsizetype digits = digitsFrom(packed, end);
    end += digits;
    if (end < packed.size() && packed[end] == u'.') {
        const qsizetype decimals = digitsFrom(packed, end + 1);
        digits += decimals;
        end += decimals + 1;
    }
    if (digits == 0)
        return 0;
    end += exponentLength(packed, end);
    packed.truncate(end);
    packed.replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive);
    const double value = packed.toDouble();
    if (std::isinf(value))
        throw RuntimeError(ErrorNumber::Overflow);
    return value;
}
