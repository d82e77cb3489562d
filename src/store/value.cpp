// The conversions of value.h.
#include "store/value.h"

#include <limits>

#include "runtime/errors.h"
#include "runtime/numbers.h"

namespace {

[[noreturn]] void refuse(const Value& value) {
    throw RuntimeError(value.isNull() ? ErrorNumber::InvalidUseOfNull : ErrorNumber::TypeMismatch);
}

}  // namespace

Long Value::toLong() const {
    const auto* whole = std::get_if<std::int64_t>(&content_);
    if (!whole)
        return Round(toDouble());
    if (*whole < std::numeric_limits<Long>::min() || *whole > std::numeric_limits<Long>::max())
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<Long>(*whole);
}

double Value::toDouble() const {
    if (const auto* whole = std::get_if<std::int64_t>(&content_))
        return static_cast<double>(*whole);
    if (const auto* real = std::get_if<double>(&content_))
        return *real;
    refuse(*this);
}

Date Value::toDate() const {
    return Date(toDouble());
}

QString Value::toText() const {
    if (const auto* text = std::get_if<QString>(&content_))
        return *text;
    refuse(*this);
}

bool Value::toBoolean() const {
    return toDouble() != 0;
}

QString textOrNothing(const Value& value) {
    return value.isNull() ? QString() : value.toText();
}

bool isNullOrEmpty(const Value& value) {
    const auto* text = std::get_if<QString>(&value.content());
    return value.isNull() || (text && text->isEmpty());
}
