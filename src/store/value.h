// The value of a field: a number, a text, or Null.
#pragma once

#include <QString>
#include <concepts>
#include <cstdint>
#include <utility>
#include <variant>

#include "cycles/date.h"
#include "cycles/integers.h"

// What a database field holds. Null is a value of its own, different from 0 and from "". Reading a
// Null as anything raises 94 (Invalid use of Null); reading a text as a number or the other way
// round raises 13 (Type mismatch).
class Value {
  public:
    using Content = std::variant<std::monostate, std::int64_t, double, QString>;

    Value() = default;  // Null
    Value(Long number) : content_(std::int64_t{number}) {}
    Value(double number) : content_(number) {}
    Value(QString text) : content_(std::move(text)) {}
    explicit Value(std::int64_t number) : content_(number) {}
    explicit Value(Date date) : content_(date.serial()) {}

    // A Boolean is the number -1 or 0.
    template <std::same_as<bool> Boolean>
    explicit Value(Boolean truth) : Value(truth ? -1 : 0) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(content_); }
    const Content& content() const { return content_; }

    // A whole number, rounded half to even; raises 6 (Overflow) outside 32 bits.
    Long toLong() const;
    double toDouble() const;
    Date toDate() const;
    QString toText() const;

    // Whether a number is anything but 0.
    bool toBoolean() const;

    // The same kind of value and equal; texts letter for letter.
    friend bool operator==(const Value&, const Value&) = default;

  private:
    Content content_;
};

// The text of a field that may have none: nothing for Null.
QString textOrNothing(const Value& value);

// Null and the empty text, which are the same to whoever shows them.
bool isNullOrEmpty(const Value& value);
