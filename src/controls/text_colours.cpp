// The legible shades of text_colours.h.
#include "controls/text_colours.h"

#include <algorithm>
#include <cmath>

#include "controls/cell_colours.h"
#include "controls/colour_mix.h"

namespace {

// What a text needs, and what must do on a ground on which not even the ink has that.
constexpr double kContrast = 4.5;
constexpr double kLeastContrast = 3;
constexpr int kShades = 32;

double linear(float part) {
    return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// As the guidelines for accessible web content define it: 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace

QColor textColour(Long colour, const QPalette& palette, QPalette::ColorRole ground,
                  QPalette::ColorRole ink) {
    const QColor base = palette.color(ground);
    const QColor own = palette.color(ink);
    if (colour == 0)
        return own;
    QColor shade = colourOf(colour);
    if (base.lightness() > own.lightness())
        return shade;
    const double enough = contrast(own, base) < kContrast ? kLeastContrast : kContrast;
    for (int step = 1; step <= kShades && contrast(shade, base) < enough; ++step)
        shade = mixed(colourOf(colour), own, static_cast<double>(step) / kShades);
    return shade;
}
