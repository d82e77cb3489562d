// How a report is coloured.
#pragma once

#include <Qt>

#include "cycles/integers.h"

// The value of the check box that asks for it. For any other one there is no document.
inline constexpr Integer kBlackAndWhite = 0;
inline constexpr Integer kInColour = 1;

constexpr bool isReportColour(Integer colour) {
    return colour == kBlackAndWhite || colour == kInColour;
}

// The value of a box in this state: 0 clear, 1 checked, 2 grey.
constexpr Integer boxValue(Qt::CheckState state) {
    constexpr Integer kGrey = 2;
    if (state == Qt::PartiallyChecked)
        return kGrey;
    return state == Qt::Checked ? kInColour : kBlackAndWhite;
}
