// Twips to pixels: constants stay in twips, 1440 to the inch; the screen has 96 pixels to the inch.
#pragma once

inline constexpr int kTwipsPerPixel = 15;
inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kTwipsPerPoint = 20;
inline constexpr double kTwipsPerMetre = kTwipsPerInch / 0.0254;

// A length, not negative, in the nearest whole pixels.
constexpr int toPixels(double twips) {
    return static_cast<int>((twips + kTwipsPerPixel / 2.0) / kTwipsPerPixel);
}

// A length in pixels and parts of them.
constexpr double exactPixels(double twips) {
    return twips / kTwipsPerPixel;
}

// A length in twips.
constexpr double toTwips(double pixels) {
    return pixels * kTwipsPerPixel;
}
