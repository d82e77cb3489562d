// The reading and the comparing of criterion.h.
#include "store/criterion.h"

#include <QRegularExpression>

#include "runtime/errors.h"
#include "runtime/text_order.h"

namespace {

const QRegularExpression& grammar() {
    static const QRegularExpression expression(QRegularExpression::anchoredPattern(
        QStringLiteral(R"( *(?<field>\w+) *(?<sign><>|<=|>=|=|<|>) *)"
                       R"((?:(?<number>[-+]?\d+(?:\.\d+)?)|'(?<text>(?:[^']|'')*)') *)")));
    return expression;
}

}  // namespace

Criterion::Criterion(const QString& criteria) {
    const QRegularExpressionMatch match = grammar().match(criteria);
    if (!match.hasMatch())
        throw RuntimeError(ErrorNumber::WrongArguments);
    field_ = match.captured(QStringLiteral("field"));
    comparison_ = comparisonOf(match.captured(QStringLiteral("sign")));
    const QString number = match.captured(QStringLiteral("number"));
    if (number.isEmpty())
        operand_ = match.captured(QStringLiteral("text"))
                       .replace(QStringLiteral("''"), QStringLiteral("'"))
                       .toUtf8();
    else
        operand_ = number.toDouble();
}

Criterion::Comparison Criterion::comparisonOf(const QString& sign) {
    if (sign == QStringLiteral("="))
        return Comparison::Equal;
    if (sign == QStringLiteral("<>"))
        return Comparison::NotEqual;
    if (sign == QStringLiteral("<"))
        return Comparison::Less;
    if (sign == QStringLiteral("<="))
        return Comparison::LessOrEqual;
    return sign == QStringLiteral(">") ? Comparison::Greater : Comparison::GreaterOrEqual;
}

std::optional<double> Criterion::equalNumber() const {
    const auto* operand = std::get_if<double>(&operand_);
    return operand && comparison_ == Comparison::Equal ? std::optional(*operand) : std::nullopt;
}

bool Criterion::isFulfilledBy(const Value& value) const {
    if (const auto* text = std::get_if<QString>(&value.content()))
        return isFulfilledBy(QByteArrayView(text->toUtf8()));
    return !value.isNull() && isFulfilledBy(value.toDouble());
}

bool Criterion::isFulfilledBy(double number) const {
    const auto* operand = std::get_if<double>(&operand_);
    return operand && accepts(number <=> *operand);
}

bool Criterion::isFulfilledBy(QByteArrayView text) const {
    const auto* operand = std::get_if<QByteArray>(&operand_);
    return operand && accepts(compareUtf8(text, *operand));
}

bool Criterion::accepts(std::partial_ordering order) const {
    switch (comparison_) {
        case Comparison::Equal:
            return std::is_eq(order);
        case Comparison::NotEqual:
            return std::is_neq(order);
        case Comparison::Less:
            return std::is_lt(order);
        case Comparison::LessOrEqual:
            return std::is_lteq(order);
        case Comparison::Greater:
            return std::is_gt(order);
        case Comparison::GreaterOrEqual:
            return std::is_gteq(order);
    }
    Q_UNREACHABLE();
}
