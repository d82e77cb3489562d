// The value of a field: a number, a text, or Null.
#pragma once

#include <QString>
#include <variant>

#include "cycles/date.h"
#include "cycles/integers.h"

// What a database field holds. Null is a value of its own, different from 0 and from "". Reading a
// Null as anything raises 94 (Invalid use of Null); reading a text as a number or the other way
// round raises 13 (Type mismatch).
class Value {
  public:
    Value() = default;  // Null
    Value(Long number);
    Value(double number);
    Value(QString text);
    explicit Value(Date date);

    bool isNull() const;

    // A whole number; raises 6 (Overflow) outside 32 bits.
    Long toLong() const;
    double toDouble() const;
    Date toDate() const;
    QString toText() const;

    // Whether a number is anything but 0.
    bool toBoolean() const;

    // The same kind of value and equal; texts letter for letter.
    friend bool operator==(const Value&, const Value&) = default;

  private:
    friend class Statement;
    std::variant<std::monostate, std::int64_t, double, QString> value_;
};

// Null and the empty text, which are the same to whoever shows them.
bool isNullOrEmpty(const Value& value);
