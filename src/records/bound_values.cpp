// The conversions of bound_values.h.
#include "records/bound_values.h"

#include <QLocale>

#include "cycles/calendar.h"

namespace {

bool isNumber(const Value& value) {
    return !value.isNull() && !std::holds_alternative<QString>(value.content());
}

}  // namespace

QString shownText(const Value& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value.content()))
        return QString::number(*whole);
    if (isNumber(value))
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return textOrNothing(value);
}

bool shownCheck(const Value& value) {
    return isNumber(value) && value.toBoolean();
}

std::optional<Date> shownDate(const Value& value) {
    if (!isNumber(value))
        return std::nullopt;
    const double serial = value.toDouble();
    const bool fits = serial >= modCycles::kEarliestCalendarDate.serial() &&
                      serial < modCycles::kLatestCalendarDate.serial() + 1;
    return fits ? std::optional(Date(serial)) : std::nullopt;
}

Value enteredText(const QString& text) {
    return text.isEmpty() ? Value() : Value(text);
}
