// How well a colour is to be read on another.
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

// As the guidelines for accessible web content define it: 1 to 21. A text needs 4.5.
inline double contrast(const QColor& a, const QColor& b) {
    const auto linear = [](float part) {
        return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&](const QColor& colour) {
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

inline constexpr double kLeastContrast = 4.5;
