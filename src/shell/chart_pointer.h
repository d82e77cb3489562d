// Where the mouse is on the main chart. All positions are twips from the chart's top left corner.
#pragma once

#include <optional>

#include "cycles/integers.h"

namespace modCycles {

// The plot runs over these in 31 equal bands, one a day.
inline constexpr int kPlotLeft = 795;
inline constexpr int kPlotRight = 4695;
inline constexpr int kPlotTop = 360;
inline constexpr int kPlotBottom = 2295;

// Whether the mouse is over the plot, where the pointer asks to be read; a little wider than the
// bands.
bool isOverPlot(double x, double y);

// The lower boundary of a band, 0 to 30, or with 31 the end of the last one; held in 32 bits.
float bandBoundary(Integer band);

// The band under `x`; on a boundary that two bands share, the lower one. None outside the bands.
std::optional<Integer> bandAt(double x);

}  // namespace modCycles
