// The bands of chart_pointer.h.
#include "shell/chart_pointer.h"

#include "shell/chart_days.h"

namespace modCycles {

namespace {

constexpr int kPointerLeft = 720;
constexpr int kPointerRight = 4770;

}  // namespace

bool isOverPlot(double x, double y) {
    return kPlotTop < y && y < kPlotBottom && kPointerLeft < x && x < kPointerRight;
}

float bandBoundary(Integer band) {
    return static_cast<float>(kPlotLeft + band * double{kPlotRight - kPlotLeft} / kChartDays);
}

std::optional<Integer> bandAt(double x) {
    for (Integer band = 0; band < kChartDays; ++band) {
        const auto next = static_cast<Integer>(band + 1);
        if (bandBoundary(band) <= x && x <= bandBoundary(next))
            return band;
    }
    return std::nullopt;
}

}  // namespace modCycles
