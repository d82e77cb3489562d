// The rounding of numbers.h.
#include "runtime/numbers.h"

#include <cmath>
#include <limits>
#include <vector>

#include "runtime/errors.h"

namespace {

constexpr Long kWhole = 100;  // per cent

}  // namespace

Long Round(double value) {
    const double nearest = std::nearbyint(value);  // the default rounding mode: half to even
    if (!(nearest >= std::numeric_limits<Long>::min() &&
          nearest <= std::numeric_limits<Long>::max()))
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<Long>(nearest);
}

Integer RoundToInteger(double value) {
    const Long nearest = Round(value);
    if (nearest < std::numeric_limits<Integer>::min() ||
        nearest > std::numeric_limits<Integer>::max())
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<Integer>(nearest);
}

// Lists show percentages by the hundred thousand, so these share their texts.
QString numberText(Long value) {
    static const std::vector<QString> kPercentages = [] {
        std::vector<QString> texts;
        for (int percentage = 0; percentage <= kWhole; ++percentage)
            texts.push_back(QString::number(percentage));
        return texts;
    }();
    if (value >= 0 && value <= kWhole)
        return kPercentages[static_cast<std::size_t>(value)];
    return QString::number(value);
}

Long wholeNumber(const QString& digits) {
    bool isWhole = false;
    const Long number = digits.toInt(&isWhole);
    if (!isWhole)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return number;
}

QString percentText(double percent) {
    return numberText(Round(percent)) + QLatin1Char('%');
}
