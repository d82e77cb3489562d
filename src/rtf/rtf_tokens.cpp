// The taking apart.
#include "rtf/rtf_tokens.h"

#include <algorithm>
#include <limits>

namespace {

bool isLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isLineEnd(QChar c) {
    return c == u'\r' || c == u'\n';
}

// What ends a text.
bool isSpecial(QChar c) {
    return c == u'\\' || c == u'{' || c == u'}' || isLineEnd(c);
}

// The value of a hexadecimal digit; none for another character.
std::optional<Long> hexValue(QChar c) {
    if (isDigit(c))
        return c.unicode() - u'0';
    const char16_t lower = c.unicode() | 0x20;
    if (lower >= u'a' && lower <= u'f')
        return lower - u'a' + 10;
    return std::nullopt;
}

constexpr qsizetype kByteDigits = 2;

std::optional<Long> byteValue(QStringView digits) {
    constexpr Long kDigit = 16;
    const std::optional<Long> high = hexValue(digits[0]);
    const std::optional<Long> low = hexValue(digits[1]);
    if (!high || !low)
        return std::nullopt;
    return *high * kDigit + *low;
}

}  // namespace

RtfToken RtfTokens::nextToken() {
    rest_ = rest_.mid(std::find_if_not(rest_.begin(), rest_.end(), isLineEnd) - rest_.begin());
    if (rest_.isEmpty())
        return {RtfToken::Kind::End};
    switch (rest_.front().unicode()) {
        case u'{':
            return {RtfToken::Kind::GroupStart, cut(1)};
        case u'}':
            return {RtfToken::Kind::GroupEnd, cut(1)};
        case u'\\':
            cut(1);
            return control();
        default:
            return text();
    }
}

RtfToken RtfTokens::control() {
    if (rest_.isEmpty())
        return {RtfToken::Kind::End};
    if (isLetter(rest_.front()))
        return word();
    const QStringView symbol = cut(1);
    if (symbol == u"'" && rest_.size() >= kByteDigits) {
        if (const std::optional<Long> byte = byteValue(rest_.first(kByteDigits)))
            return {RtfToken::Kind::Byte, cut(kByteDigits), byte};
    }
    return {RtfToken::Kind::Symbol, symbol};
}

// A blank behind a word belongs to it.
RtfToken RtfTokens::word() {
    const QStringView name =
        cut(std::find_if_not(rest_.begin(), rest_.end(), isLetter) - rest_.begin());
    const std::optional<Long> number = wordNumber();
    if (!rest_.isEmpty() && rest_.front() == u' ')
        cut(1);
    if (name == u"bin")
        return {RtfToken::Kind::Binary, cut(std::max(Long{0}, number.value_or(0)))};
    return {RtfToken::Kind::Word, name, number};
}

// The number behind a word; the nearest that there is for one beyond 32 bits.
std::optional<Long> RtfTokens::wordNumber() {
    const bool isNegative = rest_.size() > 1 && rest_[0] == u'-' && isDigit(rest_[1]);
    if (isNegative)
        cut(1);
    else if (rest_.isEmpty() || !isDigit(rest_.front()))
        return std::nullopt;
    constexpr std::int64_t kMost = std::numeric_limits<Long>::max();
    std::int64_t number = 0;
    while (!rest_.isEmpty() && isDigit(rest_.front()))
        number = std::min(kMost, number * 10 + (cut(1).front().unicode() - u'0'));
    return static_cast<Long>(isNegative ? -number : number);
}

RtfToken RtfTokens::text() {
    return {RtfToken::Kind::Text,
            cut(std::find_if(rest_.begin(), rest_.end(), isSpecial) - rest_.begin())};
}

QStringView RtfTokens::cut(qsizetype length) {
    const QStringView taken = rest_.first(std::min(length, rest_.size()));
    rest_ = rest_.mid(taken.size());
    return taken;
}
