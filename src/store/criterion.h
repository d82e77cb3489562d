// What a record set is searched for.
#pragma once

#include <QByteArray>
#include <QString>
#include <compare>
#include <optional>
#include <variant>

#include "store/value.h"

// A field's name, a comparison, and what the field's value is compared with. Texts compare as
// text_order.h says. Null, and a value of another kind than the operand, fulfils nothing.
class Criterion {
  public:
    // Reads a criterion: a field's name, one of = <> < <= > >=, and a number or a text in single
    // quotes, in which two quotes stand for one. Raises 3001 for anything else.
    explicit Criterion(const QString& criteria);

    const QString& field() const { return field_; }

    // The number that a field must have; nothing if the criterion is not of that kind.
    std::optional<double> equalNumber() const;

    bool isFulfilledBy(const Value& value) const;
    bool isFulfilledBy(double number) const;
    bool isFulfilledBy(QByteArrayView text) const;  // in UTF-8

  private:
    enum class Comparison { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };
    static Comparison comparisonOf(const QString& sign);
    bool accepts(std::partial_ordering order) const;

    QString field_;
    Comparison comparison_;
    std::variant<double, QByteArray> operand_;
};
