// A colour between two.
#pragma once

#include <QColor>

// `share` of the second colour, 0 to 1, in the first.
inline QColor mixed(const QColor& first, const QColor& second, double share) {
    const auto between = [share](float a, float b) {
        return a + (b - a) * static_cast<float>(share);
    };
    return QColor::fromRgbF(between(first.redF(), second.redF()),
                            between(first.greenF(), second.greenF()),
                            between(first.blueF(), second.blueF()));
}
