// The rounding of numbers.h.
#include "runtime/numbers.h"

#include <cmath>
#include <limits>

#include "runtime/errors.h"

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

QString numberText(Long value) {
    return QString::number(value);
}

QString percentText(double percent) {
    return numberText(Round(percent)) + QLatin1Char('%');
}
