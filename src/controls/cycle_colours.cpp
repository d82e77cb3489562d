// The two shades of the cycles' colours.
#include "controls/cycle_colours.h"

#include <QPalette>
#include <array>

namespace {

constexpr int kMiddleLightness = 128;

// In the order of CycleColour.
constexpr std::array<QRgb, kCycleColours> kOnLight{0xff2563c9, 0xffc93434, 0xff1d7c41, 0xff8446b5};
constexpr std::array<QRgb, kCycleColours> kOnDark{0xff6ea6ff, 0xffff7b74, 0xff56cf87, 0xffc79bf5};

}  // namespace

QColor cycleColour(CycleColour colour, const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < kMiddleLightness;
    return (dark ? kOnDark : kOnLight)[static_cast<std::size_t>(colour)];
}
