// How wide the columns of a grid are on the screen.
#pragma once

#include <vector>

// The widths in pixels for widths in twips: what these leave of `available` pixels is spread over
// the columns in proportion, so that together they fill it. No column gets less than its own
// width, and one of width 0 gets nothing.
std::vector<int> columnWidths(const std::vector<int>& twips, int available);
